// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"
#include "support/scriptedui.h"

#include <gtest/gtest.h>

#include <functional>

/// A database on a design that the test fills, with the default template: Value, Stock Code, Unit Cost.
class ViewFixture : public testing::Test
{
protected:
    ViewFixture()
    {
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(BOMTemplate());
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
