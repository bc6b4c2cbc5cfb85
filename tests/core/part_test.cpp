// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "host/netlist/component.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/printtext.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Part, answersValueFirstAndNothingElseWithoutComponent)
{
    const Part part(nullptr, nullptr, u"R1"_s, u"10k"_s);
    EXPECT_FALSE(part.isBOMPart());
    EXPECT_EQ(part.property(u"VALUE"_s), u"10k"_s);
    for (const QString &name : {u".Placed"_s, u".Name"_s, u"CODE"_s, u"value"_s, QString()}) {
        EXPECT_EQ(part.property(name), QString()) << name.toStdString();
    }
}

TEST(Part, answersFromTheComponent)
{
    FakeNetlist netlist;
    const COMPONENT *component = netlist.add(
        "R1", "1k", {{"VALUE", "other"}, {"CODE", "R\xc3\xb6hm"}, {"COST", "1,5"}}, "RES\xc2\xb5");
    const Part part(component, nullptr, u"R1"_s, u"10k"_s);
    EXPECT_EQ(part.property(u"VALUE"_s), u"10k"_s);
    EXPECT_EQ(part.property(u".Name"_s), u"RESµ"_s);
    EXPECT_EQ(part.property(u"CODE"_s), u"Röhm"_s);
    EXPECT_EQ(part.property(u"COST"_s), u"1,5"_s) << "without a database nothing is converted";
    EXPECT_EQ(part.property(u"MISSING"_s), QString());
}

TEST(Part, answersWithoutPropertyList)
{
    COMPONENT component;
    component.name = "RES";
    const Part part(&component, nullptr, u"R1"_s, u"10k"_s);
    EXPECT_EQ(part.property(u"CODE"_s), QString());
    EXPECT_EQ(part.property(u".Name"_s), u"RES"_s);
}

TEST(Part, asksTheComponentDatabaseForThePlacement)
{
    FakeNetlist netlist;
    for (const char *reference : {"R1", "R2", "R3"}) {
        netlist.add(reference, "1k");
    }
    std::vector<std::unique_ptr<Part>> parts;
    for (const COMPONENT *component : netlist.cache()->components) {
        parts.push_back(std::make_unique<Part>(component, nullptr, u"R"_s, QString()));
    }
    EXPECT_EQ(parts[0]->property(u".Placed"_s), u"Not placed"_s) << "no component database";
    FakeCdb cdb;
    cdb.place(1, "Unterseite \xc3\xa4");
    cdb.addUnplaced(2);
    EXPECT_EQ(parts[0]->property(u".Placed"_s), u"Unterseite ä"_s);
    EXPECT_EQ(parts[1]->property(u".Placed"_s), u"Not placed"_s) << "a record without placement";
    EXPECT_EQ(parts[2]->property(u".Placed"_s), u"Not placed"_s) << "no record";
}

TEST(Part, isDestroyedThroughItsBase)
{
    std::unique_ptr<Part> part = std::make_unique<BOMPart>(nullptr, u"SCR1"_s, u"M3"_s, u"C5"_s,
                                                           QMap<QString, QString>{{u"a"_s, u"b"_s}});
    EXPECT_TRUE(part->isBOMPart());
}

TEST(BOMPart, answersFromItsOwnProperties)
{
    const BOMPart part(nullptr, u"SCR1"_s, u"M3 screw"_s, u"C5"_s,
                       {{u"Code"_s, u"4711"_s}, {u".PLACED"_s, u"stored"_s}, {u"VALUE"_s, u"other"_s}});
    EXPECT_EQ(part.property(u"VALUE"_s), u"M3 screw"_s);
    EXPECT_EQ(part.property(u"CODE"_s), u"4711"_s);
    EXPECT_EQ(part.property(u"cOdE"_s), u"4711"_s);
    EXPECT_EQ(part.property(u"COST"_s), QString());
    EXPECT_EQ(part.property(u".Placed"_s), u"stored"_s) << "without a database it is a property like others";
}

TEST(BOMPart, standsWhereItsParentStands)
{
    FakeNetlist netlist;
    netlist.add("C5", "1u");
    FakeCdb cdb;
    cdb.place(1, "Bottom");
    BOMPartsDatabase database;
    database.setNetlist(netlist.cache());
    database.load();
    EXPECT_EQ(BOMPart(&database, u"SCR1"_s, u"M3"_s, u"C5"_s).property(u".Placed"_s), u"Bottom"_s);
    EXPECT_EQ(BOMPart(&database, u"SCR1"_s, u"M3"_s, u"C6"_s).property(u".Placed"_s), QString());
}

TEST(DisplayValue, dependsOnTheDefinition)
{
    const ScopedDefinitions definitions("\"YN\",YESNO\n\"HL\",HIGHLOW\n\"TF\",TRUEFALSE\n\"S\",STRING\n"
                                        "\"I\",INT\n\"F\",FLOAT");
    ScriptedUi ui;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    database.setNetlist(netlist.cache());
    database.load();
    const struct
    {
        const char16_t *name, *stored, *shown;
    } cases[] = {
        {u"YN", u"1", u"Yes"},  {u"YN", u"0", u"No"},     {u"YN", u"yes", u"No"}, {u"YN", u"", u""},
        {u"HL", u"1", u"High"}, {u"HL", u"2", u"Low"},    {u"TF", u"1", u"True"}, {u"TF", u"0", u"False"},
        {u"F", u"4,7", u"4.7"}, {u"F", u"1.5", u"1.5"},   {u"F", u"n/a", u"n/a"}, {u"I", u"1,000", u"1,000"},
        {u"S", u"1", u"1"},     {u"UNKNOWN", u"1", u"1"}, {u"yn", u"1", u"Yes"},  {u"F", u"1,2.3", u"1.2.3"},
    };
    for (const auto &expected : cases) {
        EXPECT_EQ(
            database.displayValue(QString::fromUtf16(expected.name), QString::fromUtf16(expected.stored)),
            QString::fromUtf16(expected.shown))
            << QString::fromUtf16(expected.name).toStdString();
    }
    EXPECT_TRUE(database.isNumeric(u"I"_s));
    EXPECT_TRUE(database.isNumeric(u"F"_s));
    EXPECT_FALSE(database.isNumeric(u"S"_s));
    EXPECT_FALSE(database.isNumeric(u"UNKNOWN"_s));

    ui.numberFormat = QLocale(QLocale::German);
    EXPECT_EQ(database.displayValue(u"F"_s, u"4.7"_s), u"4,7"_s);
    EXPECT_EQ(database.displayValue(u"F"_s, u"1,2.3"_s), u"1,2,3"_s);
}

TEST(DisplayValue, isWhatPartsAnswer)
{
    FakeNetlist netlist;
    netlist.add("R1", "1k", {{"DNP", "1"}, {"COST", "0,5"}});
    BOMPartsDatabase database;
    database.setNetlist(netlist.cache());
    database.load();
    EXPECT_EQ(database.property(u"R1"_s, u"DNP"_s), u"Yes"_s);
    EXPECT_EQ(database.property(u"R1"_s, u"COST"_s), u"0.5"_s);
    EXPECT_EQ(database.property(u"R2"_s, u"COST"_s), QString());
}

} // namespace
