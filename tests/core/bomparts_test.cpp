// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompart.h"
#include "core/coredesign.h"

namespace {

class BOMParts : public CoreDesign
{
protected:
    BOMParts()
    {
        database.setCurrentTemplate(BOMTemplate());
        takeChanges();
    }

    /// "SCR1=M3" for every BOM-only part of the design, in the order in which they were made.
    [[nodiscard]] QStringList madeParts() const
    {
        QStringList all;
        for (const Part *part : database.parts()) {
            if (part->isBOMPart()) {
                all << part->reference() + u'=' + part->value();
            }
        }
        return all;
    }
    [[nodiscard]] std::string made() const { return joined(madeParts()); }
    [[nodiscard]] std::string rewritten(const QString &parent) const
    {
        QStringList all;
        const auto properties = database.bomOnlyParts().rewritten(parent);
        for (const DefinitionProperty &property : properties.value_or(QList<DefinitionProperty>())) {
            all << property.name + u": "_s + property.text;
        }
        return properties ? joined(all) : "cannot be written";
    }
    [[nodiscard]] std::string propertyNames(const QString &parent) const
    {
        return joined(database.bomOnlyParts().propertyNames(parent));
    }
    [[nodiscard]] std::string problems() const
    {
        static const QStringList faults{u"TooFewFields"_s, u"NoCount"_s,      u"TooManyParts"_s,
                                        u"NoAssignment"_s, u"DesignIsFull"_s, u"NumbersEnd"_s};
        QStringList all;
        for (const DefinitionProblem &problem : database.bomOnlyParts().problems()) {
            all << problem.parentReference + u' ' + problem.property + u' ' + faults.at(int(problem.fault));
        }
        return joined(all);
    }
};

TEST_F(BOMParts, ContinueTheNumbersOfTheDesignParentByParent)
{
    load({{"C5", "1u", {{"MPN", "x"}, {"BOMPART1", "'2','scr','M3 screw'"}, {"bompart2", "'1','X','no'"}}},
          {"SCR1", "M2"},
          {"SCR4", "M2"},
          {"SCR007X", "M2"},
          {"SCRX99", "M2"},
          {"R9", "1k", {{"BOMPART1", "1,SCR,second"}, {"BOMPART2", "1,,x"}, {"BOMPART3", "1,SCR,first"}}},
          {"R1", "1k", {{"BOMPART1", "1,R,10k"}}}});
    EXPECT_EQ(made(), "SCR5=M3 screw | SCR6=M3 screw | SCR7=first | SCR8=second | R10=10k");
    EXPECT_EQ(takeChanges(), 1);
    ASSERT_EQ(database.bomParts(u"C5"_s).size(), 2);
    EXPECT_EQ(database.bomParts(u"C5"_s).at(1)->parentReference(), u"C5"_s);
    EXPECT_EQ(references(u"Resistors"_s), "R1 | R9 | R10");
    EXPECT_EQ(problems(), "R9 BOMPART2 TooFewFields");
    database.clear();
    EXPECT_TRUE(database.bomParts(u"C5"_s).isEmpty());
    EXPECT_EQ(problems(), "");
}

TEST_F(BOMParts, OfAPrefixWithDigitsMayMeetAnotherPart)
{
    load(
        {{"U1", "reg", {{"BOMPART1", "1,A1,b"}, {"BOMPART2", "1,A,a"}, {"BOMPART3", "2,A,c"}}}, {"A9", "x"}});
    EXPECT_EQ(made(), "A10=a | A11=b | A12=c");
    EXPECT_EQ(joined(database.duplicateReferences()), "A11");
    EXPECT_EQ(joined(database.bomOnlyParts().duplicates()), "A11");
    EXPECT_EQ(rewritten(u"U1"_s), "BOMPART0: 1,'A','a' | BOMPART1: 1,'A1','b' | BOMPART2: 2,'A','c'")
        << "the one that is not held must not get lost";
}

TEST_F(BOMParts, AreRefusedInExcess)
{
    add({{"R1",
          "1k",
          {{"BOMPART1", "2000000000,SCR,M3"},
           {"BOMPART2", "99999999999999999999,SCR,M3"},
           {"BOMPART3", "two,SCR,M3"},
           {"BOMPART4", "-2,SCR,M3"},
           {"BOMPART5", "0,SCR,M3"},
           {"BOMPART6", "2,BIG,M3"},
           {"BOMPART7", "1,OK,M3,CODE,=x"}}},
         {"BIG2147483646", "1k"}});
    for (int i = 0; i < 11; ++i) {
        add({{"M" + QByteArray::number(i), "motor", {{"BOMPART1", "100000,NUT,M3"}}}});
    }
    database.load();
    EXPECT_EQ(madeParts().first(), u"OK1=M3"_s);
    EXPECT_EQ(madeParts().size(), 1 + 9 * 100'000) << "the tenth would go over the most of a design";
    EXPECT_EQ(problems(), "R1 BOMPART4 NoCount | R1 BOMPART7 NoAssignment | R1 BOMPART6 NumbersEnd"
                          " | R1 BOMPART1 TooManyParts | R1 BOMPART2 TooManyParts | R1 BOMPART3 NoCount"
                          " | M9 BOMPART1 DesignIsFull | M10 BOMPART1 DesignIsFull");
    EXPECT_EQ(database.bomOnlyParts().rewritten(u"R1"_s)->size(), 7) << "what makes no parts is kept";
}

TEST_F(BOMParts, AreAddedUnderAFreeName)
{
    load({{"C5", "1u", {{"BOMPART1", "1,SCR,M3"}, {"BOMPART3", "1,HS,sink"}}}});
    takeChanges();
    const auto added = database.addBOMParts(u"C5"_s, 2, u"SCR"_s, u"Bob\\'s bracket"_s);
    EXPECT_EQ(added, (DefinitionProperty{u"BOMPART4"_s, u"'2','SCR','Bob\\'s bracket'"_s}));
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(made(), "HS1=sink | SCR1=M3 | SCR2=Bob's bracket | SCR3=Bob's bracket");
    EXPECT_EQ(propertyNames(u"C5"_s), "BOMPART3 | BOMPART1 | BOMPART4");
    EXPECT_FALSE(database.addBOMParts(u"C6"_s, 1, u"SCR"_s, u"x"_s)) << "no such part";
    EXPECT_FALSE(database.addBOMParts(u"SCR1"_s, 1, u"SCR"_s, u"x"_s)) << "cannot be stored";
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, 0, u"SCR"_s, u"x"_s));
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, mostPartsOfADefinition + 1, u"SCR"_s, u"x"_s));
    EXPECT_FALSE(database.addBOMParts(u"C5"_s, 1, u"SCR"_s, u"a,b\\"_s));
    EXPECT_EQ(madeParts().size(), 4);
}

TEST_F(BOMParts, AreRemovedAndRewritten)
{
    load({{"C5",
           "1u",
           {{"BOMPART1", "'3','SCR','Bob\\'s','mpn=5\" \\'long\\'','Code=a,b'"},
            {"BOMPART2", "1,HS,back\\"},
            {"BOMPART9", "nothing"}}},
          {"R1", "1k", {{"BOMPART1", "1,SCR,M3,BOMLINKS=MPN=a%2Cb"}}}});
    ASSERT_EQ(made(), "SCR1=Bob's | SCR2=Bob's | SCR3=Bob's | HS1=back\\ | SCR4=M3");
    EXPECT_EQ(database.property(u"SCR2"_s, u"MPN"_s), u"5\" 'long'"_s);
    EXPECT_EQ(database.link(u"SCR4"_s, u"mpn"_s), u"a,b"_s);
    takeChanges();
    EXPECT_FALSE(database.removeBOMPart(u"C5"_s, u"SCR4"_s));
    EXPECT_FALSE(database.removeBOMPart(u"R1"_s, u"R1"_s));
    EXPECT_TRUE(database.removeBOMPart(u"C5"_s, u"SCR2"_s));
    EXPECT_EQ(takeChanges(), 1);
    EXPECT_EQ(references(), "C5 | R1 | SCR1 | SCR3 | HS1 | SCR4");
    EXPECT_EQ(database.part(u"SCR2"_s), nullptr);
    EXPECT_EQ(references(u"Miscellaneous"_s), "HS1 | SCR1 | SCR3 | SCR4");
    EXPECT_EQ(rewritten(u"C5"_s), "BOMPART0: 2,'SCR','Bob\\'s','CODE=a,b','MPN=5\" \\'long\\''"
                                  " | BOMPART1: 1,'HS',back\\ | BOMPART2: nothing");
    EXPECT_EQ(propertyNames(u"C5"_s), "BOMPART1 | BOMPART2 | BOMPART9 | BOMPART0");
    EXPECT_TRUE(database.removeBOMPart(u"R1"_s, u"SCR4"_s));
    EXPECT_EQ(database.link(u"SCR4"_s, u"MPN"_s), QString());
    EXPECT_EQ(rewritten(u"R1"_s), "");
    EXPECT_EQ(database.addBOMParts(u"C5"_s, 1, u"SCR"_s, u"M3"_s).value().name, u"BOMPART5"_s);
    EXPECT_EQ(madeParts().last(), u"SCR4=M3"_s);
}

TEST_F(BOMParts, AreRewrittenAfterAChange)
{
    load({{"C5", "1u", {{"BOMPART1", "'4','R','1k','MPN=x'"}, {"BOMPART2", "1,R,2k"}}}});
    takeChanges();
    EXPECT_TRUE(database.setBOMPartProperty(u"R2"_s, u"mpn"_s, u"Bob's, \"y\""_s));
    EXPECT_TRUE(database.setBOMPartProperty(u"R3"_s, u"VALUE"_s, u"2k"_s));
    EXPECT_EQ(takeChanges(), 2);
    EXPECT_TRUE(database.setBOMPartProperty(u"R3"_s, u"MPN"_s, QString()));
    EXPECT_TRUE(database.setBOMPartProperty(u"R1"_s, u"BOMLINKS"_s, u"MPN=a%2Cb"_s));
    EXPECT_EQ(database.link(u"R1"_s, u"MPN"_s), u"a,b"_s);
    EXPECT_TRUE(database.setBOMPartProperty(u"R1"_s, u"BOMLINKS"_s, QString()));
    EXPECT_EQ(database.link(u"R1"_s, u"MPN"_s), QString());
    EXPECT_EQ(rewritten(u"C5"_s), "BOMPART0: 2,'R','1k','MPN=x' | BOMPART1: 1,'R','1k','MPN=Bob\\'s, \"y\"'"
                                  " | BOMPART2: 2,'R','2k'");
    EXPECT_EQ(database.valueReferences(u"Resistors"_s, u"2k"_s).size(), 2);
    for (const QString &name : {u"a=b"_s, u".Placed"_s, QString()}) {
        EXPECT_FALSE(database.setBOMPartProperty(u"R1"_s, name, u"x"_s)) << name.toStdString();
    }
    EXPECT_FALSE(database.setBOMPartProperty(u"C5"_s, u"MPN"_s, u"x"_s));
    EXPECT_FALSE(database.setBOMPartProperty(u"R1"_s, u"MPN"_s, u"a,b\\"_s)) << "cannot be written";
}

TEST_F(BOMParts, CreatedAgainReadAsTheyWereWritten)
{
    load({{"C5", "1u"}});
    database.createBOMParts(u"C5"_s, {u"1,'SCR','',A=\\'x\\',B=\\"_s, u"BOMPART7='2','W','5\" wire'"_s});
    const std::string first = "BOMPART0: 1,'SCR','','A=\\'x\\'',B=\\ | BOMPART1: 2,'W','5\" wire'";
    EXPECT_EQ(rewritten(u"C5"_s), first);
    QStringList texts;
    const auto properties = database.bomOnlyParts().rewritten(u"C5"_s);
    ASSERT_TRUE(properties);
    for (const DefinitionProperty &property : *properties) {
        texts << property.text;
    }
    database.reload();
    EXPECT_EQ(made(), "");
    database.createBOMParts(u"C5"_s, texts);
    EXPECT_EQ(rewritten(u"C5"_s), first);
}

TEST_F(BOMParts, AreDefinedInThreeFormsOfQuotes)
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
    for (const auto &[text, expected] : cases) {
        database.reload();
        database.createBOMParts(u"C5"_s, {text});
        EXPECT_EQ(madeParts().value(0), expected) << text.toStdString();
    }
}

TEST_F(BOMParts, HaveTheirDefinitionsFoundInPropertyListOrder)
{
    const COMPONENT *component =
        netlist.add("C5", "1u", {{"BOMPART2", "b"}, {"BOMPARTS", "c"}, {"BOM", "x"}, {"BOMPART1", "a"}});
    EXPECT_EQ(joined(BOMPartsDatabase::bomPartDefinitions(*component)), "b | c | a");
}

} // namespace
