// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/unreadtexts.h"

#include "core/bompartsdatabase.h"
#include "core/numberreader.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace {

using Kind = UnreadColumn::Kind;

std::optional<Kind> kindOf(const BOMField &field, const PropertyTypes &types)
{
    if (field.generateTotals) {
        return Kind::Totalled;
    }
    if (types.isNumeric(field.propertyName)) {
        return Kind::Numeric;
    }
    const auto type = types.type(field.propertyName);
    return type && hasTwoStates(*type) ? std::optional(Kind::TwoStates) : std::nullopt;
}

/// "1,234": a number whose comma is the decimal mark here, but elsewhere a mark between thousands.
bool mayBeThousands(const QString &stored)
{
    const QStringView text =
        QStringView(stored).mid(stored.startsWith(u'-') || stored.startsWith(u'+') ? 1 : 0);
    constexpr qsizetype mostInFront = 3;
    const qsizetype comma = text.indexOf(u',');
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return comma >= 1 && comma <= mostInFront && text.size() == comma + 4 && text.front() != u'0' &&
           std::all_of(text.begin(), text.begin() + comma, isDigit) &&
           std::all_of(text.begin() + comma + 1, text.end(), isDigit);
}

/// The texts of one kind, each with the parts that have it.
class TextCollector
{
public:
    TextCollector(const QString &field, Kind kind)
        : column{field, kind, {}, {}}
    {
    }

    void enter(const QString &text, const QString &reference)
    {
        const auto known = m_indices.constFind(text);
        const qsizetype index = known == m_indices.cend() ? column.texts.size() : *known;
        if (known == m_indices.cend()) {
            m_indices.insert(text, index);
            column.texts.append({text, {}});
        }
        column.texts[index].references.append(reference);
    }

    UnreadColumn column;

private:
    QHash<QString, qsizetype> m_indices;
};

/// Finds the texts of one column.
class ColumnReader
{
public:
    ColumnReader(const BOMField &field, Kind kind, const PropertyTypes &types)
        : m_unread(field.fieldName, kind)
        , m_commas(field.fieldName, Kind::DecimalComma)
        , m_property(field.propertyName, &types)
        , m_numbers(HostUi::current().locale())
    {
        if (kind == Kind::TwoStates) {
            m_unread.column.shownAs = DisplayConversion(types.type(field.propertyName))(QStringLiteral("0"));
        }
    }

    /// The parts of a line have one text in a column of numbers, but perhaps several stored ones that show
    /// as the same state.
    void read(BomLine line)
    {
        if (m_unread.column.kind == Kind::TwoStates) {
            for (const Part *part : line) {
                readState(*part);
            }
        } else {
            readNumber(line);
        }
    }

    /// Those that have texts.
    [[nodiscard]] QList<UnreadColumn> columns() const
    {
        QList<UnreadColumn> found;
        for (const TextCollector *collector : {&m_unread, &m_commas}) {
            if (!collector->column.texts.isEmpty()) {
                found.append(collector->column);
            }
        }
        return found;
    }

private:
    void readNumber(BomLine line)
    {
        const QString text = line.front()->property(m_property);
        const bool isShownAsText = text.startsWith(u'"') && text.endsWith(u'"');
        if (text.isEmpty() || (m_unread.column.kind == Kind::Numeric && isShownAsText)) {
            return;
        }
        if (m_numbers.read(text)) {
            readCommas(line, text);
            return;
        }
        for (const Part *part : line) {
            m_unread.enter(text, part->reference());
        }
    }

    /// A comma may be shown as a point: what is stored counts.
    void readCommas(BomLine line, const QString &shown)
    {
        constexpr qsizetype decimals = 3;
        if (shown.size() < decimals + 2 || shown.at(shown.size() - decimals - 1).isDigit()) {
            return;
        }
        for (const Part *part : line) {
            const bool isShownAsStored = part->isBOMPart() || m_property.name() == valueProperty();
            const QString stored = isShownAsStored ? part->property(m_property)
                                                   : fromHostText(m_property.hostText(part->component()));
            if (mayBeThousands(stored)) {
                m_commas.enter(stored, part->reference());
            }
        }
    }

    void readState(const Part &part)
    {
        // The texts of BOM-only parts are shown as they stand.
        const QByteArrayView stored =
            part.isBOMPart() ? QByteArrayView() : m_property.hostText(part.component());
        if (stored.isEmpty() || stored == "1" || stored == "0") {
            return;
        }
        if (const QString text = fromHostText(stored); text != part.property(m_property)) {
            m_unread.enter(text, part.reference());
        }
    }

    TextCollector m_unread;
    TextCollector m_commas;
    PropertyQuery m_property;
    NumberReader m_numbers;
};

} // namespace

QList<UnreadColumn> unreadColumns(const BOMPartsDatabase &database)
{
    QList<UnreadColumn> columns;
    for (const BOMField &field : database.currentTemplate().fields().fields()) {
        const auto kind = kindOf(field, database.propertyTypes());
        if (!kind) {
            continue;
        }
        ColumnReader reader(field, *kind, database.propertyTypes());
        for (const QString &category : database.categoryNames()) {
            const GroupedLines *lines = database.categories().groupedLines(category);
            for (size_t i = 0; lines && i < lines->lineCount(); ++i) {
                reader.read(lines->line(i));
            }
        }
        columns += reader.columns();
    }
    return columns;
}
