// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/reportlink.h"

#include <QDir>

#include <algorithm>
#include <array>

namespace {

/// Browsers pass over blanks and control characters in front of and inside a scheme.
QString withoutIgnoredCharacters(const QString &link)
{
    QString text = link;
    text.removeIf([](QChar c) { return c.unicode() <= u' ' || c.category() == QChar::Other_Control; });
    return text;
}

/// The scheme in lower case, empty for a file name; a single letter is a drive.
QString schemeOf(const QString &link)
{
    const qsizetype colon = link.indexOf(u':');
    if (colon < 2) {
        return {};
    }
    const QString scheme = link.left(colon).toLower();
    const auto isSchemeCharacter = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'+' || c == u'-' || c == u'.';
    };
    return std::all_of(scheme.begin(), scheme.end(), isSchemeCharacter) ? scheme : QString();
}

} // namespace

bool isOpenableLink(const QString &link)
{
    static const std::array<QString, 4> openable{QStringLiteral("http"), QStringLiteral("https"),
                                                 QStringLiteral("mailto"), QStringLiteral("file")};
    const QString text = withoutIgnoredCharacters(link);
    const QString scheme = schemeOf(text);
    return !text.isEmpty() &&
           (scheme.isEmpty() || std::find(openable.begin(), openable.end(), scheme) != openable.end());
}

QUrl linkTarget(const QString &link, const QString &designFolder)
{
    if (!isOpenableLink(link)) {
        return {};
    }
    const QString text = link.trimmed();
    if (!schemeOf(withoutIgnoredCharacters(text)).isEmpty()) {
        return QUrl(text);
    }
    return QUrl::fromLocalFile(QDir::cleanPath(QDir(designFolder).absoluteFilePath(text)));
}
