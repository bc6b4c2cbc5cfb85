// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidget>

/// The table of the property editor. A text that is dragged down a column fills every cell that it passes
/// over. The current cell is dragged; pressing on another one and moving selects.
class BOMTableWidget final : public QTableWidget
{
    Q_OBJECT

public:
    /// Cells of which this is true stand for several texts: a drag neither takes nor fills them.
    static constexpr int SeveralTextsRole = Qt::UserRole + 40;

    explicit BOMTableWidget(QWidget *parent = nullptr);

    /// Whether a text is being dragged out of or over the table.
    [[nodiscard]] bool isDragging() const { return m_fills > 0; }
    /// Of some rows: the table takes the height that there is, and a page around it scrolls only below that.
    [[nodiscard]] QSize sizeHint() const override;
    /// The selected cells that are seen, from the top left to the bottom right.
    [[nodiscard]] QModelIndexList seenSelection() const;

Q_SIGNALS:
    /// A button of the mouse was released over a cell.
    void cellLeftClicked(int row, int column);
    void cellRightClicked(int row, int column);
    /// The keyboard asks for the context menu of a cell.
    void menuRequested(int row, int column);
    /// Around what one drag changes, however many cells it passes over.
    void fillStarted();
    void fillEnded();
    /// Emitted before fillEnded(): what the drag has changed is to be as it was.
    void fillCancelled();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// A drag carries the text of one cell.
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QList<QTableWidgetItem *> &items) const override;
    bool dropMimeData(int row, int column, const QMimeData *data, Qt::DropAction action) override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::CopyAction; }

private:
    [[nodiscard]] bool takes(const QDropEvent &event) const;
    void passOver(QTableWidgetItem *item, const QString &text);
    void fillBetween(int from, int to, const QString &text);
    void endHighlight();
    void beginFill();
    void endFill();

    /// The cell under what is being dragged; null for none.
    QTableWidgetItem *m_highlighted = nullptr;
    /// The row from which the drag fills: where it began, then the cell that it passed last; -1 where it
    /// came from outside or over another column.
    int m_fillsFrom = -1;
    /// Of drags that began here and drags over the table.
    int m_fills = 0;
    bool m_isDragInside = false;
    /// Esc was pressed during the drag that began here.
    bool m_isFillCancelled = false;
};
