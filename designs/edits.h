// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"
#include "designs/problem.h"
#include "designs/splices.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace designs {

/// What is asked for: one property of one component. Texts are UTF-8.
struct Edit
{
    /// Index into Design::components().
    std::size_t component = 0;
    /// Found like a name that is read: exactly, by alias (VALUE, PACKAGE), ignoring letter case. BOMSKIP and
    /// DNP stand for the flags where the format has them.
    std::string name;
    /// Nothing takes the property away.
    std::optional<std::string> value;
    /// The name that the user said, where another one of the same meaning is written. Empty where it is the
    /// same.
    std::string askedName = {};

    bool operator==(const Edit &) const = default;
};

/// Why edits cannot be made.
struct EditProblem
{
    /// Index into the edits; nothing when a file as a whole is the trouble.
    std::optional<std::size_t> edit;
    Problem problem;
};

/// What an edit does to a stored property.
struct Change
{
    /// Index into the edits.
    std::size_t edit = 0;
    /// The name under which the property is stored then.
    std::string name;
    /// What is stored before and after; nothing where the component lacks the property.
    std::optional<std::string> before;
    std::optional<std::string> after;
    /// Where it stands, the line counted from 1 in the file as it is before.
    QString file;
    int line = 0;
    /// The other components that share what is changed, as indices into Design::components().
    std::vector<std::size_t> alsoChanges;
    /// The variant that it is made in; empty for the design as drawn.
    std::string variant = {};
};

/// New content for a file.
struct FileReplacement
{
    QString path;
    /// Of the content that the edits were worked out on.
    FileFingerprint before;
    FileFingerprint after;
    /// What becomes of the content before, sorted: all new contents of a large design would not go into
    /// memory.
    std::vector<Splice> splices;

    /// For content that has nothing to do with the one before.
    [[nodiscard]] static FileReplacement whole(const QString &path, const FileFingerprint &before,
                                               std::string after)
    {
        FileReplacement made{path, before, fingerprintOf(after), {}};
        made.splices.push_back({0, std::size_t(before.size), std::move(after)});
        return made;
    }
};

/// What edits come to. Files may be written only when there are no problems.
struct EditPlan
{
    /// In the order of the edits; one that asks for what is there already has none.
    std::vector<Change> changes;
    std::vector<EditProblem> problems;
    std::vector<FileReplacement> files;
};

} // namespace designs
