// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/prefixcategories.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Heading
{
    const char *text;
    /// Separated by blanks.
    const char *prefixes;
};

/// The letters of IEEE 315 and ASME Y14.44, and those that libraries of symbols have besides.
constexpr std::array<Heading, 25> headings{{
    {QT_TRANSLATE_NOOP("PrefixCategories", "Modules"), "A M MOD"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Integrated Circuits"), "U IC"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Transistors"), "Q TR"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Diodes"), "D CR ZD"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "LEDs"), "LED"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Capacitors"), "C"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Resistors"), "R"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Resistor Networks"), "RN RA RP"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Variable Resistors"), "RV POT"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Thermistors"), "TH RT NTC PTC"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Inductors"), "L"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Ferrite Beads"), "FB"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Filters"), "FL"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Transformers"), "T"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Crystals and Oscillators"), "X Y OSC XTAL"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Fuses"), "F"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Relays"), "K RL"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Switches"), "SW S"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Connectors"), "J P CN CON"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Jumpers"), "JP SJ"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Batteries"), "BT BAT"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Sound"), "LS BZ MK MIC"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Antennas"), "AE ANT"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Test Points"), "TP"},
    {QT_TRANSLATE_NOOP("PrefixCategories", "Mechanical"), "H MH MP HS FID"},
}};

QString translated(const char *text)
{
    return QCoreApplication::translate("PrefixCategories", text);
}

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
            categories.append({translated(heading.text), known, false});
        }
    }
    const QString rest = categories.isEmpty()
                             ? translated(QT_TRANSLATE_NOOP("PrefixCategories", "Parts"))
                             : translated(QT_TRANSLATE_NOOP("PrefixCategories", "Miscellaneous"));
    categories.append({rest, {QStringLiteral("*")}, true});
    return categories;
}
