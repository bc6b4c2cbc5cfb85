// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testfiles.h"
#include "support/testpaths.h"

#include <QString>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

/// An XHTML document with that style sheet.
[[nodiscard]] inline QString page(const QString &css, const QString &body)
{
    return u"<html><head><style type=\"text/css\">"_s + css + u"</style></head><body>"_s + body +
           u"</body></html>"_s;
}

/// A file of tests/data/richtext.
[[nodiscard]] inline QString dataFile(const char *name)
{
    return QString::fromUtf8(
        readFile(QStringLiteral(BOM_SOURCE_DIR "/tests/data/richtext/") + QLatin1String(name)));
}

[[nodiscard]] inline QString defaultSheet()
{
    return QString::fromUtf8(readFile(QStringLiteral(BOM_SOURCE_DIR "/resources/html/userstyle.css")));
}

/// The XML error in a fragment; empty when it is well-formed.
[[nodiscard]] inline QString xmlErrorOf(const QString &fragment)
{
    QXmlStreamReader reader(u"<r>"_s + fragment + u"</r>"_s);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.errorString();
}
