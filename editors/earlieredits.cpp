// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/earlieredits.h"

#include "core/propertyassignments.h"
#include "editors/reviewrows.h"
#include "host/framework/hostui.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

/// Further ones are counted only.
constexpr qsizetype mostNamed = 5;

struct EarlierEdits
{
    Q_DECLARE_TR_FUNCTIONS(EarlierEdits)
};

/// One line for each of the first.
QString namedConflicts(const QList<PendingEdit> &conflicts, const BOMPartsDatabase *database)
{
    QStringList lines;
    for (const PendingEdit &edit : conflicts.first(qMin(mostNamed, conflicts.size()))) {
        lines << EarlierEdits::tr("%1, %2: %3")
                     .arg(edit.reference, edit.property, conflictText(edit, database));
    }
    if (conflicts.size() > mostNamed) {
        lines << EarlierEdits::tr("and %1 more").arg(conflicts.size() - mostNamed);
    }
    return lines.join(u'\n');
}

QString question(qsizetype count, const QList<PendingEdit> &conflicts, const BOMPartsDatabase *database)
{
    QString text =
        count == 1
            ? EarlierEdits::tr("When the program ended, 1 edit of this design had not been written yet.")
            : EarlierEdits::tr("When the program ended, %1 edits of this design had not been written yet.")
                  .arg(count);
    if (conflicts.isEmpty()) {
        text += u' ' + EarlierEdits::tr("The design is as it was where they apply.");
    } else {
        text += u' ' +
                EarlierEdits::tr("%1 still fit; %2 would be in conflict:")
                    .arg(count - conflicts.size())
                    .arg(conflicts.size()) +
                u'\n' + namedConflicts(conflicts, database);
    }
    return text + QStringLiteral("\n\n") +
           EarlierEdits::tr("Make them pending again? Nothing is written into the design before you apply "
                            "them. With No they are kept, and offered again at the next start.");
}

} // namespace

bool offerEarlierEdits(PropertyAssignments *assignments, const BOMPartsDatabase *database, QWidget *parent)
{
    const qsizetype count = assignments->leftFromEarlier();
    if (count == 0) {
        return false;
    }
    const QString text = question(count, assignments->conflictsFromEarlier(), database);
    const bool isWanted = HostUi::current().question(parent, EarlierEdits::tr("Unwritten Edits"), text, true);
    if (isWanted) {
        assignments->takeUpFromEarlier();
    }
    return isWanted;
}
