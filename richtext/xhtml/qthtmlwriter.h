// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextDocument;
class QtStyleSheet;
class StyleSheet;

// Qt HTML is what QTextDocument reads: HTML 4 with few properties of CSS, most of them for table cells only.
// Documents are kept as XHTML and translated to be shown; toXhtml() in xhtmlwriter.h is the way back.

/// Where a document is shown.
enum class Medium
{
    /// One scrolled page.
    Window,
    /// Pages: table sections become tables of their own, so that each repeats its heading rows on every page.
    Pages
};

/// An XHTML document as Qt HTML that looks as the style sheet says. `highlighted` is a selector to be marked,
/// or empty.
[[nodiscard]] QString toQtHtml(const QString &xhtml, const StyleSheet &css, Medium medium,
                               const QString &highlighted = {});

/// The same in a look that was translated before, for documents that are made again and again.
[[nodiscard]] QString toQtHtml(const QString &xhtml, const QtStyleSheet &style, Medium medium,
                               const QString &highlighted = {});

/// Fills a document with what toQtHtml() made. The font sizes that the style sheet gives headings count; with
/// QTextDocument::setHtml() alone those that headings have without a style sheet would win.
void setQtHtml(QTextDocument &document, const QString &html);

/// Puts the same behind the content of a document, as one step.
void appendQtHtml(QTextDocument &document, const QString &html);
