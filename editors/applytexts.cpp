// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/applytexts.h"

#include "core/propertyassignments.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace {

/// So many edits are named in one message.
constexpr qsizetype mostNamed = 3;

} // namespace

QString applyText(const ApplyResult &result)
{
    QStringList lines;
    if (result.problems.isEmpty()) {
        lines << result.text;
        if (!result.kept.isEmpty()) {
            lines << QString() << keptText(result);
        }
        return lines.join(u'\n');
    }
    for (const CDBPROBLEM &problem : result.problems) {
        lines << problem.message();
    }
    // Mostly the text is the beginning of the reasons.
    const bool isToldBelow =
        lines.join(u'\n').startsWith(result.text.chopped(result.text.endsWith(u"...") ? 3 : 0));
    lines.prepend(
        QCoreApplication::translate("BOMDataView", "Nothing was written, all changes are still pending:"));
    return isToldBelow ? lines.join(u'\n') : result.text + QStringLiteral("\n\n") + lines.join(u'\n');
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
