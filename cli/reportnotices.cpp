// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportnotices.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/referencetext.h"
#include "core/bompart.h"

#include <QSet>

#include <utility>

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

QString faultText(DefinitionFault fault)
{
    switch (fault) {
    case DefinitionFault::TooFewFields:
        return QStringLiteral("makes no parts; it needs a count, a prefix and a value");
    case DefinitionFault::NoCount:
        return QStringLiteral("makes no parts; its count is no number");
    case DefinitionFault::TooManyParts:
        return QStringLiteral("makes no parts; its count is above ") +
               QString::number(mostPartsOfADefinition);
    case DefinitionFault::NoAssignment:
        return QStringLiteral("has a field that is not NAME=VALUE and is passed over");
    case DefinitionFault::DesignIsFull:
        return QStringLiteral("makes no parts; a design has at most ") + QString::number(mostBOMParts) +
               QStringLiteral(" BOM-only parts");
    case DefinitionFault::NumbersEnd:
        break;
    }
    return QStringLiteral("makes no parts; no numbers are left for their references");
}

/// With the BOM-only parts that belong to them.
QSet<QString> withBomParts(const BOMPartsDatabase &database, const QStringList &references)
{
    QSet<QString> all(references.begin(), references.end());
    for (const QString &reference : references) {
        for (const BOMPart *part : database.bomParts(reference)) {
            all.insert(part->reference());
        }
    }
    return all;
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
    return mixedLineNotices(design.database(), withBomParts(design.database(), notFitted));
}

QStringList markNotices(OpenDesign &design)
{
    QStringList notices;
    const PartsLedger ledger = design.ledger();
    if (const qsizetype count = ledger.excluded(); count > 0) {
        const qsizetype notFitted = ledger.excludedNotFitted();
        notices.append(counted(count, QStringLiteral("part is"), QStringLiteral("parts are")) +
                       QStringLiteral(" excluded from the bill of materials") +
                       (notFitted == 0 ? QString()
                                       : QStringLiteral(", ") + QString::number(notFitted) +
                                             QStringLiteral(" of them not fitted")) +
                       QStringLiteral(" (bom check names them)"));
    }
    if (const qsizetype count = ledger.notAnnotated().size(); count > 0) {
        notices.append(counted(count, QStringLiteral("symbol is"), QStringLiteral("symbols are")) +
                       QStringLiteral(" not annotated (bom check names them)"));
    }
    return notices;
}

QStringList definedPartProblems(OpenDesign &design)
{
    QStringList problems;
    const BOMPartsDatabase &database = design.database();
    for (const DefinitionProblem &problem : database.bomOnlyParts().problems()) {
        problems.append(problem.parentReference + QStringLiteral(": ") + problem.property +
                        QStringLiteral(": ") + faultText(problem.fault));
    }
    QStringList repeated = database.bomOnlyParts().duplicates();
    repeated.removeDuplicates();
    for (const QString &reference : std::as_const(repeated)) {
        problems.append(reference +
                        QStringLiteral(" is the reference of a BOM-only part and of another part"));
    }
    return problems;
}

QStringList definedPartNotices(OpenDesign &design)
{
    const qsizetype count = definedPartProblems(design).size();
    if (count == 0) {
        return {};
    }
    return {counted(count, QStringLiteral("definition"), QStringLiteral("definitions")) +
            QStringLiteral(" of BOM-only parts cannot be followed (bom check says why)")};
}

QString replacedLineNotice(const ReplacedLine &replaced, bool grouped)
{
    const QString references = referenceText(replaced.references);
    const QString what =
        grouped ? QStringLiteral("the line of ") +
                      counted(replaced.references.size(), QStringLiteral("part "), QStringLiteral("parts ")) +
                      references + QStringLiteral(" is left out of the report")
                : references + QStringLiteral(" is left out of the report of single parts");
    return what + QStringLiteral(", because ") + replaced.references.value(0) + QStringLiteral(" and ") +
           replaced.replacedBy + QStringLiteral(" count as the same reference; renumber one of them");
}

QStringList replacedLineNotices(OpenDesign &design, bool grouped)
{
    QStringList notices;
    for (const ReplacedLine &replaced : design.database().categories().replacedLines(grouped)) {
        notices.append(replacedLineNotice(replaced, grouped));
    }
    return notices;
}
