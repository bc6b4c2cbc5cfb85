// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/sentences.h"

#include "core/referenceformat.h"

#include <limits>

QString counted(qsizetype count, const QString &singular, const QString &plural)
{
    return QString::number(count) + u' ' + (count == 1 ? singular : plural);
}

QString referenceText(const QStringList &references)
{
    ReferenceStyle style;
    style.width = std::numeric_limits<int>::max();
    return formatReferences(references, style);
}
