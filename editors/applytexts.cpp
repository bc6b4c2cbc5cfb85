// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/applytexts.h"

#include "core/propertyassignments.h"
#include "host/framework/hostui.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

/// So many edits are named in one message.
constexpr qsizetype mostNamed = 3;

QString refusedText(const ApplyResult &result)
{
    QStringList reasons;
    for (const CDBPROBLEM &problem : result.problems) {
        reasons << problem.message();
    }
    const QString all = reasons.join(u'\n');
    const QString text =
        QCoreApplication::translate("BOMDataView", "Nothing was written, all changes are still pending:") +
        u'\n' + all;
    // Most hosts report the reasons themselves, of which the result is the beginning then.
    const QString reported = result.text.endsWith(u"...") ? result.text.chopped(3) : result.text;
    return all.startsWith(reported) ? text : result.text + QStringLiteral("\n\n") + text;
}

} // namespace

void tellApplied(QWidget *parent, const ApplyResult &result)
{
    const QString title = QCoreApplication::translate("BOMDataView", "ADI scripting results");
    if (!result.problems.isEmpty()) {
        HostUi::current().warning(parent, title, refusedText(result));
    } else {
        HostUi::current().information(
            parent, title,
            result.kept.isEmpty() ? result.text : result.text + QStringLiteral("\n\n") + keptText(result));
    }
}

QString keptText(const ApplyResult &result)
{
    QStringList names;
    for (const PendingEdit &edit : result.kept.first(std::min(mostNamed, result.kept.size()))) {
        names.append(edit.reference + u' ' + edit.property);
    }
    if (result.kept.size() > mostNamed) {
        names.append(QStringLiteral("..."));
    }
    return QCoreApplication::translate("BOMDataView",
                                       "Still pending, because the design changed meanwhile (%1): %2")
        .arg(QString::number(result.kept.size()), names.join(QStringLiteral(", ")));
}
