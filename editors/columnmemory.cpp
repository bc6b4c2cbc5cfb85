// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columnmemory.h"

#include "host/framework/hostsettings.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Of a column that was dragged to nothing, and of one that fills the screen alone.
constexpr int leastWidth = 8;
constexpr int mostWidth = 4000;

QString settingsGroup()
{
    return QStringLiteral("BOM");
}

QString requiredKey()
{
    return QStringLiteral("PropertyEditorRequired");
}

QString layoutKey()
{
    return QStringLiteral("PropertyEditorLayout");
}

/// Of earlier versions.
QString layoutByHeadingsKey()
{
    return QStringLiteral("PropertyEditorColumns");
}

QJsonObject stored(const QString &key)
{
    const QString text = HostSettings::current().value(settingsGroup(), key).value_or(QString());
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

void store(const QString &key, const QJsonObject &object)
{
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    HostSettings::current().setValue(settingsGroup(), key, QString::fromUtf8(text));
}

QStringList texts(const QJsonValue &value)
{
    return value.toVariant().toStringList();
}

QString heading(const QHeaderView &header, int column)
{
    return header.model()->headerData(column, header.orientation()).toString();
}

QString nameOf(const QHeaderView &header, int column)
{
    return header.model()->headerData(column, header.orientation(), ColumnNameRole).toString();
}

ColumnLayout layoutIn(const QJsonObject &object)
{
    ColumnLayout layout{
        texts(object.value(QStringLiteral("order"))), texts(object.value(QStringLiteral("hidden"))), {}};
    const QJsonObject widths = object.value(QStringLiteral("widths")).toObject();
    for (auto it = widths.constBegin(); it != widths.constEnd(); ++it) {
        layout.widths.insert(it.key(), it.value().toInt());
    }
    return layout;
}

/// The columns that have ever been remembered by name.
QStringList knownNames(const QJsonObject &object)
{
    return texts(object.value(QStringLiteral("known")));
}

} // namespace

ColumnLayout columnLayout(const QHeaderView &header)
{
    ColumnLayout layout;
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        const QString name = nameOf(header, column);
        layout.order.append(name);
        if (header.isSectionHidden(column)) {
            layout.hidden.append(name);
        } else {
            layout.widths.insert(name, header.sectionSize(column));
        }
    }
    return layout;
}

void setColumnLayout(QHeaderView *header, const ColumnLayout &layout)
{
    QHash<QString, int> columns;
    for (int column = 0; column < header->count(); ++column) {
        const QString name = nameOf(*header, column);
        columns.insert(name, column);
        header->setSectionHidden(column, column > 0 && layout.hidden.contains(name));
        if (const int width = layout.widths.value(name); width >= leastWidth && width <= mostWidth) {
            header->resizeSection(column, width);
        }
    }
    int place = 0;
    for (const QString &name : layout.order) {
        if (const auto found = columns.constFind(name); found != columns.cend()) {
            header->moveSection(header->visualIndex(*found), place++);
        }
    }
}

ColumnLayout ColumnMemory::layout(const QHeaderView &header)
{
    const QJsonObject object = stored(layoutKey());
    const QStringList known = knownNames(object);
    const ColumnLayout earlier = layoutIn(stored(layoutByHeadingsKey()));
    ColumnLayout layout = layoutIn(object);
    QHash<QString, QString> names;
    for (int column = 0; column < header.count(); ++column) {
        const QString name = nameOf(header, column);
        const QString title = heading(header, column);
        names.insert(title, name);
        if (known.contains(name)) {
            continue;
        }
        if (earlier.hidden.contains(title)) {
            layout.hidden.append(name);
        }
        if (earlier.widths.contains(title)) {
            layout.widths.insert(name, earlier.widths.value(title));
        }
    }
    for (const QString &title : object.isEmpty() ? earlier.order : QStringList()) {
        layout.order.append(names.value(title));
    }
    return layout;
}

void ColumnMemory::setLayout(const QHeaderView &header, const ColumnLayout &layout)
{
    const QJsonObject object = stored(layoutKey());
    ColumnLayout all = layoutIn(object);
    QStringList names;
    for (int column = 0; column < header.count(); ++column) {
        names.append(nameOf(header, column));
    }
    const auto isShown = [&names](const QString &name) { return names.contains(name); };
    all.hidden.removeIf(isShown);
    all.hidden += layout.hidden;
    all.widths.removeIf([&isShown](const auto &width) { return isShown(width.key()); });
    all.widths.insert(layout.widths);
    // Columns that nobody moved stand in the order of the template, whatever becomes of that.
    all.order = layout.order == names ? QStringList() : layout.order;
    QStringList known = knownNames(object) + names;
    known.removeDuplicates();
    QJsonObject widths;
    for (auto it = all.widths.cbegin(); it != all.widths.cend(); ++it) {
        widths.insert(it.key(), *it);
    }
    store(layoutKey(), {{QStringLiteral("known"), QJsonArray::fromStringList(known)},
                        {QStringLiteral("order"), QJsonArray::fromStringList(all.order)},
                        {QStringLiteral("hidden"), QJsonArray::fromStringList(all.hidden)},
                        {QStringLiteral("widths"), widths}});
}

bool ColumnMemory::isRequired(const QString &key)
{
    const bool isAtFirst = key == QStringLiteral("VALUE") || key == QStringLiteral("PACKAGE") ||
                           key == QStringLiteral("FOOTPRINT");
    return stored(requiredKey()).value(key).toBool(isAtFirst);
}

void ColumnMemory::setRequired(const QString &key, bool isRequired)
{
    QJsonObject object = stored(requiredKey());
    object.insert(key, isRequired);
    store(requiredKey(), object);
}
