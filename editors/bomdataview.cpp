// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomdataview.h"

#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "editors/applytexts.h"
#include "editors/bompartcreator.h"
#include "editors/bompartremover.h"
#include "editors/cellblocks.h"
#include "editors/cellmenu.h"
#include "editors/columnmenu.h"
#include "editors/flowlayout.h"
#include "editors/partmenu.h"
#include "editors/partstable.h"
#include "editors/propertyrecorder.h"
#include "editors/propsfindandreplace.h"
#include "editors/propvaleditdelegate.h"
#include "editors/replacedvalues.h"
#include "host/framework/hostui.h"
#include "host/netlist/cdbcore.h"
#include "host/widgets/applnwidget.h"
#include "host/widgets/waitcursor.h"
#include "ui_bomdataview.h"

#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSet>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace {

bool isBOMOnly(const Part *part)
{
    return part->isBOMPart();
}

} // namespace

BOMDataView::BOMDataView(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BOMDataView>())
    , m_delegate(new PropValEditDelegate(this))
{
    m_ui->setupUi(this);
    setFlowLayout(m_ui->groups);
    m_table = std::make_unique<PartsTable>(m_ui->partsView);
    m_ui->partsView->setItemDelegate(m_delegate);
    const auto check = [this](const PropertyItem &item, const QString &text) {
        return m_assignments ? recorder().problem(*item.propertyRow(), item.column(), text)
                             : tr("no design is open");
    };
    m_blocks = std::make_unique<CellBlocks>(m_ui->partsView, m_table.get(), check);
    m_columnMenu = std::make_unique<ColumnMenu>(m_ui->partsView, m_table.get());
    m_partMenu = std::make_unique<PartMenu>(this);
    m_cellMenu = std::make_unique<CellMenu>(m_ui->partsView, m_table.get(), m_blocks.get(), m_partMenu.get());
    connect(&m_message, &PassingMessage::changed, this, &BOMDataView::statusMessage);
    setIcons();
    connectForm();
    connectEditing();
    fillCategories();
    updateButtons();
}

BOMDataView::~BOMDataView()
{
    m_action.reset();
    m_table->rememberLayout();
    // Its deletion is no change of the table any more.
    m_ui->partsView->disconnect(this);
}

void BOMDataView::setIcons()
{
    const auto setIcon = [](QPushButton *button, const QString &name) {
        button->setIcon(
            APPLNWIDGET::makeIcon(QStringLiteral(":/bom/icons/") + name + QStringLiteral(".png")));
    };
    setIcon(m_ui->applyPropDefsBtn, QStringLiteral("apply"));
    setIcon(m_ui->clearPendingChangesBtn, QStringLiteral("clear"));
    setIcon(m_ui->newBOMPartBtn, QStringLiteral("part_add"));
    setIcon(m_ui->removeBOMPartBtn, QStringLiteral("part_remove"));
    if (auto *clear = m_ui->filterEdit->findChild<QAction *>(); clear && clear->toolTip().isEmpty()) {
        clear->setToolTip(tr("Show all rows"));
        m_ui->filterEdit->findChild<QToolButton *>()->setAccessibleName(clear->toolTip());
    }
    m_ui->partsView->horizontalHeader()->setTextElideMode(Qt::ElideRight);
}

void BOMDataView::connectForm()
{
    connect(m_ui->groupingCheckbox, &QCheckBox::clicked, this, &BOMDataView::updateBOMFieldValues);
    connect(m_ui->showLinksCheckBox, &QCheckBox::clicked, this, &BOMDataView::updateBOMFieldValues);
    connect(m_ui->categoriesCombo, &QComboBox::currentIndexChanged, this, &BOMDataView::handleBOMDataUpdate);
    connect(m_ui->applyPropDefsBtn, &QPushButton::clicked, this, &BOMDataView::applyPropertyValues);
    connect(m_ui->clearPendingChangesBtn, &QPushButton::clicked, this, &BOMDataView::clearPendingChanges);
    connect(m_ui->newBOMPartBtn, &QPushButton::clicked, this, &BOMDataView::newBOMPart);
    connect(m_ui->removeBOMPartBtn, &QPushButton::clicked, this, &BOMDataView::removeBOMPart);
    connect(m_ui->partsView, &BOMTableWidget::itemChanged, this, &BOMDataView::addPendingAssignment);
    connect(m_ui->partsView, &BOMTableWidget::cellLeftClicked, this, &BOMDataView::cellLeftClicked);
    connect(m_ui->partsView, &BOMTableWidget::cellRightClicked, this, &BOMDataView::cellRightClicked);
    connect(m_ui->partsView, &BOMTableWidget::cellEntered, this, &BOMDataView::updateCursor);
    connect(m_ui->partsView, &BOMTableWidget::viewportEntered, m_ui->partsView->viewport(),
            &QWidget::unsetCursor);
    connect(m_ui->filterEdit, &QLineEdit::textChanged, this, &BOMDataView::updateFilter);
    connect(m_ui->filterEdit, &QLineEdit::returnPressed, m_ui->partsView, qOverload<>(&QWidget::setFocus));
    connect(m_ui->rowsCombo, &QComboBox::currentIndexChanged, this, &BOMDataView::updateFilter);
    connect(m_table.get(), &PartsTable::shownRowsChanged, this, &BOMDataView::updateCount);
}

void BOMDataView::connectEditing()
{
    const auto begin = [this] {
        if (m_assignments && !m_action) {
            m_action = std::make_unique<PropertyAssignments::Action>(m_assignments);
        }
    };
    const auto end = [this] {
        m_action.reset();
        fillIfDue();
    };
    connect(m_ui->partsView, &BOMTableWidget::fillStarted, this, [this, begin] {
        begin();
        m_beforeFill = m_assignments ? m_assignments->edits() : QList<PendingEdit>();
    });
    connect(m_ui->partsView, &BOMTableWidget::fillCancelled, this, [this] {
        if (m_assignments) {
            m_assignments->restore(m_assignments->edits(), m_beforeFill);
            m_table->refreshPending();
        }
    });
    connect(m_ui->partsView, &BOMTableWidget::fillEnded, this, end);
    connect(m_blocks.get(), &CellBlocks::started, this, begin);
    connect(m_blocks.get(), &CellBlocks::ended, this, end);
    connect(m_blocks.get(), &CellBlocks::statusMessage, &m_message, &PassingMessage::show);
    connect(m_delegate, &PropValEditDelegate::editingChanged, this, &BOMDataView::fillIfDue);
    connect(m_delegate, &PropValEditDelegate::refused, this, [this](const QModelIndex &index) {
        tellRefusal(m_table->fieldAt(index.row(), index.column()), PropertyRecorder::notTaken());
    });
    connect(m_columnMenu.get(), &ColumnMenu::closed, this, &BOMDataView::fillIfDue);
    connect(m_partMenu.get(), &PartMenu::closed, this, &BOMDataView::fillIfDue);
    connect(m_partMenu.get(), &PartMenu::statusMessage, &m_message, &PassingMessage::show);
    connect(m_ui->partsView, &BOMTableWidget::menuRequested, this, [this](int row, int column) {
        const QRect cell = m_ui->partsView->visualRect(m_ui->partsView->model()->index(row, column));
        m_cellMenu->open(row, column, m_ui->partsView->viewport()->mapToGlobal(cell.bottomLeft()));
    });
}

PropsFindAndReplace *BOMDataView::findAndReplace()
{
    if (!m_findAndReplace) {
        m_findAndReplace = new PropsFindAndReplace(m_ui->partsView, this);
        m_findAndReplace->setActionRunner([this](const std::function<void()> &replacement) {
            const ReplacedValues replaced(m_assignments);
            {
                const auto action =
                    m_assignments ? std::make_unique<PropertyAssignments::Action>(m_assignments) : nullptr;
                replacement();
            }
            if (const QString text = replaced.text(); !text.isEmpty()) {
                m_message.show(text);
            }
        });
    }
    return m_findAndReplace;
}

void BOMDataView::showFindDialogue()
{
    findAndReplace()->showFind();
}

void BOMDataView::showReplaceDialogue()
{
    findAndReplace()->showReplace();
}

void BOMDataView::setPartsDatabase(BOMPartsDatabase *database)
{
    if (m_database) {
        disconnect(m_database, &QObject::destroyed, this, nullptr);
    }
    m_database = database;
    m_delegate->setPartsDatabase(database);
    m_partMenu->setPartsDatabase(database);
    m_table->setSource(database, m_assignments);
    if (database) {
        connect(database, &QObject::destroyed, this, [this] { setPartsDatabase(nullptr); });
    }
    updateButtons();
}

void BOMDataView::setAssignments(PropertyAssignments *assignments)
{
    m_action.reset();
    if (m_assignments) {
        m_assignments->disconnect(this);
    }
    m_assignments = assignments;
    m_cellMenu->setAssignments(assignments);
    m_table->setSource(m_database, assignments);
    if (assignments) {
        connect(assignments, &PropertyAssignments::edited, this, &BOMDataView::refreshEdited);
        connect(assignments, &PropertyAssignments::changed, this, &BOMDataView::updateAssignments);
        connect(assignments, &QObject::destroyed, this, [this] {
            m_action.release();
            m_table->setSource(m_database, nullptr);
        });
    }
    updateButtons();
}

bool BOMDataView::hasPendingAssignments() const
{
    return m_assignments && !m_assignments->isEmpty();
}

bool BOMDataView::isBusy() const
{
    return m_delegate->isEditing() || m_ui->partsView->isDragging() || m_isAsking || m_partMenu->isOpen() ||
           m_columnMenu->isOpen();
}

void BOMDataView::handleBOMDataUpdate()
{
    m_isFillDue = isBusy();
    if (m_isFillDue || m_isFilling) {
        return;
    }
    const QScopedValueRollback filling(m_isFilling, true);
    fillCategories();
    const int category = m_ui->categoriesCombo->currentIndex();
    m_table->fill({{category > 0 ? m_ui->categoriesCombo->currentText() : QString(),
                    m_ui->groupingCheckbox->isChecked()},
                   m_ui->showLinksCheckBox->isChecked()});
    updateButtons();
}

bool BOMDataView::endEditing()
{
    return m_delegate->commitEditing();
}

void BOMDataView::updateBOMFieldValues()
{
    handleBOMDataUpdate();
}

void BOMDataView::fillIfDue()
{
    if (m_isFillDue && !isBusy()) {
        handleBOMDataUpdate();
    }
}

/// "All", then the headings of the template; what was chosen stays chosen where it is still there.
void BOMDataView::fillCategories()
{
    QStringList headings{tr("All")};
    if (m_database) {
        for (const BOMCategory &category : m_database->currentTemplate().categories()) {
            headings.append(category.heading);
        }
    }
    headings.removeDuplicates();
    QComboBox &combo = *m_ui->categoriesCombo;
    QStringList present;
    for (int i = 0; i < combo.count(); ++i) {
        present.append(combo.itemText(i));
    }
    if (present == headings) {
        return;
    }
    const QString chosen = combo.currentText();
    const QSignalBlocker blocker(&combo);
    combo.clear();
    combo.addItems(headings);
    combo.setCurrentIndex(std::max(0, int(headings.indexOf(chosen))));
}

void BOMDataView::updateButtons()
{
    m_ui->applyPropDefsBtn->setEnabled(hasPendingAssignments());
    m_ui->clearPendingChangesBtn->setEnabled(hasPendingAssignments());
    m_ui->newBOMPartBtn->setEnabled(m_database && m_assignments && getcdb());
    const auto parts = m_database ? m_database->parts() : std::span<Part *const>();
    // They stand behind all others.
    m_ui->removeBOMPartBtn->setEnabled(!parts.empty() && isBOMOnly(parts.back()) && m_assignments &&
                                       getcdb());
}

void BOMDataView::updateFilter()
{
    const auto rows = RowFilter::Rows(m_ui->rowsCombo->currentIndex());
    m_table->setFilter(RowFilter(m_ui->filterEdit->text(), rows));
}

void BOMDataView::updateCount()
{
    m_ui->countLabel->setText(
        tr("%1 of %2").arg(QString::number(m_table->shownRows()), QString::number(m_table->allRows())));
}

PropertyRecorder BOMDataView::recorder() const
{
    return {m_database, m_assignments};
}

void BOMDataView::addPendingAssignment(QTableWidgetItem *editedItem)
{
    if (m_isFilling || m_isApplying || m_isRecording) {
        return;
    }
    auto *item = dynamic_cast<PropertyItem *>(editedItem);
    const std::optional<QString> text = item ? item->typed() : std::nullopt;
    if (!text) {
        return;
    }
    const QScopedValueRollback recording(m_isRecording, true);
    item->dropTyped();
    if (!m_database || !m_assignments || (!item->cell().isDifferent && *text == item->cell().text)) {
        return;
    }
    const QString refusal = recorder().record(*item->propertyRow(), item->column(), *text);
    if (!refusal.isEmpty()) {
        tellRefusal(item, refusal);
        return;
    }
    m_table->refresh(item->propertyRow());
    updateButtons();
    m_message.clear();
    Q_EMIT pendingPropertyAssignments(hasPendingAssignments());
}

void BOMDataView::tellRefusal(const PropertyItem *item, const QString &reason)
{
    if (item) {
        m_message.show(tr("%1, %2: %3; the text stays as it was.")
                           .arg(item->propertyRow()->referenceText, item->column().heading, reason));
    }
}

void BOMDataView::refreshEdited(const QList<PendingEdit> &before, const QList<PendingEdit> &after)
{
    m_isEditedShown = true;
    // A row may stand for thousands of parts, all of which one refresh reads.
    QSet<PropertyRow *> due;
    for (const QList<PendingEdit> &edits : {before, after}) {
        for (const PendingEdit &edit : edits) {
            if (PropertyRow *row = m_table->rows().rowOf(edit.reference)) {
                due.insert(row);
            }
        }
    }
    for (PropertyRow *row : due) {
        m_table->refresh(row);
    }
}

void BOMDataView::updateAssignments()
{
    if (!std::exchange(m_isEditedShown, false)) {
        m_table->refreshPending();
    }
    updateButtons();
    Q_EMIT pendingPropertyAssignments(hasPendingAssignments());
}

void BOMDataView::applyPropertyValues()
{
    if (!m_database || !m_assignments || !m_delegate->commitEditing()) {
        return;
    }
    ApplyResult result;
    {
        const QScopedValueRollback applying(m_isApplying, true);
        const WaitCursor cursor;
        result = m_assignments->apply(ApplyOptions());
    }
    m_table->refreshPending();
    updateButtons();
    if (!result.kept.isEmpty()) {
        m_message.show(keptText(result));
    }
    if (!result.text.isEmpty()) {
        const QScopedValueRollback asking(m_isAsking, true);
        tellApplied(this, result);
    }
    fillIfDue();
    Q_EMIT pendingPropertyAssignments(hasPendingAssignments());
}

void BOMDataView::clearPendingChanges()
{
    if (!m_assignments) {
        return;
    }
    bool isMeant = false;
    {
        const QScopedValueRollback asking(m_isAsking, true);
        isMeant = HostUi::current().question(this, tr("Clear Pending Changes"),
                                             tr("Clear pending property assignments, are you sure?"), false);
    }
    if (isMeant && m_assignments) {
        m_assignments->clear();
        m_table->refreshPending();
        Q_EMIT pendingPropertyAssignments(hasPendingAssignments());
    }
    fillIfDue();
    updateButtons();
}

void BOMDataView::newBOMPart()
{
    if (!m_database || !m_assignments || !m_delegate->commitEditing()) {
        return;
    }
    BOMPartCreator dialog(m_assignments, m_database, this);
    const auto *bomPart = dynamic_cast<const BOMPart *>(m_database->part(currentReference()));
    dialog.setParentReference(bomPart ? bomPart->parentReference() : currentReference());
    run(&dialog);
}

void BOMDataView::removeBOMPart()
{
    if (!m_database || !m_assignments || !m_delegate->commitEditing()) {
        return;
    }
    BOMPartRemover dialog(m_assignments, m_database, this);
    dialog.setReference(currentReference());
    run(&dialog);
}

QString BOMDataView::currentReference() const
{
    const PropertyRow *current = m_table->rowAt(m_ui->partsView->currentRow());
    return current ? current->firstReference() : QString();
}

void BOMDataView::run(QDialog *dialog)
{
    {
        const QScopedValueRollback asking(m_isAsking, true);
        dialog->exec();
    }
    fillIfDue();
    updateButtons();
}

void BOMDataView::cellLeftClicked(int row, int column)
{
    const PropertyRow *clicked = m_table->rowAt(row);
    // With a key, and when several cells were selected, nobody means to leave the table.
    const bool isPlain = QGuiApplication::keyboardModifiers() == Qt::NoModifier &&
                         m_ui->partsView->selectedRanges().size() <= 1 &&
                         m_ui->partsView->selectedItems().size() <= 1;
    if (!clicked || !isPlain) {
        return;
    }
    if (column == m_table->linksColumn() && clicked->links > 0) {
        m_partMenu->askForLink(*clicked);
    } else if (column == PartsTable::ReferenceColumn && clicked->references.size() > 1) {
        m_partMenu->askForPart(*clicked);
    } else if (column == PartsTable::ReferenceColumn) {
        m_partMenu->navigateTo(clicked->firstReference());
    }
}

void BOMDataView::cellRightClicked(int row, int column)
{
    m_cellMenu->open(row, column, QCursor::pos());
}

void BOMDataView::updateCursor(int row, int col)
{
    const PropertyRow *entered = m_table->rowAt(row);
    const bool leadsAway = entered && (col == PartsTable::ReferenceColumn ||
                                       (col == m_table->linksColumn() && entered->links > 0));
    m_ui->partsView->viewport()->setCursor(leadsAway ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void BOMDataView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (m_table && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
                    event->type() == QEvent::StyleChange)) {
        m_table->updateLook();
    }
}

void BOMDataView::keyPressEvent(QKeyEvent *event)
{
    const bool isFiltered = !m_ui->filterEdit->text().isEmpty() || m_ui->rowsCombo->currentIndex() > 0;
    if (event->key() == Qt::Key_Escape && isFiltered) {
        m_ui->filterEdit->clear();
        m_ui->rowsCombo->setCurrentIndex(0);
        return;
    }
    QWidget::keyPressEvent(event);
}
