// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"
#include "support/scriptedui.h"
#include "views/report/report.h"

#include <gtest/gtest.h>

#include <functional>

/// A database on a design that the test fills, with the default template but without empty categories. Its
/// fields are Value, Stock Code and Unit Cost.
class ReportFixture : public testing::Test
{
protected:
    ReportFixture()
    {
        database.setNetlist(netlist.cache());
        BOMTemplate settings;
        settings.setSuppressEmptyCategories(true);
        database.setCurrentTemplate(settings);
    }

    /// With all fields, as documents have them.
    [[nodiscard]] Report report() const { return Report(database, database.columns()); }
    /// As outputs for programs have it.
    [[nodiscard]] Report dataReport() const
    {
        return Report(database, dataFields(database.columns(), database.currentTemplate()));
    }

    void changeTemplate(const std::function<void(BOMTemplate &)> &change)
    {
        BOMTemplate settings = database.currentTemplate();
        change(settings);
        database.setCurrentTemplate(settings);
    }
    void changeField(const QString &name, const std::function<void(BOMField &)> &change)
    {
        changeTemplate([&](BOMTemplate &settings) {
            BOMFields fields = settings.fields();
            BOMField field = fields.get(name);
            field.fieldName = name;
            change(field);
            fields.set(field);
            settings.setFields(fields);
        });
    }

    ScriptedUi ui;
    FakeProcess process;
    FakeNetlist netlist;
    BOMPartsDatabase database;
};
