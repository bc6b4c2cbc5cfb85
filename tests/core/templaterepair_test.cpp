// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "core/templaterepair.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

BOMField field(const QString &name, const QString &property)
{
    BOMField made;
    made.fieldName = name;
    made.propertyName = property;
    return made;
}

TEST(TemplateRepair, leavesACompleteTemplateAlone)
{
    BOMTemplate settings;
    EXPECT_EQ(repairTemplate(settings), QStringList());
    EXPECT_EQ(settings.fields(), BOMTemplate().fields());
    EXPECT_EQ(settings.categories(), BOMTemplate().categories());
}

TEST(TemplateRepair, addsWhatIsMissing)
{
    BOMFields fields;
    fields.add(field(u"Value"_s, u"RATING"_s));
    BOMTemplate settings;
    settings.setFields(fields);
    settings.setCategories({{u"Miscellaneous"_s, {u"R"_s}, false}});
    EXPECT_EQ(repairTemplate(settings).size(), 2);
    EXPECT_EQ(settings.fields().names(), (QStringList{u"Value 2"_s, u"Value"_s}));
    EXPECT_EQ(settings.fields().get(u"Value 2"_s).propertyName, u"VALUE"_s);
    EXPECT_EQ(settings.fields().get(u"Value"_s).propertyName, u"RATING"_s);
    ASSERT_EQ(settings.categories().size(), 2);
    EXPECT_EQ(settings.categories().last(), (BOMCategory{u"Miscellaneous 2"_s, {u"*"_s}, true}));
}

TEST(TemplateRepair, isReportedByTheDatabaseAndLeavesTheGivenTemplate)
{
    BOMTemplate settings;
    settings.setCategories({{u"Resistors"_s, {u"R"_s}, false}});
    BOMPartsDatabase database;
    database.setCurrentTemplate(settings);
    EXPECT_EQ(database.templateRepairs().size(), 1);
    EXPECT_EQ(database.categoryNames(), (QStringList{u"Resistors"_s, u"Miscellaneous"_s}));
    EXPECT_EQ(settings.categories().size(), 1);
    database.setCurrentTemplate(BOMTemplate());
    EXPECT_EQ(database.templateRepairs(), QStringList());
}

} // namespace
