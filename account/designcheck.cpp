// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/designcheck.h"

#include "account/billaccount.h"
#include "account/billfindings.h"
#include "account/design/designaccount.h"
#include "account/design/propertytwins.h"
#include "account/design/texts.h"
#include "account/fieldnotices.h"
#include "account/sentences.h"
#include "core/bompartsdatabase.h"
#include "core/reference.h"
#include "core/unreadtexts.h"
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"

#include <algorithm>

namespace {

using Sum = DesignCheck::Sum;

Sum sum(const QString &name, qsizetype count)
{
    return {name, QString::number(count), count};
}

Sum sum(const QString &name, QStringList references)
{
    std::stable_sort(references.begin(), references.end(),
                     [](const QString &a, const QString &b) { return compareReferences(a, b) < 0; });
    return {name, QStringLiteral("%1: %2").arg(QString::number(references.size()), referenceText(references)),
            references.size(), references};
}

QList<Sum> symbolSums(const SymbolAccount &symbols)
{
    return {sum(AccountTexts::tr("symbols drawn"), symbols.drawn),
            sum(AccountTexts::tr("power symbols"), symbols.power),
            sum(AccountTexts::tr("further units of a part"), symbols.mergedUnits),
            sum(AccountTexts::tr("components"), symbols.components)};
}

/// "97 in 46 lines", with the BOM-only parts where there are any.
QString billText(const BillAccount &bill)
{
    QString what = QString::number(bill.parts);
    if (bill.bomParts > 0) {
        what = oneOrMany(bill.bomParts, AccountTexts::tr("%1 and %2 BOM-only part"),
                         AccountTexts::tr("%1 and %2 BOM-only parts"))
                   .arg(what, QString::number(bill.bomParts));
    }
    return oneOrMany(bill.lines, AccountTexts::tr("%1 in %2 line"), AccountTexts::tr("%1 in %2 lines"))
        .arg(what, QString::number(bill.lines));
}

QString notFittedText(const ComponentAccount &components)
{
    const qsizetype excluded = components.excludedNotFitted;
    const QString count = QString::number(components.notFitted);
    return excluded == 0 ? count
                         : AccountTexts::tr("%1 (%2 of them excluded from the BOM as well)")
                               .arg(count, QString::number(excluded));
}

QList<Sum> partSums(const LoadedDesign &design, const ComponentAccount &components, const BillAccount &bill)
{
    QList<Sum> sums{{AccountTexts::tr("in the bill"), billText(bill), bill.parts}};
    if (!bill.replaced.isEmpty()) {
        sums << sum(AccountTexts::tr("left out for an equal reference"), bill.replaced);
    }
    if (bill.repeated > 0) {
        sums << sum(AccountTexts::tr("repeated references"), bill.repeated);
    }
    sums << sum(AccountTexts::tr("not in the bill"), components.components - components.listed);
    for (const SkippedComponents &group : skippedComponents(design)) {
        sums << sum(QStringLiteral("  ") + group.reason, group.references);
    }
    sums << Sum{AccountTexts::tr("of all components, not fitted"), notFittedText(components),
                components.notFitted};
    return sums;
}

/// Where the sums differ, one sentence each. The bill was counted without the account of the components, so
/// that a part that gets lost on the way to it shows here.
QStringList disagreements(const SymbolAccount &symbols, const ComponentAccount &components,
                          const BillAccount &bill)
{
    QStringList found = symbols.disagreements;
    const qsizetype skipped = components.components - components.listed;
    const qsizetype accounted = bill.parts + bill.replaced.size() + bill.repeated + skipped;
    if (accounted != components.components) {
        found << AccountTexts::tr("the design has %1 components, the bill accounts for %2")
                     .arg(QString::number(components.components), QString::number(accounted));
    }
    return found;
}

/// References that are not annotated or occur several times; the latter are only a notice where all of them
/// are excluded on purpose.
void checkReferences(DesignCheck *check, const ComponentAccount &components)
{
    for (const NotAnnotated &symbol : components.notAnnotated) {
        check->findings << symbol.message();
    }
    for (const RepeatedReference &repeated : components.repeated) {
        if (!isNotAnnotated(repeated.reference)) {
            (repeated.isDoubtful() ? check->findings : check->notices) << repeated.message();
        }
    }
}

QStringList replacedFindings(const BillAccount &bill)
{
    QStringList findings;
    for (const ReplacedLine &line : bill.replacedLines) {
        findings << replacedLineNotice(line, true);
    }
    for (const ReplacedLine &part : bill.replacedParts) {
        findings << replacedLineNotice(part, false);
    }
    return findings;
}

/// What the readers of the design and of its notes noticed.
QStringList readerFindings(const DesignSession &session)
{
    // A board file that cannot be read is noticed when the first part is looked up.
    (void)session.design()->design().placement({});
    QStringList findings = session.warnings();
    if (const QString problem = session.document().notesProblem(); !problem.isEmpty()) {
        findings << problem;
    }
    return findings;
}

QStringList missingFindings(const BOMPartsDatabase &database, const QStringList &required)
{
    QStringList findings;
    for (const QString &name : required) {
        const QStringList parts = partsWithout(database, name);
        if (!parts.isEmpty()) {
            findings << oneOrMany(parts.size(), AccountTexts::tr("%1 is empty or missing on %2 part: %3"),
                                  AccountTexts::tr("%1 is empty or missing on %2 parts: %3"))
                            .arg(name, QString::number(parts.size()), referenceText(parts));
        }
    }
    return findings;
}

/// Texts that a column cannot read: those that make a total wrong or show as their opposite are to decide.
/// Commas that may stand for thousands can be many and mostly are decimal marks: they are told together.
void checkTexts(DesignCheck *check, const BOMPartsDatabase &database)
{
    for (const UnreadColumn &column : unreadColumns(database)) {
        if (column.kind == UnreadColumn::Kind::DecimalComma) {
            check->notices << unreadColumnNotice(column);
            continue;
        }
        QStringList &list = column.kind == UnreadColumn::Kind::Numeric ? check->notices : check->findings;
        for (const UnreadText &text : column.texts) {
            list << unreadTextNotice(column, text);
        }
    }
}

QStringList twinNotices(const LoadedDesign &design)
{
    QStringList notices;
    for (const PropertyTwins &twins : propertyTwins(design)) {
        QStringList names;
        for (qsizetype i = 0; i < twins.names.size(); ++i) {
            const qsizetype count = twins.counts.at(i);
            names << oneOrMany(count, AccountTexts::tr("%1 on %2 part"), AccountTexts::tr("%1 on %2 parts"))
                         .arg(twins.names.at(i), QString::number(count));
        }
        notices << AccountTexts::tr("property names that are easily taken for one another: %1")
                       .arg(names.join(QStringLiteral(", ")));
        if (!twins.hiding.isEmpty()) {
            notices << AccountTexts::tr("one of %1 hides another with a different text on %2")
                           .arg(twins.names.join(QStringLiteral(", ")), referenceText(twins.hiding));
        }
    }
    return notices;
}

QStringList variableNotices(const LoadedDesign &design)
{
    constexpr qsizetype mostReferences = 30;
    const QStringList references = withUnresolvedVariables(design);
    if (references.isEmpty()) {
        return {};
    }
    const QString some = referenceText(references.mid(0, mostReferences)) +
                         (references.size() > mostReferences ? QStringLiteral(",...") : QString());
    return {oneOrMany(references.size(),
                      AccountTexts::tr("a text variable ${...} is not resolved on %1 part: %2"),
                      AccountTexts::tr("a text variable ${...} is not resolved on %1 parts: %2"))
                .arg(QString::number(references.size()), some)};
}

} // namespace

DesignCheck checkDesign(const DesignSession &session, const BOMPartsDatabase &database,
                        const QStringList &required)
{
    const LoadedDesign &design = *session.design();
    const SymbolAccount symbols = symbolAccountOf(design);
    const ComponentAccount components = componentAccountOf(design);
    const BillAccount bill = billAccountOf(database);

    DesignCheck check;
    check.findings = disagreements(symbols, components, bill);
    check.sums = symbolSums(symbols) + partSums(design, components, bill);
    check.sums << Sum{AccountTexts::tr("the sums"),
                      check.findings.isEmpty() ? AccountTexts::tr("agree") : AccountTexts::tr("disagree")};
    checkReferences(&check, components);
    check.findings += replacedFindings(bill);
    check.findings += definedPartProblems(database);
    check.findings += readerFindings(session);
    check.findings += missingFindings(database, required);
    const QList<FieldReading> readings = billReadings(design, database, required);
    check.findings += disagreementNotices(readings);
    check.findings += unheededNotFittedNotices(design);
    for (const JoinedLine &line : billJoinedLines(design, database)) {
        check.findings << joinedLineText(line);
    }
    checkTexts(&check, database);
    check.notices += leftOutBomPartNotices(database);
    check.notices += notFittedParentNotices(database, components);
    check.notices += blockedCategoryNotices(database);
    check.notices += otherNameNotices(readings);
    check.notices += emptyColumnNotices(design, database);
    check.notices += twinNotices(design);
    check.notices += variableNotices(design);
    return check;
}
