// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/reportcell.h"

#include <algorithm>

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

QString withoutDropped(QString text)
{
    return text.remove(u'"').remove(u'\n').remove(u'\r');
}

QString withoutBlanksInFront(const QString &text)
{
    return text.mid(std::find_if_not(text.begin(), text.end(), isBlank) - text.begin());
}

QString withoutBlanksBehind(const QString &text)
{
    const auto last = std::find_if_not(text.rbegin(), text.rend(), isBlank);
    return text.left(text.rend() - last);
}

} // namespace

bool isReportCell(const QString &cell, const QString &text)
{
    if (cell == text) {
        return true;
    }
    const QString written = withoutDropped(text);
    return cell == written || cell == withoutBlanksBehind(withoutBlanksInFront(written));
}

QString withoutAffixes(const QString &cell, const BOMField &field)
{
    const QString prefix = withoutBlanksInFront(withoutDropped(field.prefix));
    const QString suffix = withoutBlanksBehind(withoutDropped(field.suffix));
    if (isReportCell(cell, field.prefix + field.suffix)) {
        return {};
    }
    QString value = cell;
    if (const QString text = withoutBlanksInFront(value); !prefix.isEmpty() && text.startsWith(prefix)) {
        value = text.mid(prefix.size());
    }
    if (const QString text = withoutBlanksBehind(value); !suffix.isEmpty() && text.endsWith(suffix)) {
        value = text.chopped(suffix.size());
    }
    return value;
}
