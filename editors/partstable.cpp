// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/partstable.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bomtablewidget.h"
#include "editors/columnmemory.h"
#include "editors/propvaleditdelegate.h"
#include "editors/tableplace.h"
#include "host/widgets/applnwidget.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace {

/// Rows in sight that are looked at for the first width of a column, as are so many of the longest texts; and
/// the widest that it gets.
constexpr int measuredRows = 50;
constexpr int widestAtFirst = 260;

} // namespace

PartsTable::PartsTable(BOMTableWidget *table)
    : m_table(table)
{
    updateLook();
    QHeaderView &header = *table->horizontalHeader();
    header.setSectionsMovable(true);
    header.setFirstSectionMovable(false);
    header.setResizeContentsPrecision(measuredRows);
    header.setHighlightSections(false);
    // Connected before the table's own sorting is: texts are frozen first.
    connect(&header, &QHeaderView::sortIndicatorChanged, this, &PartsTable::freezeSorting);
    connect(table->model(), &QAbstractItemModel::layoutChanged, this, &PartsTable::applyFilter);
    QHeaderView &rows = *table->verticalHeader();
    rows.hide();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    table->setSortingEnabled(true);
}

void PartsTable::setSource(const BOMPartsDatabase *database, const PropertyAssignments *assignments)
{
    m_context.database = database;
    m_context.assignments = assignments;
}

void PartsTable::updateLook()
{
    const QIcon conflict = m_context.look.conflict;
    m_context.look = CellLook(m_table->palette(), m_table->font());
    m_context.look.conflict =
        conflict.isNull() ? APPLNWIDGET::makeIcon(QStringLiteral(":/bom/icons/conflict.png")) : conflict;
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    m_table->viewport()->update();
}

void PartsTable::fill(const Content &content)
{
    PropertyRows rows = m_context.database
                            ? PropertyRows::read(*m_context.database, m_context.assignments, content.parts)
                            : PropertyRows();
    if (m_hasLinks != content.hasLinks || m_table->columnCount() == 0 || !m_context.rows.takeTexts(rows)) {
        m_hasLinks = content.hasLinks;
        fillAnew(std::move(rows));
        return;
    }
    takeRequired();
    if (m_table->isSortingEnabled()) {
        const QHeaderView &header = *m_table->horizontalHeader();
        m_table->sortItems(header.sortIndicatorSection(), header.sortIndicatorOrder());
    }
    applyFilter();
    m_table->viewport()->update();
}

void PartsTable::fillAnew(PropertyRows rows)
{
    const TablePlace place(*m_table);
    rememberLayout();
    {
        const QScopedValueRollback filling(m_isFilling, true);
        // It is off while a search wants the rows to stay where they are.
        const bool isSorted = m_table->isSortingEnabled();
        const QHeaderView &header = *m_table->horizontalHeader();
        const QTableWidgetItem *sorted = m_table->horizontalHeaderItem(header.sortIndicatorSection());
        const QString heading = sorted ? sorted->text() : QString();
        const Qt::SortOrder order = sorted ? header.sortIndicatorOrder() : Qt::AscendingOrder;
        m_table->setSortingEnabled(false);
        m_table->setRowCount(0);
        m_context.rows = std::move(rows);
        makeColumns();
        makeRows();
        setSortColumn(heading, order);
        if (!isSorted) {
            m_table->sortItems(header.sortIndicatorSection(), header.sortIndicatorOrder());
        }
        m_table->setSortingEnabled(isSorted);
    }
    applyFilter();
    place.restore(m_table, [this](const QString &reference) {
        const PropertyRow *row = m_context.rows.rowOf(reference);
        return row ? m_references[size_t(row->number)]->row() : -1;
    });
}

void PartsTable::makeColumns()
{
    takeRequired();
    m_table->clear();
    m_table->setColumnCount(fieldEnd() + (m_hasLinks ? 1 : 0));
    QStringList names;
    const auto setHeader = [this, &names](int column, const QString &heading, const QString &property,
                                          bool isEditable, const QString &name) {
        auto *item = new QTableWidgetItem(heading);
        // Fields may show the same property.
        names.append(names.contains(name) ? name + u'/' + heading : name);
        item->setData(ColumnNameRole, names.constLast());
        item->setData(PropValEditDelegate::PropertyRole, property);
        item->setData(PropValEditDelegate::IsEditableRole, isEditable);
        m_table->setHorizontalHeaderItem(column, item);
    };
    setHeader(ReferenceColumn, referencesHeading(), {}, false, QStringLiteral(":references"));
    setHeader(CategoryColumn, categoryHeading(), {}, false, QStringLiteral(":category"));
    int column = FirstField;
    for (const PropertyColumn &field : m_context.rows.columns()) {
        setHeader(column++, field.heading, field.property, field.isEditable, field.property);
    }
    if (m_hasLinks) {
        setHeader(column, QStringLiteral("_(Links)"), {}, false, QStringLiteral(":links"));
    }
}

void PartsTable::makeRows()
{
    auto &rows = m_context.rows.rows();
    m_references.clear();
    m_references.reserve(rows.size());
    m_table->setRowCount(int(rows.size()));
    {
        // One signal for each item would take longer than all else.
        const QSignalBlocker blocker(m_table->model());
        for (PropertyRow &row : rows) {
            m_references.push_back(new ReferenceItem(&m_context, &row));
            m_table->setItem(row.number, ReferenceColumn, m_references.back());
            m_table->setItem(row.number, CategoryColumn,
                             new RowTextItem(&m_context, &row, RowTextItem::Content::Category));
            for (int field = 0; field < int(row.cells.size()); ++field) {
                m_table->setItem(row.number, FirstField + field, new PropertyItem(&m_context, &row, field));
            }
            if (m_hasLinks) {
                m_table->setItem(row.number, fieldEnd(),
                                 new RowTextItem(&m_context, &row, RowTextItem::Content::Links));
            }
        }
    }
    restoreLayout();
}

/// Sorts by references where there is no such column.
void PartsTable::setSortColumn(const QString &heading, Qt::SortOrder order)
{
    int column = m_table->columnCount() - 1;
    while (column > ReferenceColumn && m_table->horizontalHeaderItem(column)->text() != heading) {
        --column;
    }
    m_table->horizontalHeader()->setSortIndicator(column, order);
}

void PartsTable::restoreLayout()
{
    QHeaderView &header = *m_table->horizontalHeader();
    const ColumnLayout layout = ColumnMemory::layout(header);
    m_measured.clear();
    for (int column = 0; column < header.count(); ++column) {
        header.setSectionHidden(column, false);
        header.moveSection(header.visualIndex(column), column);
        const QString name = m_table->horizontalHeaderItem(column)->data(ColumnNameRole).toString();
        if (!layout.widths.contains(name)) {
            m_table->resizeColumnToContents(column);
            // With room for the arrow of the sorting, which is not there yet.
            int width = header.sectionSize(column) + m_table->fontMetrics().height();
            if (column != CategoryColumn) {
                // Categories are known by their beginnings, and often longer than anything else.
                width = std::max(width, widestText(column));
            }
            header.resizeSection(column, std::min(width, widestAtFirst));
            m_measured.insert(name, header.sectionSize(column));
        }
    }
    setColumnLayout(&header, layout);
    for (int column = 0; column < header.count(); ++column) {
        if (!header.isSectionHidden(column) && header.sectionSize(column) < 1) {
            header.resizeSection(column, header.sectionSizeHint(column));
        }
    }
}

int PartsTable::widestText(int column) const
{
    qsizetype longest = 0;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        longest = std::max(longest, m_table->item(row, column)->text().size());
    }
    int widest = 0;
    for (int row = 0, left = measuredRows; row < m_table->rowCount() && left > 0; ++row) {
        const QString text = m_table->item(row, column)->text();
        if (4 * text.size() >= 3 * longest) {
            widest = std::max(widest, m_table->fontMetrics().horizontalAdvance(text));
            --left;
        }
    }
    return widest + 2 * (m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
}

void PartsTable::rememberLayout() const
{
    if (m_table->columnCount() > 0) {
        ColumnLayout layout = columnLayout(*m_table->horizontalHeader());
        layout.widths.removeIf(
            [this](const auto &width) { return m_measured.value(width.key(), -1) == width.value(); });
        ColumnMemory::setLayout(*m_table->horizontalHeader(), layout);
    }
}

void PartsTable::takeRequired()
{
    for (PropertyColumn &column : m_context.rows.columns()) {
        column.isRequired = column.isEditable && ColumnMemory::isRequired(column.key.toUpper());
    }
}

void PartsTable::setRequired(int column, bool isRequired)
{
    const int field = column - FirstField;
    if (field >= 0 && field < int(m_context.rows.columns().size())) {
        ColumnMemory::setRequired(m_context.rows.columns()[size_t(field)].key.toUpper(), isRequired);
        takeRequired();
        applyFilter();
        m_table->viewport()->update();
    }
}

void PartsTable::refresh(PropertyRow *row)
{
    if (!m_context.database) {
        return;
    }
    const int tableRow = m_references[size_t(row->number)]->row();
    for (const int field : m_context.rows.refresh(row, *m_context.database, m_context.assignments)) {
        m_table->update(m_table->model()->index(tableRow, FirstField + field));
    }
}

void PartsTable::refreshPending()
{
    QSet<PropertyRow *> due;
    const RowFilter pending({}, RowFilter::Rows::Pending);
    for (PropertyRow &row : m_context.rows.rows()) {
        if (pending.accepts(m_context.rows, row)) {
            due.insert(&row);
        }
    }
    for (const PendingEdit &edit :
         m_context.assignments ? m_context.assignments->edits() : QList<PendingEdit>()) {
        if (PropertyRow *row = m_context.rows.rowOf(edit.reference)) {
            due.insert(row);
        }
    }
    for (PropertyRow *row : due) {
        refresh(row);
    }
}

PropertyRow *PartsTable::rowAt(int row) const
{
    const auto *item = dynamic_cast<const ReferenceItem *>(m_table->item(row, ReferenceColumn));
    return item ? item->propertyRow() : nullptr;
}

PropertyItem *PartsTable::fieldAt(int row, int column) const
{
    return dynamic_cast<PropertyItem *>(m_table->item(row, column));
}

void PartsTable::freezeSorting()
{
    m_context.rows.takeSortTexts();
    // Hidden rows make sorting slow; afterwards the filter hides others.
    showRows(RowFilter());
}

void PartsTable::setFilter(const RowFilter &filter)
{
    m_filter = filter;
    applyFilter();
}

void PartsTable::applyFilter()
{
    if (!m_isFilling) {
        showRows(m_filter);
        Q_EMIT shownRowsChanged();
    }
}

void PartsTable::showRows(const RowFilter &filter)
{
    QHeaderView &header = *m_table->verticalHeader();
    // A header that may paint works out the places of all rows for each one that changes.
    header.setUpdatesEnabled(false);
    m_shownRows = 0;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const bool isShown = filter.isOpen() || filter.accepts(m_context.rows, *rowAt(row));
        header.setSectionHidden(row, !isShown);
        m_shownRows += isShown ? 1 : 0;
    }
    header.setUpdatesEnabled(true);
}
