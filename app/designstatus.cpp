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

/// How many of the parts that the module lists are no components of the design.
qsizetype bomOnlyParts(const ComponentAccount &components, std::optional<qsizetype> listed)
{
    const qsizetype placed = components.listed - hiddenByOthers(components);
    return std::max<qsizetype>(listed.value_or(placed) - placed, 0);
}

QString accountText(const ComponentAccount &components, qsizetype bomOnly)
{
    const qsizetype hidden = hiddenByOthers(components);
    QStringList counts = {Texts::tr("%1 listed").arg(components.listed - hidden + bomOnly)};
    if (bomOnly > 0) {
        counts.last() += Texts::tr(" (%1 BOM-only)").arg(bomOnly);
    }
    if (hidden > 0) {
        counts << Texts::tr("%1 repeated").arg(hidden);
    }
    if (components.leftOutByChoice > 0) {
        const bool isFitted = components.choice == DnpChoice::Only;
        const QString what = isFitted ? Texts::tr("%1 fitted") : Texts::tr("%1 not fitted");
        counts << what.arg(components.leftOutByChoice);
    }
    if (components.excluded > 0) {
        counts << Texts::tr("%1 excluded").arg(components.excluded);
    }
    return counts.join(QStringLiteral(", "));
}

} // namespace

DesignStatus designStatus(const DesignSession &session, std::optional<qsizetype> listed)
{
    if (!session.design()) {
        return {};
    }
    const ComponentAccount components = componentAccountOf(*session.design());
    DesignStatus status;
    const qsizetype bomOnly = bomOnlyParts(components, listed);
    status.account = accountText(components, bomOnly);
    const QString tip = bomOnly > 0 ? Texts::tr("Of %1 components of the design and %2 BOM-only parts")
                                    : Texts::tr("Of %1 components of the design");
    status.accountTip =
        bomOnly > 0 ? tip.arg(components.components).arg(bomOnly) : tip.arg(components.components);
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
    return status;
}
