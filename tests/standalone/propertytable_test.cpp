// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/propertytable.h"

#include "host/netlist/proplist.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using designs::MarkedBy;

/// The answer as text, "-" for no such property.
std::string answer(const LoadedDesign &design, const char *name)
{
    const auto value = design.components()[0]->properties->find(PROPNAME(name));
    return value ? value->toByteArray().toStdString() : "-";
}

/// All properties as text.
std::string listed(const LoadedDesign &design)
{
    QByteArrayList all;
    for (const PROPERTY &property : design.components()[0]->properties->all()) {
        all << property.name.toByteArray() + '=' + property.value.toByteArray();
    }
    return all.join(' ').toStdString();
}

/// A design of R1 with these properties and marks.
LoadedDesign designOf(const TableDesign::Properties &stored, MarkedBy notInBom = MarkedBy::Nothing,
                      MarkedBy notFitted = MarkedBy::Nothing, DnpChoice choice = DnpChoice::Exclude)
{
    auto design = std::make_unique<TableDesign>();
    designs::Component &component = design->add("R1", "10k", stored);
    component.notInBom = notInBom;
    component.notFitted = notFitted;
    return LoadedDesign(std::move(design), choice);
}

struct Case
{
    const char *what;
    TableDesign::Properties stored;
    const char *asked;
    const char *expected;
};

TEST(PropertyLookUp, PrefersTheExactNameThenTheAliasThenOtherLetterCase)
{
    const Case cases[] = {
        {"exact", {{"mpn", "small"}, {"MPN", "large"}}, "MPN", "large"},
        {"exact, stored last", {{"MPN", "large"}, {"mpn", "small"}}, "mpn", "small"},
        {"another case", {{"mpn", "small"}}, "Mpn", "small"},
        {"first of two other cases", {{"mPn", "a"}, {"mpN", "b"}}, "MPN", "a"},
        {"alias", {{"Footprint", "R_0603"}}, "PACKAGE", "R_0603"},
        {"stored name before alias", {{"Footprint", "R_0603"}, {"PACKAGE", "0603"}}, "PACKAGE", "0603"},
        {"alias before other case", {{"package", "0603"}, {"Footprint", "R_0603"}}, "PACKAGE", "R_0603"},
        {"other case where the alias is absent", {{"package", "0603"}}, "PACKAGE", "0603"},
        {"alias in another letter case", {{"Footprint", "R_0603"}}, "Package", "R_0603"},
        {"value", {}, "VALUE", "10k"},
        {"value as stored", {}, "Value", "10k"},
        {"reference", {}, "reference", "R1"},
        {"empty is there", {{"MPN", ""}}, "MPN", ""},
        {"empty hides nothing", {{"MPN", ""}, {"mPn", ""}, {"Mpn", "x"}, {"mpn", "y"}}, "MPN", "x"},
        {"empty hides no alias", {{"PACKAGE", ""}, {"Footprint", "R_0603"}}, "PACKAGE", "R_0603"},
        {"empty hides no value", {{"VALUE", ""}}, "VALUE", "10k"},
        {"missing", {{"MPN", "x"}}, "Supplier", "-"},
        {"beyond ASCII", {{"Größe", "ä"}}, "GRÖßE", "ä"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(answer(designOf(c.stored), c.asked), c.expected) << c.what;
    }
}

TEST(PropertyLookUp, APreparedNameServesSeveralDesignsInTurn)
{
    const LoadedDesign a = designOf({{"MPN", "one"}});
    const LoadedDesign b = designOf({{"Other", "x"}, {"Mpn", "two"}});
    const PROPNAME name("MPN");
    EXPECT_EQ(a.components()[0]->properties->find(name), QByteArrayView("one"));
    EXPECT_EQ(b.components()[0]->properties->find(name), QByteArrayView("two"));
    EXPECT_EQ(a.components()[0]->properties->find(name), QByteArrayView("one"));
    EXPECT_EQ(a.components()[0]->properties->test("mpn"), 1);
    EXPECT_EQ((*a.components()[0]->properties)["Supplier"], QByteArrayView());
}

TEST(PropertyLookUp, FindsTheNamesThatBeginAlike)
{
    auto design = std::make_unique<TableDesign>();
    design->add("R1", "10k", {{"MPN", "x"}});
    design->add("R2", "10k", {{"BOMPART2", "b"}, {"MPN", "x"}, {"bompart3", "c"}, {"BOMPART1", "a"}});
    design->add("R3", "10k", {{"BOMPART1", "d"}, {"BOMPART", "e"}});
    const LoadedDesign loaded(std::move(design), DnpChoice::Exclude);
    const PROPPREFIX prefix("BOMPART");
    const auto found = [&](std::size_t index) {
        std::string text;
        for (const PROPERTY &property : loaded.components()[index]->properties->startingwith(prefix)) {
            text += (property.name.toByteArray() + '=' + property.value.toByteArray() + ' ').toStdString();
        }
        return text;
    };
    EXPECT_EQ(found(0), "");
    EXPECT_EQ(found(1), "BOMPART2=b BOMPART1=a ");
    EXPECT_EQ(found(2), "BOMPART1=d BOMPART=e ");
    EXPECT_TRUE(loaded.components()[0]->properties->startingwith(PROPPREFIX("Q")).empty());
}

struct FlagCase
{
    TableDesign::Properties stored;
    MarkedBy notInBom;
    MarkedBy notFitted;
    DnpChoice choice;
    const char *skip;
    const char *dnp;
    const char *all;
};

TEST(FlagProperties, AnswerFromTheFlagsAndTheChoice)
{
    using enum MarkedBy;
    using enum DnpChoice;
    const FlagCase cases[] = {
        {{{"A", "x"}}, Nothing, Nothing, Exclude, "-", "-", "A=x"},
        {{{"A", "x"}}, Sheet, Nothing, Include, "1", "-", "A=x BOMSKIP=1"},
        {{{"BomSkip", ""}}, Nothing, Nothing, Include, "", "-", "BomSkip="},
        {{{"BOMSKIP", "y"}}, Symbol, Nothing, Include, "y", "-", "BOMSKIP=y"},
        {{{"A", "x"}}, Nothing, Symbol, Exclude, "1", "1", "A=x DNP=1"},
        {{{"A", "x"}}, Nothing, RuleArea, Include, "-", "1", "A=x DNP=1"},
        {{}, Nothing, Sheet, Only, "-", "1", "DNP=1"},
        {{{"A", "x"}}, Nothing, Nothing, Only, "1", "-", "A=x"},
        // That only these are wanted does not undo a mark.
        {{}, Symbol, Sheet, Only, "1", "1", "DNP=1 BOMSKIP=1"},
        {{{"dnp", "yes"}, {"A", "x"}}, Nothing, Property, Include, "-", "1", "dnp=1 A=x"},
        // The flag, not the stored text, decides; two spellings count once.
        {{{"DNP", "0"}}, Nothing, Symbol, Include, "-", "1", "DNP=1"},
        {{{"DNP", "0"}, {"A", "x"}}, Nothing, Nothing, Exclude, "-", "-", "A=x"},
        {{{"DNP", ""}, {"dnp", "1"}}, Nothing, Property, Include, "-", "1", "DNP=1"},
        {{{"A", ""}, {"a", "x"}}, Nothing, Nothing, Include, "-", "-", "A= a=x"},
    };
    for (const FlagCase &c : cases) {
        const LoadedDesign design = designOf(c.stored, c.notInBom, c.notFitted, c.choice);
        const std::string what = "case " + std::to_string(&c - cases);
        EXPECT_EQ(answer(design, "BOMSKIP"), c.skip) << what;
        EXPECT_EQ(answer(design, "DNP"), c.dnp) << what;
        EXPECT_EQ(answer(design, "Dnp"), c.dnp) << what;
        EXPECT_EQ(listed(design), c.all) << what;
    }
}

TEST(FlagProperties, StandAmongAllNamesWhenTheyOccur)
{
    auto design = std::make_unique<TableDesign>();
    design->add("R1", "10k", {{"MPN", "x"}}).notFitted = MarkedBy::Symbol;
    design->add("R2", "10k").notInBom = MarkedBy::Symbol;
    const LoadedDesign loaded(std::move(design), DnpChoice::Exclude);
    EXPECT_EQ(loaded.properties().allNames(), (QByteArrayList{"Footprint", "MPN", "DNP", "BOMSKIP"}));
}

} // namespace
