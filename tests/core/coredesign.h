// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "host/netlist/component.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace Qt::StringLiterals;

/// "a | b", to be compared with one literal.
inline std::string joined(const QStringList &texts)
{
    return texts.join(u" | "_s).toStdString();
}

/// Columns of these properties, named alike.
inline BOMTemplate templateWith(const QStringList &properties)
{
    BOMFields fields;
    for (const QString &property : properties) {
        BOMField field;
        field.fieldName = field.propertyName = property;
        fields.add(field);
    }
    BOMTemplate settings;
    settings.setFields(fields);
    return settings;
}

struct Row
{
    QByteArray reference;
    QByteArray value;
    FakeProperties properties = {};
};

/// A database on a netlist that a test fills, within a host.
class CoreDesign : public testing::Test
{
protected:
    CoreDesign()
    {
        database.setNetlist(netlist.cache());
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &database, [this] { ++changes; });
    }

    void add(const QList<Row> &rows)
    {
        for (const Row &row : rows) {
            netlist.add(row.reference, row.value, row.properties);
        }
    }
    void load(const QList<Row> &rows)
    {
        add(rows);
        database.load();
    }
    /// How often the database said that it changed, since this was asked last.
    int takeChanges() { return std::exchange(changes, 0); }

    /// "R1 | SCR1" of all parts as they are held.
    [[nodiscard]] std::string references() const
    {
        QStringList all;
        for (const Part *part : database.parts()) {
            all << part->reference();
        }
        return joined(all);
    }
    [[nodiscard]] std::string references(const QString &category) const
    {
        return joined(database.categoryReferences(category));
    }
    /// "10k: R1,R2 | 1k: R3" for the lines of a category.
    [[nodiscard]] std::string lines(const QString &category = u"Resistors"_s) const
    {
        QStringList all;
        for (const QString &value : database.categoryValues(category)) {
            for (const QStringList &line : database.groupLines(category, value)) {
                all << value + u": "_s + line.join(u',');
            }
        }
        return joined(all);
    }

    FakeProcess process;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    int changes = 0;
};
