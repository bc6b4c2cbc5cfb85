// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/designtally.h"

#include "standalone/loadeddesign.h"

namespace {

void compare(DesignTally *tally, const QString &what, qsizetype counted, qsizetype read)
{
    if (counted != read) {
        tally->disagreements.append(QStringLiteral("the files hold ") + QString::number(counted) + u' ' +
                                    what + QStringLiteral(", ") + QString::number(read) +
                                    QStringLiteral(" were read"));
    }
}

} // namespace

DesignTally tallyOf(const LoadedDesign &design)
{
    const designs::SymbolCount &read = design.design().symbols();
    DesignTally tally{read.placed, read.power, read.mergedUnits, qsizetype(design.components().size()), {}};

    designs::Problem error;
    const designs::SymbolCount counted = design.design().recount(&error);
    if (!error.text.isEmpty()) {
        tally.disagreements.append(error.message());
        return tally;
    }
    compare(&tally, QStringLiteral("symbols"), counted.placed, read.placed);
    compare(&tally, QStringLiteral("power symbols"), counted.power, read.power);
    const qsizetype accounted = tally.power + tally.mergedUnits + tally.components;
    if (accounted != tally.drawn) {
        tally.disagreements.append(QString::number(tally.drawn) + QStringLiteral(" symbols are drawn, ") +
                                   QString::number(accounted) + QStringLiteral(" are accounted for"));
    }
    return tally;
}
