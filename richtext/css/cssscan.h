// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/csstokenreader.h"

#include <QList>
#include <QString>

/// Where the parts of a style sheet stand in its text.
namespace css {

struct Span
{
    qsizetype begin = 0;
    qsizetype end = 0; ///< One past the last character.

    [[nodiscard]] QStringView in(QStringView text) const { return text.mid(begin, end - begin); }
    [[nodiscard]] bool isEmpty() const { return begin >= end; }
};

struct DeclarationSpans
{
    Span all; ///< From the property's name to the semicolon, or to the last of the value without one.
    Span property;
    Span value; ///< Without blanks and comments around it.
    bool semicolon = false;
};

struct RuleSpans
{
    Span title; ///< The name in the comment before the rule.
    Span selector;
    Span body; ///< Between the braces.
    QList<DeclarationSpans> declarations;
};

struct Sheet
{
    QList<RuleSpans> rules;
    /// The gravest fault and where the first of its kind begins.
    Fault fault = Fault::None;
    qsizetype faultAt = 0;
    /// What has to follow the text before another rule can; empty for a complete text.
    QString closer;
};

/// Reads any text, in time linear to its length.
[[nodiscard]] Sheet scan(QStringView text);

/// What is wrong with a style sheet and in which line, for the user; empty when nothing is.
[[nodiscard]] QString faultMessage(const QString &text);

} // namespace css
