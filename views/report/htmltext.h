// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/xmltext.h"

#include <QString>

/// Plain text as content of an XHTML element or attribute: markup characters escaped, characters that XML
/// lacks as U+FFFD. Clean text is not copied.
[[nodiscard]] inline QString htmlText(const QString &text)
{
    return escapedXmlText(text);
}

/// An XHTML 1.0 Transitional document up to and with its body's start tag. `title` is XHTML text, see
/// htmlText(); it and the style sheet, see styleElementText(), are taken as they stand.
[[nodiscard]] QString htmlDocumentStart(const QString &title, const QString &css);

/// What ends a document that was started so.
[[nodiscard]] QString htmlDocumentEnd();
