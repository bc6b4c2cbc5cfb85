// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/links.h"

#include <QDir>
#include <QFileInfo>

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

QUrl linkTarget(const QString &link, const QString &folder)
{
    if (!isOpenableLink(link)) {
        return {};
    }
    const QString text = link.trimmed();
    const auto fileBelow = [&folder](const QString &path) {
        return QDir::cleanPath(QDir(folder).absoluteFilePath(path));
    };
    if (schemeOf(withoutIgnoredCharacters(text)).isEmpty()) {
        return QUrl::fromLocalFile(fileBelow(text));
    }
    QUrl target(text);
    if (target.isLocalFile() && target.host().isEmpty() && QDir::isRelativePath(target.path())) {
        target.setPath(fileBelow(target.path()));
    }
    return target;
}

bool isProgram(const QUrl &target)
{
    const QFileInfo file(target.toLocalFile());
    const auto isEntry = [](const QString &path) {
        return path.endsWith(QLatin1String(".desktop"), Qt::CaseInsensitive);
    };
    return target.isLocalFile() && file.isFile() &&
           (file.isExecutable() || isEntry(file.filePath()) || isEntry(file.canonicalFilePath()));
}
