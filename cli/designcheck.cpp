// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designcheck.h"

#include "account/design/designtally.h"
#include "account/design/propertytwins.h"
#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/referencetext.h"
#include "cli/reportnotices.h"
#include "core/propertyquery.h"
#include "standalone/loadeddesign.h"

#include <algorithm>

namespace {

/// What the rows of a report hold, and what it lacks because of equal references.
struct Bill
{
    qsizetype lines = 0;
    qsizetype parts = 0;
    qsizetype bomParts = 0;
    QStringList replaced;

    /// "97 in 46 lines", with the BOM-only parts where there are any.
    [[nodiscard]] QString text() const
    {
        QString what = QString::number(parts);
        if (bomParts > 0) {
            what += QStringLiteral(" and ") +
                    counted(bomParts, QStringLiteral("BOM-only part"), QStringLiteral("BOM-only parts"));
        }
        return what + QStringLiteral(" in ") +
               counted(lines, QStringLiteral("line"), QStringLiteral("lines"));
    }
};

/// The references of placed parts; BOM-only parts are no components.
QStringList placedOf(const BOMPartsDatabase &database, QStringList references)
{
    references.removeIf([&database](const QString &reference) {
        const Part *part = database.part(reference);
        return part && part->isBOMPart();
    });
    return references;
}

Bill billOf(const BOMPartsDatabase &database)
{
    Bill bill;
    for (const QString &category : database.categoryNames()) {
        const ReportLines report = database.categories().reportLines(category, true);
        bill.lines += qsizetype(report.lines.size());
        for (const BomLine line : report.lines) {
            const auto bomParts =
                std::count_if(line.begin(), line.end(), [](const Part *part) { return part->isBOMPart(); });
            bill.bomParts += bomParts;
            bill.parts += qsizetype(line.size()) - bomParts;
        }
        for (const ReplacedLine &replaced : report.replaced) {
            bill.replaced += placedOf(database, replaced.references);
        }
    }
    return bill;
}

/// A part that stands nowhere on the board lacks a place.
bool isMissing(const QString &name, const QString &text)
{
    return text.trimmed().isEmpty() || (name == placedProperty() && text == QStringLiteral("Not placed"));
}

class Checker
{
public:
    explicit Checker(OpenDesign &design)
        : m_design(design)
        , m_ledger(design.ledger())
        , m_bill(billOf(design.database()))
    {
    }

    void countSymbols()
    {
        const DesignTally tally = tallyOf(m_design.design());
        add(QStringLiteral("symbols drawn"), tally.drawn);
        add(QStringLiteral("power symbols"), tally.power);
        add(QStringLiteral("further units of a part"), tally.mergedUnits);
        add(QStringLiteral("components"), tally.components);
        m_disagreements = tally.disagreements;
    }

    void countParts()
    {
        const BOMPartsDatabase &database = m_design.database();
        const qsizetype repeated =
            database.duplicateReferences().size() - database.bomOnlyParts().duplicates().size();
        const qsizetype skipped = m_ledger.components() - m_ledger.listed();
        m_check.account.append({QStringLiteral("in the bill"), m_bill.text()});
        if (!m_bill.replaced.isEmpty()) {
            add(QStringLiteral("left out for an equal reference"), m_bill.replaced);
        }
        if (repeated > 0) {
            add(QStringLiteral("repeated references"), repeated);
        }
        add(QStringLiteral("not in the bill"), skipped);
        for (const SkippedParts &group : m_ledger.skipped()) {
            add(QStringLiteral("  ") + group.reason, group.references);
        }
        if (const qsizetype sum = m_bill.parts + m_bill.replaced.size() + repeated + skipped;
            sum != m_ledger.components()) {
            m_disagreements << QStringLiteral("the design has ") + QString::number(m_ledger.components()) +
                                   QStringLiteral(" components, the bill accounts for ") +
                                   QString::number(sum);
        }
    }

    void countNotFitted()
    {
        const qsizetype excluded = m_ledger.excludedNotFitted();
        m_check.account.append(
            {QStringLiteral("of all components, not fitted"),
             QString::number(m_ledger.notFitted()) +
                 (excluded == 0 ? QString()
                                : QStringLiteral(" (") + QString::number(excluded) +
                                      QStringLiteral(" of them excluded from the BOM as well)"))});
    }

    void conclude()
    {
        const bool agree = m_disagreements.isEmpty();
        m_check.account.append(
            {QStringLiteral("the sums"), agree ? QStringLiteral("agree") : QStringLiteral("disagree")});
        m_check.findings << m_disagreements;
    }

    void findRepeated()
    {
        for (const RepeatedReference &repeated : m_ledger.repeated()) {
            if (!isNotAnnotated(repeated.reference)) {
                (repeated.isDoubtful() ? m_check.findings : m_check.notices) << repeated.message();
            }
        }
    }

    void findReplacedLines()
    {
        m_check.findings << replacedLineNotices(m_design, true);
        for (const ReplacedLine &replaced : m_design.database().categories().replacedLines(false)) {
            if (!m_bill.replaced.contains(replaced.references.value(0))) {
                m_check.findings << replacedLineNotice(replaced, false);
            }
        }
    }

    void findNotAnnotated() { m_check.findings << m_ledger.notAnnotated(); }

    void findDefinedParts() { m_check.findings << definedPartProblems(m_design); }

    void findWarnings()
    {
        // A board file that cannot be read is noticed when the first part is looked up.
        (void)m_design.design().design().placement({});
        m_check.findings << m_design.session().warnings();
    }

    void findVariables()
    {
        constexpr qsizetype mostReferences = 30;
        const QStringList references = m_ledger.withVariables();
        if (!references.isEmpty()) {
            m_check.notices << QStringLiteral("a text variable ${...} is not resolved on ") +
                                   counted(references.size(), QStringLiteral("part: "),
                                           QStringLiteral("parts: ")) +
                                   referenceText(
                                       references.first(std::min(references.size(), mostReferences))) +
                                   (references.size() > mostReferences ? QStringLiteral(",...") : QString());
        }
    }

    void findEmpty(const QString &name)
    {
        QStringList empty;
        const PropertyQuery query(name, &m_design.database().propertyTypes());
        for (const Part *part : m_design.database().parts()) {
            if (isMissing(name, part->property(query))) {
                empty.append(part->reference());
            }
        }
        if (!empty.isEmpty()) {
            m_check.findings << name + QStringLiteral(" is empty or missing on ") +
                                    counted(empty.size(), QStringLiteral("part: "),
                                            QStringLiteral("parts: ")) +
                                    referenceText(empty);
        }
    }

    void findTwins()
    {
        for (const PropertyTwins &twins : propertyTwins(m_design.design())) {
            QStringList names;
            for (qsizetype i = 0; i < twins.names.size(); ++i) {
                names << twins.names.at(i) + QStringLiteral(" on ") +
                             counted(twins.counts.at(i), QStringLiteral("part"), QStringLiteral("parts"));
            }
            m_check.notices << QStringLiteral("property names that are easily taken for one another: ") +
                                   names.join(QStringLiteral(", "));
            if (!twins.hiding.isEmpty()) {
                m_check.notices << QStringLiteral("one of ") + twins.names.join(QStringLiteral(", ")) +
                                       QStringLiteral(" hides another with a different text on ") +
                                       referenceText(twins.hiding);
            }
        }
    }

    void findNotes()
    {
        const QString problem = m_design.session().document().notesProblem();
        if (!problem.isEmpty()) {
            m_check.findings << problem;
        }
    }

    [[nodiscard]] const DesignCheck &result() const { return m_check; }

private:
    void add(const QString &name, qsizetype count) { m_check.account.append({name, QString::number(count)}); }

    void add(const QString &name, const QStringList &references)
    {
        m_check.account.append(
            {name, QString::number(references.size()) + QStringLiteral(": ") + referenceText(references)});
    }

    OpenDesign &m_design;
    PartsLedger m_ledger;
    Bill m_bill;
    DesignCheck m_check;
    QStringList m_disagreements;
};

void append(QString *text, const QString &heading, const QStringList &lines)
{
    if (lines.isEmpty()) {
        return;
    }
    *text += u'\n' + heading + QStringLiteral(":\n");
    for (const QString &line : lines) {
        *text += QStringLiteral("  ") + printable(line) + u'\n';
    }
}

} // namespace

QString DesignCheck::text() const
{
    qsizetype width = 0;
    for (const Sum &sum : account) {
        width = std::max(width, printable(sum.name).size());
    }
    QString text;
    for (const Sum &sum : account) {
        text += printable(sum.name).leftJustified(width) + QStringLiteral("  ") + printable(sum.text) + u'\n';
    }
    append(&text, QStringLiteral("To decide"), findings);
    append(&text, QStringLiteral("To know"), notices);
    return text;
}

DesignCheck checkDesign(OpenDesign &design, const QStringList &required)
{
    Checker checker(design);
    checker.countSymbols();
    checker.countParts();
    checker.countNotFitted();
    checker.conclude();
    checker.findNotAnnotated();
    checker.findRepeated();
    checker.findReplacedLines();
    checker.findDefinedParts();
    checker.findWarnings();
    checker.findNotes();
    for (const QString &name : required) {
        checker.findEmpty(name);
    }
    checker.findTwins();
    checker.findVariables();
    return checker.result();
}
