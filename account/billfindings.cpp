// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/billfindings.h"

#include "account/billaccount.h"
#include "account/design/designaccount.h"
#include "account/sentences.h"
#include "core/bompartsdatabase.h"
#include "core/unreadtexts.h"

namespace {

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

QString whatIsUnread(const UnreadColumn &column)
{
    switch (column.kind) {
    case UnreadColumn::Kind::Totalled:
        return QStringLiteral(" is no number and counts 0");
    case UnreadColumn::Kind::Numeric:
        return QStringLiteral(" is no number and is shown as it is");
    case UnreadColumn::Kind::DecimalComma:
        return QStringLiteral(" has a comma before three digits, which is read as the decimal mark");
    case UnreadColumn::Kind::TwoStates:
        break;
    }
    return QStringLiteral(" is neither 1 nor 0 and is shown as ") + column.shownAs;
}

QString textOnParts(const UnreadText &text)
{
    return u'"' + text.text + QStringLiteral("\" on ") + referenceText(text.references);
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

    void appendTo(QStringList *notices, const QString &why) const
    {
        if (m_count > 0) {
            notices->append(
                counted(m_count, QStringLiteral("BOM-only part is "), QStringLiteral("BOM-only parts are ")) +
                why + QStringLiteral(": ") + m_places.join(QStringLiteral(", ")));
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
        problems.append(reference +
                        QStringLiteral(" is the reference of a BOM-only part and of another part"));
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
    skipped.appendTo(&notices, QStringLiteral("excluded by BOMSKIP"));
    notFitted.appendTo(&notices, QStringLiteral("not fitted and left out"));
    fitted.appendTo(&notices, QStringLiteral("fitted and left out"));
    return notices;
}

QStringList notFittedParentNotices(const BOMPartsDatabase &database, const ComponentAccount &components)
{
    QStringList notices;
    if (!components.leftOutParents.isEmpty()) {
        notices.append(QStringLiteral("BOM-only parts are left out with their parents, which are ") +
                       (components.choice == DnpChoice::Only ? QStringLiteral("fitted: ")
                                                             : QStringLiteral("not fitted: ")) +
                       referenceText(components.leftOutParents));
    }
    QStringList listed;
    for (const QString &parent : components.listedNotFitted) {
        for (const BOMPart *part : database.bomParts(parent)) {
            listed.append(part->reference());
        }
    }
    if (!listed.isEmpty()) {
        notices.append(
            counted(listed.size(), QStringLiteral("BOM-only part is"), QStringLiteral("BOM-only parts are")) +
            QStringLiteral(" listed with parents that are not fitted: ") + referenceText(listed));
    }
    return notices;
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

QStringList blockedCategoryNotices(const BOMPartsDatabase &database)
{
    QStringList notices;
    for (const BlockedCategory &blocked : database.categories().blocked()) {
        notices.append(
            QStringLiteral("category \"") + blocked.heading + QStringLiteral("\" can hold no part: ") +
            (blocked.prefix.isEmpty() ? QStringLiteral("an earlier one has the same name")
                                      : QStringLiteral("its prefix ") + blocked.prefix +
                                            QStringLiteral(" belongs to \"") + blocked.holder + u'"'));
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
    return QStringLiteral("column ") + column.field + QStringLiteral(": ") +
           counted(parts, QStringLiteral("part has"), QStringLiteral("parts have")) +
           (column.kind == UnreadColumn::Kind::DecimalComma
                ? QStringLiteral(" a comma before three digits, which is read as the decimal mark")
                : QStringLiteral(" a text that") + whatIsUnread(column)) +
           QStringLiteral(": ") + examples.join(QStringLiteral(", "));
}

QString unreadTextNotice(const UnreadColumn &column, const UnreadText &text)
{
    return column.field + QStringLiteral(": ") + textOnParts(text) + whatIsUnread(column);
}
