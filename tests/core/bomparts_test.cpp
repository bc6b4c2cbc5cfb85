// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "host/netlist/component.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class BOMParts : public testing::Test
{
protected:
    BOMParts()
    {
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(BOMTemplate());
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &database, [this] { ++changes; });
    }

    /// "SCR1=M3" for every BOM-only part of the design, in the order in which they were made.
    [[nodiscard]] QStringList made() const
    {
        QStringList all;
        for (const Part *part : database.parts()) {
            if (part->isBOMPart()) {
                all << part->reference() + u'=' + part->value();
            }
        }
        return all;
    }
    [[nodiscard]] QStringList rewritten(const QString &parent) const
    {
        QStringList all;
        const auto properties = database.rewrittenDefinitions(parent);
        for (const DefinitionProperty &property : properties.value_or(QList<DefinitionProperty>())) {
            all << property.name + u": "_s + property.text;
        }
        return properties ? all : QStringList{u"cannot be written"_s};
    }
    [[nodiscard]] QStringList problems() const
    {
        QStringList all;
        for (const DefinitionProblem &problem : database.definitionProblems()) {
            all << problem.parentReference + u' ' + problem.property + u' ' +
                       QString::number(int(problem.fault));
        }
        return all;
    }
    static QString fault(DefinitionFault fault) { return QString::number(int(fault)); }

    FakeProcess process;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    int changes = 0;
};

TEST_F(BOMParts, continueTheNumbersOfTheDesign)
{
    netlist.add("C5", "1u",
                {{"MPN", "x"}, {"BOMPART1", "'2','scr','M3 screw'"}, {"bompart2", "'1','X','no'"}});
    netlist.add("SCR1", "M2");
    netlist.add("SCR4", "M2");
    netlist.add("SCR007X", "M2");
    netlist.add("SCRX99", "M2");
    netlist.add("R9", "1k", {{"BOMPART1", "1,SCR,M4"}, {"BOMPART2", "1,,x"}});
    database.load();
    EXPECT_EQ(made(), (QStringList{u"SCR5=M3 screw"_s, u"SCR6=M3 screw"_s, u"SCR7=M4"_s}));
    EXPECT_EQ(changes, 1);
    ASSERT_EQ(database.bomParts(u"C5"_s).size(), 2);
    EXPECT_EQ(database.bomParts(u"C5"_s).at(1)->parentReference(), u"C5"_s);
    EXPECT_EQ(database.categoryReferences(u"Miscellaneous"_s).size(), 7) << "no capacitor, no resistor";
    EXPECT_EQ(problems(), QStringList{u"R9 BOMPART2 "_s + fault(DefinitionFault::TooFewFields)});
    database.clear();
    EXPECT_TRUE(database.bomParts(u"C5"_s).isEmpty());
    EXPECT_EQ(problems(), QStringList());
}

TEST_F(BOMParts, areMadeParentByParentInSortedOrderOfTheirDefinitions)
{
    netlist.add("R2", "1k", {{"BOMPART1", "1,SCR,second"}, {"BOMPART2", "1,SCR,first"}});
    netlist.add("R1", "1k", {{"BOMPART1", "1,SCR,third"}, {"BOMPART2", "1,HS,sink"}});
    database.load();
    EXPECT_EQ(made(), (QStringList{u"SCR1=first"_s, u"SCR2=second"_s, u"HS1=sink"_s, u"SCR3=third"_s}));
}

TEST_F(BOMParts, areSortedIntoTheCategoryOfTheirPrefix)
{
    netlist.add("U1", "reg", {{"BOMPART1", "2,R,10k"}});
    netlist.add("R3", "10k");
    database.load();
    EXPECT_EQ(database.groupLines(u"Resistors"_s, u"10k"_s),
              QList<QStringList>{(QStringList{u"R3"_s, u"R4"_s, u"R5"_s})});
}

TEST_F(BOMParts, ofAPrefixWithDigitsMayMeetAnotherPart)
{
    netlist.add("U1", "reg", {{"BOMPART1", "1,A1,b"}, {"BOMPART2", "1,A,a"}, {"BOMPART3", "2,A,c"}});
    netlist.add("A9", "x");
    database.load();
    EXPECT_EQ(made(), (QStringList{u"A10=a"_s, u"A11=b"_s, u"A12=c"_s}));
    EXPECT_EQ(database.duplicateReferences(), QStringList{u"A11"_s});
    EXPECT_EQ(database.duplicateBOMParts(), QStringList{u"A11"_s});
    EXPECT_EQ(rewritten(u"U1"_s),
              (QStringList{u"BOMPART0: 1,'A','a'"_s, u"BOMPART1: 1,'A1','b'"_s, u"BOMPART2: 2,'A','c'"_s}))
        << "the one that is not held must not get lost";
}

TEST_F(BOMParts, ofASkippedComponentAreNotMade)
{
    netlist.add("R1", "1k", {{"BOMSKIP", ""}, {"BOMPART1", "1,SCR,M3"}, {"BOMLINKS", "A=b"}});
    database.load();
    EXPECT_EQ(made(), QStringList());
    EXPECT_TRUE(database.links(u"R1"_s).isEmpty());
}

TEST_F(BOMParts, areRefusedInExcess)
{
    netlist.add("R1", "1k",
                {{"BOMPART1", "2000000000,SCR,M3"},
                 {"BOMPART2", "99999999999999999999,SCR,M3"},
                 {"BOMPART3", "two,SCR,M3"},
                 {"BOMPART4", "-2,SCR,M3"},
                 {"BOMPART5", "0,SCR,M3"},
                 {"BOMPART6", "2,BIG,M3"},
                 {"BOMPART7", "1,OK,M3,CODE,=x"}});
    netlist.add("BIG2147483646", "1k");
    for (int i = 0; i < 11; ++i) {
        netlist.add("M" + QByteArray::number(i), "motor", {{"BOMPART1", "100000,NUT,M3"}});
    }
    database.load();
    EXPECT_EQ(made().first(), u"OK1=M3"_s);
    EXPECT_EQ(made().size(), 1 + 9 * 100'000) << "the tenth would go over the most of a design";
    EXPECT_EQ(problems(), (QStringList{u"R1 BOMPART4 "_s + fault(DefinitionFault::NoCount),
                                       u"R1 BOMPART7 "_s + fault(DefinitionFault::NoAssignment),
                                       u"R1 BOMPART6 "_s + fault(DefinitionFault::NumbersEnd),
                                       u"R1 BOMPART1 "_s + fault(DefinitionFault::TooManyParts),
                                       u"R1 BOMPART2 "_s + fault(DefinitionFault::TooManyParts),
                                       u"R1 BOMPART3 "_s + fault(DefinitionFault::NoCount),
                                       u"M9 BOMPART1 "_s + fault(DefinitionFault::DesignIsFull),
                                       u"M10 BOMPART1 "_s + fault(DefinitionFault::DesignIsFull)}));
    EXPECT_EQ(rewritten(u"R1"_s).size(), 7) << "what makes no parts is kept";
}

TEST_F(BOMParts, areAddedUnderAFreeName)
{
    netlist.add("C5", "1u", {{"BOMPART1", "1,SCR,M3"}, {"BOMPART3", "1,HS,sink"}});
    database.load();
    changes = 0;
    const auto added = database.addBOMParts(u"C5"_s, 2, u"SCR"_s, u"Bob\\'s bracket"_s);
    EXPECT_EQ(added, (DefinitionProperty{u"BOMPART4"_s, u"'2','SCR','Bob\\'s bracket'"_s}));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(made().sliced(2), (QStringList{u"SCR2=Bob's bracket"_s, u"SCR3=Bob's bracket"_s}));
    EXPECT_EQ(database.bomPartPropertyNames(u"C5"_s),
              (QStringList{u"BOMPART3"_s, u"BOMPART1"_s, u"BOMPART4"_s}));
    EXPECT_FALSE(database.addBOMParts(u"C6"_s, 1, u"SCR"_s, u"x"_s)) << "no such part";
    EXPECT_FALSE(database.addBOMParts(u"SCR1"_s, 1, u"SCR"_s, u"x"_s)) << "cannot be stored";
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, 0, u"SCR"_s, u"x"_s));
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, mostPartsOfADefinition + 1, u"SCR"_s, u"x"_s));
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, 1, u"SCR"_s, u"a,b\\"_s));
    EXPECT_EQ(made().size(), 4);
}

TEST_F(BOMParts, areRemovedAndRewritten)
{
    netlist.add("C5", "1u",
                {{"BOMPART1", "'3','SCR','Bob\\'s','mpn=5\" \\'long\\'','Code=a,b'"},
                 {"BOMPART2", "1,HS,back\\"},
                 {"BOMPART9", "nothing"}});
    netlist.add("R1", "1k", {{"BOMPART1", "1,SCR,M3,BOMLINKS=MPN=a%2Cb"}});
    database.load();
    ASSERT_EQ(made(), (QStringList{u"SCR1=Bob's"_s, u"SCR2=Bob's"_s, u"SCR3=Bob's"_s, u"HS1=back\\"_s,
                                   u"SCR4=M3"_s}));
    EXPECT_EQ(database.property(u"SCR2"_s, u"MPN"_s), u"5\" 'long'"_s);
    EXPECT_EQ(database.link(u"SCR4"_s, u"mpn"_s), u"a,b"_s);
    changes = 0;
    EXPECT_FALSE(database.removeBOMPart(u"C5"_s, u"SCR4"_s));
    EXPECT_FALSE(database.removeBOMPart(u"R1"_s, u"R1"_s));
    EXPECT_TRUE(database.removeBOMPart(u"C5"_s, u"SCR2"_s));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(database.part(u"SCR2"_s), nullptr);
    EXPECT_NE(database.part(u"SCR4"_s), nullptr);
    EXPECT_EQ(database.categoryReferences(u"Miscellaneous"_s),
              (QStringList{u"HS1"_s, u"SCR1"_s, u"SCR3"_s, u"SCR4"_s}));
    const QStringList expected{u"BOMPART0: 2,'SCR','Bob\\'s','CODE=a,b','MPN=5\" \\'long\\''"_s,
                               u"BOMPART1: 1,'HS',back\\"_s, u"BOMPART2: nothing"_s};
    EXPECT_EQ(rewritten(u"C5"_s), expected);
    EXPECT_EQ(database.bomPartPropertyNames(u"C5"_s),
              (QStringList{u"BOMPART1"_s, u"BOMPART2"_s, u"BOMPART9"_s, u"BOMPART0"_s}));
    EXPECT_TRUE(database.removeBOMPart(u"R1"_s, u"SCR4"_s));
    EXPECT_EQ(database.link(u"SCR4"_s, u"MPN"_s), QString());
    EXPECT_EQ(rewritten(u"R1"_s), QStringList());
    EXPECT_EQ(database.addBOMParts(u"C5"_s, 1, u"SCR"_s, u"M3"_s).value_or(DefinitionProperty()).name,
              u"BOMPART5"_s);
    EXPECT_EQ(made().last(), u"SCR4=M3"_s);
}

TEST_F(BOMParts, areRewrittenAfterAChange)
{
    netlist.add("C5", "1u", {{"BOMPART1", "'4','R','1k','MPN=x'"}, {"BOMPART2", "1,R,2k"}});
    database.load();
    changes = 0;
    EXPECT_TRUE(database.setBOMPartProperty(u"R2"_s, u"mpn"_s, u"Bob's, \"y\""_s));
    EXPECT_TRUE(database.setBOMPartProperty(u"R3"_s, u"VALUE"_s, u"2k"_s));
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(database.setBOMPartProperty(u"R3"_s, u"MPN"_s, QString()));
    EXPECT_TRUE(database.setBOMPartProperty(u"R1"_s, u"BOMLINKS"_s, u"MPN=a%2Cb"_s));
    EXPECT_EQ(database.link(u"R1"_s, u"MPN"_s), u"a,b"_s);
    EXPECT_TRUE(database.setBOMPartProperty(u"R1"_s, u"BOMLINKS"_s, QString()));
    EXPECT_EQ(database.link(u"R1"_s, u"MPN"_s), QString());
    EXPECT_EQ(rewritten(u"C5"_s),
              (QStringList{u"BOMPART0: 2,'R','1k','MPN=x'"_s, u"BOMPART1: 1,'R','1k','MPN=Bob\\'s, \"y\"'"_s,
                           u"BOMPART2: 2,'R','2k'"_s}));
    EXPECT_EQ(database.valueReferences(u"Resistors"_s, u"2k"_s).size(), 2);
    for (const QString &name : {u"a=b"_s, u".Placed"_s, QString()}) {
        EXPECT_FALSE(database.setBOMPartProperty(u"R1"_s, name, u"x"_s)) << name.toStdString();
    }
    EXPECT_FALSE(database.setBOMPartProperty(u"C5"_s, u"MPN"_s, u"x"_s));
    EXPECT_FALSE(database.setBOMPartProperty(u"R1"_s, u"MPN"_s, u"a,b\\"_s)) << "cannot be written";
}

TEST_F(BOMParts, createdAgainReadAsTheyWereWritten)
{
    netlist.add("C5", "1u");
    database.load();
    database.createBOMParts(u"C5"_s, {u"1,'SCR','',A=\\'x\\',B=\\"_s, u"BOMPART7='2','W','5\" wire'"_s});
    const QStringList first = rewritten(u"C5"_s);
    EXPECT_EQ(first,
              (QStringList{u"BOMPART0: 1,'SCR','','A=\\'x\\'',B=\\"_s, u"BOMPART1: 2,'W','5\" wire'"_s}));
    QStringList texts;
    const auto properties = database.rewrittenDefinitions(u"C5"_s);
    ASSERT_TRUE(properties);
    for (const DefinitionProperty &property : *properties) {
        texts << property.text;
    }
    database.reload();
    EXPECT_EQ(made(), QStringList());
    database.createBOMParts(u"C5"_s, texts);
    EXPECT_EQ(rewritten(u"C5"_s), first);
}

TEST_F(BOMParts, ofThreeFormsOfQuotes)
{
    const std::pair<QString, QString> cases[] = {
        {u"2,SCR,M3"_s, u"SCR1=M3"_s},
        {u" 2 ,\"SCR\",\"M3, \\'long'\""_s, u"SCR1=M3, \\'long'"_s},
        {u"'1','SCR','M3','VALUE=x'"_s, u"SCR1=M3"_s},
        {u"x=1,SCR,M3"_s, QString()},
        {u"1,SCR,A=b"_s, u"SCR1=A=b"_s},
        {u"1,,SCR,,M3"_s, u"SCR1=M3"_s},
        {u"'1','','M3'"_s, u"1=M3"_s},
    };
    netlist.add("C5", "1u");
    for (const auto &[text, expected] : cases) {
        database.reload();
        database.createBOMParts(u"C5"_s, {text});
        EXPECT_EQ(made().value(0), expected) << text.toStdString();
    }
}

TEST_F(BOMParts, areFoundInPropertyListOrder)
{
    const COMPONENT *component =
        netlist.add("C5", "1u", {{"BOMPART2", "b"}, {"BOMPARTS", "c"}, {"BOM", "x"}, {"BOMPART1", "a"}});
    EXPECT_EQ(BOMPartsDatabase::bomPartDefinitions(*component), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
}

} // namespace
