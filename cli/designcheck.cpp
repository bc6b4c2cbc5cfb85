// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designcheck.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/referencetext.h"
#include "cli/reportnotices.h"
#include "core/propertyquery.h"
#include "standalone/designtally.h"
#include "standalone/propertytwins.h"

#include <algorithm>

namespace {

/// References of the parts that make up the bill, and the number of its lines.
struct Bill
{
    QStringList references;
    qsizetype lines = 0;
    qsizetype bomParts = 0;
};

Bill billOf(const BOMPartsDatabase &database)
{
    Bill bill;
    for (const QString &category : database.categoryNames()) {
        bill.references += database.categoryReferences(category);
        bill.lines += database.lineCount(category);
    }
    const auto parts = database.parts();
    bill.bomParts =
        std::count_if(parts.begin(), parts.end(), [](const Part *part) { return part->isBOMPart(); });
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
        const qsizetype parts = m_bill.references.size() - m_bill.bomParts;
        const qsizetype repeated = m_design.database().duplicateReferences().size();
        const qsizetype skipped = m_ledger.components() - m_ledger.listed();
        m_check.account.append({QStringLiteral("in the bill"),
                                QString::number(parts) + QStringLiteral(" in ") +
                                    counted(m_bill.lines, QStringLiteral("line"), QStringLiteral("lines"))});
        if (m_bill.bomParts > 0) {
            add(QStringLiteral("BOM-only parts"), m_bill.bomParts);
        }
        if (repeated > 0) {
            add(QStringLiteral("repeated references"), repeated);
        }
        add(QStringLiteral("skipped"), skipped);
        addReasons();
        add(QStringLiteral("not fitted"), m_ledger.notFitted());
        if (const qsizetype sum = parts + repeated + skipped; sum != m_ledger.components()) {
            m_disagreements << QStringLiteral("the design has ") + QString::number(m_ledger.components()) +
                                   QStringLiteral(" components, the bill accounts for ") +
                                   QString::number(sum);
        }
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
            (repeated.listed > 1 ? m_check.findings : m_check.notices) << repeated.message();
        }
    }

    void findReplacedLines()
    {
        m_check.findings << replacedLineNotices(m_design, true) << replacedLineNotices(m_design, false);
    }

    void findWarnings() { m_check.findings << m_design.session().warnings(); }

    void findEmpty(const QString &name)
    {
        QStringList empty;
        const PropertyQuery query = m_design.database().propertyQuery(name);
        for (const Part *part : m_design.database().parts()) {
            if (isMissing(name, part->isBOMPart() ? part->property(name) : query.text(*part))) {
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

    void addReasons()
    {
        for (const SkippedParts &group : m_ledger.skipped()) {
            m_check.account.append({QStringLiteral("  ") + group.reason,
                                    QString::number(group.references.size()) + QStringLiteral(": ") +
                                        referenceText(group.references)});
        }
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
    checker.conclude();
    checker.findRepeated();
    checker.findReplacedLines();
    checker.findWarnings();
    checker.findNotes();
    for (const QString &name : required) {
        checker.findEmpty(name);
    }
    checker.findTwins();
    return checker.result();
}
