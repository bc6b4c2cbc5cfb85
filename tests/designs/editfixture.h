// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/designfolder.h"
#include "designs/kicadtext.h"
#include "support/randominputs.h"
#include "support/testfiles.h"

#include <gtest/gtest.h>

#include <functional>
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

/// The messages of all problems, one line each.
[[nodiscard]] std::string problemsOf(const designs::EditPlan &plan);

/// What a file of a plan is to hold that holds this now.
[[nodiscard]] std::string contentAfter(std::string_view before, const designs::FileReplacement &file);

/// Each change as "NAME: BEFORE > AFTER", "-" for nothing.
[[nodiscard]] std::string changesOf(const designs::EditPlan &plan);

/// A folder with a design whose properties are changed.
class EditTest : public testing::Test
{
protected:
    /// Writes the file that is opened, or another one of the design.
    QString write(std::string_view text) const { return m_folder.write(m_file, text); }
    QString write(const QString &name, std::string_view text) const { return m_folder.write(name, text); }
    [[nodiscard]] std::string content(const QString &name) const
    {
        return readFile(m_folder.path(name)).toStdString();
    }
    [[nodiscard]] std::string content() const { return content(m_file); }

    /// The design as its files are now.
    [[nodiscard]] std::unique_ptr<designs::Design> load() const { return m_folder.load(m_file, m_variant); }

    /// Makes edits and writes the files; a problem fails the test.
    designs::EditPlan make(const std::vector<AskedEdit> &edits) const;

    /// What is refused of one edit, both when it is checked alone and in a batch; empty when nothing is.
    [[nodiscard]] std::string refusal(const AskedEdit &edit) const;

    /// Makes up to `count` random edits. Whatever is not refused must read back exactly, and nothing else may
    /// change.
    designs::EditPlan makeRandom(RandomInputs *random, int count, const std::vector<std::string> &names,
                                 const std::function<std::string()> &text) const;

    DesignFolder m_folder;
    QString m_file = kicadtext::root;
    QString m_variant;
};
