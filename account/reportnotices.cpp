// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/reportnotices.h"

#include "account/billaccount.h"
#include "account/billfindings.h"
#include "account/design/designaccount.h"
#include "account/design/texts.h"
#include "account/sentences.h"
#include "core/bompartsdatabase.h"
#include "core/unreadtexts.h"

#include <algorithm>

namespace {

/// The sentence for one thing or for several, with their number.
QString counting(qsizetype count, const QString &one, const QString &many)
{
    return oneOrMany(count, one, many).arg(count);
}

QString excludedNotice(const ComponentAccount &components)
{
    if (components.excludedNotFitted == 0) {
        return counting(
            components.excluded,
            AccountTexts::tr("%1 part is excluded from the bill of materials (bom check names them)"),
            AccountTexts::tr("%1 parts are excluded from the bill of materials (bom check names them)"));
    }
    return oneOrMany(components.excluded,
                     AccountTexts::tr("%1 part is excluded from the bill of materials, %2 of them not fitted "
                                      "(bom check names them)"),
                     AccountTexts::tr("%1 parts are excluded from the bill of materials, %2 of them not "
                                      "fitted (bom check names them)"))
        .arg(QString::number(components.excluded), QString::number(components.excludedNotFitted));
}

/// The parts that a mark excludes, and the symbols that are not annotated.
QStringList markNotices(const ComponentAccount &components)
{
    QStringList notices;
    if (components.excluded > 0) {
        notices.append(excludedNotice(components));
    }
    if (const qsizetype count = qsizetype(components.notAnnotated.size()); count > 0) {
        notices.append(counting(count, AccountTexts::tr("%1 symbol is not annotated (bom check names them)"),
                                AccountTexts::tr("%1 symbols are not annotated (bom check names them)")));
    }
    return notices;
}

QString leftOutNotice(const ComponentAccount &components)
{
    if (components.choice == DnpChoice::Only) {
        return counting(components.leftOutByChoice,
                        AccountTexts::tr("%1 fitted part is left out (--dnp only)"),
                        AccountTexts::tr("%1 fitted parts are left out (--dnp only)"));
    }
    return counting(components.leftOutByChoice,
                    AccountTexts::tr("%1 part is not fitted and left out (--dnp include lists them)"),
                    AccountTexts::tr("%1 parts are not fitted and left out (--dnp include lists them)"));
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
    return {
        hasReport
            ? counting(
                  marked,
                  AccountTexts::tr("%1 part is not fitted: marked in lines of their own, and not counted"),
                  AccountTexts::tr("%1 parts are not fitted: marked in lines of their own, and not counted"))
            : counting(marked, AccountTexts::tr("%1 part is not fitted and left out"),
                       AccountTexts::tr("%1 parts are not fitted and left out"))};
}

/// How many definitions cannot be followed.
QStringList definedPartNotices(const BOMPartsDatabase &database)
{
    const qsizetype count = definedPartProblems(database).size();
    if (count == 0) {
        return {};
    }
    return {counting(
        count, AccountTexts::tr("%1 definition of BOM-only parts cannot be followed (bom check says why)"),
        AccountTexts::tr("%1 definitions of BOM-only parts cannot be followed (bom check says why)"))};
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
