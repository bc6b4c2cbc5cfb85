// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/billaccount.h"

#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/propertyquery.h"

#include <QSet>

#include <algorithm>

namespace {

/// The references of components; BOM-only parts are none.
QStringList componentsOf(const BOMPartsDatabase &database, QStringList references)
{
    references.removeIf([&database](const QString &reference) {
        const Part *part = database.part(reference);
        return part && part->isBOMPart();
    });
    return references;
}

void addLine(BillAccount *account, BomLine line)
{
    const auto bomParts =
        std::count_if(line.begin(), line.end(), [](const Part *part) { return part->isBOMPart(); });
    ++account->lines;
    account->bomParts += bomParts;
    account->parts += qsizetype(line.size()) - bomParts;
}

} // namespace

BillAccount billAccountOf(const BOMPartsDatabase &database)
{
    BillAccount account;
    account.repeated = database.duplicateReferences().size() - database.bomOnlyParts().duplicates().size();
    for (const QString &category : database.categoryNames()) {
        const ReportLines report = database.categories().reportLines(category, true);
        for (const BomLine line : report.lines) {
            addLine(&account, line);
        }
        for (const ReplacedLine &replaced : report.replaced) {
            account.replaced += componentsOf(database, replaced.references);
        }
        account.replacedLines += report.replaced;
    }
    const QSet<QString> known(account.replaced.cbegin(), account.replaced.cend());
    account.replacedParts = database.categories().replacedLines(false);
    account.replacedParts.removeIf(
        [&known](const ReplacedLine &part) { return known.contains(part.references.value(0)); });
    return account;
}

QStringList repeatedBomParts(const BOMPartsDatabase &database)
{
    QStringList references = database.bomOnlyParts().duplicates();
    references.removeDuplicates();
    return references;
}

QStringList partsWithout(const BOMPartsDatabase &database, const QString &property)
{
    QStringList references;
    const PropertyQuery query(property, &database.propertyTypes());
    for (const Part *part : database.parts()) {
        const QString text = part->property(query);
        const QString trimmed = text.trimmed();
        // KiCad has "~" for nothing.
        if (trimmed.isEmpty() || trimmed == u'~' ||
            (property == placedProperty() && text == QStringLiteral("Not placed"))) {
            references.append(part->reference());
        }
    }
    return references;
}
