// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/richtext/textedit.h"

TextEdit::TextEdit(QWidget *parent)
    : QTextEdit(parent)
    , m_document(new TextDocument(this))
{
    setDocument(m_document);
}

TextEdit::~TextEdit() = default;

void TextEdit::loadDocument(const QString &xhtml)
{
    m_document->loadHtml(xhtml);
}
