// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomcategoryeditor.h"

#include "core/bompartsdatabase.h"
#include "core/reference.h"
#include "host/framework/hostui.h"
#include "ui_bomcategoryeditor.h"

#include <QCompleter>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

QStringList prefixesOf(const BOMPartsDatabase *database)
{
    QSet<QString> prefixes;
    if (database) {
        for (const Part *part : database->parts()) {
            prefixes.insert(categoryPrefix(part->reference()).toString());
        }
    }
    prefixes.remove(QString());
    QStringList sorted = prefixes.values();
    sorted.sort();
    return sorted;
}

} // namespace

BOMCategoryEditor::BOMCategoryEditor(const BOMPartsDatabase *database, const BOMCategory &category,
                                     QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMCategoryEditor>())
    , m_category(category)
{
    m_ui->setupUi(this);
    m_prefixes = {m_ui->ref1Combo, m_ui->ref2Combo, m_ui->ref3Combo, m_ui->ref4Combo};
    m_offered = prefixesOf(database);
    setUpPrefixes();
    m_ui->headingLineEdit->setText(category.heading);
    m_ui->stackedWidget->setCurrentWidget(category.isMiscCategory ? m_ui->miscPage : m_ui->referencesPage);
    showPrefixes();
    m_found = shownPrefixes();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &BOMCategoryEditor::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &BOMCategoryEditor::reject);
}

BOMCategoryEditor::~BOMCategoryEditor() = default;

void BOMCategoryEditor::setUpPrefixes()
{
    for (QComboBox *combo : std::as_const(m_prefixes)) {
        combo->addItem(QString());
        combo->addItems(m_offered);
        combo->completer()->setCaseSensitivity(Qt::CaseSensitive);
    }
}

void BOMCategoryEditor::showPrefixes()
{
    const QStringList &prefixes = m_category.references;
    for (qsizetype i = 0; i < m_prefixes.size(); ++i) {
        // A category that was made elsewhere may have more of them; the last box then shows the rest.
        const bool isLast = i == m_prefixes.size() - 1;
        m_prefixes[i]->setEditText(isLast ? prefixes.mid(i).join(QStringLiteral(", ")) : prefixes.value(i));
    }
}

QStringList BOMCategoryEditor::shownPrefixes() const
{
    QStringList shown;
    std::transform(m_prefixes.begin(), m_prefixes.end(), std::back_inserter(shown),
                   [](const QComboBox *combo) { return combo->currentText(); });
    return shown;
}

QStringList BOMCategoryEditor::enteredPrefixes() const
{
    static const QRegularExpression separators(QStringLiteral("[\\s,;]+"));
    QStringList entered = shownPrefixes().join(u',').split(separators, Qt::SkipEmptyParts);
    for (QString &prefix : entered) {
        // Parts are matched with case: r is meant for R where the design has no r.
        const auto listed = std::find_if(m_offered.begin(), m_offered.end(), [&prefix](const QString &known) {
            return known.compare(prefix, Qt::CaseInsensitive) == 0;
        });
        if (listed != m_offered.end() && !m_offered.contains(prefix)) {
            prefix = *listed;
        }
    }
    entered.removeDuplicates();
    return entered;
}

BOMCategory BOMCategoryEditor::category() const
{
    BOMCategory edited = m_category;
    const QString heading = m_ui->headingLineEdit->text();
    edited.heading = heading == m_category.heading ? heading : heading.trimmed();
    if (!edited.isMiscCategory && shownPrefixes() != m_found) {
        edited.references = enteredPrefixes();
    }
    return edited;
}

void BOMCategoryEditor::accept()
{
    const std::optional<Refusal> refusal = m_check ? m_check(category()) : std::nullopt;
    if (refusal) {
        HostUi::current().information(this, refusal->title, refusal->text);
        return;
    }
    APPLNDIALOG::accept();
}
