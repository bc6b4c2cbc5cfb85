// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// HTML Tidy: turns what people and old programs write into well-formed XHTML.
class TidyLibWrapper final
{
public:
    /// What the text given to tidyHtml() is.
    enum Mode
    {
        Document = 0,
        Fragment = 1
    };

    /// The text as XHTML: a document, or in mode Fragment what stands in its body. Entities become numeric.
    /// Empty, with errorString() set, when the text cannot be mended.
    [[nodiscard]] QString tidyHtml(const QString &html, int mode = Document);

    /// What was wrong at the last call; warnings that were mended do not count.
    [[nodiscard]] const QString &errorString() const { return m_errorString; }

private:
    QString m_errorString;
};
