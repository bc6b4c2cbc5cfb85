// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"
#include "core/coredesign.h"
#include "core/propertyquery.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

namespace {

using PartOfDesign = CoreDesign;
using DisplayValue = CoreDesign;

TEST(Part, AnswersOnlyItsValueWithoutAComponent)
{
    const Part part(nullptr, nullptr, u"R1"_s, u"10k"_s);
    EXPECT_FALSE(part.isBOMPart());
    EXPECT_EQ(part.property(u"VALUE"_s), u"10k"_s);
    for (const QString &name : {u".Placed"_s, u".Name"_s, u"CODE"_s, u"value"_s, QString()}) {
        EXPECT_EQ(part.property(name), QString()) << name.toStdString();
    }
}

TEST(Part, AnswersFromTheComponent)
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
    COMPONENT withoutProperties;
    withoutProperties.name = "RES";
    const Part bare(&withoutProperties, nullptr, u"R1"_s, u"10k"_s);
    EXPECT_EQ(bare.property(u"CODE"_s), QString());
    EXPECT_EQ(bare.property(u".Name"_s), u"RES"_s);
}

TEST_F(PartOfDesign, AsksTheComponentDatabaseForThePlacement)
{
    load({{"R1", "1k"}, {"R2", "1k"}, {"R3", "1k"}, {"C5", "1u", {{"BOMPART1", "1,SCR,M3"}}}});
    const auto placed = [this](const QString &reference) {
        return database.property(reference, u".Placed"_s);
    };
    EXPECT_EQ(placed(u"R1"_s), u"Not placed"_s) << "no component database";
    FakeCdb cdb;
    cdb.place(1, "Unterseite \xc3\xa4");
    cdb.addUnplaced(2);
    cdb.place(4, "Bottom");
    EXPECT_EQ(placed(u"R1"_s), u"Unterseite ä"_s);
    EXPECT_EQ(placed(u"R2"_s), u"Not placed"_s) << "a record without placement";
    EXPECT_EQ(placed(u"R3"_s), u"Not placed"_s) << "no record";
    EXPECT_EQ(placed(u"SCR1"_s), u"Bottom"_s) << "where its parent stands";
    EXPECT_EQ(BOMPart(&database, u"SCR2"_s, u"M3"_s, u"C6"_s).property(u".Placed"_s), QString());
    const PropertyQuery query(u".Placed"_s, nullptr);
    EXPECT_EQ(database.part(u"SCR1"_s)->property(query), u"Bottom"_s);
}

TEST(BOMPart, AnswersFromItsOwnProperties)
{
    const BOMPart part(nullptr, u"SCR1"_s, u"M3 screw"_s, u"C5"_s,
                       {{u"Code"_s, u"4711"_s}, {u".PLACED"_s, u"stored"_s}, {u"VALUE"_s, u"other"_s}});
    EXPECT_TRUE(part.isBOMPart());
    EXPECT_EQ(part.property(u"VALUE"_s), u"M3 screw"_s);
    EXPECT_EQ(part.property(u"CODE"_s), u"4711"_s);
    EXPECT_EQ(part.property(u"cOdE"_s), u"4711"_s);
    EXPECT_EQ(part.property(u"COST"_s), QString());
    EXPECT_EQ(part.property(u".Placed"_s), u"stored"_s) << "without a database it is a property like others";
}

TEST_F(DisplayValue, DependsOnTheDefinition)
{
    const ScopedDefinitions definitions("\"YN\",YESNO\n\"HL\",HIGHLOW\n\"TF\",TRUEFALSE\n\"S\",STRING\n"
                                        "\"I\",INT\n\"F\",FLOAT");
    ScriptedUi ui;
    const struct
    {
        QByteArray name, stored;
        QString shown;
    } cases[] = {
        {"YN", "1", u"Yes"_s},  {"YN", "0", u"No"_s},     {"YN", "yes", u"No"_s}, {"YN", "", u""_s},
        {"HL", "1", u"High"_s}, {"HL", "2", u"Low"_s},    {"TF", "1", u"True"_s}, {"TF", "0", u"False"_s},
        {"F", "4,7", u"4.7"_s}, {"F", "1.5", u"1.5"_s},   {"F", "n/a", u"n/a"_s}, {"I", "1,000", u"1,000"_s},
        {"S", "1", u"1"_s},     {"UNKNOWN", "1", u"1"_s}, {"yn", "1", u"Yes"_s},  {"F", "1,2.3", u"1,2.3"_s},
    };
    for (qsizetype i = 0; i < std::ssize(cases); ++i) {
        add({{"R" + QByteArray::number(i), "1k", {{cases[i].name, cases[i].stored}}}});
    }
    database.load();
    for (qsizetype i = 0; i < std::ssize(cases); ++i) {
        EXPECT_EQ(database.property(u'R' + QString::number(i), QString::fromUtf8(cases[i].name)),
                  cases[i].shown)
            << cases[i].name.toStdString() << ' ' << cases[i].stored.toStdString();
    }
    EXPECT_EQ(database.property(u"R99"_s, u"F"_s), QString());
    const PropertyTypes &types = database.propertyTypes();
    EXPECT_TRUE(types.isNumeric(u"I"_s) && types.isNumeric(u"F"_s));
    EXPECT_FALSE(types.isNumeric(u"S"_s) || types.isNumeric(u"UNKNOWN"_s));
    ui.numberFormat = QLocale(QLocale::German);
    EXPECT_EQ(database.property(u"R8"_s, u"F"_s), u"4,7"_s);
    EXPECT_EQ(database.property(u"R15"_s, u"F"_s), u"1,2.3"_s);
}

TEST(PropertyNames, AreOfferedInThisOrder)
{
    EXPECT_EQ(joined(standardPropertyNames()), ".Name | .Placed | VALUE | PACKAGE");
    EXPECT_EQ(pseudoPropertyNames().value(u".Placed"_s), u"Placed"_s);
}

} // namespace
