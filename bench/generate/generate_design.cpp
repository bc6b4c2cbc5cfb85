// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/designgenerator.h"
#include "bench/support/arguments.h"

#include <cstdint>
#include <iostream>
#include <string>

namespace {

constexpr std::uint64_t maximumParts = 10'000'000;

int usage()
{
    std::cerr << "usage: generate_design --parts N --layout 6|8|10 --out DIR [--seed S]\n"
                 "Writes a schematic hierarchy of N components (at most 10000000), as that version of KiCad "
                 "would.\n";
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    const auto arguments = bench::Arguments::parse(argc, argv, {"parts", "layout", "out", "seed"});
    if (!arguments) {
        return usage();
    }
    const std::uint64_t parts = arguments->number("parts").value_or(0);
    const std::uint64_t layout = arguments->number("layout").value_or(0);
    const std::string folder = arguments->text("out");
    const auto seed = arguments->number("seed");
    if (parts == 0 || parts > maximumParts || (layout != 6 && layout != 8 && layout != 10) ||
        folder.empty() || (!seed && !arguments->text("seed").empty())) {
        return usage();
    }
    bench::DesignGenerator generator(static_cast<std::uint32_t>(parts), static_cast<int>(layout),
                                     seed.value_or(1), folder);
    const std::string problem = generator.run();
    if (!problem.empty()) {
        std::cerr << "generate_design: " << problem << '\n';
        return 4;
    }
    return 0;
}
