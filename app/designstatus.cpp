// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designstatus.h"

#include "account/design/designaccount.h"
#include "host/propdefs/propdefsfile.h"
#include "standalone/designsession.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DesignStatus)
};

/// How many listed components have the reference of one before them, in whose place they cannot be listed.
qsizetype hiddenByOthers(const ComponentAccount &components)
{
    qsizetype count = 0;
    for (const RepeatedReference &repeated : components.repeated) {
        count += std::max<qsizetype>(repeated.listed - 1, 0);
    }
    return count;
}

/// "1 line" or "57 lines".
QString counted(qsizetype count, const QString &one, const QString &many)
{
    return count == 1 ? one : many.arg(count);
}

StatusCount partsCount(const ComponentAccount &components, const std::optional<REPORTCOUNTS> &report)
{
    // Of the parts that are listed some may be no components of the design.
    const qsizetype placed = components.listed - hiddenByOthers(components);
    const qsizetype listed = report ? report->parts : placed;
    const qsizetype bomOnly = std::max<qsizetype>(listed - placed, 0);
    StatusCount count{
        counted(listed, Texts::tr("1 part"), Texts::tr("%1 parts")),
        Texts::tr("Parts that the report lists, of %1 components of the design").arg(components.components)};
    if (bomOnly > 0) {
        count.text += Texts::tr(" (%1 BOM-only)").arg(bomOnly);
        count.tip =
            Texts::tr("Parts that the report lists, of %1 components of the design and %2 BOM-only parts")
                .arg(components.components)
                .arg(bomOnly);
    }
    return count;
}

StatusCount leftOutCount(const ComponentAccount &components)
{
    if (components.choice == DnpChoice::Only) {
        return {
            Texts::tr("%1 fitted").arg(components.leftOutByChoice),
            Texts::tr(
                "Components that are fitted and therefore not listed, see View > Parts That Are Not Fitted")};
    }
    return {
        Texts::tr("%1 not fitted").arg(components.leftOutByChoice),
        Texts::tr(
            "Components that are not fitted and therefore not listed, see View > Parts That Are Not Fitted")};
}

QList<StatusCount> countsOf(const ComponentAccount &components, const ReportStatus &report)
{
    QList<StatusCount> counts;
    const auto add = [&counts](qsizetype count, const StatusCount &shown) {
        if (count > 0) {
            counts << shown;
        }
    };
    if (report.counts) {
        counts << StatusCount{counted(report.counts->lines, Texts::tr("1 line"), Texts::tr("%1 lines")),
                              Texts::tr("Lines of the report")};
    }
    counts << partsCount(components, report.counts);
    add(components.leftOutByChoice, leftOutCount(components));
    add(components.excluded,
        {Texts::tr("%1 skipped").arg(components.excluded),
         Texts::tr("Components that a mark of the design leaves out of the bill of materials")});
    const qsizetype repeated = hiddenByOthers(components);
    add(repeated, {Texts::tr("%1 repeated").arg(repeated),
                   Texts::tr("Components that are not listed because others have the same reference")});
    const qsizetype joined = report.joinedLines.size();
    add(joined,
        {Texts::tr("%1 joined").arg(joined), Texts::tr("Lines of the report that join parts which differ in "
                                                       "the footprint, the part number or a rating")});
    return counts;
}

} // namespace

std::optional<StatusCount> pendingCount(const std::optional<REPORTCOUNTS> &report)
{
    if (!report || report->pending == 0) {
        return std::nullopt;
    }
    return StatusCount{
        Texts::tr("%1 pending").arg(report->pending),
        Texts::tr("Edits that are not written into the design yet, see Edit > Review Pending Changes")};
}

DesignStatus designStatus(const DesignSession &session, const ReportStatus &report)
{
    if (!session.design()) {
        return {};
    }
    const ComponentAccount components = componentAccountOf(*session.design());
    DesignStatus status;
    status.counts = countsOf(components, report);
    status.pending = pendingCount(report.counts);
    status.warnings = session.warnings();
    for (const RepeatedReference &repeated : components.repeated) {
        if (repeated.isDoubtful()) {
            status.warnings << repeated.message();
        }
    }
    for (const NotAnnotated &symbol : components.notAnnotated) {
        status.warnings << symbol.message();
    }
    for (const QString &reference : withUnresolvedVariables(*session.design())) {
        status.warnings << reference + Texts::tr(": a text variable ${...} is not resolved");
    }
    if (const QString problem = session.document().notesProblem(); !problem.isEmpty()) {
        status.warnings << problem;
    }
    (void)load_defaultdefs(nullptr, nullptr, &status.warnings);
    status.warnings += report.joinedLines;
    return status;
}
