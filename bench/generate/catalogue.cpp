// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/catalogue.h"

#include "bench/support/random.h"

#include <algorithm>
#include <array>
#include <span>

namespace bench {

namespace {

struct Share
{
    std::uint32_t upTo; ///< of 1000
    Kind kind;
};

constexpr std::array shares{
    Share{400, Kind::Resistor}, Share{745, Kind::Capacitor},  Share{805, Kind::Diode},
    Share{845, Kind::Inductor}, Share{895, Kind::Transistor}, Share{945, Kind::Interface},
    Share{965, Kind::OpAmp},    Share{995, Kind::Connector},  Share{1000, Kind::Motor}};

struct Family
{
    std::string_view value;
    std::string_view footprint;
    std::string_view stem; ///< of the manufacturer's part number
    std::string_view manufacturer;
};

constexpr std::array resistors{
    Family{"", "Resistor_SMD:R_0402_1005Metric", "RC0402FR-07", "Yageo"},
    Family{"", "Resistor_SMD:R_0603_1608Metric", "ERJ-3EKF", "Panasonic"},
    Family{"", "Resistor_SMD:R_0805_2012Metric", "CRCW0805", "Vishay Dale"},
    Family{"", "Resistor_THT:R_Axial_DIN0207_L6.3mm_D2.5mm_P10.16mm_Horizontal", "MFR-25FBF52-", "Yageo"}};
constexpr std::array capacitors{Family{"", "Capacitor_SMD:C_0402_1005Metric", "GRM155R71", "Murata"},
                                Family{"", "Capacitor_SMD:C_0603_1608Metric", "CL10B", "Samsung"},
                                Family{"", "Capacitor_SMD:C_1206_3216Metric", "C3216X7R", "TDK"},
                                Family{"", "Capacitor_SMD:CP_Elec_6.3x7.7", "EEE-FK", "Panasonic"}};
constexpr std::array inductors{Family{"", "Inductor_SMD:L_0805_2012Metric", "LQM21P", "Murata"},
                               Family{"", "Inductor_SMD:L_Bourns-SRN6028", "SRN6028-", "Bourns"}};
constexpr std::array diodes{Family{"1N4148W", "Diode_SMD:D_SOD-123", "1N4148W-", "Diodes Inc."},
                            Family{"BAT54", "Package_TO_SOT_SMD:SOT-23", "BAT54-", "Nexperia"},
                            Family{"SMAJ5.0A", "Diode_SMD:D_SMA", "SMAJ5.0A-", "Littelfuse"},
                            Family{"green", "LED_SMD:LED_0603_1608Metric", "LTST-C191K", "Lite-On"}};
constexpr std::array transistors{Family{"MMBT3904", "Package_TO_SOT_SMD:SOT-23", "MMBT3904", "onsemi"},
                                 Family{"BC847B", "Package_TO_SOT_SMD:SOT-23", "BC847B", "Nexperia"}};
constexpr std::array interfaces{
    Family{"SN65HVD230", "Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", "SN65HVD230D", "Texas Instruments"},
    Family{"MCP2562", "Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", "MCP2562-E", "Microchip"},
    Family{"TJA1051T", "Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", "TJA1051T", "NXP"}};
constexpr std::array opAmps{
    Family{"LM358", "Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", "LM358DR", "Texas Instruments"},
    Family{"OPA2134", "Package_SO:SOIC-8_3.9x4.9mm_P1.27mm", "OPA2134U", "Texas Instruments"}};
constexpr std::array connectors{
    Family{"Conn_01x04", "Connector_PinHeader_2.54mm:PinHeader_1x04_P2.54mm_Vertical", "61300411",
           "Würth Elektronik"},
    Family{"JST XH", "Connector_JST:JST_XH_B4B-XH-A_1x04_P2.50mm_Vertical", "B4B-XH-", "JST"}};
constexpr std::array motors{
    Family{"12V 300 rpm", "TerminalBlock:TerminalBlock_bornier-2_P5.08mm", "GM37-", "Machine Works"}};

/// Additions to the value of a few lines: what a reader of the file has to unescape, and more than ASCII.
constexpr std::array<std::string_view, 8> unusualEndings{
    " ±0.1%", " 3.5\\\"", "{slash}X7R", " \\\\alt", "\\nselect on test", " 5 °C", " µ-grade", " {lt}1Ω{gt}"};

std::span<const Family> families(Kind kind)
{
    switch (kind) {
    case Kind::Resistor:
        return resistors;
    case Kind::Capacitor:
        return capacitors;
    case Kind::Inductor:
        return inductors;
    case Kind::Diode:
        return diodes;
    case Kind::Transistor:
        return transistors;
    case Kind::Interface:
        return interfaces;
    case Kind::OpAmp:
        return opAmps;
    case Kind::Connector:
        return connectors;
    default:
        return motors;
    }
}

/// A preferred number with one of three units for each thousand, such as 4.7k.
std::string preferredNumber(Random &random, const std::array<std::string_view, 3> &units)
{
    static constexpr std::array<std::string_view, 24> steps{"10", "11", "12", "13", "15", "16", "18", "20",
                                                            "22", "24", "27", "30", "33", "36", "39", "43",
                                                            "47", "51", "56", "62", "68", "75", "82", "91"};
    const std::string_view step = steps[random.below(steps.size())];
    const std::uint32_t decade = random.below(9);
    std::string number(step);
    if (decade % 3 == 0) {
        number = step[1] == '0' ? std::string(1, step[0]) : std::string{step[0], '.', step[1]};
    } else if (decade % 3 == 2) {
        number += '0';
    }
    return number.append(units[decade / 3]);
}

std::string valueOf(Kind kind, const Family &family, Random &random)
{
    switch (kind) {
    case Kind::Resistor:
        return preferredNumber(random, {"Ω", "k", "M"});
    case Kind::Capacitor:
        return preferredNumber(random, {"p", "n", "µ"}).append(random.below(2) == 0 ? " 16V" : " 50V");
    case Kind::Inductor:
        return preferredNumber(random, {"nH", "µH", "mH"});
    default:
        return std::string(family.value);
    }
}

std::string padded(std::uint32_t number, std::size_t width)
{
    std::string digits = std::to_string(number);
    return digits.insert(0, width - std::min(width, digits.size()), '0');
}

} // namespace

Kind Catalogue::kind(std::uint32_t line) const
{
    const std::uint32_t draw = Random::stream(m_seed, line).below(1000);
    std::size_t index = 0;
    while (draw >= shares[index].upTo) {
        ++index;
    }
    return shares[index].kind;
}

LineText Catalogue::text(std::uint32_t line) const
{
    LineText text;
    text.kind = kind(line);
    Random random = Random::stream(~m_seed, line);
    const auto choices = families(text.kind);
    const Family &family = choices[random.below(static_cast<std::uint32_t>(choices.size()))];
    text.value = valueOf(text.kind, family, random);
    if (random.below(25) == 0) {
        text.value.append(unusualEndings[random.below(unusualEndings.size())]);
    }
    text.footprint = family.footprint;
    text.datasheet = random.below(4) == 0
                         ? std::string(m_emptyText)
                         : "https://datasheets.example.com/" + std::string(family.stem) + ".pdf";
    text.description = librarySymbol(text.kind).description;
    text.manufacturer = family.manufacturer;
    text.partNumber = std::string(family.stem) + padded(line, 5);
    text.code = std::to_string(100 + static_cast<int>(text.kind)) + '-' + padded(line, 6);
    text.cost = std::to_string(random.below(10)) + '.' + padded(random.below(10000), 4);
    text.fitted = random.below(100) != 0;
    text.inBom = random.below(200) != 0;
    return text;
}

} // namespace bench
