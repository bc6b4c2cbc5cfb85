// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/pendingreview.h"

#include "ui_pendingreview.h"

#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScopeGuard>
#include <QShortcut>

#include <algorithm>

namespace {

/// Further problems are counted only.
constexpr qsizetype mostProblems = 5;
/// Of a column at first; people can widen it.
constexpr int mostCharacters = 28;

} // namespace

PendingReview::PendingReview(PropertyAssignments *assignments, const BOMPartsDatabase *database,
                             QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::PendingReview>())
    , m_assignments(assignments)
    , m_database(database)
    , m_model(new ReviewModel(assignments, database, this))
    , m_sorter(new ReviewSorter(m_model))
{
    m_ui->setupUi(this);
    m_apply = m_ui->buttonBox->addButton(tr("&Apply Changes"), QDialogButtonBox::AcceptRole);
    m_apply->setObjectName(QStringLiteral("applyButton"));
    m_drop = m_ui->buttonBox->addButton(tr("&Drop"), QDialogButtonBox::ActionRole);
    m_drop->setObjectName(QStringLiteral("dropButton"));
    m_drop->setAutoDefault(false);
    m_drop->setToolTip(tr("End the selected edits without writing them"));
    setUpTable();
    connectWidgets();
    refresh();
    fitColumns();
    m_ui->changesView->setFocus();
}

PendingReview::~PendingReview() = default;

void PendingReview::setUpTable()
{
    QTableView &view = *m_ui->changesView;
    view.setModel(m_sorter);
    view.horizontalHeader()->setStretchLastSection(true);
    view.horizontalHeader()->setTextElideMode(Qt::ElideRight);
    view.horizontalHeader()->setSortIndicatorShown(true);
    // More would be looked at in tables of many rows; these have all there is in most.
    view.horizontalHeader()->setResizeContentsPrecision(200);
    view.verticalHeader()->hide();
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(view.verticalHeader()->minimumSectionSize());
    view.sortByColumn(ReviewModel::ReferenceColumn, Qt::AscendingOrder);
}

/// The state stands last and has what the others leave.
void PendingReview::fitColumns()
{
    QTableView &view = *m_ui->changesView;
    const int widest = view.fontMetrics().averageCharWidth() * mostCharacters;
    view.resizeColumnsToContents();
    for (int column = 0; column < ReviewModel::StateColumn; ++column) {
        // The number of a line stands at the end of its text.
        const int limit = column == ReviewModel::PlaceColumn ? 2 * widest : widest;
        view.setColumnWidth(column, std::min(view.columnWidth(column), limit));
    }
}

void PendingReview::connectWidgets()
{
    m_refreshing.setSingleShot(true);
    m_refreshing.setInterval(0);
    connect(&m_refreshing, &QTimer::timeout, this, &PendingReview::refresh);
    connect(m_assignments, &PropertyAssignments::changed, &m_refreshing, qOverload<>(&QTimer::start));
    connect(m_ui->changesView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PendingReview::updateButtons);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &PendingReview::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &PendingReview::reject);
    connect(m_drop, &QPushButton::clicked, this, &PendingReview::dropSelected);
    const auto *deletion = new QShortcut(QKeySequence::Delete, m_ui->changesView);
    connect(deletion, &QShortcut::activated, this, &PendingReview::dropSelected);
}

void PendingReview::refresh()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restored = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    const int row = m_ui->changesView->currentIndex().row();
    // First, as the edits may follow their parts then.
    const auto preview = m_assignments->preview();
    m_model->setChanges(PendingChanges(m_assignments->edits(), preview, m_database));
    if (!m_ui->changesView->currentIndex().isValid() && m_sorter->rowCount() > 0) {
        m_ui->changesView->selectRow(std::clamp(row, 0, m_sorter->rowCount() - 1));
    }
    const auto isConfirmable = [](const ReviewRow &row) { return row.canBeConfirmed(); };
    const auto hasOthers = [](const ReviewRow &row) { return !row.alsoChanges.isEmpty(); };
    const QList<ReviewRow> &rows = m_model->changes().rows();
    m_ui->changesView->setColumnHidden(ReviewModel::ConfirmColumn, std::ranges::none_of(rows, isConfirmable));
    m_ui->changesView->setColumnHidden(ReviewModel::AlsoChangesColumn, std::ranges::none_of(rows, hasOthers));
    m_ui->summaryLabel->setText(m_model->changes().summary());
    showProblems();
    updateButtons();
}

void PendingReview::showProblems()
{
    const QStringList &problems = m_model->changes().generalProblems();
    QStringList lines = problems.first(qMin(mostProblems, problems.size()));
    if (problems.size() > mostProblems) {
        lines << tr("and %1 more").arg(problems.size() - mostProblems);
    }
    const auto isRefused = [](const ReviewRow &row) { return row.state == ReviewState::Refused; };
    if (std::ranges::any_of(m_model->changes().rows(), isRefused)) {
        lines << tr("Nothing can be written while edits are refused: drop or correct those.");
    }
    m_ui->problemsLabel->setText(lines.join(u'\n'));
    m_ui->problemsLabel->setVisible(!lines.isEmpty());
}

void PendingReview::updateButtons()
{
    const bool canApply = m_model->changes().canBeApplied();
    m_apply->setEnabled(canApply);
    m_drop->setEnabled(m_ui->changesView->selectionModel()->hasSelection());
    QPushButton *close = m_ui->buttonBox->button(QDialogButtonBox::Close);
    (canApply ? m_apply : close)->setDefault(true);
}

void PendingReview::dropSelected()
{
    QList<PendingEdit> edits;
    for (const QModelIndex &index : m_ui->changesView->selectionModel()->selectedRows()) {
        edits << m_model->row(m_sorter->mapToSource(index).row()).edit;
    }
    const PropertyAssignments::Action action(m_assignments);
    for (const PendingEdit &edit : edits) {
        m_assignments->retract(edit);
    }
}
