// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportnotices.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/referencetext.h"

#include <QSet>

namespace {

QString leftOutNotice(qsizetype count, DnpChoice choice)
{
    if (choice == DnpChoice::Only) {
        return counted(count, QStringLiteral("fitted part is"), QStringLiteral("fitted parts are")) +
               QStringLiteral(" left out (--dnp only)");
    }
    return counted(count, QStringLiteral("part is"), QStringLiteral("parts are")) +
           QStringLiteral(" not fitted and left out (--dnp include lists them)");
}

/// The references of the line that are not fitted, when others of it are.
QStringList notFittedAmongFitted(const QStringList &line, const QSet<QString> &notFitted)
{
    QStringList found;
    for (const QString &reference : line) {
        if (notFitted.contains(reference)) {
            found.append(reference);
        }
    }
    return found.size() < line.size() ? found : QStringList();
}

QStringList mixedLineNotices(BOMPartsDatabase &database, const QSet<QString> &notFitted)
{
    QStringList notices;
    for (const QString &category : database.categoryNames()) {
        for (const QString &value : database.categoryValues(category)) {
            for (const QStringList &line : database.groupLines(category, value)) {
                const QStringList mixed = notFittedAmongFitted(line, notFitted);
                if (!mixed.isEmpty()) {
                    notices.append(QStringLiteral("the line ") + referenceText(line) +
                                   QStringLiteral(" mixes fitted and not fitted parts; not fitted: ") +
                                   referenceText(mixed));
                }
            }
        }
    }
    return notices;
}

} // namespace

QStringList notFittedNotices(OpenDesign &design)
{
    const PartsLedger ledger = design.ledger();
    if (const qsizetype count = ledger.leftOutByChoice(); count > 0) {
        return {leftOutNotice(count, design.session().dnpChoice())};
    }
    const QStringList notFitted = ledger.listedNotFitted();
    if (notFitted.isEmpty()) {
        return {};
    }
    return mixedLineNotices(design.database(), QSet<QString>(notFitted.begin(), notFitted.end()));
}

QStringList replacedLineNotices(OpenDesign &design, bool grouped)
{
    QStringList notices;
    for (const ReplacedLine &replaced : design.database().replacedLines(grouped)) {
        notices.append(referenceText(replaced.references) +
                       (grouped ? QStringLiteral(" is missing in the report: ")
                                : QStringLiteral(" is missing where parts are listed one by one: ")) +
                       replaced.replacedBy + QStringLiteral(" counts as the same reference"));
    }
    return notices;
}
