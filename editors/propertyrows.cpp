// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/propertyrows.h"

#include "core/bomlinks.h"
#include "core/bompartdefinition.h"
#include "core/bompartsdatabase.h"
#include "core/numberreader.h"
#include "core/propertyassignments.h"
#include "core/reference.h"
#include "host/framework/hostui.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

/// Under which name values of a property are set: as the template spells it, because a part may have another
/// property that differs in letter case only.
QString editedName(const QString &property)
{
    const bool isValue = property.compare(valueProperty(), Qt::CaseInsensitive) == 0;
    return isValue ? valueProperty() : property;
}

/// More than any line has.
constexpr int allCharacters = 1'000'000'000;

/// Properties that are worked out, or written by commands of their own.
bool isEditableProperty(const QString &property)
{
    const auto is = [&property](const QString &name) {
        return property.compare(name, Qt::CaseInsensitive) == 0;
    };
    return !property.isEmpty() && !is(placedProperty()) && !is(nameProperty()) && !is(bomLinksProperty()) &&
           !property.startsWith(bomPartPropertyStart(), Qt::CaseInsensitive);
}

/// Takes the digits at the front of a text, without zeros before them.
QStringView takeDigits(QStringView *text)
{
    qsizetype end = 0;
    while (end < text->size() && text->at(end) >= u'0' && text->at(end) <= u'9') {
        ++end;
    }
    QStringView digits = text->first(end);
    *text = text->sliced(end);
    while (digits.size() > 1 && digits.front() == u'0') {
        digits = digits.sliced(1);
    }
    return digits;
}

/// Negative, 0 or positive: whatever the letter case, and 2k before 10k.
int compareNaturally(QStringView left, QStringView right)
{
    while (!left.isEmpty() && !right.isEmpty()) {
        const QStringView leftDigits = takeDigits(&left);
        const QStringView rightDigits = takeDigits(&right);
        if (leftDigits.isEmpty() != rightDigits.isEmpty()) {
            return leftDigits.isEmpty() ? 1 : -1;
        }
        if (leftDigits.size() != rightDigits.size()) {
            return leftDigits.size() < rightDigits.size() ? -1 : 1;
        }
        if (const int order = leftDigits.compare(rightDigits); order != 0) {
            return order;
        }
        if (!leftDigits.isEmpty()) {
            continue;
        }
        const QChar leftLetter = left.front().toCaseFolded();
        const QChar rightLetter = right.front().toCaseFolded();
        if (leftLetter != rightLetter) {
            return leftLetter < rightLetter ? -1 : 1;
        }
        left = left.sliced(1);
        right = right.sliced(1);
    }
    return int(!left.isEmpty()) - int(!right.isEmpty());
}

} // namespace

QString PropertyCell::shownText() const
{
    return isDifferent ? QCoreApplication::translate("PropertyCell", "(different)") : text;
}

PropertyRows PropertyRows::read(const BOMPartsDatabase &database, const PropertyAssignments *assignments,
                                const Choice &choice)
{
    PropertyRows rows;
    rows.readColumns(database);
    rows.openSource(database, assignments);
    const auto addCategory = [&](const QString &category) {
        const GroupedLines *lines = database.categories().groupedLines(category);
        for (size_t i = 0; lines && i < lines->lineCount(); ++i) {
            const BomLine line = lines->line(i);
            if (choice.isGrouped) {
                rows.addRow(category, line);
                continue;
            }
            for (size_t part = 0; part < line.size(); ++part) {
                rows.addRow(category, line.subspan(part, 1));
            }
        }
    };
    const QStringList categories =
        choice.category.isEmpty() ? database.categoryNames() : QStringList{choice.category};
    std::for_each(categories.cbegin(), categories.cend(), addCategory);
    rows.finish();
    return rows;
}

void PropertyRows::readColumns(const BOMPartsDatabase &database)
{
    for (const BOMField &field : database.columns().fields()) {
        const QString key = editedName(field.propertyName);
        m_columns.push_back({field.fieldName, field.propertyName, key, isEditableProperty(key),
                             database.propertyTypes().isNumeric(field.propertyName)});
    }
}

void PropertyRows::openSource(const BOMPartsDatabase &database, const PropertyAssignments *assignments)
{
    m_source = {&database, assignments && !assignments->isEmpty() ? assignments : nullptr};
    if (m_queries.empty()) {
        for (const PropertyColumn &column : m_columns) {
            m_queries.emplace_back(column.property, &database.propertyTypes());
        }
    }
}

void PropertyRows::addRow(const QString &category, BomLine parts)
{
    PropertyRow row;
    row.category = category;
    row.references.reserve(qsizetype(parts.size()));
    row.isBOMOnly = true;
    for (const Part *part : parts) {
        row.references.append(part->reference());
        row.isBOMOnly = row.isBOMOnly && part->isBOMPart();
        row.links += m_source.database->links(part->reference()).size();
    }
    row.referenceText = parts.size() == 1
                            ? row.references.first()
                            : m_source.database->categories().formatReferences(parts, allCharacters, 1);
    m_rows.push_back(std::move(row));
}

/// Puts the rows into the order in which they are shown at first: a table that is sorted already is sorted
/// fast.
void PropertyRows::finish()
{
    std::stable_sort(m_rows.begin(), m_rows.end(), [](const PropertyRow &left, const PropertyRow &right) {
        return compareReferences(left.firstReference(), right.firstReference()) < 0;
    });
    for (size_t i = 0; i < m_rows.size(); ++i) {
        PropertyRow &row = m_rows[i];
        row.number = int(i);
        for (const QString &reference : row.references) {
            m_rowOf.insert(reference, row.number);
        }
        row.cells.resize(m_columns.size());
        for (size_t column = 0; column < m_columns.size(); ++column) {
            row.cells[column] = readCell(row, column);
            row.cells[column].sortText = row.cells[column].text;
        }
    }
}

PropertyCell PropertyRows::readCell(const PropertyRow &row, size_t column) const
{
    PropertyCell cell = readCell(row.firstReference(), column);
    for (qsizetype i = 1; i < row.references.size(); ++i) {
        const PropertyCell other = readCell(row.references.at(i), column);
        cell.isDifferent = cell.isDifferent || other.text != cell.text;
        cell.isPending = cell.isPending || other.isPending;
        cell.isInConflict = cell.isInConflict || other.isInConflict;
    }
    if (cell.isDifferent) {
        cell.text.clear();
    }
    return cell;
}

PropertyCell PropertyRows::readCell(const QString &reference, size_t column) const
{
    if (const PendingEdit *edit =
            m_source.assignments ? m_source.assignments->edit(reference, m_columns[column].key) : nullptr) {
        PropertyCell cell{edit->value};
        cell.isPending = true;
        cell.isInConflict = edit->conflict != EditConflict::None;
        return cell;
    }
    const Part *part = m_source.database->part(reference);
    return {part ? part->property(m_queries[column]) : QString()};
}

bool PropertyRows::takeTexts(PropertyRows &other)
{
    const auto isSame = [](const PropertyRow &left, const PropertyRow &right) {
        return left.references == right.references;
    };
    if (m_columns.size() != other.m_columns.size() ||
        !std::equal(m_columns.cbegin(), m_columns.cend(), other.m_columns.cbegin(),
                    [](const PropertyColumn &left, const PropertyColumn &right) {
                        return left.isSameField(right);
                    }) ||
        !std::equal(m_rows.cbegin(), m_rows.cend(), other.m_rows.cbegin(), other.m_rows.cend(), isSame)) {
        return false;
    }
    m_columns = std::move(other.m_columns);
    std::move(other.m_rows.begin(), other.m_rows.end(), m_rows.begin());
    m_queries = std::move(other.m_queries);
    return true;
}

QList<int> PropertyRows::refresh(PropertyRow *row, const BOMPartsDatabase &database,
                                 const PropertyAssignments *assignments)
{
    openSource(database, assignments);
    QList<int> changed;
    for (size_t column = 0; column < m_columns.size(); ++column) {
        PropertyCell cell = readCell(*row, column);
        cell.sortText = row->cells[column].sortText;
        if (row->cells[column] != cell) {
            row->cells[column] = std::move(cell);
            changed.append(int(column));
        }
    }
    return changed;
}

void PropertyRows::takeSortTexts()
{
    for (PropertyRow &row : m_rows) {
        for (PropertyCell &cell : row.cells) {
            cell.sortText = cell.text;
        }
    }
}

PropertyRow *PropertyRows::rowOf(const QString &reference)
{
    const auto found = m_rowOf.constFind(reference);
    return found == m_rowOf.cend() ? nullptr : &m_rows[size_t(*found)];
}

bool PropertyRows::isMissing(const PropertyRow &row, size_t column) const
{
    const PropertyCell &cell = row.cells[column];
    // What is not on the board has no footprint.
    return m_columns[column].isRequired && cell.text.isEmpty() && !cell.isDifferent &&
           !(row.isBOMOnly && m_columns[column].isFootprint());
}

bool PropertyRows::isBefore(const PropertyRow &left, const PropertyRow &right, size_t column) const
{
    const QString &leftText = left.cells[column].sortText;
    const QString &rightText = right.cells[column].sortText;
    int order = 0;
    if (m_columns[column].isNumeric) {
        const NumberReader reader(HostUi::current().locale());
        const double lowest = -std::numeric_limits<double>::infinity();
        const double leftNumber = reader.read(leftText).value_or(lowest);
        const double rightNumber = reader.read(rightText).value_or(lowest);
        order = int(leftNumber > rightNumber) - int(leftNumber < rightNumber);
    }
    if (order == 0) {
        order = compareNaturally(leftText, rightText);
    }
    return order != 0 ? order < 0 : left.number < right.number;
}

QString referencesHeading()
{
    return QCoreApplication::translate("BOMDataView", "References");
}

QString categoryHeading()
{
    return QCoreApplication::translate("BOMDataView", "Category");
}
