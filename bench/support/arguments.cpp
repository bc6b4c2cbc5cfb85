// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/support/arguments.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace bench {

std::optional<Arguments> Arguments::parse(int argc, char **argv, const std::vector<std::string> &names)
{
    Arguments arguments;
    for (int index = 1; index < argc; index += 2) {
        const std::string_view option = argv[index];
        if (!option.starts_with("--") || index + 1 == argc ||
            std::ranges::find(names, option.substr(2)) == names.end()) {
            return std::nullopt;
        }
        arguments.m_values.insert_or_assign(std::string(option.substr(2)), argv[index + 1]);
    }
    return arguments;
}

std::string Arguments::text(const std::string &name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? std::string() : found->second;
}

std::optional<std::uint64_t> Arguments::number(const std::string &name) const
{
    const std::string value = text(name);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (value.empty() || error != std::errc() || end != value.data() + value.size()) {
        return std::nullopt;
    }
    return number;
}

} // namespace bench
