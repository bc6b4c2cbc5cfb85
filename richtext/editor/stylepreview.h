// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/stylesheet.h"

#include <QWidget>

/// A line of sample text in the look that a style sheet gives one of its rules.
class StylePreview : public QWidget
{
    Q_OBJECT

public:
    explicit StylePreview(QWidget *parent = nullptr);
    ~StylePreview() override;

    /// Shows `sample` in the look of a rule, what it leaves open being that of the rule "body". An empty
    /// selector shows nothing.
    void showRule(const StyleSheet &sheet, const QString &selector, const QString &sample);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Edge
    {
        double width = 0;
        Qt::PenStyle style = Qt::NoPen;
        bool twofold = false;
        QColor color;
    };

    void readFont(const StyleSheet &sheet, const QString &selector);
    void readBox(const StyleSheet &sheet, const QString &selector);
    void paintEdges(QPainter *painter, const QRectF &box) const;

    QString m_sample;
    QFont m_font;
    QColor m_text;
    QColor m_background;
    Qt::Alignment m_alignment;
    QMarginsF m_padding;
    Edge m_edges[4];
};
