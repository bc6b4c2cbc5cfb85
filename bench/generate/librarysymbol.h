// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "bench/support/outputfile.h"

#include <span>
#include <string_view>

namespace bench {

struct Point
{
    Length x;
    Length y;
};

struct LibraryPin
{
    int unit = 1;
    std::string_view type;
    std::string_view name;
    std::string_view number;
    Point at;
    int angle = 0;
    Length length;
};

/// A rectangle when it has two points, else a polyline. Y points upwards, as in a symbol library.
struct LibraryShape
{
    std::span<const Point> points;
    Length width;
    std::string_view fill = "none";
    bool rectangle = false;
};

struct LibrarySymbol
{
    std::string_view library;
    std::string_view name;
    std::string_view prefix;
    std::string_view description;
    std::string_view keywords;
    std::string_view filters;
    std::span<const LibraryShape> shapes;
    std::span<const LibraryPin> pins;
    int units = 1;
    bool power = false;
    bool hidePinNumbers = true;
};

/// The kinds of things placed on a sheet, in the order of librarySymbols().
enum class Kind : unsigned char
{
    OpAmp,
    Connector,
    Capacitor,
    Diode,
    Inductor,
    Resistor,
    Interface,
    Motor,
    Transistor,
    Supply,
    Ground
};

/// Ordered by library and name, as a schematic's cache is.
[[nodiscard]] std::span<const LibrarySymbol> librarySymbols();
[[nodiscard]] const LibrarySymbol &librarySymbol(Kind kind);

} // namespace bench
