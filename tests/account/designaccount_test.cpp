// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/designaccount.h"

#include "account/design/propertytwins.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

namespace {

using designs::MarkedBy;

struct MarkedCase
{
    const char *reference;
    MarkedBy notInBom;
    MarkedBy notFitted;
    /// Why it is skipped when parts that are not fitted are left out.
    const char *reason;
    TableDesign::Properties stored = {};
};

/// One component for every reason there is; marks of sheets are those of the sheet "/Power".
const std::vector<MarkedCase> &markedCases()
{
    using enum MarkedBy;
    static const std::vector<MarkedCase> cases = {
        {"R1", Nothing, Nothing, ""},
        {"R2", Symbol, Nothing, "property BOMSKIP", {{"BOMSKIP", "0"}}},
        {"R3", Symbol, Nothing, "excluded from the BOM on the symbol"},
        {"R4", Sheet, Symbol, "excluded on sheet /Power"},
        {"R5", RuleArea, Nothing, "excluded by the rule area around it"},
        {"R6", Nothing, Symbol, "not fitted: marked on the symbol"},
        {"R7", Nothing, Sheet, "not fitted: marked on sheet /Power"},
        {"R8", Nothing, RuleArea, "not fitted: rule area around it"},
        {"R9", Nothing, Property, "not fitted: property dnp=yes", {{"dnp", "yes"}}},
        {"R10", Nothing, Symbol, "not fitted: marked on the symbol"},
    };
    return cases;
}

LoadedDesign markedDesign(DnpChoice choice)
{
    auto design = std::make_unique<TableDesign>();
    for (const MarkedCase &c : markedCases()) {
        designs::Component &component = design->add(c.reference, "1k", c.stored);
        component.notInBom = c.notInBom;
        component.notFitted = c.notFitted;
        component.notInBomSheet = component.notFittedSheet = 1;
    }
    return LoadedDesign(std::move(design), choice);
}

ComponentAccount accountOf(std::unique_ptr<TableDesign> design)
{
    return componentAccountOf(LoadedDesign(std::move(design), DnpChoice::Exclude));
}

TEST(ComponentAccount, NamesTheReasonOfEveryComponent)
{
    const LoadedDesign design = markedDesign(DnpChoice::Exclude);
    for (std::size_t i = 0; i < markedCases().size(); ++i) {
        const MarkedCase &c = markedCases()[i];
        EXPECT_EQ(skipReason(design, design.design().components()[i]).toStdString(), c.reason) << c.reference;
        EXPECT_EQ(design.components()[i]->properties->test("BOMSKIP") == 0, *c.reason == 0) << c.reference;
    }
    const auto skipped = skippedComponents(design);
    ASSERT_EQ(skipped.size(), 8U);
    EXPECT_EQ(skipped[4].reason.toStdString(), "not fitted: marked on the symbol");
    EXPECT_EQ(skipped[4].references.join(u','), QStringLiteral("R6,R10"));

    const LoadedDesign only = markedDesign(DnpChoice::Only);
    EXPECT_EQ(skipReason(only, only.design().components()[0]).toStdString(), "fitted");
    EXPECT_EQ(skipReason(only, only.design().components()[3]).toStdString(), "excluded on sheet /Power");
    EXPECT_EQ(skipReason(only, only.design().components()[5]).toStdString(), "");
}

TEST(ComponentAccount, CountsByMarksAndTheNotFittedChoice)
{
    const std::tuple<DnpChoice, int, int, int> cases[] = {
        {DnpChoice::Exclude, 1, 5, 0}, {DnpChoice::Include, 6, 0, 5}, {DnpChoice::Only, 5, 1, 5}};
    for (const auto &[choice, listed, leftOut, listedNotFitted] : cases) {
        const ComponentAccount account = componentAccountOf(markedDesign(choice));
        EXPECT_EQ(account.components, 10);
        EXPECT_EQ(account.listed, listed);
        EXPECT_EQ(account.leftOutByChoice, leftOut);
        EXPECT_EQ(account.listedNotFitted.size(), listedNotFitted);
        EXPECT_EQ(account.excluded, 4);
        EXPECT_EQ(account.excludedNotFitted, 1);
        EXPECT_EQ(account.notFitted, 6);
    }
}

struct Placed
{
    const char *reference;
    quint32 file;
    quint32 sheet;
    MarkedBy notInBom = MarkedBy::Nothing;
};

/// The messages about repeated references, one a line; those that are meant so begin with "-".
std::string repeatedOf(const std::vector<Placed> &rows, bool hasSecondSheet = false)
{
    auto table = std::make_unique<TableDesign>();
    if (hasSecondSheet) {
        table->useSheet(QStringLiteral("/Second"), 1);
    }
    for (const Placed &row : rows) {
        designs::Component &component = table->add(row.reference, "1k");
        component.file = row.file;
        component.sheet = row.sheet;
        component.notInBom = row.notInBom;
    }
    std::string text;
    for (const RepeatedReference &repeated : accountOf(std::move(table)).repeated) {
        text += (repeated.isDoubtful() ? "" : "-") + repeated.message().toStdString() + '\n';
    }
    return text;
}

TEST(ComponentAccount, FindsRepeatedReferencesWithTheirPlaces)
{
    using enum MarkedBy;
    EXPECT_EQ(
        repeatedOf({{"R1", 0, 0}, {"C1", 0, 0}, {"R1", 1, 0}, {"C1", 0, 0, Symbol}, {"r1", 0, 0}}),
        "/d/amp.kicad_sch:10: R1 occurs 2 times, also at /d/power.kicad_sch:30\n"
        "/d/amp.kicad_sch:20: C1 occurs 2 times, also at /d/amp.kicad_sch:40; 1 of them is in the bill\n");
    EXPECT_EQ(repeatedOf({{"H1", 0, 0, Symbol}, {"H1", 0, 0, Sheet}}),
              "-/d/amp.kicad_sch:10: H1 occurs 2 times, also at /d/amp.kicad_sch:20; none of them is in the "
              "bill\n");
    EXPECT_EQ(repeatedOf({{"", 1, 1}, {"", 1, 2}}, true),
              "/d/power.kicad_sch:10 (sheet /Power): 2 symbols have no reference, also at "
              "/d/power.kicad_sch:20 (sheet /Second)\n");
    EXPECT_EQ(repeatedOf(std::vector<Placed>(7, {"R1", 0, 0})),
              "/d/amp.kicad_sch:10: R1 occurs 7 times, also at /d/amp.kicad_sch:20, /d/amp.kicad_sch:30, "
              "/d/amp.kicad_sch:40, /d/amp.kicad_sch:50, /d/amp.kicad_sch:60, ...\n");
}

struct SymbolCase
{
    designs::SymbolCount read;
    designs::SymbolCount counted;
    const char *disagreement;
};

TEST(SymbolAccount, AgreesOnlyWhenEverySymbolIsAccountedFor)
{
    // Two components each.
    const SymbolCase cases[] = {
        {{7, 3, 2}, {7, 3, 0}, ""},
        {{7, 3, 2}, {8, 3, 0}, "the files hold 8 symbols, 7 were read"},
        {{7, 3, 2}, {7, 4, 0}, "the files hold 4 power symbols, 3 were read"},
        {{8, 3, 2}, {8, 3, 0}, "8 symbols are drawn, 7 are accounted for"},
        {{7, 3, 3}, {7, 3, 0}, "7 symbols are drawn, 8 are accounted for"},
    };
    for (const SymbolCase &c : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("U1", "op");
        table->add("U2", "op");
        table->editSymbols() = c.read;
        table->setRecount(c.counted);
        const SymbolAccount account = symbolAccountOf(LoadedDesign(std::move(table), DnpChoice::Exclude));
        EXPECT_EQ(account.disagreements.join(u'|').toStdString(), c.disagreement);
        EXPECT_EQ(account.components, 2);
    }
}

TEST(SymbolAccount, SaysWhenTheFilesCannotBeCounted)
{
    auto table = std::make_unique<TableDesign>();
    table->setRecount({}, {QStringLiteral("/d/amp.kicad_sch"), 0, QStringLiteral("is gone")});
    const SymbolAccount account = symbolAccountOf(LoadedDesign(std::move(table), DnpChoice::Exclude));
    EXPECT_EQ(account.disagreements.join(u'|').toStdString(), "/d/amp.kicad_sch: is gone");
}

TEST(PropertyTwins, AreNamesThatMeanTheSameToAReport)
{
    auto table = std::make_unique<TableDesign>();
    table->add("R1", "1k", {{"MPN", "a"}, {"Footprint", "R_0603"}});
    table->add("R2", "1k", {{"Mpn", "a"}, {"Footprint", ""}, {"PACKAGE", "0603"}});
    table->add("R3", "1k",
               {{"MPN", "a"}, {"Mpn", "b"}, {"mpn", "c"}, {"Footprint", "R_0603"}, {"PACKAGE", "0603"}});
    table->add("R4", "1k", {{"MPN", "a"}, {"Mpn", "a"}, {"VALUE", "2k"}, {"Other", ""}});
    table->add("R5", "1k", {{"MPN", ""}, {"Mpn", "a"}, {"mpn", "b"}});
    std::string found;
    for (const PropertyTwins &twins : propertyTwins(LoadedDesign(std::move(table), DnpChoice::Exclude))) {
        for (qsizetype i = 0; i < twins.names.size(); ++i) {
            found += twins.names[i].toStdString() + ':' + std::to_string(twins.counts[i]) + ' ';
        }
        found += "hides on " + twins.hiding.join(u',').toStdString() + '\n';
    }
    EXPECT_EQ(found, "Value:5 VALUE:1 hides on R4\n"
                     "Footprint:3 PACKAGE:2 hides on R3\n"
                     "MPN:4 Mpn:4 mpn:2 hides on R3,R5\n")
        << "an empty property hides nothing";
}

} // namespace
