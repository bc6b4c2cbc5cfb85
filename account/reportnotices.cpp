// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/reportnotices.h"

#include "account/billaccount.h"
#include "account/billfindings.h"
#include "account/design/designaccount.h"
#include "account/sentences.h"
#include "core/bompartsdatabase.h"
#include "core/unreadtexts.h"

#include <algorithm>

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

/// How many parts the not-fitted choice leaves out, or lists without counting them.
QStringList notFittedNotices(const ComponentAccount &components, const BOMPartsDatabase &database,
                             bool hasReport)
{
    if (components.leftOutByChoice > 0) {
        return {leftOutNotice(components)};
    }
    const auto parts = database.parts();
    const qsizetype marked =
        std::count_if(parts.begin(), parts.end(), [](const Part *part) { return part->isNotFitted(); });
    if (marked == 0) {
        return {};
    }
    return {partsAre(marked) +
            (hasReport ? QStringLiteral(" not fitted: marked in lines of their own, and not counted")
                       : QStringLiteral(" not fitted and left out"))};
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

QStringList reportNotices(const ComponentAccount &components, const BOMPartsDatabase &database,
                          ReportForms forms)
{
    QStringList notices = markNotices(components);
    notices += notFittedNotices(components, database, forms.hasLines || forms.hasParts);
    notices += leftOutBomPartNotices(database);
    notices += notFittedParentNotices(database, components);
    notices += definedPartNotices(database);
    for (const UnreadColumn &column : unreadColumns(database)) {
        notices += unreadColumnNotice(column);
    }
    notices += blockedCategoryNotices(database);
    if (forms.hasLines) {
        notices += replacedLineNotices(database, true);
    }
    if (forms.hasParts) {
        notices += replacedLineNotices(database, false);
    }
    return notices;
}
