// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

#include <optional>

/// The values of declarations.
namespace css {

/// The parts of a value: what blanks separate outside brackets and strings, without comments.
[[nodiscard]] QStringList parts(const QString &value);

[[nodiscard]] bool isImportant(const QString &value);
[[nodiscard]] QString withoutImportant(const QString &value);

/// A number with at most two decimals.
[[nodiscard]] QString numberText(double value);

/// A length in points; none for what is no length. `em` and `whole` are the points that 1em and 100% stand
/// for.
[[nodiscard]] std::optional<double> points(const QString &length, double em, double whole);
/// A length as it is written: "10.5pt".
[[nodiscard]] QString inPoints(double points);

/// A colour by name, "#rgb", "#rrggbb", with a last digit or pair for its opacity, "rgb()" or "rgba()";
/// invalid for anything else.
[[nodiscard]] QColor color(const QString &value);
/// "#rrggbb", "transparent", or "rgba()" for a colour that is partly transparent.
[[nodiscard]] QString colorText(const QColor &color);

/// Font names for the user: without the quotes.
[[nodiscard]] QString shownFamilies(const QString &value);
/// Font names as a value: quoted where their characters ask for it.
[[nodiscard]] QString writtenFamilies(const QString &names);

} // namespace css
