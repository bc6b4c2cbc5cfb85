// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomtemplate.h"

#include <optional>

class LoadedDesign;

/// A template that suits one design, and why it is as it is.
struct FittedTemplate
{
    BOMTemplate settings;
    /// For people: what was taken, in one sentence without a full stop.
    QString reason;
    /// What of the project's settings cannot be followed, one sentence each.
    QStringList notices;
};

/// The name of templates that are made for a design.
[[nodiscard]] QString fittedTemplateName();

/// The template file beside a design; it need not exist.
[[nodiscard]] QString templateBeside(const LoadedDesign &design);

/// The template for a design for which nobody chose one: the file beside it, else the columns of its
/// project's settings where they are the user's own, else columns made for its parts; the default one where
/// names of properties are taken as they are. Nothing, with the problem, when the file cannot be read.
[[nodiscard]] std::optional<FittedTemplate> fittedTemplate(const LoadedDesign &design, QString *problem);

/// The columns of a preset of the design's project, ignoring letter case. Nothing where it has no such one.
[[nodiscard]] std::optional<FittedTemplate> presetTemplate(const LoadedDesign &design, const QString &preset);
/// The presets that a project has.
[[nodiscard]] QStringList presetNames(const LoadedDesign &design);

/// The fields with as many places after the point in columns of totals as their texts have, if they show any.
[[nodiscard]] BOMFields withDecimalsOfParts(BOMFields fields, const LoadedDesign &design);

/// Columns of these properties, as KiCad or as we call them, under these labels; where a label is missing or
/// empty, under their names.
[[nodiscard]] FittedTemplate columnTemplate(const LoadedDesign &design, const QStringList &properties,
                                            const QStringList &labels);
