// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomoptionstable.h"

#include "host/widgets/applnwidget.h"
#include "ui_bomoptionstable.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace {

/// Sorted as people sort words.
class TextItem final : public QTableWidgetItem
{
public:
    explicit TextItem(const QString &text)
        : QTableWidgetItem(text)
    {
        // A tip is markup, the text is not.
        setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    }

    bool operator<(const QTableWidgetItem &other) const override
    {
        return text().localeAwareCompare(other.text()) < 0;
    }
};

/// A button without its picture shows an arrow, if it has one, or its text.
void setPicture(QToolButton *button, const QString &name, Qt::ArrowType arrow = Qt::NoArrow)
{
    const QIcon picture =
        APPLNWIDGET::makeIcon(QStringLiteral(":/bom/icons/") + name + QStringLiteral(".png"));
    button->setIcon(picture);
    button->setArrowType(picture.isNull() ? arrow : Qt::NoArrow);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

} // namespace

BOMOptionsTable::BOMOptionsTable(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BOMOptionsTable>())
{
    m_ui->setupUi(this);
    m_table = m_ui->tableWidget;
    setUpButtons();
    setUpCommands();
    m_table->viewport()->installEventFilter(this);
    connect(m_table, &QTableWidget::currentCellChanged, this, &BOMOptionsTable::updateBtns);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &BOMOptionsTable::editClicked);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &BOMOptionsTable::sortRows);
    // Not the virtual one: nothing that derives exists yet.
    BOMOptionsTable::updateBtns(-1);
}

BOMOptionsTable::~BOMOptionsTable() = default;

void BOMOptionsTable::setUpButtons()
{
    setPicture(m_ui->moveUpBtn, QStringLiteral("up"), Qt::UpArrow);
    setPicture(m_ui->addBtn, QStringLiteral("add"));
    setPicture(m_ui->editBtn, QStringLiteral("editItem"));
    setPicture(m_ui->deleteBtn, QStringLiteral("delete"));
    setPicture(m_ui->moveDownBtn, QStringLiteral("down"), Qt::DownArrow);
    connect(m_ui->moveUpBtn, &QToolButton::clicked, this, &BOMOptionsTable::moveUp);
    connect(m_ui->moveDownBtn, &QToolButton::clicked, this, &BOMOptionsTable::moveDown);
    connect(m_ui->addBtn, &QToolButton::clicked, this, &BOMOptionsTable::addClicked);
    connect(m_ui->editBtn, &QToolButton::clicked, this, &BOMOptionsTable::editClicked);
    connect(m_ui->deleteBtn, &QToolButton::clicked, this, &BOMOptionsTable::deleteClicked);
}

void BOMOptionsTable::setUpCommands()
{
    const QAction *add = addCommand(tr("&Add"), {Qt::Key_Insert});
    const QAction *edit = addCommand(tr("&Edit"), {Qt::Key_Return, Qt::Key_Enter});
    const QAction *remove = addCommand(tr("&Delete"), {QKeySequence::Delete});
    const QAction *up = addCommand(tr("Move &Up"), {Qt::CTRL | Qt::Key_Up});
    const QAction *down = addCommand(tr("Move Do&wn"), {Qt::CTRL | Qt::Key_Down});
    connect(add, &QAction::triggered, this, &BOMOptionsTable::addClicked);
    connect(edit, &QAction::triggered, this, &BOMOptionsTable::editClicked);
    connect(remove, &QAction::triggered, this, &BOMOptionsTable::deleteClicked);
    connect(up, &QAction::triggered, this, &BOMOptionsTable::moveUp);
    connect(down, &QAction::triggered, this, &BOMOptionsTable::moveDown);
}

QAction *BOMOptionsTable::addCommand(const QString &text, const QList<QKeySequence> &shortcuts)
{
    auto *command = new QAction(text, m_table);
    command->setShortcuts(shortcuts);
    command->setShortcutContext(Qt::WidgetShortcut);
    m_table->addAction(command);
    return command;
}

void BOMOptionsTable::setTitle(const QString &title)
{
    m_table->setAccessibleName(title);
}

void BOMOptionsTable::setHeaders(const QStringList &labels)
{
    m_table->clear();
    m_table->setRowCount(0);
    m_table->setColumnCount(int(labels.size()));
    m_table->setHorizontalHeaderLabels(labels);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setShowGrid(false);
    QHeaderView *rows = m_table->verticalHeader();
    rows->hide();
    rows->setMinimumSectionSize(m_table->fontMetrics().lineSpacing());
    rows->setDefaultSectionSize(m_table->fontMetrics().lineSpacing() + 4);
    QHeaderView *columns = m_table->horizontalHeader();
    columns->setHighlightSections(false);
    columns->setTextElideMode(Qt::ElideRight);
    columns->setSectionsClickable(true);
    columns->setSectionResizeMode(0, QHeaderView::Stretch);
    columns->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    fitColumns();
}

void BOMOptionsTable::showRows(const QList<Row> &rows, int current)
{
    endSorting();
    {
        // Rows that come and go are no choice of the user.
        const QSignalBlocker blocker(m_table);
        m_table->setRowCount(0);
        m_table->setRowCount(int(rows.size()));
        for (int row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < rows[row].texts.size(); ++column) {
                m_table->setItem(row, column, new TextItem(rows[row].texts[column]));
            }
            m_table->item(row, 0)->setData(Qt::UserRole, rows[row].data);
        }
    }
    fitColumns();
    m_table->setCurrentCell(std::min(current, rowCount() - 1), 0);
    updateBtns(currentRow());
}

void BOMOptionsTable::insertEmptyRow(int row)
{
    endSorting();
    m_table->insertRow(row);
    m_table->setCurrentCell(row, 0);
    m_table->scrollTo(m_table->currentIndex());
}

int BOMOptionsTable::rowCount() const
{
    return m_table->rowCount();
}

int BOMOptionsTable::currentRow() const
{
    return m_table->currentRow();
}

QString BOMOptionsTable::text(int row, int column) const
{
    const QTableWidgetItem *item = m_table->item(row, column);
    return item ? item->text() : QString();
}

QVariant BOMOptionsTable::rowData(int row) const
{
    const QTableWidgetItem *item = m_table->item(row, 0);
    return item ? item->data(Qt::UserRole) : QVariant();
}

void BOMOptionsTable::updateBtns(int row)
{
    const bool isRow = row >= 0;
    m_ui->editBtn->setEnabled(isRow);
    m_ui->deleteBtn->setEnabled(isRow);
    m_ui->moveUpBtn->setEnabled(row > 0);
    m_ui->moveDownBtn->setEnabled(isRow && row < rowCount() - 1);
}

void BOMOptionsTable::protectRow()
{
    m_ui->editBtn->setEnabled(false);
    m_ui->deleteBtn->setEnabled(false);
}

void BOMOptionsTable::moveUp()
{
    if (currentRow() > 0) {
        moveRow(currentRow(), currentRow() - 1);
    }
}

void BOMOptionsTable::moveDown()
{
    if (currentRow() >= 0 && currentRow() < rowCount() - 1) {
        moveRow(currentRow(), currentRow() + 1);
    }
}

void BOMOptionsTable::moveRow(int from, int to)
{
    endSorting();
    const int inserted = to > from ? to + 1 : to;
    m_table->insertRow(inserted);
    const int source = to > from ? from : from + 1;
    for (int column = 0; column < m_table->columnCount(); ++column) {
        m_table->setItem(inserted, column, m_table->takeItem(source, column));
    }
    m_table->removeRow(source);
    m_table->setCurrentCell(to, std::max(0, m_table->currentColumn()));
    updateBtns(to);
    Q_EMIT orderChanged();
}

void BOMOptionsTable::sortRows()
{
    // Sorts by the heading that was clicked, whose arrow the header has set already.
    m_table->setSortingEnabled(true);
    updateBtns(currentRow());
    Q_EMIT orderChanged();
}

void BOMOptionsTable::endSorting()
{
    m_table->setSortingEnabled(false);
    m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void BOMOptionsTable::fitColumns()
{
    // The first column takes the rest, which must not be nothing.
    const int most = m_table->viewport()->width() * 3 / 5;
    for (int column = 1; column < m_table->columnCount(); ++column) {
        m_table->resizeColumnToContents(column);
        m_table->setColumnWidth(column, std::min(m_table->columnWidth(column), most));
    }
}

bool BOMOptionsTable::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        fitColumns();
    }
    return QWidget::eventFilter(watched, event);
}
