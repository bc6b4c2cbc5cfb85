// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/replacedvalues.h"

#include "core/propertyassignments.h"

#include <QCoreApplication>
#include <QPair>
#include <QSet>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReplacedValues)
};

} // namespace

ReplacedValues::ReplacedValues(PropertyAssignments *assignments)
{
    if (assignments) {
        QObject::connect(assignments, &PropertyAssignments::edited, &m_context,
                         [this](const auto &before, const auto &after) { count(before, after); });
    }
}

/// A text that is typed back to what the design holds ends an edit.
void ReplacedValues::count(const QList<PendingEdit> &before, const QList<PendingEdit> &after)
{
    QSet<QPair<QString, QString>> values;
    QSet<QString> parts;
    for (const QList<PendingEdit> &edits : {before, after}) {
        for (const PendingEdit &edit : edits) {
            values.insert({edit.reference, edit.property});
            parts.insert(edit.reference);
        }
    }
    m_values += values.size();
    m_parts += parts.size();
}

QString ReplacedValues::text() const
{
    if (m_values == 0) {
        return {};
    }
    const QString values = m_values == 1 ? Texts::tr("1 value was replaced")
                                         : Texts::tr("%1 values were replaced").arg(m_values);
    return m_parts == 1 ? values + Texts::tr(", in 1 part.")
                        : values + Texts::tr(", in %1 parts.").arg(m_parts);
}
