// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextDocument>

/// A rich-text document that remembers the XHTML text and the style sheet it was made from.
class TextDocument : public QTextDocument
{
    Q_OBJECT

public:
    explicit TextDocument(QObject *parent = nullptr);
    ~TextDocument() override;

    /// Shows an XHTML document in the look of the style sheet in its head.
    void loadHtml(const QString &xhtml);

    /// The text as it was loaded, with the style sheet as it is now; once the document was edited, an XHTML
    /// document made from its content.
    [[nodiscard]] QString getHtml() const;

    /// The style sheet, without what is only previewed.
    [[nodiscard]] QString getCss() const { return m_css; }

public Q_SLOTS:
    /// Shows the document in the look of another style sheet. It becomes the document's own unless it is only
    /// a preview.
    void loadCss(const QString &css, bool preview);
    /// Marks what a selector such as "p.oddfield" applies to; an empty one takes the mark away.
    void highlightSelector(const QString &selector);

private:
    void show();

    QString m_source;
    QString m_css;
    QString m_shownCss;
    QString m_highlighted;
};
