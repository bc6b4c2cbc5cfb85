// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

/// Every icon of the program at the sizes in use: ordinary and disabled, then hovered and selected.
class IconSheet final : public QWidget
{
public:
    IconSheet();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Entry
    {
        QString name;
        QIcon icon;
    };

    void addFolder(const QString &folder);
    void paintEntry(QPainter &painter, const Entry &entry, const QPoint &corner) const;

    QList<Entry> m_entries;
};
