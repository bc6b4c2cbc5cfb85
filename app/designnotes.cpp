// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designnotes.h"

#include "account/design/partsledger.h"
#include "host/propdefs/propdefsfile.h"
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(DesignNotes)
};

/// How many listed components have the reference of one before them, in whose place they cannot be listed.
qsizetype hiddenByOthers(const std::vector<RepeatedReference> &references)
{
    qsizetype count = 0;
    for (const RepeatedReference &repeated : references) {
        count += std::max<qsizetype>(repeated.listed - 1, 0);
    }
    return count;
}

QString account(const PartsLedger &ledger, DnpChoice choice, qsizetype hidden)
{
    QStringList counts = {Texts::tr("%1 listed").arg(ledger.listed() - hidden)};
    if (hidden > 0) {
        counts << Texts::tr("%1 repeated").arg(hidden);
    }
    if (ledger.leftOutByChoice() > 0) {
        const QString what = choice == DnpChoice::Only ? Texts::tr("%1 fitted") : Texts::tr("%1 not fitted");
        counts << what.arg(ledger.leftOutByChoice());
    }
    if (ledger.excluded() > 0) {
        counts << Texts::tr("%1 excluded").arg(ledger.excluded());
    }
    return counts.join(QStringLiteral(", "));
}

} // namespace

DesignNotes designNotes(const DesignSession &session)
{
    if (!session.design()) {
        return {};
    }
    const PartsLedger ledger(*session.design());
    DesignNotes notes;
    const std::vector<RepeatedReference> references = ledger.repeated();
    notes.account = account(ledger, session.dnpChoice(), hiddenByOthers(references));
    notes.accountTip = Texts::tr("Of %1 components of the design").arg(ledger.components());
    notes.warnings = session.warnings();
    for (const RepeatedReference &repeated : references) {
        if (repeated.isDoubtful()) {
            notes.warnings << repeated.message();
        }
    }
    notes.warnings << ledger.notAnnotated();
    for (const QString &reference : ledger.withVariables()) {
        notes.warnings << reference + Texts::tr(": a text variable ${...} is not resolved");
    }
    (void)load_defaultdefs(nullptr, nullptr, &notes.warnings);
    return notes;
}
