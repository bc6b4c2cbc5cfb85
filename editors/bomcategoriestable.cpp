// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomcategoriestable.h"

#include "editors/bomcategoryeditor.h"
#include "host/framework/hostui.h"

#include <QPointer>

#include <algorithm>

namespace {

std::optional<Refusal> refusal(const BOMCategory &edited, const QList<BOMCategory> &others)
{
    const QString title = BOMCategoriesTable::tr("Could not save category");
    if (edited.heading.isEmpty()) {
        return Refusal{title, BOMCategoriesTable::tr("The category needs a heading.")};
    }
    for (const BOMCategory &other : others) {
        if (other.heading == edited.heading) {
            return Refusal{title,
                           BOMCategoriesTable::tr("There is a category '%1' already.").arg(other.heading)};
        }
    }
    if (edited.isMiscCategory) {
        return std::nullopt;
    }
    if (edited.references.isEmpty()) {
        return Refusal{title,
                       BOMCategoriesTable::tr("Choose at least one reference prefix: without one no part "
                                              "belongs to the category.")};
    }
    for (const QString &prefix : edited.references) {
        if (std::any_of(prefix.begin(), prefix.end(), [](QChar c) { return c >= u'0' && c <= u'9'; })) {
            return Refusal{title,
                           BOMCategoriesTable::tr("'%1' cannot match any part: a reference prefix is what "
                                                  "stands in front of the first digit, such as R for R12.")
                               .arg(prefix)};
        }
        // The report leaves out a category whose prefix another one has already.
        for (const BOMCategory &other : others) {
            if (!other.isMiscCategory && other.references.contains(prefix)) {
                return Refusal{title,
                               BOMCategoriesTable::tr("The parts with the reference prefix '%1' belong to "
                                                      "the category '%2' already.")
                                   .arg(prefix, other.heading)};
            }
        }
    }
    return std::nullopt;
}

} // namespace

BOMCategoriesTable::BOMCategoriesTable(QWidget *parent)
    : BOMOptionsTable(parent)
{
    setTitle(tr("Categories"));
    setHeaders({tr("Category"), tr("Prefixes")});
    connect(this, &BOMOptionsTable::addClicked, this, &BOMCategoriesTable::addCategory);
    connect(this, &BOMOptionsTable::editClicked, this, &BOMCategoriesTable::editCategory);
    connect(this, &BOMOptionsTable::deleteClicked, this, &BOMCategoriesTable::removeCategory);
    connect(this, &BOMOptionsTable::orderChanged, this, &BOMCategoriesTable::bomCategoriesChanged);
}

void BOMCategoriesTable::setCategories(const QList<BOMCategory> &categories)
{
    const QString heading = text(currentRow(), 0);
    const auto found = std::find_if(categories.begin(), categories.end(),
                                    [&heading](const BOMCategory &c) { return c.heading == heading; });
    showCategories(categories, found == categories.end() ? -1 : int(found - categories.begin()));
}

QList<BOMCategory> BOMCategoriesTable::categories() const
{
    QList<BOMCategory> categories;
    for (int row = 0; row < rowCount(); ++row) {
        categories.append(BOMCategory::fromVariantMap(rowData(row).toMap()));
    }
    return categories;
}

void BOMCategoriesTable::showCategories(const QList<BOMCategory> &categories, int current)
{
    QList<Row> rows;
    for (const BOMCategory &category : categories) {
        rows.append(
            {{category.heading, category.references.join(QStringLiteral(", "))}, category.toVariantMap()});
    }
    showRows(rows, current);
}

std::optional<BOMCategory> BOMCategoriesTable::run(const BOMCategory &category,
                                                   const QList<BOMCategory> &others)
{
    const QPointer<BOMCategoryEditor> editor = new BOMCategoryEditor(m_database, category, this);
    editor->setCheck([others](const BOMCategory &edited) { return refusal(edited, others); });
    const bool isAccepted = editor->exec() == QDialog::Accepted;
    if (!editor) {
        return std::nullopt;
    }
    editor->deleteLater();
    return isAccepted ? std::optional(editor->category()) : std::nullopt;
}

void BOMCategoriesTable::addCategory()
{
    QList<BOMCategory> all = categories();
    const int before = currentRow();
    // What other categories leave stays behind them.
    const int row = int(all.size()) - (!all.isEmpty() && all.last().isMiscCategory ? 1 : 0);
    insertEmptyRow(row);
    // The window may be closed while the editor is open.
    const QPointer<BOMCategoriesTable> guard(this);
    const std::optional<BOMCategory> added = run(BOMCategory(), all);
    if (!guard) {
        return;
    }
    if (!added) {
        showCategories(all, before);
        return;
    }
    all.insert(row, *added);
    showCategories(all, row);
    bomCategoriesChanged();
}

void BOMCategoriesTable::editCategory()
{
    QList<BOMCategory> all = categories();
    const int row = currentRow();
    if (row < 0) {
        return;
    }
    QList<BOMCategory> others = all;
    const BOMCategory before = others.takeAt(row);
    const QPointer<BOMCategoriesTable> guard(this);
    const std::optional<BOMCategory> edited = run(before, others);
    if (!guard || !edited || *edited == before) {
        return;
    }
    all.replace(row, *edited);
    showCategories(all, row);
    bomCategoriesChanged();
}

void BOMCategoriesTable::removeCategory()
{
    QList<BOMCategory> all = categories();
    const int row = currentRow();
    if (row < 0) {
        return;
    }
    if (all[row].isMiscCategory) {
        HostUi::current().information(this, tr("Cannot perform action"),
                                      tr("The miscellaneous category is required."));
        return;
    }
    all.removeAt(row);
    showCategories(all, row);
    bomCategoriesChanged();
}

void BOMCategoriesTable::bomCategoriesChanged()
{
    Q_EMIT bomCategoriesUpdated(categories());
}
