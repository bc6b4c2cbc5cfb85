// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

/// The elements of XHTML 1.0 Transitional that show something and do nothing, as its document type declares
/// them: http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd
namespace xhtml {

/// Where an element may stand.
enum class Level
{
    Block,
    Inline,
    /// ins and del, wherever there may be text.
    Both,
    /// A part of a list or table, in its own place only.
    Part
};

/// What an element may hold.
enum class Content
{
    Nothing,
    Text,
    TextWithoutLinks,
    PlainText, ///< Of pre: text without images and changes of size.
    TextAndParagraphs,
    All,
    Items,
    Terms,
    TableParts,
    Columns,
    Rows,
    Cells
};

/// What values an attribute takes.
struct Attribute
{
    enum Type
    {
        Any,
        Number, ///< Also in percent.
        Span,   ///< A number of rows or columns.
        Choice,
        Id,
        Name,
        Link,
        Image,
        Style
    };
    Type type = Any;
    QStringList choices = {};
};

struct Element
{
    QString name;
    Level level = Level::Inline;
    Content content = Content::Text;
    QHash<QString, Attribute> attributes = {};

    [[nodiscard]] bool isEmpty() const { return content == Content::Nothing; }
    /// Whether it is a list, table or part of one that needs certain elements inside.
    [[nodiscard]] bool needsParts() const { return content >= Content::Items && content != Content::Columns; }
};

/// The element of that name, in lower case; null for one that is not among them.
[[nodiscard]] const Element *element(const QString &name);

/// Whether an element goes with all that it holds: scripts, frames, plug-ins, forms' fields and the like.
[[nodiscard]] bool isLeftOut(const QString &name);

/// Whether a later version of HTML has it for parts of a text, which `div` can stand for.
[[nodiscard]] bool isSection(const QString &name);

/// Whether an element may hold another one.
[[nodiscard]] bool holds(const Element &outer, const Element &inner);

/// Whether a part of a table may come after the one named, which is empty before the first.
[[nodiscard]] bool follows(const QString &part, const QString &before);

/// Whether a part of a table is one of its rows, or a body of rows.
[[nodiscard]] bool isBody(const QString &part);

/// What stands around other contents in a list, table or part of one: `li` in `ul`. Null elsewhere.
[[nodiscard]] const Element *impliedPart(const Element &outer);

} // namespace xhtml
