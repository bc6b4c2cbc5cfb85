// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/billfindings.h"

#include "account/billaccount.h"
#include "account/design/designaccount.h"
#include "account/design/texts.h"
#include "account/sentences.h"
#include "core/bompartsdatabase.h"
#include "core/unreadtexts.h"

namespace {

/// What is wrong with a definition, behind its name.
QString faultText(DefinitionFault fault)
{
    switch (fault) {
    case DefinitionFault::TooFewFields:
        return AccountTexts::tr("makes no parts; it needs a count, a prefix and a value");
    case DefinitionFault::NoCount:
        return AccountTexts::tr("makes no parts; its count is no number");
    case DefinitionFault::TooManyParts:
        return AccountTexts::tr("makes no parts; its count is above %1").arg(mostPartsOfADefinition);
    case DefinitionFault::NoAssignment:
        return AccountTexts::tr("has a field that is not NAME=VALUE and is passed over");
    case DefinitionFault::DesignIsFull:
        return AccountTexts::tr("makes no parts; a design has at most %1 BOM-only parts").arg(mostBOMParts);
    case DefinitionFault::NumbersEnd:
        break;
    }
    return AccountTexts::tr("makes no parts; no numbers are left for their references");
}

/// The text with the references of its parts.
QString textOnParts(const UnreadText &text)
{
    return AccountTexts::tr("\"%1\" on %2").arg(text.text, referenceText(text.references));
}

/// The sentence about a column whose texts stand on one part or on several.
QString unreadSentence(const UnreadColumn &column, bool isOne)
{
    switch (column.kind) {
    case UnreadColumn::Kind::Totalled:
        return isOne ? AccountTexts::tr("column %1: %2 part has a text that is no number and counts 0: %3")
                     : AccountTexts::tr("column %1: %2 parts have a text that is no number and counts 0: %3");
    case UnreadColumn::Kind::Numeric:
        return isOne ? AccountTexts::tr(
                           "column %1: %2 part has a text that is no number and is shown as it is: %3")
                     : AccountTexts::tr(
                           "column %1: %2 parts have a text that is no number and is shown as it is: %3");
    case UnreadColumn::Kind::DecimalComma:
        return isOne
                   ? AccountTexts::tr("column %1: %2 part has a comma before three digits, which is read as "
                                      "the decimal mark: %3")
                   : AccountTexts::tr("column %1: %2 parts have a comma before three digits, which is read "
                                      "as the decimal mark: %3");
    case UnreadColumn::Kind::TwoStates:
        break;
    }
    return isOne ? AccountTexts::tr(
                       "column %1: %2 part has a text that is neither 1 nor 0 and is shown as %4: %3")
                 : AccountTexts::tr(
                       "column %1: %2 parts have a text that is neither 1 nor 0 and is shown as %4: %3");
}

/// The parts that are left out for one reason, with the properties that define them.
class LeftOutParts
{
public:
    void add(const LeftOutBOMParts &parts)
    {
        m_count += parts.count;
        m_places.append(parts.parentReference + u' ' + parts.property);
    }

    void appendTo(QStringList *notices, const QString &one, const QString &many) const
    {
        if (m_count > 0) {
            notices->append(oneOrMany(m_count, one, many)
                                .arg(QString::number(m_count), m_places.join(QStringLiteral(", "))));
        }
    }

private:
    qsizetype m_count = 0;
    QStringList m_places;
};

} // namespace

QStringList definedPartProblems(const BOMPartsDatabase &database)
{
    QStringList problems;
    for (const DefinitionProblem &problem : database.bomOnlyParts().problems()) {
        problems.append(problem.parentReference + QStringLiteral(": ") + problem.property +
                        QStringLiteral(": ") + faultText(problem.fault));
    }
    for (const QString &reference : repeatedBomParts(database)) {
        problems.append(
            AccountTexts::tr("%1 is the reference of a BOM-only part and of another part").arg(reference));
    }
    return problems;
}

QStringList leftOutBomPartNotices(const BOMPartsDatabase &database)
{
    LeftOutParts skipped;
    LeftOutParts notFitted;
    LeftOutParts fitted;
    for (const LeftOutBOMParts &parts : database.bomOnlyParts().leftOut()) {
        (parts.isSkipped ? skipped : parts.isFitted ? fitted : notFitted).add(parts);
    }
    QStringList notices;
    skipped.appendTo(&notices, AccountTexts::tr("%1 BOM-only part is excluded by BOMSKIP: %2"),
                     AccountTexts::tr("%1 BOM-only parts are excluded by BOMSKIP: %2"));
    notFitted.appendTo(&notices, AccountTexts::tr("%1 BOM-only part is not fitted and left out: %2"),
                       AccountTexts::tr("%1 BOM-only parts are not fitted and left out: %2"));
    fitted.appendTo(&notices, AccountTexts::tr("%1 BOM-only part is fitted and left out: %2"),
                    AccountTexts::tr("%1 BOM-only parts are fitted and left out: %2"));
    return notices;
}

QStringList notFittedParentNotices(const BOMPartsDatabase &database, const ComponentAccount &components)
{
    QStringList notices;
    if (!components.leftOutParents.isEmpty()) {
        const QString text =
            components.choice == DnpChoice::Only
                ? AccountTexts::tr("BOM-only parts are left out with their parents, which are fitted: %1")
                : AccountTexts::tr(
                      "BOM-only parts are left out with their parents, which are not fitted: %1");
        notices.append(text.arg(referenceText(components.leftOutParents)));
    }
    QStringList listed;
    for (const QString &parent : components.listedNotFitted) {
        for (const BOMPart *part : database.bomParts(parent)) {
            listed.append(part->reference());
        }
    }
    if (!listed.isEmpty()) {
        notices.append(
            oneOrMany(listed.size(),
                      AccountTexts::tr("%1 BOM-only part is listed with parents that are not fitted: %2"),
                      AccountTexts::tr("%1 BOM-only parts are listed with parents that are not fitted: %2"))
                .arg(QString::number(listed.size()), referenceText(listed)));
    }
    return notices;
}

QString replacedLineNotice(const ReplacedLine &replaced, bool grouped)
{
    const QString references = referenceText(replaced.references);
    const qsizetype count = replaced.references.size();
    const QString text =
        grouped ? oneOrMany(count,
                            AccountTexts::tr("the line of %4 part %1 is left out of the report, because %2 "
                                             "and %3 count as the same reference; renumber one of them"),
                            AccountTexts::tr("the line of %4 parts %1 is left out of the report, because %2 "
                                             "and %3 count as the same reference; renumber one of them"))
                : AccountTexts::tr("%1 is left out of the report of single parts, because %2 and %3 count as "
                                   "the same reference; renumber one of them");
    const QString first = replaced.references.value(0);
    return grouped ? text.arg(references, first, replaced.replacedBy, QString::number(count))
                   : text.arg(references, first, replaced.replacedBy);
}

QStringList blockedCategoryNotices(const BOMPartsDatabase &database)
{
    QStringList notices;
    for (const BlockedCategory &blocked : database.categories().blocked()) {
        notices.append(
            blocked.prefix.isEmpty()
                ? AccountTexts::tr("category \"%1\" can hold no part: an earlier one has the same name")
                      .arg(blocked.heading)
                : AccountTexts::tr("category \"%1\" can hold no part: its prefix %2 belongs to \"%3\"")
                      .arg(blocked.heading, blocked.prefix, blocked.holder));
    }
    return notices;
}

QString unreadColumnNotice(const UnreadColumn &column)
{
    constexpr qsizetype mostTexts = 3;
    qsizetype parts = 0;
    for (const UnreadText &text : column.texts) {
        parts += text.references.size();
    }
    QStringList examples;
    for (const UnreadText &text : column.texts.mid(0, mostTexts)) {
        examples.append(textOnParts(text));
    }
    if (column.texts.size() > mostTexts) {
        examples.append(QStringLiteral("..."));
    }
    const QString text = unreadSentence(column, parts == 1);
    const QString on = examples.join(QStringLiteral(", "));
    return column.kind == UnreadColumn::Kind::TwoStates
               ? text.arg(column.field, QString::number(parts), on, column.shownAs)
               : text.arg(column.field, QString::number(parts), on);
}

QString unreadTextNotice(const UnreadColumn &column, const UnreadText &text)
{
    const QString on = textOnParts(text);
    switch (column.kind) {
    case UnreadColumn::Kind::Totalled:
        return AccountTexts::tr("%1: %2 is no number and counts 0").arg(column.field, on);
    case UnreadColumn::Kind::Numeric:
        return AccountTexts::tr("%1: %2 is no number and is shown as it is").arg(column.field, on);
    case UnreadColumn::Kind::DecimalComma:
        return AccountTexts::tr("%1: %2 has a comma before three digits, which is read as the decimal mark")
            .arg(column.field, on);
    case UnreadColumn::Kind::TwoStates:
        break;
    }
    return AccountTexts::tr("%1: %2 is neither 1 nor 0 and is shown as %3")
        .arg(column.field, on, column.shownAs);
}
