// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/rowfilter.h"

#include "editors/propertyrows.h"

#include <QStringView>

#include <algorithm>

namespace {

bool holds(const QString &text, QStringView word)
{
    return text.contains(word, Qt::CaseInsensitive);
}

/// A reference within a range such as R1-R7 is found, too.
bool holdsReference(const PropertyRow &row, QStringView word)
{
    return holds(row.referenceText, word) ||
           std::any_of(row.references.cbegin(), row.references.cend(),
                       [word](const QString &reference) { return holds(reference, word); });
}

bool isHeading(QString heading, QStringView name)
{
    return heading.remove(u' ').compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

RowFilter::RowFilter(const QString &text, Rows rows)
    : m_words(text.simplified().split(u' ', Qt::SkipEmptyParts))
    , m_rows(rows)
{
}

bool RowFilter::accepts(const PropertyRows &rows, const PropertyRow &row) const
{
    return isOfKind(rows, row) && std::all_of(m_words.cbegin(), m_words.cend(),
                                              [&](const QString &word) { return hasWord(rows, row, word); });
}

bool RowFilter::isOfKind(const PropertyRows &rows, const PropertyRow &row) const
{
    const auto hasCell = [&row](bool PropertyCell::*mark) {
        return std::any_of(row.cells.cbegin(), row.cells.cend(),
                           [mark](const PropertyCell &cell) { return cell.*mark; });
    };
    switch (m_rows) {
    case Rows::Pending:
        return hasCell(&PropertyCell::isPending);
    case Rows::InConflict:
        return hasCell(&PropertyCell::isInConflict);
    case Rows::Missing:
        for (size_t column = 0; column < row.cells.size(); ++column) {
            if (rows.isMissing(row, column)) {
                return true;
            }
        }
        return false;
    case Rows::All:
        break;
    }
    return true;
}

bool RowFilter::hasWord(const PropertyRows &rows, const PropertyRow &row, const QString &word)
{
    const qsizetype colon = word.indexOf(u':');
    if (colon > 0 && colon + 1 < word.size()) {
        const QStringView heading = QStringView(word).left(colon);
        const QStringView rest = QStringView(word).mid(colon + 1);
        if (isHeading(referencesHeading(), heading)) {
            return holdsReference(row, rest);
        }
        if (isHeading(categoryHeading(), heading)) {
            return holds(row.category, rest);
        }
        for (size_t column = 0; column < row.cells.size(); ++column) {
            if (isHeading(rows.columns()[column].heading, heading)) {
                return holds(row.cells[column].shownText(), rest);
            }
        }
    }
    return holds(row.category, word) || holdsReference(row, word) ||
           std::any_of(row.cells.cbegin(), row.cells.cend(), [&word](const PropertyCell &cell) {
               return holds(cell.isDifferent ? cell.shownText() : cell.text, word);
           });
}
