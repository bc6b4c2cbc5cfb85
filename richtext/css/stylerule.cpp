// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/stylerule.h"

#include "richtext/css/cssvalue.h"

#include <algorithm>

namespace {

[[nodiscard]] bool isWeight(const QString &part)
{
    bool number = false;
    const int weight = part.toInt(&number);
    return part == QLatin1String("bold") || part == QLatin1String("bolder") ||
           part == QLatin1String("lighter") || (number && weight >= 100 && weight <= 900);
}

/// One property out of the shorthand "italic bold 12pt/1.2 Arial".
[[nodiscard]] QString fontPart(const QString &font, const QString &property)
{
    QString style = QStringLiteral("normal");
    QString weight = style;
    QStringList parts = css::parts(font);
    for (; !parts.isEmpty(); parts.removeFirst()) {
        const QString part = parts.constFirst().toLower();
        const QString size = part.section(u'/', 0, 0);
        if (css::points(size, 1, 1) && !isWeight(part)) {
            parts.removeFirst();
            return property == QLatin1String("font-style")    ? style
                   : property == QLatin1String("font-weight") ? weight
                   : property == QLatin1String("font-size")   ? size
                                                              : parts.join(u' ');
        }
        if (part == QLatin1String("italic") || part == QLatin1String("oblique")) {
            style = part;
        } else if (isWeight(part)) {
            weight = part;
        }
    }
    return {}; // a system font, or no font at all
}

[[nodiscard]] QString backgroundColor(const QString &background)
{
    for (const QString &part : css::parts(background)) {
        if (css::color(part).isValid()) {
            return part;
        }
    }
    return QStringLiteral("transparent");
}

[[nodiscard]] QString shorthandOf(const QString &property)
{
    static const QStringList fontProperties{QStringLiteral("font-style"), QStringLiteral("font-weight"),
                                            QStringLiteral("font-size"), QStringLiteral("font-family")};
    if (fontProperties.contains(property)) {
        return QStringLiteral("font");
    }
    return property == QLatin1String("background-color") ? QStringLiteral("background") : QString();
}

/// Whether a value leaves the property to others, as if there were no declaration.
[[nodiscard]] bool isOpen(const QString &value)
{
    static const QStringList words{QStringLiteral("inherit"), QStringLiteral("initial"),
                                   QStringLiteral("unset")};
    return words.contains(value, Qt::CaseInsensitive);
}

} // namespace

StyleRule::StyleRule(StyleSheet *sheet, const QString &selector)
    : m_sheet(sheet)
    , m_selector(selector)
{
    readDeclarations();
}

void StyleRule::readDeclarations()
{
    m_declarations.clear();
    bool own = true;
    const QList<StyleSheet::Rule> rules = m_sheet->rules();
    for (auto rule = rules.crbegin(); rule != rules.crend(); ++rule) {
        if (rule->selector != m_selector) {
            continue;
        }
        for (auto one = rule->declarations.crbegin(); one != rule->declarations.crend(); ++one) {
            m_declarations.append({*one, own});
        }
        own = false;
    }
    std::reverse(m_declarations.begin(), m_declarations.end());
    std::stable_partition(m_declarations.begin(), m_declarations.end(),
                          [](const Declaration &one) { return !css::isImportant(one.value); });
}

StyleRule::Declaration StyleRule::effective(const QString &property) const
{
    const QString shorthand = shorthandOf(property);
    for (auto found = m_declarations.crbegin(); found != m_declarations.crend(); ++found) {
        if (found->property == property || (!shorthand.isEmpty() && found->property == shorthand)) {
            return *found;
        }
    }
    return {};
}

/// Replaces the value of the property's last declaration, which stays important if it was.
void StyleRule::write(const QString &property, const QString &value)
{
    const bool important = css::isImportant(effective(property).value);
    m_sheet->setValue(m_selector, property,
                      important && !value.isEmpty() ? value + QStringLiteral(" !important") : value);
}

/// Adds the declaration as the last one of the rule, where it wins over all before it.
void StyleRule::append(const QString &property, const QString &value)
{
    m_sheet->setValue(m_selector, property, {});
    m_sheet->setValue(m_selector, property, value);
}

QString StyleRule::value(const QString &property) const
{
    const Declaration found = effective(property);
    const QString value = css::withoutImportant(found.value);
    if (found.property == QLatin1String("font")) {
        return fontPart(value, property);
    }
    if (found.property == QLatin1String("background")) {
        return backgroundColor(value);
    }
    return isOpen(value) ? QString() : value;
}

void StyleRule::setValue(const QString &property, const QString &value)
{
    const Declaration found = effective(property);
    if (found.own && found.property == QLatin1String("background") && css::parts(found.value).size() == 1) {
        write(found.property, value);
    } else if (found.property.isEmpty() || (found.own && found.property == property)) {
        write(property, value);
        readDeclarations();
        if (value.isEmpty() && !this->value(property).isEmpty()) {
            append(property, QStringLiteral("inherit")); // else an earlier rule would count again
        }
    } else {
        append(property, value.isEmpty() ? QStringLiteral("inherit") : value);
    }
    readDeclarations();
}

qsizetype StyleRule::owner(cssbox::Family family, cssbox::Slot slot) const
{
    for (qsizetype i = m_declarations.size(); --i >= 0;) {
        if (cssbox::read(family, m_declarations.at(i)).contains(slot)) {
            return i;
        }
    }
    return -1;
}

QString StyleRule::boxValue(cssbox::Family family, cssbox::Slot slot) const
{
    const qsizetype at = owner(family, slot);
    const QString value = at < 0 ? QString() : cssbox::read(family, m_declarations.at(at)).value(slot);
    return isOpen(value) ? QString() : value;
}

QString StyleRule::boxValue(cssbox::Family family, const QList<cssbox::Slot> &slots) const
{
    const QString first = boxValue(family, slots.constFirst());
    const bool same = std::all_of(slots.cbegin(), slots.cend(),
                                  [&](const cssbox::Slot &slot) { return boxValue(family, slot) == first; });
    return same ? QStringLiteral("") + first : QString();
}

void StyleRule::setBoxValue(cssbox::Family family, const QList<cssbox::Slot> &slots, const QString &value)
{
    if (value.isEmpty()) {
        clearBoxValue(family, slots);
        return;
    }
    const qsizetype at = owner(family, slots.constFirst());
    const bool oneOwner = at >= 0 && m_declarations.at(at).own &&
                          std::all_of(slots.cbegin(), slots.cend(),
                                      [&](cssbox::Slot slot) { return owner(family, slot) == at; });
    if (oneOwner) {
        cssbox::Values values = cssbox::read(family, m_declarations.at(at));
        for (const cssbox::Slot &slot : slots) {
            values.insert(slot, value);
        }
        const QString property = m_declarations.at(at).property;
        if (const QString text = cssbox::written(family, property, values); !text.isEmpty()) {
            write(property, text);
            readDeclarations();
            return;
        }
    }
    if (slots.size() > 1) { // the declarations of single sides would win over the new one
        for (const cssbox::Slot &slot : slots) {
            m_sheet->setValue(m_selector, cssbox::property(family, slot), {});
        }
    }
    append(slots.size() > 1 ? cssbox::property(family, slots.constFirst().first)
                            : cssbox::property(family, slots.constFirst()),
           value);
    readDeclarations();
}

void StyleRule::clearBoxValue(cssbox::Family family, const QList<cssbox::Slot> &slots)
{
    for (qsizetype i = 0; i < m_declarations.size(); ++i) {
        const Declaration &declaration = m_declarations.at(i);
        cssbox::Values rest = cssbox::read(family, declaration);
        qsizetype cleared = 0;
        for (const cssbox::Slot &slot : slots) {
            cleared += rest.value(slot).isEmpty() ? 0 : 1;
            rest.insert(slot, {});
        }
        if (cleared == 0 || !declaration.own) {
            continue;
        }
        const QString text = cssbox::written(family, declaration.property, rest);
        write(declaration.property, text);
        if (!text.isEmpty()) {
            continue;
        }
        for (auto value = rest.cbegin(); value != rest.cend(); ++value) {
            if (!value->isEmpty() && owner(family, value.key()) == i) {
                append(cssbox::property(family, value.key()), *value);
            }
        }
    }
    readDeclarations();
    for (const cssbox::Slot &slot : slots) {
        if (!boxValue(family, slot).isEmpty()) { // else an earlier rule would count again
            append(cssbox::property(family, slot), QStringLiteral("initial"));
        }
    }
    readDeclarations();
}
