// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/plaintable.h"

#include "richtext/xhtml/tagscanner.h"

#include <QHash>
#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace {

constexpr int mostColumns = 1000;

bool isVoid(const Tag &tag)
{
    return tag.text.endsWith(u"/>") || tag.is(u"br") || tag.is(u"hr") || tag.is(u"img");
}

/// Reads the rows of one table. What is not plain ends it.
class PlainTableReader final
{
public:
    PlainTableReader(const TagScanner &tags, PlainTable &table)
        : m_tags(tags)
        , m_table(table)
    {
    }

    /// Reads up to the end of the table or a section without headings.
    bool read()
    {
        while (const auto tag = m_tags.peek()) {
            if (!tag->is(u"tbody") || tag->isEnd || !startsHeadedSection()) {
                break;
            }
            if (!readSection()) {
                return false;
            }
        }
        m_table.after = m_tags.rest();
        return !m_table.sections.empty();
    }

private:
    [[nodiscard]] bool startsHeadedSection() const
    {
        TagScanner ahead = m_tags;
        return ahead.next() && ahead.startsHeadingRow();
    }

    bool readSection()
    {
        (void)m_tags.next();
        PlainSection section{m_table.rows.size(), 0};
        bool isInHead = true;
        while (!takeTag(u"tbody", true)) {
            isInHead = isInHead && m_tags.startsHeadingRow();
            section.headings += isInHead ? 1 : 0;
            if (!readRow()) {
                return false;
            }
        }
        m_table.sections.push_back(section);
        return m_table.rows.size() > section.firstRow + section.headings;
    }

    bool readRow()
    {
        const QStringView rest = m_tags.rest();
        PlainRow row{m_table.cells.size(), {}};
        if (!takeTag(u"tr", false)) {
            return false;
        }
        int column = 0;
        while (!takeTag(u"tr", true)) {
            if (column > mostColumns || !readCell(column)) {
                return false;
            }
        }
        m_table.columns = std::max(m_table.columns, column);
        row.text = rest.first(rest.size() - m_tags.rest().size());
        m_table.rows.push_back(row);
        return column > 0;
    }

    bool readCell(int &column)
    {
        const auto cell = m_tags.peek();
        if (!cell || cell->isEnd || !cell->isCell() || !cell->attribute(u"rowspan").isEmpty()) {
            return false;
        }
        (void)m_tags.next();
        const auto paragraph = m_tags.peek();
        if (!paragraph || paragraph->isEnd || !paragraph->isParagraph() || isVoid(*paragraph)) {
            return false;
        }
        (void)m_tags.next();
        PlainCell found;
        found.column = column;
        found.span = cell->attribute(u"colspan").isEmpty() ? 1 : cell->attribute(u"colspan").toInt();
        if (found.span < 1 || found.span > mostColumns || !readContent(*paragraph, found) ||
            !takeTag(cell->name, true)) {
            return false;
        }
        found.kind = kindOf(*cell, *paragraph);
        column += found.span;
        m_table.cells.push_back(found);
        return true;
    }

    /// Text up to the end of the paragraph, or a link around such text.
    bool readContent(const Tag &paragraph, PlainCell &cell)
    {
        auto tag = m_tags.next();
        const bool isLink = tag && tag->is(u"a") && !tag->isEnd;
        if (isLink) {
            cell.link = tag->attribute(u"href");
            const bool isAlone = tag->textBefore.isEmpty() && !cell.link.isEmpty();
            tag = m_tags.next();
            if (!isAlone || !tag || !tag->is(u"a") || !tag->isEnd) {
                return false;
            }
        }
        cell.content = tag ? tag->textBefore : QStringView();
        if (isLink) {
            tag = m_tags.next();
        }
        const bool isEnd = tag && tag->isEnd && tag->is(paragraph.name);
        return isEnd && !cell.content.contains(u'<') && (!isLink || tag->textBefore.isEmpty());
    }

    int kindOf(const Tag &cell, const Tag &paragraph)
    {
        const QString key = cell.text % paragraph.text;
        const auto found = m_kinds.constFind(key);
        if (found != m_kinds.cend()) {
            return *found;
        }
        m_table.kinds.append(key);
        return *m_kinds.insert(key, int(m_table.kinds.size()) - 1);
    }

    /// Takes the tag that comes next if it is the one wanted.
    bool takeTag(QStringView name, bool isEnd)
    {
        const auto tag = m_tags.peek();
        return tag && tag->is(name) && tag->isEnd == isEnd && m_tags.next();
    }

    TagScanner m_tags;
    PlainTable &m_table;
    QHash<QString, int> m_kinds;
};

/// The character that an entity stands for, given without & and ;.
QString entityText(QStringView name)
{
    constexpr std::array<std::pair<QStringView, char16_t>, 7> known{{{u"amp", u'&'},
                                                                     {u"lt", u'<'},
                                                                     {u"gt", u'>'},
                                                                     {u"quot", u'"'},
                                                                     {u"apos", u'\''},
                                                                     {u"nbsp", u'\u00a0'},
                                                                     {u"shy", u'\u00ad'}}};
    const auto found =
        std::find_if(known.begin(), known.end(), [name](const auto &entity) { return entity.first == name; });
    if (found != known.end()) {
        return QString(QChar(found->second));
    }
    if (!name.startsWith(u'#')) {
        return {};
    }
    const bool isHex = name.startsWith(u"#x");
    bool isNumber = false;
    const uint code = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
    const bool isCharacter = isNumber && code >= ' ' && code <= QChar::LastValidCodePoint;
    return isCharacter ? QStringView(QChar::fromUcs4(code)).toString() : QString();
}

bool endsParagraph(QChar unit)
{
    return unit == QChar(QChar::ParagraphSeparator) || unit == QChar(QChar::ObjectReplacementCharacter) ||
           unit == QChar(0xfdd0) || unit == QChar(0xfdd1);
}

bool isBlank(QChar unit)
{
    return unit.isSpace() && unit != QChar(QChar::Nbsp);
}

} // namespace

std::optional<PlainTable> readPlainTable(QStringView body)
{
    TagScanner tags(body);
    int depth = 0;
    while (const auto tag = tags.next()) {
        if (tag->is(u"table") && !tag->isEnd && tags.hasHeadedSections()) {
            PlainTable table;
            table.before = body.first(tag->text.data() - body.data());
            table.startTag = tag->text;
            const bool isRead = depth == 0 && PlainTableReader(tags, table).read();
            return isRead ? std::optional(std::move(table)) : std::nullopt;
        }
        if (!isVoid(*tag)) {
            depth += tag->isEnd ? -1 : 1;
        }
    }
    return std::nullopt;
}

QString shapeOf(const PlainTable &table, size_t row)
{
    QString shape;
    for (size_t i = table.rows[row].firstCell; i < table.cellEnd(row); ++i) {
        const PlainCell &cell = table.cells[i];
        shape += QString::number(cell.span) % u'/' % QString::number(cell.kind) %
                 (cell.link.isEmpty() ? u' ' : u'a') % (cell.content.isEmpty() ? u' ' : u't');
    }
    return shape;
}

QString sampleRow(const PlainTable &table, size_t row)
{
    QStringView rest = table.rows[row].text;
    QString sample;
    for (size_t i = table.rows[row].firstCell; i < table.cellEnd(row); ++i) {
        const QStringView content = table.cells[i].content;
        if (!content.isEmpty()) {
            const qsizetype begin = content.data() - rest.data();
            sample += rest.first(begin) % u'x';
            rest = rest.sliced(begin + content.size());
        }
    }
    return sample % rest;
}

std::optional<QString> plainText(QStringView content)
{
    QString text;
    text.reserve(content.size());
    for (qsizetype i = 0; i < content.size(); ++i) {
        if (content[i] == u'&') {
            const qsizetype end = content.indexOf(u';', i);
            const QString decoded = end < 0 ? QString() : entityText(content.sliced(i + 1, end - i - 1));
            if (decoded.isEmpty() || endsParagraph(decoded[0])) {
                return std::nullopt;
            }
            // A space without width behind a soft hyphen is enough to break a line, see toQtHtml().
            const bool isEnough = content.sliced(i).startsWith(u"&shy;&#8203;");
            text += isEnough ? QString() : decoded;
            i = end;
        } else if (endsParagraph(content[i])) {
            return std::nullopt;
        } else if (!isBlank(content[i])) {
            text += content[i];
        } else if (!text.isEmpty() && !isBlank(text.back())) {
            text += u' ';
        }
    }
    return text;
}
