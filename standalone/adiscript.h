// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// A property that a script gives to a component. Texts are UTF-8.
struct AdiAssignment
{
    std::string reference;
    std::string property;
    /// Nothing takes the property away.
    std::optional<std::string> value;

    bool operator==(const AdiAssignment &) const = default;
};

/// What a script may hold at most; beyond it, reading fails with a message.
struct AdiLimits
{
    std::size_t lineBytes = std::size_t(1024) * 1024;
    std::size_t assignments = 1'000'000;
};

/// A script that was read.
struct AdiScript
{
    /// In the order of the script; empty when there is an error.
    std::vector<AdiAssignment> assignments;
    /// "script line N: what is wrong", empty when nothing is.
    QString error;
    /// What the line with the error is about, as far as it says so.
    std::string reference;
    std::string property;
};

/// Reads a script that writes properties: any number of records, each
///
///     DATA NAME : REFERENCE-
///     "PROPERTY"   :   "VALUE"
///     END
///
/// with an empty line behind, every line ended by a line feed. The hyphen that ends the first line is the
/// last one of it. There are as many property lines as properties; the name ends at the first `"   :   "`,
/// the value at the quote that ends the line, so that either may hold quotes. The value [REMOVE] takes the
/// property away. Nothing else is a script.
[[nodiscard]] AdiScript readAdiScript(std::istream &script, const AdiLimits &limits = {});
