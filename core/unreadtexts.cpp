// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/unreadtexts.h"

#include "core/bompartsdatabase.h"
#include "core/numberreader.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"

#include <QHash>

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

/// Finds the texts of one column.
class ColumnReader
{
public:
    ColumnReader(const BOMField &field, Kind kind, const PropertyTypes &types)
        : m_property(field.propertyName, &types)
        , m_numbers(HostUi::current().locale())
    {
        m_column.field = field.fieldName;
        m_column.kind = kind;
        if (kind == Kind::TwoStates) {
            m_column.shownAs = DisplayConversion(types.type(field.propertyName))(QStringLiteral("0"));
        }
    }

    /// The parts of a line have one text in a column of numbers, but perhaps several stored ones that show
    /// as the same state.
    void read(BomLine line)
    {
        if (m_column.kind == Kind::TwoStates) {
            for (const Part *part : line) {
                readState(*part);
            }
        } else {
            readNumber(line);
        }
    }

    [[nodiscard]] const UnreadColumn &column() const { return m_column; }

private:
    void readNumber(BomLine line)
    {
        const QString text = line.front()->property(m_property);
        const bool isShownAsText = text.startsWith(u'"') && text.endsWith(u'"');
        if (text.isEmpty() || (m_column.kind == Kind::Numeric && isShownAsText) || m_numbers.read(text)) {
            return;
        }
        for (const Part *part : line) {
            enter(text, part->reference());
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
            enter(text, part.reference());
        }
    }

    void enter(const QString &text, const QString &reference)
    {
        const auto known = m_indices.constFind(text);
        const qsizetype index = known == m_indices.cend() ? m_column.texts.size() : *known;
        if (known == m_indices.cend()) {
            m_indices.insert(text, index);
            m_column.texts.append({text, {}});
        }
        m_column.texts[index].references.append(reference);
    }

    UnreadColumn m_column;
    PropertyQuery m_property;
    NumberReader m_numbers;
    QHash<QString, qsizetype> m_indices;
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
        if (!reader.column().texts.isEmpty()) {
            columns.append(reader.column());
        }
    }
    return columns;
}
