// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/utf8.h"
#include "designs/texts.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>

namespace designs {

bool isUtf8(std::string_view text)
{
    const bool ascii = std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
    if (ascii) {
        return true;
    }
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder.decode(QByteArrayView(text.data(), qsizetype(text.size())));
    Q_UNUSED(decoded);
    return !decoder.hasError();
}

QString quotedForMessage(std::string_view text)
{
    constexpr qsizetype longest = 60;
    QString shown = fromUtf8(text.substr(0, 4 * longest)).simplified();
    if (shown.size() > longest) {
        shown = shown.left(longest) + QStringLiteral("…");
    }
    return FileTexts::tr("\"%1\"").arg(shown);
}

} // namespace designs
