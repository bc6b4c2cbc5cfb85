// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/xmltext.h"

#include <QString>

class Report;

/// Plain text as content of an XHTML element or attribute: markup characters escaped, characters that XML
/// lacks as U+FFFD. Clean text is not copied.
[[nodiscard]] inline QString htmlText(const QString &text)
{
    return escapedXmlText(text);
}

/// XHTML text as a link; the text itself when it is empty or the link is none that may be opened.
[[nodiscard]] QString htmlLink(const QString &text, const QString &link);

/// References for a cell, which can be wrapped after every comma.
[[nodiscard]] QString htmlReferences(const QString &references);

/// An XHTML 1.0 Transitional document up to and with its body's start tag. `title` is XHTML text, see
/// htmlText(); it, the style sheet, see styleElementText(), and further elements of the head are taken as
/// they stand.
[[nodiscard]] QString htmlDocumentStart(const QString &title, const QString &css,
                                        const QString &moreOfHead = {});

/// What ends a document that was started so.
[[nodiscard]] QString htmlDocumentEnd();

/// Where a document is shown. It matters to templates with a layout for reading.
enum class HtmlUse
{
    /// In a browser: on a screen of any width and on its paper.
    Browser,
    /// In our windows and on our pages: each category begins with the headings, which its pages repeat.
    Pages
};

/// The report as an XHTML document in the template's style, with the template's header and footer.
[[nodiscard]] QString htmlReport(const Report &report, HtmlUse use = HtmlUse::Browser);
