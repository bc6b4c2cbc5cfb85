// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class BOMPartsDatabase;
class QMenu;
class QWidget;
struct PropertyRow;

/// Leads from the rows of the property editor to the parts in the design and to what they link to.
class PartMenu final : public QObject
{
    Q_OBJECT

public:
    /// `window` is not owned and must outlive the object.
    explicit PartMenu(QWidget *window);

    void setPartsDatabase(const BOMPartsDatabase *database);

    /// Shows a part in the schematic; of a part that is in the bill only, the part that it belongs to.
    void navigateTo(const QString &reference);
    /// Asks at the pointer which part of a row is to be shown.
    void askForPart(const PropertyRow &row);
    /// The same, and which of the links is to be opened.
    void askForLink(const PropertyRow &row);

    /// Shows a menu, which is deleted when it is closed, without waiting for it.
    void open(QMenu *menu, const QPoint &position);
    [[nodiscard]] bool isOpen() const;

Q_SIGNALS:
    void closed();
    void statusMessage(const QString &text);

private:
    [[nodiscard]] QMenu *newPartMenu(const QStringList &references);
    void addParts(QMenu *menu, const QStringList &references);
    void addLinks(QMenu *menu, const QString &reference);
    void openLink(const QString &link);

    QWidget *m_window;
    QPointer<const BOMPartsDatabase> m_database;
    QPointer<QMenu> m_menu;
};
