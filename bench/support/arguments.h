// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace bench {

/// The options of a program that takes only `--name value` pairs.
class Arguments final
{
public:
    /// Reads the command line; `names` are the options known, without hyphens. Nothing when an option is
    /// unknown or stands without a value.
    [[nodiscard]] static std::optional<Arguments> parse(int argc, char **argv,
                                                        const std::vector<std::string> &names);

    /// Empty when the option was not given.
    [[nodiscard]] std::string text(const std::string &name) const;

    /// Nothing when the option was not given or is no whole number in decimal.
    [[nodiscard]] std::optional<std::uint64_t> number(const std::string &name) const;

private:
    std::map<std::string, std::string> m_values;
};

} // namespace bench
