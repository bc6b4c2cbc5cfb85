// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/prefixcategories.h"

#include <algorithm>
#include <array>

namespace {

struct Heading
{
    const char *text;
    /// Separated by blanks.
    const char *prefixes;
};

/// Not translated: a report has one language on all machines.
/// The letters of IEEE 315 and ASME Y14.44, and those that libraries of symbols have besides.
constexpr std::array<Heading, 25> headings{{
    {"Modules", "A M MOD"},
    {"Integrated Circuits", "U IC"},
    {"Transistors", "Q TR"},
    {"Diodes", "D CR ZD"},
    {"LEDs", "LED"},
    {"Capacitors", "C"},
    {"Resistors", "R"},
    {"Resistor Networks", "RN RA RP"},
    {"Variable Resistors", "RV POT"},
    {"Thermistors", "TH RT NTC PTC"},
    {"Inductors", "L"},
    {"Ferrite Beads", "FB"},
    {"Filters", "FL"},
    {"Transformers", "T"},
    {"Crystals and Oscillators", "X Y OSC XTAL"},
    {"Fuses", "F"},
    {"Relays", "K RL"},
    {"Switches", "SW S"},
    {"Connectors", "J P CN CON"},
    {"Jumpers", "JP SJ"},
    {"Batteries", "BT BAT"},
    {"Sound", "LS BZ MK MIC"},
    {"Antennas", "AE ANT"},
    {"Test Points", "TP"},
    {"Mechanical", "H MH MP HS FID"},
}};

} // namespace

QList<BOMCategory> prefixCategories(const QStringList &prefixes)
{
    QList<BOMCategory> categories;
    for (const Heading &heading : headings) {
        const QStringList known = QString::fromLatin1(heading.prefixes).split(u' ');
        const bool isUsed = std::any_of(known.begin(), known.end(), [&prefixes](const QString &prefix) {
            return prefixes.contains(prefix);
        });
        if (isUsed) {
            categories.append({QString::fromLatin1(heading.text), known, false});
        }
    }
    const QString rest = categories.isEmpty() ? QStringLiteral("Parts") : QStringLiteral("Miscellaneous");
    categories.append({rest, {QStringLiteral("*")}, true});
    return categories;
}
