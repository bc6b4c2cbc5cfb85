// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportnotices.h"

#include "cli/console.h"
#include "cli/opendesign.h"
#include "cli/referencetext.h"
#include "host/netlist/proplist.h"
#include "standalone/loadeddesign.h"

#include <QSet>

#include <algorithm>
#include <vector>

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

QStringList definedPartNotices(OpenDesign &design)
{
    std::vector<PROPNAME> names;
    for (const QByteArray &name : design.design().properties().allNames()) {
        if (name.startsWith("BOMPART")) {
            names.emplace_back(name);
        }
    }
    QStringList parents;
    const PartsLedger ledger = design.ledger();
    const auto components = design.design().components();
    for (qsizetype i = 0; !names.empty() && i < ledger.components(); ++i) {
        const PROPLIST &properties = *components[std::size_t(i)]->properties;
        const auto defines = [&properties](const PROPNAME &name) {
            return properties.find(name).has_value();
        };
        if (ledger.isListed(i) && std::any_of(names.begin(), names.end(), defines)) {
            parents.append(ledger.reference(i));
        }
    }
    if (parents.isEmpty()) {
        return {};
    }
    return {
        QStringLiteral("parts that properties BOMPART... define are not in the bill; they are defined on ") +
        referenceText(parents)};
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
    for (const ReplacedLine &replaced : design.database().replacedLines(grouped)) {
        notices.append(replacedLineNotice(replaced, grouped));
    }
    return notices;
}
