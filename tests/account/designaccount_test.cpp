// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/designtally.h"
#include "account/design/partsledger.h"
#include "account/design/propertytwins.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

namespace {

using designs::MarkedBy;

/// One component for every reason there is.
std::unique_ptr<TableDesign> marked()
{
    auto design = std::make_unique<TableDesign>();
    design->add("R1", "1k");
    design->add("R2", "1k", {{"BOMSKIP", "0"}}).notInBom = MarkedBy::Symbol;
    design->add("R3", "1k").notInBom = MarkedBy::Symbol;
    designs::Component &inSheet = design->add("R4", "1k");
    inSheet.notInBom = MarkedBy::Sheet;
    inSheet.notInBomSheet = 1;
    inSheet.notFitted = MarkedBy::Symbol;
    design->add("R5", "1k").notInBom = MarkedBy::RuleArea;
    design->add("R6", "1k").notFitted = MarkedBy::Symbol;
    designs::Component &unfittedSheet = design->add("R7", "1k");
    unfittedSheet.notFitted = MarkedBy::Sheet;
    unfittedSheet.notFittedSheet = 1;
    design->add("R8", "1k").notFitted = MarkedBy::RuleArea;
    design->add("R9", "1k", {{"dnp", "yes"}}).notFitted = MarkedBy::Property;
    design->add("R10", "1k").notFitted = MarkedBy::Symbol;
    return design;
}

TEST(Ledger, NamesTheReasonOfEveryComponent)
{
    const LoadedDesign design(marked(), DnpChoice::Exclude);
    const PartsLedger ledger(design);
    const char *expected[] = {"",
                              "property BOMSKIP",
                              "excluded from the BOM on the symbol",
                              "excluded on sheet /Power",
                              "excluded by the rule area around it",
                              "not fitted: marked on the symbol",
                              "not fitted: marked on sheet /Power",
                              "not fitted: rule area around it",
                              "not fitted: property dnp=yes",
                              "not fitted: marked on the symbol"};
    ASSERT_EQ(ledger.components(), qsizetype(std::size(expected)));
    for (qsizetype i = 0; i < ledger.components(); ++i) {
        EXPECT_EQ(ledger.skipReason(i).toStdString(), expected[i]) << qPrintable(ledger.reference(i));
        EXPECT_EQ(ledger.isListed(i), ledger.skipReason(i).isEmpty());
        EXPECT_EQ(design.components()[std::size_t(i)]->properties->test("BOMSKIP") == 0, ledger.isListed(i));
    }
    EXPECT_EQ(ledger.listed(), 1);
    EXPECT_EQ(ledger.leftOutByChoice(), 5);
    const auto skipped = ledger.skipped();
    ASSERT_EQ(skipped.size(), 8U);
    EXPECT_EQ(skipped[4].reason, QStringLiteral("not fitted: marked on the symbol"));
    EXPECT_EQ(skipped[4].references, (QStringList{QStringLiteral("R6"), QStringLiteral("R10")}));
}

TEST(Ledger, FollowsTheNotFittedChoice)
{
    const LoadedDesign all(marked(), DnpChoice::Include);
    EXPECT_EQ(PartsLedger(all).leftOutByChoice(), 0);
    EXPECT_EQ(PartsLedger(all).listed(), 6);
    EXPECT_EQ(PartsLedger(all).listedNotFitted().size(), 5);

    const LoadedDesign only(marked(), DnpChoice::Only);
    EXPECT_EQ(PartsLedger(only).skipReason(0), QStringLiteral("fitted"));
    EXPECT_EQ(PartsLedger(only).listed(), 5);
    EXPECT_EQ(PartsLedger(only).leftOutByChoice(), 1);
}

TEST(Ledger, NamesTheFittedPartOnlyAsFitted)
{
    const LoadedDesign only(marked(), DnpChoice::Only);
    EXPECT_EQ(PartsLedger(only).skipReason(3), QStringLiteral("excluded on sheet /Power"));
    EXPECT_TRUE(PartsLedger(only).isFitted(0));
    EXPECT_FALSE(PartsLedger(only).isFitted(3));
}

TEST(Ledger, FindsRepeatedReferencesWithTheirPlaces)
{
    auto table = std::make_unique<TableDesign>();
    table->add("R1", "1k");
    table->add("C1", "1u");
    table->add("R1", "2k").file = 1;
    table->add("C1", "1u").notInBom = MarkedBy::Symbol;
    table->add("R1", "1k").line = 0;
    table->add("r1", "1k");
    const LoadedDesign design(std::move(table), DnpChoice::Exclude);
    const auto repeated = PartsLedger(design).repeated();
    ASSERT_EQ(repeated.size(), 2U);
    EXPECT_EQ(repeated[0].reference, QStringLiteral("R1"));
    EXPECT_EQ(repeated[0].places,
              (QStringList{QStringLiteral("/d/amp.kicad_sch:10"), QStringLiteral("/d/power.kicad_sch:30"),
                           QStringLiteral("/d/amp.kicad_sch")}));
    EXPECT_EQ(repeated[0].listed, 3);
    EXPECT_EQ(repeated[0].message(), QStringLiteral("/d/amp.kicad_sch:10: R1 occurs 3 times, also at "
                                                    "/d/power.kicad_sch:30, /d/amp.kicad_sch"));
    EXPECT_EQ(repeated[1].reference, QStringLiteral("C1"));
    EXPECT_EQ(repeated[1].listed, 1);
    EXPECT_TRUE(repeated[1].message().endsWith(QStringLiteral("; 1 of them is in the bill")));
}

TEST(Ledger, NamesTheSheetWhereAFileServesSeveral)
{
    auto table = std::make_unique<TableDesign>();
    table->useSheet(QStringLiteral("/Second"), 1);
    for (const quint32 sheet : {1U, 2U}) {
        designs::Component &component = table->add("", "1k");
        component.file = 1;
        component.sheet = sheet;
        component.line = 4;
    }
    const LoadedDesign design(std::move(table), DnpChoice::Exclude);
    EXPECT_EQ(PartsLedger(design).repeated().at(0).message(),
              QStringLiteral("/d/power.kicad_sch:4 (sheet /Power): 2 symbols have no reference, also at "
                             "/d/power.kicad_sch:4 (sheet /Second)"));
}

TEST(Ledger, DoubtsARepeatedReferenceUnlessAllAreExcluded)
{
    const std::tuple<MarkedBy, MarkedBy, bool> cases[] = {
        {MarkedBy::Nothing, MarkedBy::Nothing, true},
        {MarkedBy::Nothing, MarkedBy::Symbol, true},
        {MarkedBy::Sheet, MarkedBy::Symbol, false},
    };
    for (const auto &[first, second, expected] : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("H1", "hole").notInBom = first;
        table->add("H1", "hole").notInBom = second;
        const LoadedDesign design(std::move(table), DnpChoice::Exclude);
        EXPECT_EQ(PartsLedger(design).repeated().at(0).isDoubtful(), expected);
    }
}

struct TallyCase
{
    const char *what;
    designs::SymbolCount read;
    designs::SymbolCount counted;
    int disagreements;
};

TEST(Tally, AgreesOnlyWhenEverySymbolIsAccountedFor)
{
    // Two components each.
    const TallyCase cases[] = {
        {"all well", {7, 3, 2}, {7, 3, 0}, 0},
        {"a symbol was not read", {7, 3, 2}, {8, 3, 0}, 1},
        {"a power symbol was taken for a part", {7, 3, 2}, {7, 4, 0}, 1},
        {"a symbol was read and lost", {8, 3, 2}, {8, 3, 0}, 1},
        {"a unit was counted twice", {7, 3, 3}, {7, 3, 0}, 1},
    };
    for (const TallyCase &c : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("U1", "op");
        table->add("U2", "op");
        table->editSymbols() = c.read;
        table->setRecount(c.counted);
        const LoadedDesign design(std::move(table), DnpChoice::Exclude);
        const DesignTally tally = tallyOf(design);
        EXPECT_EQ(tally.disagreements.size(), c.disagreements)
            << c.what << ": " << qPrintable(tally.disagreements.join(u'|'));
        EXPECT_EQ(tally.components, 2);
    }
}

TEST(Tally, SaysWhenTheFilesCannotBeCounted)
{
    auto table = std::make_unique<TableDesign>();
    table->setRecount({}, {QStringLiteral("/d/amp.kicad_sch"), 0, QStringLiteral("is gone")});
    const LoadedDesign design(std::move(table), DnpChoice::Exclude);
    EXPECT_EQ(tallyOf(design).disagreements, QStringList{QStringLiteral("/d/amp.kicad_sch: is gone")});
}

TEST(Twins, AreNamesThatMeanTheSameToAReport)
{
    auto table = std::make_unique<TableDesign>();
    table->add("R1", "1k", {{"MPN", "a"}, {"Footprint", "R_0603"}});
    table->add("R2", "1k", {{"Mpn", "a"}, {"Footprint", ""}, {"PACKAGE", "0603"}});
    table->add("R3", "1k",
               {{"MPN", "a"}, {"Mpn", "b"}, {"mpn", "c"}, {"Footprint", "R_0603"}, {"PACKAGE", "0603"}});
    table->add("R4", "1k", {{"MPN", "a"}, {"Mpn", "a"}, {"VALUE", "2k"}, {"Other", ""}});
    const LoadedDesign design(std::move(table), DnpChoice::Exclude);
    const auto twins = propertyTwins(design);
    ASSERT_EQ(twins.size(), 3U);
    const auto list = [](std::initializer_list<const char *> texts) {
        QStringList result;
        for (const char *text : texts) {
            result.append(QString::fromLatin1(text));
        }
        return result;
    };
    EXPECT_EQ(twins[0].names, list({"Value", "VALUE"}));
    EXPECT_EQ(twins[0].hiding, list({"R4"}));
    EXPECT_EQ(twins[1].names, list({"Footprint", "PACKAGE"}));
    EXPECT_EQ(twins[1].counts, (QList<qsizetype>{3, 2}));
    EXPECT_EQ(twins[1].hiding, list({"R3"})) << "an empty footprint hides nothing";
    EXPECT_EQ(twins[2].names, list({"MPN", "Mpn", "mpn"}));
    EXPECT_EQ(twins[2].hiding, list({"R3"}));
}

} // namespace
