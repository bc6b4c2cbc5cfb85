// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/xhtml/selfcontaineddocument.h"

#include <QImage>
#include <QString>
#include <QTimer>

#include <cmath>
#include <memory>

class GrowingTable;
class StyleSheet;
class WindowColumns;

/// A rich-text document that remembers the XHTML text and the style sheet it was made from. The content is
/// made when it is first shown; before that the document is empty.
class TextDocument : public SelfContainedDocument
{
    Q_OBJECT

public:
    explicit TextDocument(QObject *parent = nullptr);
    ~TextDocument() override;

    /// Takes an XHTML document, with the style sheet in its head. Nothing is shown before show().
    void setSource(const QString &xhtml);
    /// Makes the content from the source, if that was not done yet.
    void show();
    [[nodiscard]] bool isShown() const { return m_isShown; }

    /// Whether show() makes the first rows of a long table only, and the others follow whenever there is
    /// nothing else to do. For documents that are not edited.
    void setGrows(bool grows) { m_grows = grows; }
    /// Whether nothing is to follow.
    [[nodiscard]] bool isComplete() const;
    /// Whether a table stands there in pieces, see GrowingTable.
    [[nodiscard]] bool isGrown() const { return m_growing != nullptr; }
    /// Makes what is to follow, at least until the document is that high.
    void complete(double height = HUGE_VAL);
    /// Tells the width that the document is about to get. For it the columns of a document that is not edited
    /// get their widths; all rows of a table that grows have common ones.
    void alignColumns(double width);
    /// Below this width columns would break what is not to be broken; 0 where nothing is known of it.
    [[nodiscard]] double leastWidth() const;
    /// Lets the document be laid out that many times as large; alignColumns() and setPageSize() are to
    /// follow. Its text stays as it is.
    void setZoom(double factor);
    /// Lets what is shown stay as it is, whatever changes, until show().
    void suspend();

    /// The document's own title instead of that of its head; it outlives a new look, not a new source.
    void setTitle(const QString &title);

    /// The text as it was taken, with the style sheet as it is now; once the content was edited, an XHTML
    /// document made from it.
    [[nodiscard]] QString getHtml() const;

    /// The style sheet, without what is only previewed.
    [[nodiscard]] QString getCss() const { return m_css; }

    /// The class of the paragraphs that people write, for a document that is edited.
    void setParagraphClass(const QString &name) { m_paragraphClass = name; }
    /// Begins a paragraph of that class at a cursor, in the look that the style sheet gives it.
    void beginPlainParagraph(QTextCursor cursor) const;

public Q_SLOTS:
    /// Shows the document in the look of another style sheet; a large one after a pause, so that changes that
    /// follow each other cost it one layout. It becomes the document's own unless it is only
    /// a preview.
    void loadCss(const QString &css, bool preview);
    /// Marks what a selector such as "p.oddfield" applies to; an empty one takes the mark away.
    void highlightSelector(const QString &selector);

Q_SIGNALS:
    /// The whole content is made anew: before and after.
    void aboutToMakeContent();
    void contentMade();

private:
    void changeLook();
    void makeContent();
    void fill(const StyleSheet &css);
    [[nodiscard]] bool startGrowing(const StyleSheet &css);
    void grow();

    QString m_source;
    QString m_css;
    QString m_shownCss;
    QString m_highlighted;
    QString m_title;
    QString m_paragraphClass;
    /// What the document is laid out for unless it is shown in its own size.
    QImage m_zoomedScreen;
    double m_zoom = 1;
    bool m_isShown = true;
    bool m_grows = false;
    /// Stays when it is complete, for the columns; null for content that was made in one go.
    std::unique_ptr<GrowingTable> m_growing;
    /// Of content that was made in one go and is not edited.
    std::unique_ptr<WindowColumns> m_columns;
    /// Runs out when there is nothing else to do.
    QTimer m_idle;
    QTimer m_pause;
    /// What making the content took, in ms.
    qint64 m_effort = 0;
};
