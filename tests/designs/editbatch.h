// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/designfolder.h"

#include <initializer_list>
#include <optional>
#include <string>

/// An edit by reference.
struct AskedEdit
{
    std::string reference;
    std::string name;
    /// Nothing takes the property away.
    std::optional<std::string> value = std::nullopt;
};

/// The plan for edits; a reference means its first component.
[[nodiscard]] designs::EditPlan planned(const designs::Design &design, const std::vector<AskedEdit> &edits);

/// Makes edits in a folder's design and writes its files; a problem fails the test.
designs::EditPlan makeEdits(const DesignFolder &folder, const std::vector<AskedEdit> &edits,
                            const QString &variant = {});

/// The messages of all problems, one line each.
[[nodiscard]] std::string problemsOf(const designs::EditPlan &plan);

/// What is refused of one edit, both when it is checked alone and in a batch; empty when nothing is.
[[nodiscard]] std::string refusal(const designs::Design &design, const AskedEdit &edit);

/// Each change as "NAME: BEFORE > AFTER", "-" for nothing.
[[nodiscard]] std::string changesOf(const designs::EditPlan &plan);

[[nodiscard]] std::string contentOf(const QString &path);
