// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/cleanedvalue.h"

#include "richtext/xhtml/tidylibwrapper.h"

#include <QRegularExpression>

namespace {

QString tidied(const QString &text)
{
    TidyLibWrapper tidy;
    const QString markup = tidy.tidyHtml(text, TidyLibWrapper::Fragment).trimmed();
    // Where all of it is text, Tidy only writes "<", ">" and "&" otherwise, which nobody wants in a property.
    return markup.contains(u'<') ? markup : text;
}

} // namespace

QString cleanedValue(const QString &text)
{
    static const QRegularExpression dropped(QStringLiteral("\\{|\\}|\""));
    static const QRegularExpression breaks(QStringLiteral("\n|\r|\t"));
    QString value = text.contains(u'<') ? tidied(text) : text;
    value.remove(dropped);
    if (value.endsWith(u'\\')) {
        value.chop(1);
    }
    return value.replace(breaks, QStringLiteral(" "));
}
