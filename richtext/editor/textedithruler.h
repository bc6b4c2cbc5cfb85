// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>

class QTextBlockFormat;
class TextEdit;

/// A horizontal ruler above an editor. It shows the paper, its margins and what the current paragraph has of
/// them: left margin, first-line indent, right margin and tab stops. The mouse moves them; a click on the
/// free ruler sets a tab stop, dragging one off the ruler takes it away.
class TextEditHRuler : public QWidget
{
    Q_OBJECT

public:
    explicit TextEditHRuler(QWidget *parent = nullptr);
    ~TextEditHRuler() override;

    /// The editor stays its owner's; null for none.
    void setTextEdit(TextEdit *edit);

    /// The paper's width in points; 0, as at first, for as wide as the text is shown.
    void setPaperWidth(double points);

    /// Texts that are kept as HTML lose their tab stops: there they are better not offered.
    void setHasTabStops(bool has);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The paper's margins were moved, to these widths in points. The document is not changed.
    void paperMarginsChanged(double left, double right);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Mark
    {
        FirstLine,
        Left,
        Right,
        Tab,
        PaperLeft,
        PaperRight
    };
    struct Drag
    {
        Mark mark;
        /// From the left end of the lines, in pixels.
        double place;
        double placeBefore;
        /// A tab stop that is dragged off the ruler.
        bool isOff = false;
    };

    [[nodiscard]] QTextBlockFormat format() const;
    /// Where the lines of the text begin, on the ruler.
    [[nodiscard]] double originX() const;
    [[nodiscard]] double linesWidth() const;
    [[nodiscard]] double place(Mark mark) const;
    [[nodiscard]] QList<double> tabs() const;
    /// What a drag from there moves, a new tab stop where nothing is.
    [[nodiscard]] std::optional<Drag> markAt(const QPoint &point) const;
    [[nodiscard]] double snapped(double place) const;
    /// While a mark is dragged, the place where it is now.
    [[nodiscard]] double shownPlace(Mark mark) const;
    [[nodiscard]] QList<double> shownTabs() const;
    void apply(const Drag &drag);
    void applyToParagraphs(const Drag &drag);
    void applyToPaper(const Drag &drag);

    QPointer<TextEdit> m_edit;
    double m_paperWidth = 0;
    bool m_hasTabStops = true;
    std::optional<Drag> m_drag;
};
