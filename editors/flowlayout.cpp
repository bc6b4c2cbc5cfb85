// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[size_t(index)].get() : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    if (index < 0 || index >= count()) {
        return nullptr;
    }
    QLayoutItem *item = m_items[size_t(index)].release();
    m_items.erase(m_items.begin() + index);
    invalidate();
    return item;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    int height = 0;
    for (const QRect &place : places({0, 0, width - margins.left() - margins.right(), 0})) {
        height = std::max(height, place.bottom() + 1);
    }
    return height + margins.top() + margins.bottom();
}

QSize FlowLayout::sizeHint() const
{
    return rowSize(0, m_items.size()).grownBy(contentsMargins());
}

QSize FlowLayout::minimumSize() const
{
    QSize least = rowSize(0, m_items.size());
    for (size_t end = 1; end < m_items.size(); ++end) {
        const int width = std::max(rowSize(0, end).width(), rowSize(end, m_items.size()).width());
        least.setWidth(std::min(least.width(), width));
    }
    return least.grownBy(contentsMargins());
}

/// Of the items from one to before the other.
QSize FlowLayout::rowSize(size_t begin, size_t end) const
{
    QSize size(0, 0);
    for (size_t i = begin; i < end; ++i) {
        const QSize wanted = m_items[i]->sizeHint();
        size = {size.width() + wanted.width() + (i > begin ? gap(Qt::Horizontal) : 0),
                std::max(size.height(), wanted.height())};
    }
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    const std::vector<QRect> rects = places(room);
    for (size_t i = 0; i < m_items.size(); ++i) {
        m_items[i]->setGeometry(QStyle::visualRect(direction, room, rects[i]));
    }
}

/// Of each item, from left to right.
std::vector<QRect> FlowLayout::places(const QRect &room) const
{
    std::vector<QRect> rects;
    size_t rowStart = 0;
    QPoint next = room.topLeft();
    int rowHeight = 0;
    const auto endRow = [&] {
        for (; rowStart < rects.size(); ++rowStart) {
            rects[rowStart].setHeight(rowHeight);
        }
    };
    for (const auto &item : m_items) {
        const QSize size = item->sizeHint();
        if (next.x() > room.x() && next.x() + size.width() > room.x() + room.width()) {
            endRow();
            next = {room.x(), next.y() + rowHeight + gap(Qt::Vertical)};
            rowHeight = 0;
        }
        rects.emplace_back(next, size);
        rowHeight = std::max(rowHeight, size.height());
        next.rx() += size.width() + gap(Qt::Horizontal);
    }
    endRow();
    return rects;
}

/// Layouts that are no boxes have none of their own.
int FlowLayout::gap(Qt::Orientation direction) const
{
    const QWidget *parent = parentWidget();
    if (spacing() >= 0 || !parent) {
        return std::max(spacing(), 0);
    }
    return parent->style()->pixelMetric(direction == Qt::Horizontal ? QStyle::PM_LayoutHorizontalSpacing
                                                                    : QStyle::PM_LayoutVerticalSpacing,
                                        nullptr, parent);
}

void setFlowLayout(QWidget *widget)
{
    const auto children = widget->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    auto *layout = new FlowLayout(widget);
    layout->setContentsMargins({});
    for (QWidget *child : children) {
        layout->addWidget(child);
    }
}
