// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/textdocument.h"

TextDocument::TextDocument(QObject *parent)
    : QTextDocument(parent)
{
}

TextDocument::~TextDocument() = default;

void TextDocument::loadHtml(const QString &xhtml)
{
    m_source = xhtml;
    show();
}

QString TextDocument::getHtml() const
{
    return isModified() ? toHtml() : m_source;
}

void TextDocument::loadCss(const QString &css, bool preview)
{
    m_shownCss = css;
    if (!preview) {
        m_css = css;
    }
    show();
}

void TextDocument::highlightSelector(const QString &selector)
{
    m_highlighted = selector;
    show();
}

void TextDocument::show()
{
    setHtml(m_source);
    setModified(false);
}
