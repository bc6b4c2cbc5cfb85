// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/css/cssfault.h"

#include "richtext/css/cssscan.h"

#include <QCoreApplication>

namespace css {
namespace {

[[nodiscard]] QString faultText(Fault fault)
{
    switch (fault) {
    case Fault::None:
        break;
    case Fault::BadDeclaration:
        return QCoreApplication::translate("TextStyleEditor", "this is not a property with a value");
    case Fault::NoBlock:
        return QCoreApplication::translate("TextStyleEditor", "a style without its braces begins here");
    case Fault::StrayBrace:
        return QCoreApplication::translate("TextStyleEditor", "this brace closes nothing");
    case Fault::OpenString:
        return QCoreApplication::translate("TextStyleEditor", "this string is not closed");
    case Fault::OpenComment:
        return QCoreApplication::translate("TextStyleEditor", "this comment is not closed");
    case Fault::OpenBlock:
        return QCoreApplication::translate("TextStyleEditor", "this brace is not closed");
    }
    return {};
}

} // namespace

QString faultMessage(const QString &text)
{
    const Sheet sheet = scan(text);
    if (sheet.fault == Fault::None) {
        return {};
    }
    const qsizetype line = QStringView(text).left(sheet.faultAt).count(u'\n') + 1;
    return QCoreApplication::translate("TextStyleEditor", "Line %1 of the style sheet: %2.")
        .arg(QString::number(line), faultText(sheet.fault));
}

} // namespace css
