// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssbox.h"

#include "richtext/css/cssvalue.h"

namespace cssbox {
namespace {

constexpr Aspect allAspects[] = {Aspect::Width, Aspect::Style, Aspect::Color};

[[nodiscard]] QString familyName(Family family)
{
    switch (family) {
    case Family::Margin:
        return QStringLiteral("margin");
    case Family::Padding:
        return QStringLiteral("padding");
    case Family::Border:
        break;
    }
    return QStringLiteral("border");
}

[[nodiscard]] QString sideName(Side side)
{
    switch (side) {
    case Side::Top:
        return QStringLiteral("-top");
    case Side::Right:
        return QStringLiteral("-right");
    case Side::Bottom:
        return QStringLiteral("-bottom");
    case Side::Left:
        break;
    }
    return QStringLiteral("-left");
}

/// The end of a property's name that names an aspect; margins and paddings have none.
[[nodiscard]] QString aspectName(Family family, Aspect aspect)
{
    if (family != Family::Border) {
        return {};
    }
    switch (aspect) {
    case Aspect::Width:
        return QStringLiteral("-width");
    case Aspect::Style:
        return QStringLiteral("-style");
    case Aspect::Color:
        break;
    }
    return QStringLiteral("-color");
}

[[nodiscard]] Aspect aspectOf(const QString &part)
{
    static const QStringList styles{
        QStringLiteral("none"),  QStringLiteral("hidden"), QStringLiteral("dotted"), QStringLiteral("dashed"),
        QStringLiteral("solid"), QStringLiteral("double"), QStringLiteral("groove"), QStringLiteral("ridge"),
        QStringLiteral("inset"), QStringLiteral("outset")};
    if (styles.contains(part, Qt::CaseInsensitive)) {
        return Aspect::Style;
    }
    return css::points(part, 1, 1) ? Aspect::Width : Aspect::Color;
}

/// "1pt 2pt 3pt": top, right, bottom, left, a missing one being that of the opposite side.
[[nodiscard]] Values fourSides(Aspect aspect, const QStringList &parts)
{
    if (parts.isEmpty() || parts.size() > 4) {
        return {};
    }
    const QString &top = parts.at(0);
    const QString right = parts.value(1, top);
    return {{{aspect, Side::Top}, top},
            {{aspect, Side::Right}, right},
            {{aspect, Side::Bottom}, parts.value(2, top)},
            {{aspect, Side::Left}, parts.value(3, right)}};
}

/// "1pt solid red" for some sides.
[[nodiscard]] Values mixed(const QList<Side> &sides, const QStringList &parts)
{
    Values out;
    for (const Side side : sides) {
        for (const Aspect aspect : allAspects) {
            out.insert({aspect, side}, {});
        }
        for (const QString &part : parts) {
            out.insert({aspectOf(part), side}, part);
        }
    }
    return out;
}

[[nodiscard]] QString joinedSides(Aspect aspect, const Values &values)
{
    QStringList out;
    for (const Side side : allSides) {
        out.append(values.value({aspect, side}));
    }
    if (out.contains(QString())) {
        return {};
    }
    if (out.at(3) == out.at(1)) {
        out.removeLast();
        if (out.at(2) == out.at(0)) {
            out.removeLast();
            if (out.at(1) == out.at(0)) {
                out.removeLast();
            }
        }
    }
    return out.join(u' ');
}

[[nodiscard]] QString joinedAspects(const QList<Side> &sides, const Values &values)
{
    QStringList out;
    for (const Aspect aspect : allAspects) {
        const QString first = values.value({aspect, sides.constFirst()});
        for (const Side side : sides) {
            if (values.value({aspect, side}) != first) {
                return {};
            }
        }
        out.append(first);
    }
    out.removeAll(QString());
    return out.join(u' ');
}

} // namespace

QList<Slot> everySide(Aspect aspect)
{
    QList<Slot> out;
    for (const Side side : allSides) {
        out.append({aspect, side});
    }
    return out;
}

QString property(Family family, Slot slot)
{
    return familyName(family) + sideName(slot.second) + aspectName(family, slot.first);
}

QString property(Family family, Aspect aspect)
{
    return familyName(family) + aspectName(family, aspect);
}

Values read(Family family, const StyleSheet::Declaration &declaration)
{
    const QString name = familyName(family);
    if (!declaration.property.startsWith(name)) {
        return {};
    }
    const QStringList parts = css::parts(css::withoutImportant(declaration.value));
    if (family == Family::Border && declaration.property == name) {
        return mixed({std::begin(allSides), std::end(allSides)}, parts);
    }
    for (const Aspect aspect : allAspects) {
        if (declaration.property == property(family, aspect)) {
            return fourSides(aspect, parts);
        }
        for (const Side side : allSides) {
            if (declaration.property == property(family, Slot{aspect, side})) {
                return {{{aspect, side}, parts.join(u' ')}};
            }
            if (family == Family::Border && declaration.property == name + sideName(side)) {
                return mixed({side}, parts);
            }
        }
        if (family != Family::Border) {
            break; // margins and paddings have a width only
        }
    }
    return {};
}

Lengths lengths(Family family, const StyleSheet::Rule &rule, double em, double whole)
{
    Lengths found;
    for (const StyleSheet::Declaration &declaration : rule.declarations) {
        const Values values = read(family, declaration);
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            found[size_t(value.key().second)] = css::points(*value, em, whole).value_or(0.0);
        }
    }
    return found;
}

QString written(Family family, const QString &property, const Values &values)
{
    const QString name = familyName(family);
    if (family == Family::Border && property == name) {
        return joinedAspects({std::begin(allSides), std::end(allSides)}, values);
    }
    for (const Aspect aspect : allAspects) {
        if (property == cssbox::property(family, aspect)) {
            return joinedSides(aspect, values);
        }
        for (const Side side : allSides) {
            if (property == cssbox::property(family, Slot{aspect, side})) {
                return values.value({aspect, side});
            }
            if (family == Family::Border && property == name + sideName(side)) {
                return joinedAspects({side}, values);
            }
        }
    }
    return {};
}

} // namespace cssbox
