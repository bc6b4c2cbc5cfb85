// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/sentences.h"

#include "account/billaccount.h"
#include "account/design/designaccount.h"
#include "core/bompartsdatabase.h"
#include "core/referenceformat.h"

#include <limits>

namespace {

QString partsAre(qsizetype count)
{
    return counted(count, QStringLiteral("part is"), QStringLiteral("parts are"));
}

/// The parts that a mark excludes, and the symbols that are not annotated.
QStringList markNotices(const ComponentAccount &components)
{
    QStringList notices;
    if (components.excluded > 0) {
        const QString notFitted = QString::number(components.excludedNotFitted);
        notices.append(partsAre(components.excluded) +
                       QStringLiteral(" excluded from the bill of materials") +
                       (components.excludedNotFitted == 0
                            ? QString()
                            : QStringLiteral(", ") + notFitted + QStringLiteral(" of them not fitted")) +
                       QStringLiteral(" (bom check names them)"));
    }
    if (const qsizetype count = qsizetype(components.notAnnotated.size()); count > 0) {
        notices.append(counted(count, QStringLiteral("symbol is"), QStringLiteral("symbols are")) +
                       QStringLiteral(" not annotated (bom check names them)"));
    }
    return notices;
}

QString leftOutNotice(const ComponentAccount &components)
{
    if (components.choice == DnpChoice::Only) {
        return counted(components.leftOutByChoice, QStringLiteral("fitted part is"),
                       QStringLiteral("fitted parts are")) +
               QStringLiteral(" left out (--dnp only)");
    }
    return partsAre(components.leftOutByChoice) +
           QStringLiteral(" not fitted and left out (--dnp include lists them)");
}

/// What the not-fitted choice leaves out; where it leaves nothing out, the lines that it mixes.
QStringList notFittedNotices(const ComponentAccount &components, const BOMPartsDatabase &database)
{
    if (components.leftOutByChoice > 0) {
        return {leftOutNotice(components)};
    }
    if (components.listedNotFitted.isEmpty()) {
        return {};
    }
    QStringList notices;
    for (const MixedLine &line : mixedLines(database, components)) {
        notices.append(QStringLiteral("the line ") + referenceText(line.references) +
                       QStringLiteral(" mixes fitted and not fitted parts; not fitted: ") +
                       referenceText(line.notFitted));
    }
    return notices;
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

/// How many definitions cannot be followed.
QStringList definedPartNotices(const BOMPartsDatabase &database)
{
    const qsizetype count = definedPartProblems(database).size();
    if (count == 0) {
        return {};
    }
    return {counted(count, QStringLiteral("definition"), QStringLiteral("definitions")) +
            QStringLiteral(" of BOM-only parts cannot be followed (bom check says why)")};
}

QStringList replacedLineNotices(const BOMPartsDatabase &database, bool grouped)
{
    QStringList notices;
    for (const ReplacedLine &replaced : database.categories().replacedLines(grouped)) {
        notices.append(replacedLineNotice(replaced, grouped));
    }
    return notices;
}

} // namespace

QString counted(qsizetype count, const QString &singular, const QString &plural)
{
    return QString::number(count) + u' ' + (count == 1 ? singular : plural);
}

QString referenceText(const QStringList &references)
{
    ReferenceStyle style;
    style.width = std::numeric_limits<int>::max();
    return formatReferences(references, style);
}

QStringList reportNotices(const ComponentAccount &components, const BOMPartsDatabase &database,
                          ReportForms forms)
{
    QStringList notices = markNotices(components);
    notices += notFittedNotices(components, database);
    notices += definedPartNotices(database);
    if (forms.hasLines) {
        notices += replacedLineNotices(database, true);
    }
    if (forms.hasParts) {
        notices += replacedLineNotices(database, false);
    }
    return notices;
}

QStringList definedPartProblems(const BOMPartsDatabase &database)
{
    QStringList problems;
    for (const DefinitionProblem &problem : database.bomOnlyParts().problems()) {
        problems.append(problem.parentReference + QStringLiteral(": ") + problem.property +
                        QStringLiteral(": ") + faultText(problem.fault));
    }
    for (const QString &reference : repeatedBomParts(database)) {
        problems.append(reference +
                        QStringLiteral(" is the reference of a BOM-only part and of another part"));
    }
    return problems;
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
