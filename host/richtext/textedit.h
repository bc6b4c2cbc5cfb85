// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/richtext/textdocument.h"

#include <QTextEdit>

/// Shows and edits a rich-text document, prints it and makes PDF files of it.
class TextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit TextEdit(QWidget *parent = nullptr);
    ~TextEdit() override;

    /// Shows an XHTML document. While the widget is hidden the text is only kept.
    void loadDocument(const QString &xhtml);

    /// The document shown, never null; owned by the widget.
    [[nodiscard]] TextDocument *document() const { return m_document; }

Q_SIGNALS:
    /// A link was clicked, or opened with the keyboard.
    void linkActivated(const QString &link);

private:
    TextDocument *m_document = nullptr;
};
