// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bomdataview.h"
#include "support/fakenetlist.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr int fieldCount = 10;

/// Parts in the order of no column, with texts of which some are shared.
void addParts(FakeNetlist &netlist, int count)
{
    for (int i = 0; i < count; ++i) {
        FakeProperties properties;
        for (int field = 1; field < fieldCount; ++field) {
            const QByteArray number = QByteArray::number((qint64(i) * 7919) % (200 * field));
            properties.append({"P" + QByteArray::number(field), "text " + number});
        }
        netlist.add("R" + QByteArray::number(count - i), QByteArray::number(i % 700), properties);
    }
}

BOMTemplate settings()
{
    BOMFields fields;
    for (int field = 0; field < fieldCount; ++field) {
        BOMField column;
        column.fieldName = QStringLiteral("Field %1").arg(field);
        column.propertyName = field == 0 ? QStringLiteral("VALUE") : QStringLiteral("P%1").arg(field);
        fields.add(column);
    }
    BOMTemplate settings;
    settings.setFields(fields);
    return settings;
}

/// Prints the median time in ms until what was done is painted.
void measure(const char *what, const std::function<void(int)> &action)
{
    QList<double> times;
    for (int i = 0; i < 5; ++i) {
        QElapsedTimer clock;
        clock.start();
        action(i);
        QCoreApplication::processEvents();
        times.append(double(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("%s %.1f\n", what, times.at(times.size() / 2));
}

void measureTable(BOMPartsDatabase &database)
{
    PropertyAssignments assignments(&database);
    BOMDataView view;
    view.resize(1280, 800);
    view.show();
    view.setAssignments(&assignments);
    auto *table = view.findChild<QTableWidget *>();
    auto *filter = view.findChild<QLineEdit *>(QStringLiteral("filterEdit"));
    measure("fill", [&](int) {
        view.setPartsDatabase(nullptr);
        view.handleBOMDataUpdate();
        view.setPartsDatabase(&database);
        view.handleBOMDataUpdate();
    });
    measure("refill", [&](int) { view.handleBOMDataUpdate(); });
    measure("edit", [&](int i) { table->item(i, 4)->setText(QStringLiteral("edited")); });
    measure("sort", [&](int i) { table->sortByColumn(3 + i, Qt::AscendingOrder); });
    measure("filter", [&](int i) { filter->setText(QString::number(i + 1)); });
    measure("filtered-sort", [&](int i) { table->sortByColumn(3 + i, Qt::DescendingOrder); });
    filter->clear();
    measure("scroll", [&](int i) { table->verticalScrollBar()->setValue(1000 * (i + 1)); });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 20000;
    FakeNetlist netlist;
    addParts(netlist, count);
    BOMPartsDatabase database;
    database.setCurrentTemplate(settings());
    database.setNetlist(netlist.cache());
    database.reload();
    measureTable(database);
    return 0;
}
