// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/stylesheet.h"

#include <QMap>

#include <array>
#include <optional>

/// The properties of the four sides of a box: "margin", "padding" and "border", with their many ways of
/// naming one side, all sides or several things at once.
namespace cssbox {

enum class Family
{
    Margin,
    Padding,
    Border
};
enum class Aspect
{
    Width,
    Style,
    Color
};
enum class Side
{
    Top,
    Right,
    Bottom,
    Left
};
constexpr Side allSides[] = {Side::Top, Side::Right, Side::Bottom, Side::Left};

/// One thing about one side. Margins and paddings have a width only.
using Slot = std::pair<Aspect, Side>;
[[nodiscard]] QList<Slot> everySide(Aspect aspect);
/// What a declaration says of each slot; an empty value for one that it resets, as "border: solid" does with
/// the width.
using Values = QMap<Slot, QString>;

/// Empty for a declaration of another family.
[[nodiscard]] Values read(Family family, const StyleSheet::Declaration &declaration);

/// A length for each side, in the order of allSides.
using Lengths = std::array<std::optional<double>, 4>;
/// The margins or paddings that a rule sets, in points: none for a side that it leaves open, 0 where its
/// value is no length such as "auto". `em` and `whole` are the points that 1em and 100% stand for.
[[nodiscard]] Lengths lengths(Family family, const StyleSheet::Rule &rule, double em, double whole);

/// The value that gives a property these values, shorthands included; empty when the property cannot express
/// them.
[[nodiscard]] QString written(Family family, const QString &property, const Values &values);

/// The property for one slot: "border-left-width".
[[nodiscard]] QString property(Family family, Slot slot);
/// The property for an aspect of all sides: "border-width", "margin".
[[nodiscard]] QString property(Family family, Aspect aspect);

} // namespace cssbox
