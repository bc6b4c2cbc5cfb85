// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

/// Puts its items beside each other and, where the width ends, into further rows, a second one at most while
/// the layout has its least width. An item is as wide as it likes to be and as tall as its row.
class FlowLayout final : public QLayout
{
public:
    /// A parent gets the layout as its own.
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    /// Of a single row.
    [[nodiscard]] QSize sizeHint() const override;
    /// As wide as two rows need and as tall as one, see heightForWidth().
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    [[nodiscard]] QSize rowSize(size_t begin, size_t end) const;
    [[nodiscard]] std::vector<QRect> places(const QRect &room) const;
    [[nodiscard]] int gap(Qt::Orientation direction) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

/// Lays out the children that the widget has, in the order in which they were made, without margins.
void setFlowLayout(QWidget *widget);
