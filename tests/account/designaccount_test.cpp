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
    TableDesign::Properties stored;
    MarkedBy notInBom;
    MarkedBy notFitted;
    /// With the choices Exclude and Only.
    const char *reason;
    const char *reasonOfOnly;
};

/// One component for every reason there is; marks of sheets are those of the sheet "/Power".
const std::vector<MarkedCase> &markedCases()
{
    using enum MarkedBy;
    static const std::vector<MarkedCase> cases = {
        {"R1", {}, Nothing, Nothing, "", "fitted"},
        {"R2", {{"BOMSKIP", "0"}}, Symbol, Nothing, "property BOMSKIP", "property BOMSKIP"},
        {"R3",
         {},
         Symbol,
         Nothing,
         "excluded from the BOM on the symbol",
         "excluded from the BOM on the symbol"},
        {"R4", {}, Sheet, Symbol, "excluded on sheet /Power", "excluded on sheet /Power"},
        {"R5",
         {},
         RuleArea,
         Nothing,
         "excluded by the rule area around it",
         "excluded by the rule area around it"},
        {"R6", {}, Nothing, Symbol, "not fitted: marked on the symbol", ""},
        {"R7", {}, Nothing, Sheet, "not fitted: marked on sheet /Power", ""},
        {"R8", {}, Nothing, RuleArea, "not fitted: rule area around it", ""},
        {"R9", {{"dnp", "yes"}}, Nothing, Property, "not fitted: property dnp=yes", ""},
        {"R10", {}, Nothing, Symbol, "not fitted: marked on the symbol", ""},
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
    for (const DnpChoice choice : {DnpChoice::Exclude, DnpChoice::Only}) {
        const LoadedDesign design = markedDesign(choice);
        for (std::size_t i = 0; i < markedCases().size(); ++i) {
            const MarkedCase &c = markedCases()[i];
            const std::string reason = skipReason(design, design.design().components()[i]).toStdString();
            EXPECT_EQ(reason, choice == DnpChoice::Only ? c.reasonOfOnly : c.reason) << c.reference;
            EXPECT_EQ(design.components()[i]->properties->test("BOMSKIP") == 0, reason.empty())
                << c.reference;
        }
    }
    const auto skipped = skippedComponents(markedDesign(DnpChoice::Exclude));
    ASSERT_EQ(skipped.size(), 8U);
    EXPECT_EQ(skipped[4], (SkippedComponents{QStringLiteral("not fitted: marked on the symbol"),
                                             {QStringLiteral("R6"), QStringLiteral("R10")}}));
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

TEST(ComponentAccount, FindsRepeatedReferencesWithTheirPlaces)
{
    auto table = std::make_unique<TableDesign>();
    table->add("R1", "1k");
    table->add("C1", "1u");
    table->add("R1", "2k").file = 1;
    table->add("C1", "1u").notInBom = MarkedBy::Symbol;
    table->add("R1", "1k").line = 0;
    table->add("r1", "1k");
    const auto repeated = accountOf(std::move(table)).repeated;
    ASSERT_EQ(repeated.size(), 2U);
    EXPECT_EQ(repeated[0].message(), QStringLiteral("/d/amp.kicad_sch:10: R1 occurs 3 times, also at "
                                                    "/d/power.kicad_sch:30, /d/amp.kicad_sch"));
    EXPECT_EQ(repeated[1].message(), QStringLiteral("/d/amp.kicad_sch:20: C1 occurs 2 times, also at "
                                                    "/d/amp.kicad_sch:40; 1 of them is in the bill"));
}

TEST(ComponentAccount, NamesTheSheetWhereAFileServesSeveral)
{
    auto table = std::make_unique<TableDesign>();
    table->useSheet(QStringLiteral("/Second"), 1);
    for (const quint32 sheet : {1U, 2U}) {
        designs::Component &component = table->add("", "1k");
        component.file = 1;
        component.sheet = sheet;
        component.line = 4;
    }
    EXPECT_EQ(accountOf(std::move(table)).repeated.at(0).message(),
              QStringLiteral("/d/power.kicad_sch:4 (sheet /Power): 2 symbols have no reference, also at "
                             "/d/power.kicad_sch:4 (sheet /Second)"));
}

TEST(ComponentAccount, DoubtsARepeatedReferenceUnlessAllAreExcluded)
{
    using enum MarkedBy;
    const std::tuple<MarkedBy, MarkedBy, bool> cases[] = {
        {Nothing, Nothing, true}, {Nothing, Symbol, true}, {Sheet, Symbol, false}};
    for (const auto &[first, second, expected] : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("H1", "hole").notInBom = first;
        table->add("H1", "hole").notInBom = second;
        EXPECT_EQ(accountOf(std::move(table)).repeated.at(0).isDoubtful(), expected);
    }
}

struct SymbolCase
{
    const char *what;
    designs::SymbolCount read;
    designs::SymbolCount counted;
    QString problem;
    QString disagreements;
};

TEST(SymbolAccount, AgreesOnlyWhenEverySymbolIsAccountedFor)
{
    // Two components each.
    const SymbolCase cases[] = {
        {"all well", {7, 3, 2}, {7, 3, 0}, {}, {}},
        {"a symbol was not read",
         {7, 3, 2},
         {8, 3, 0},
         {},
         QStringLiteral("the files hold 8 symbols, 7 were read")},
        {"a power symbol was taken for a part",
         {7, 3, 2},
         {7, 4, 0},
         {},
         QStringLiteral("the files hold 4 power symbols, 3 were read")},
        {"a symbol was read and lost",
         {8, 3, 2},
         {8, 3, 0},
         {},
         QStringLiteral("8 symbols are drawn, 7 are accounted for")},
        {"a unit was counted twice",
         {7, 3, 3},
         {7, 3, 0},
         {},
         QStringLiteral("7 symbols are drawn, 8 are accounted for")},
        {"a file is gone",
         {7, 3, 2},
         {},
         QStringLiteral("is gone"),
         QStringLiteral("/d/amp.kicad_sch: is gone")},
    };
    for (const SymbolCase &c : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("U1", "op");
        table->add("U2", "op");
        table->editSymbols() = c.read;
        table->setRecount(c.counted, {QStringLiteral("/d/amp.kicad_sch"), 0, c.problem});
        const SymbolAccount account = symbolAccountOf(LoadedDesign(std::move(table), DnpChoice::Exclude));
        EXPECT_EQ(account.disagreements.join(u'|'), c.disagreements) << c.what;
        EXPECT_EQ(account.components, 2);
    }
}

TEST(PropertyTwins, AreNamesThatMeanTheSameToAReport)
{
    auto table = std::make_unique<TableDesign>();
    table->add("R1", "1k", {{"MPN", "a"}, {"Footprint", "R_0603"}});
    table->add("R2", "1k", {{"Mpn", "a"}, {"Footprint", ""}, {"PACKAGE", "0603"}});
    table->add("R3", "1k",
               {{"MPN", "a"}, {"Mpn", "b"}, {"mpn", "c"}, {"Footprint", "R_0603"}, {"PACKAGE", "0603"}});
    table->add("R4", "1k", {{"MPN", "a"}, {"Mpn", "a"}, {"VALUE", "2k"}, {"Other", ""}});
    std::string found;
    for (const PropertyTwins &twins : propertyTwins(LoadedDesign(std::move(table), DnpChoice::Exclude))) {
        for (qsizetype i = 0; i < twins.names.size(); ++i) {
            found += twins.names[i].toStdString() + ':' + std::to_string(twins.counts[i]) + ' ';
        }
        found += "hides on " + twins.hiding.join(u',').toStdString() + '\n';
    }
    EXPECT_EQ(found, "Value:4 VALUE:1 hides on R4\n"
                     "Footprint:3 PACKAGE:2 hides on R3\n"
                     "MPN:3 Mpn:3 mpn:1 hides on R3\n")
        << "an empty footprint hides nothing";
}

} // namespace
