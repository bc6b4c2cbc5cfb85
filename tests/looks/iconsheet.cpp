// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/iconsheet.h"

#include "host/widgets/applnwidget.h"

#include <QDir>
#include <QPainter>

namespace {

constexpr int columns = 3;
constexpr int nameWidth = 100;
constexpr int gap = 8;
constexpr int rowHeight = 48 + gap;
constexpr int columnWidth = nameWidth + 2 * (16 + 24 + 32 + 48 + 24) + 11 * gap;

} // namespace

IconSheet::IconSheet()
{
    addFolder(QStringLiteral(":/bom/icons/"));
    addFolder(QStringLiteral(":/quorvel/icons/"));
    const auto rows = int(m_entries.size() + columns - 1) / columns;
    setFixedSize(columns * columnWidth + gap, rows * rowHeight + gap);
}

void IconSheet::addFolder(const QString &folder)
{
    for (const QString &file : QDir(folder).entryList()) {
        m_entries.append({file.chopped(4), APPLNWIDGET::makeIcon(folder + file)});
    }
}

void IconSheet::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    for (qsizetype i = 0; i < m_entries.size(); ++i) {
        paintEntry(painter, m_entries[i],
                   {gap + int(i % columns) * columnWidth, gap + int(i / columns) * rowHeight});
    }
}

void IconSheet::paintEntry(QPainter &painter, const Entry &entry, const QPoint &corner) const
{
    painter.drawText(QRect(corner, QSize(nameWidth, rowHeight - gap)), Qt::AlignVCenter, entry.name);
    QRect place(corner + QPoint(nameWidth, 0), QSize());
    const auto paint = [&](int side, QIcon::Mode mode) {
        place.setSize({side, side});
        if (mode == QIcon::Active || mode == QIcon::Selected) {
            painter.fillRect(place.adjusted(-2, -2, 2, 2), palette().highlight());
        }
        entry.icon.paint(&painter, place, Qt::AlignCenter, mode);
        place.translate(side + gap, 0);
    };
    for (const int side : {16, 24, 32, 48}) {
        paint(side, QIcon::Normal);
        paint(side, QIcon::Disabled);
    }
    paint(24, QIcon::Active);
    paint(24, QIcon::Selected);
}
