// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>

/// One tag of a markup text, as views on it.
struct Tag
{
    /// What stands between the tag before and this one.
    QStringView textBefore;
    /// With its brackets.
    QStringView text;
    QStringView name;
    bool isEnd = false;

    [[nodiscard]] bool is(QStringView wanted) const { return name.compare(wanted, Qt::CaseInsensitive) == 0; }
    [[nodiscard]] bool isCell() const { return is(u"td") || is(u"th"); }
    /// p and h1 to h6.
    [[nodiscard]] bool isParagraph() const;
    /// The value of an attribute, empty when the tag does not have it.
    [[nodiscard]] QStringView attribute(QStringView wanted) const;
    [[nodiscard]] QStringView className() const { return attribute(u"class"); }
    [[nodiscard]] bool hasClass() const { return !className().isEmpty(); }
    /// The width in percent that the style attribute gives, with its sign; empty without one.
    [[nodiscard]] QStringView styleWidth() const;
};

/// Walks through the tags of a markup text, well-formed or not. Comments and declarations count as text.
class TagScanner final
{
public:
    /// The text must outlive the scanner and its tags.
    explicit TagScanner(QStringView text)
        : m_text(text)
    {
    }

    /// Nothing at the end of the text; rest() is then what is left.
    [[nodiscard]] std::optional<Tag> next();
    [[nodiscard]] QStringView rest() const { return m_text.sliced(m_position); }

    /// The tag that comes next, if only blanks stand before it.
    [[nodiscard]] std::optional<Tag> peek() const;

    /// Whether, up to the end of the table whose start was read last, there are sections that begin with a
    /// row of heading cells, and no tables inside.
    [[nodiscard]] bool hasHeadedSections() const;
    /// Whether what follows is a row of heading cells.
    [[nodiscard]] bool startsHeadingRow() const;
    [[nodiscard]] bool isBeforeHeadingCell() const;

    struct SpanningParagraph
    {
        QStringView className;
        QStringView columns;
    };
    /// The paragraph that comes next, if it stands alone in a cell over several columns.
    [[nodiscard]] std::optional<SpanningParagraph> spanningParagraph() const;

private:
    QStringView m_text;
    qsizetype m_position = 0;
};
