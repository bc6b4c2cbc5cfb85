// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/multiply/designmultiplier.h"
#include "bench/support/arguments.h"

#include <cstdint>
#include <iostream>
#include <string>

namespace {

constexpr std::uint64_t maximumParts = 10'000'000;

int usage()
{
    std::cerr << "usage: multiply_design --design ROOT.kicad_sch --parts N --out DIR\n"
                 "Writes a design of at least N components made of copies of a design of KiCad 7 or later.\n";
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    const auto arguments = bench::Arguments::parse(argc, argv, {"design", "parts", "out"});
    if (!arguments) {
        return usage();
    }
    const std::string design = arguments->text("design");
    const std::string folder = arguments->text("out");
    const std::uint64_t parts = arguments->number("parts").value_or(0);
    if (design.empty() || folder.empty() || parts == 0 || parts > maximumParts) {
        return usage();
    }
    bench::DesignMultiplier multiplier(design);
    std::string problem = multiplier.load();
    if (!problem.empty()) {
        std::cerr << "multiply_design: " << problem << '\n';
        return 3;
    }
    problem = multiplier.write(parts, folder);
    if (!problem.empty()) {
        std::cerr << "multiply_design: " << problem << '\n';
        return 4;
    }
    return 0;
}
