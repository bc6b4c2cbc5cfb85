// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/cssbox.h"
#include "richtext/css/stylesheet.h"

/// The rules of one selector as an editor shows them: each property with the value that counts, shorthands
/// taken apart. Values are set in the last of the rules, and everything else stays as it is written: a
/// shorthand is rewritten where it can express the new value, otherwise the property gets a declaration of
/// its own after it.
class StyleRule final
{
public:
    /// Does not own the sheet.
    StyleRule(StyleSheet *sheet, const QString &selector);

    /// The value that counts, empty for what the rule leaves open. Sees "font" and "background", too.
    [[nodiscard]] QString value(const QString &property) const;
    /// An empty value leaves the property open.
    void setValue(const QString &property, const QString &value);

    [[nodiscard]] QString boxValue(cssbox::Family family, cssbox::Slot slot) const;
    /// What slots have in common: null when they differ, empty when all are open.
    [[nodiscard]] QString boxValue(cssbox::Family family, const QList<cssbox::Slot> &slots) const;
    /// Changes one slot, or an aspect of all sides.
    void setBoxValue(cssbox::Family family, const QList<cssbox::Slot> &slots, const QString &value);

private:
    struct Declaration : StyleSheet::Declaration
    {
        /// Whether it stands in the last rule, the only one that is changed.
        bool own = false;
    };

    void readDeclarations();
    /// The declaration that counts for a property, possibly its shorthand.
    [[nodiscard]] Declaration effective(const QString &property) const;
    void write(const QString &property, const QString &value);
    void append(const QString &property, const QString &value);
    /// Which declaration counts for a slot, -1 for none.
    [[nodiscard]] qsizetype owner(cssbox::Family family, cssbox::Slot slot) const;
    void clearBoxValue(cssbox::Family family, const QList<cssbox::Slot> &slots);

    StyleSheet *m_sheet;
    QString m_selector;
    /// In the order in which they count.
    QList<Declaration> m_declarations;
};
