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
std::string answer(const LoadedDesign &design, std::size_t index, const char *name)
{
    const auto value = design.components()[index]->properties->find(PROPNAME(name));
    return value ? std::string(value->data(), std::size_t(value->size())) : "-";
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
        {"aliases hold for the exact spelling only", {{"Footprint", "R_0603"}}, "Package", "-"},
        {"value", {}, "VALUE", "10k"},
        {"value as stored", {}, "Value", "10k"},
        {"reference", {}, "reference", "R1"},
        {"empty is there", {{"MPN", ""}}, "MPN", ""},
        {"missing", {{"MPN", "x"}}, "Supplier", "-"},
        {"beyond ASCII", {{"Größe", "ä"}}, "GRÖßE", "ä"},
    };
    for (const Case &c : cases) {
        auto design = std::make_unique<TableDesign>();
        design->add("R1", "10k", c.stored);
        const LoadedDesign loaded(std::move(design), DnpChoice::Exclude);
        EXPECT_EQ(answer(loaded, 0, c.asked), c.expected) << c.what;
    }
}

TEST(PropertyLookUp, APreparedNameServesSeveralDesignsInTurn)
{
    auto first = std::make_unique<TableDesign>();
    first->add("R1", "10k", {{"MPN", "one"}});
    auto second = std::make_unique<TableDesign>();
    second->add("R1", "10k", {{"Other", "x"}, {"Mpn", "two"}});
    const LoadedDesign a(std::move(first), DnpChoice::Exclude);
    const LoadedDesign b(std::move(second), DnpChoice::Exclude);

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
    const char *what;
    TableDesign::Properties stored;
    MarkedBy notInBom;
    MarkedBy notFitted;
    DnpChoice choice;
    const char *skip;
    const char *dnp;
    std::vector<QByteArray> names;
};

TEST(FlagProperties, AnswerFromTheFlagsAndTheChoice)
{
    using enum MarkedBy;
    using enum DnpChoice;
    const FlagCase cases[] = {
        {"plain", {{"A", "x"}}, Nothing, Nothing, Exclude, "-", "-", {"A"}},
        {"in_bom no", {{"A", "x"}}, Sheet, Nothing, Include, "1", "-", {"A", "BOMSKIP"}},
        {"stored mark", {{"BomSkip", ""}}, Nothing, Nothing, Include, "", "-", {"BomSkip"}},
        {"stored mark and in_bom no", {{"BOMSKIP", "y"}}, Symbol, Nothing, Include, "y", "-", {"BOMSKIP"}},
        {"not fitted, left out", {{"A", "x"}}, Nothing, Symbol, Exclude, "1", "1", {"A", "DNP"}},
        {"not fitted, listed", {{"A", "x"}}, Nothing, RuleArea, Include, "-", "1", {"A", "DNP"}},
        {"not fitted only, not fitted", {}, Nothing, Sheet, Only, "-", "1", {"DNP"}},
        {"not fitted only, fitted", {{"A", "x"}}, Nothing, Nothing, Only, "1", "-", {"A"}},
        {"not fitted only does not undo a skip mark", {}, Symbol, Sheet, Only, "1", "1", {"DNP", "BOMSKIP"}},
        {"property says so",
         {{"dnp", "yes"}, {"A", "x"}},
         Nothing,
         Property,
         Include,
         "-",
         "1",
         {"dnp", "A"}},
        {"flag wins over a stored 0", {{"DNP", "0"}}, Nothing, Symbol, Include, "-", "1", {"DNP"}},
        {"property that says no is absent",
         {{"DNP", "0"}, {"A", "x"}},
         Nothing,
         Nothing,
         Exclude,
         "-",
         "-",
         {"A"}},
        {"two spellings count once",
         {{"DNP", ""}, {"dnp", "1"}},
         Nothing,
         Property,
         Include,
         "-",
         "1",
         {"DNP"}},
    };
    for (const FlagCase &c : cases) {
        auto design = std::make_unique<TableDesign>();
        designs::Component &component = design->add("R1", "10k", c.stored);
        component.notInBom = c.notInBom;
        component.notFitted = c.notFitted;
        const LoadedDesign loaded(std::move(design), c.choice);
        EXPECT_EQ(answer(loaded, 0, "BOMSKIP"), c.skip) << c.what;
        EXPECT_EQ(answer(loaded, 0, "DNP"), c.dnp) << c.what;
        EXPECT_EQ(answer(loaded, 0, "Dnp"), c.dnp) << c.what;
        const QByteArrayList names = loaded.components()[0]->properties->names();
        EXPECT_EQ(std::vector<QByteArray>(names.begin(), names.end()), c.names) << c.what;
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
