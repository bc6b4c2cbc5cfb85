// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

/// An XHTML document taken apart around the text of its first style element. For a document without one,
/// `head` and `tail` bring its tags, so that a style sheet can be put between them all the same.
struct XhtmlParts
{
    QString head;
    QString css;
    QString tail;
};
[[nodiscard]] XhtmlParts splitXhtml(const QString &xhtml);

/// What stands between the tags of the body; the whole text when there are none.
[[nodiscard]] QStringView bodyOf(QStringView xhtml);

/// The document with another style sheet and another body, which is XHTML already; all else stays.
[[nodiscard]] QString joinXhtml(const XhtmlParts &parts, const QString &css, QStringView body);
