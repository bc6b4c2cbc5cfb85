// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

class StyleSheet;

/// An XHTML document taken apart around the text of its first style element. Without one, the style is to
/// stand between `head` and `tail`, which then bring the element's tags.
struct DocumentParts
{
    QString head;
    QString css;
    QString tail;
};
[[nodiscard]] DocumentParts takeApart(const QString &xhtml);

/// What stands between the tags of the body; the whole text when there are none.
[[nodiscard]] QStringView bodyOf(QStringView xhtml);

/// Where a document is shown.
enum class Medium
{
    /// One scrolled page.
    Window,
    /// Pages: table sections become tables of their own, so that each repeats its heading rows on every page.
    Pages
};

/// The document as QTextDocument has to see it to look as the style sheet says: that class knows paddings and
/// borders of table cells only, not those of paragraphs. `highlighted` is a selector to be marked, or empty.
[[nodiscard]] QString shownMarkup(const QString &xhtml, const StyleSheet &css, Medium medium,
                                  const QString &highlighted = {});
