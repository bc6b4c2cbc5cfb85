// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"
#include "core/templatesettings.h"

namespace {

using TemplateRepair = CoreDesign;

TEST_F(TemplateRepair, AddsWhatIsMissingUnderFreeNames)
{
    BOMTemplate settings = templateWith({u"RATING"_s});
    BOMField rating = settings.fields().get(u"RATING"_s);
    rating.fieldName = u"Value"_s;
    BOMFields fields;
    fields.add(rating);
    settings.setFields(fields);
    settings.setCategories({{u"Miscellaneous"_s, {u"R"_s}, false}});
    EXPECT_EQ(repairTemplate(settings).size(), 2);
    EXPECT_EQ(joined(settings.fields().names()), "Value 2 | Value");
    EXPECT_EQ(settings.fields().get(u"Value 2"_s).propertyName, u"VALUE"_s);
    EXPECT_EQ(settings.fields().get(u"Value"_s), rating);
    ASSERT_EQ(settings.categories().size(), 2);
    EXPECT_EQ(settings.categories().last(), (BOMCategory{u"Miscellaneous 2"_s, {u"*"_s}, true}));
}

TEST_F(TemplateRepair, IsReportedByTheDatabaseAndLeavesTheGivenTemplate)
{
    BOMTemplate settings;
    settings.setCategories({{u"Resistors"_s, {u"R"_s}, false}});
    database.setCurrentTemplate(settings);
    EXPECT_EQ(database.templateRepairs().size(), 1);
    EXPECT_EQ(joined(database.categoryNames()), "Resistors | Miscellaneous");
    EXPECT_EQ(settings.categories().size(), 1);
    database.setCurrentTemplate(BOMTemplate());
    EXPECT_EQ(database.templateRepairs(), QStringList());
    EXPECT_EQ(database.currentTemplate().fields(), BOMTemplate().fields());
}

} // namespace
