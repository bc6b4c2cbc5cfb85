// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Batches of the component database.
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sstream>

namespace {

/// A design of R1, R2 and two of R3 that stands for the file list.csv.
class Batch : public testing::Test
{
protected:
    Batch()
    {
        write("Reference,Value\nR1,10k\n");
        auto made = std::make_unique<TableDesign>();
        design = made.get();
        for (const char *reference : {"R1", "R2", "R3", "R3"}) {
            made->add(reference, "10k", {{"Footprint", "0603"}});
        }
        made->editInfo().file = path;
        session.open(std::move(made));
        cache.setsource(&session.netlist());
        cache.validate(1);
    }

    void write(const QByteArray &bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray content() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    /// Lets the next write replace the file.
    void planFile(const QByteArray &after)
    {
        const auto before = designs::fingerprintOfFile(path);
        ASSERT_TRUE(before);
        design->planning = [this, after, before](designs::EditPlan &plan) {
            plan.files.push_back({path, *before, after});
        };
    }
    std::string adi(const std::string &script)
    {
        std::istringstream in(script);
        std::ostringstream out;
        getcdb()->adi(in, out, 0);
        return out.str();
    }
    static std::string record(const std::string &reference, const std::string &property,
                              const std::string &value)
    {
        return "DATA NAME : " + reference + "-\n\"" + property + "\"   :   \"" + value + "\"\nEND\n\n";
    }
    std::vector<std::string> changes() const
    {
        std::vector<std::string> found;
        for (const PropertyChange &change : session.lastChanges()) {
            found.push_back(
                (change.reference + u' ' + change.name + u'=' + change.after.value_or(QStringLiteral("-")))
                    .toStdString());
        }
        return found;
    }
    using Texts = std::vector<std::string>;

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("list.csv"));
    DesignSession session;
    NETCACHE cache;
    TableDesign *design = nullptr;
};

TEST_F(Batch, IsAScriptOutsideOfOne)
{
    EXPECT_EQ(adi(record("R1", "VALUE", "1k") + record("R2", "MPN", "[REMOVE]")), "No Errors\n");
    EXPECT_EQ(changes(), (Texts{"R1 VALUE=1k", "R2 MPN=-"}));
    EXPECT_TRUE(getcdb()->problems().isEmpty());
    EXPECT_EQ(adi("nonsense\n").find("script line 1: "), 0U);
    EXPECT_EQ(getcdb()->problems().size(), 1);
}

TEST_F(Batch, RefusesByName)
{
    design->editCheck = [](const designs::Edit &edit) {
        return edit.name == "Reference" ? std::optional(QStringLiteral("no")) : std::nullopt;
    };
    const std::string report = adi(record("R9", "A", "1") + record("R3", "B", "2") +
                                   record("R1", "Reference", "R7") + record("R2", "C", "3"));
    EXPECT_EQ(report, "R9, A: the design has no part of this reference\n"
                      "R3, B: several symbols have this reference: /d/amp.kicad_sch:30, /d/amp.kicad_sch:40\n"
                      "/d/amp.kicad_sch:10: R1, Reference: no\n");
    EXPECT_EQ(getcdb()->problems().size(), 3);
    EXPECT_EQ(changes(), Texts());
}

TEST_F(Batch, RefusesWhatWouldBeNoDefinitionOfBomOnlyParts)
{
    auto spelt = std::make_unique<TableDesign>();
    spelt->add("R1", "10k", {{"bompart1", "mine"}});
    spelt->add("R2", "10k");
    session.open(std::move(spelt));
    for (const char *reference : {"R1", "R2"}) {
        EXPECT_THAT(adi(record(reference, "BOMPART1", "1,'SCR','M3'")),
                    testing::HasSubstr("the design spells this name bompart1"));
    }
    EXPECT_EQ(adi(record("R1", "bompart1", "yours")), "No Errors\n");
    EXPECT_EQ(adi(record("R2", "BOMPART2", "1,'SCR','M3'")), "No Errors\n");
}

TEST_F(Batch, NamesThePartOfALineThatIsTooLong)
{
    (void)adi(record("R1", "A", "1") + record("R2", "NOTE", std::string(2'000'000, 'x')));
    ASSERT_EQ(getcdb()->problems().size(), 1);
    EXPECT_EQ(getcdb()->problems().front().message(),
              QStringLiteral("R2, NOTE: script line 6: the line is longer than 1048576 bytes"));
}

TEST_F(Batch, OfNestedOnesTheOutermostWrites)
{
    getcdb()->beginbatch();
    getcdb()->beginbatch();
    EXPECT_EQ(adi(record("R1", "A", "1")), "No Errors\n");
    EXPECT_TRUE(getcdb()->commitbatch());
    EXPECT_EQ(changes(), Texts());
    EXPECT_EQ(adi(record("R2", "A", "2") + record("R1", "A", "3")), "No Errors\n");
    EXPECT_TRUE(getcdb()->commitbatch());
    EXPECT_EQ(changes(), (Texts{"R1 A=1", "R2 A=2", "R1 A=3"}));
    getcdb()->beginbatch();
    EXPECT_TRUE(getcdb()->commitbatch()) << "nothing is asked for";
}

TEST_F(Batch, WithAnythingRefusedOrGivenUpIsNotWritten)
{
    planFile("Reference,Value\nR1,47k\n");
    const QByteArray before = content();
    getcdb()->beginbatch();
    EXPECT_EQ(adi(record("R1", "A", "1")), "No Errors\n");
    EXPECT_NE(adi(record("R9", "A", "1")), "No Errors\n");
    EXPECT_EQ(adi(record("R2", "A", "1")), "No Errors\n") << "each script is reported by itself";
    EXPECT_FALSE(getcdb()->commitbatch());
    EXPECT_EQ(getcdb()->problems().size(), 1);

    getcdb()->beginbatch();
    getcdb()->beginbatch();
    (void)adi(record("R1", "A", "1"));
    getcdb()->dropbatch();
    (void)adi(record("R2", "A", "1"));
    EXPECT_FALSE(getcdb()->commitbatch());
    EXPECT_EQ(getcdb()->problems().size(), 1);

    getcdb()->beginbatch();
    (void)adi(record("R1", "A", "1"));
    EXPECT_TRUE(session.reread());
    EXPECT_EQ(adi(record("R1", "A", "2")), "No Errors\n");
    EXPECT_FALSE(getcdb()->commitbatch()) << "it was made for the design before";
    EXPECT_EQ(content(), before);
}

TEST_F(Batch, RefusesTwoTextsForOnePropertyUnderTwoNames)
{
    EXPECT_EQ(adi(record("R1", "PACKAGE", "0402") + record("R1", "Footprint", "0402") +
                  record("R2", "Footprint", "0805")),
              "No Errors\n");
    EXPECT_EQ(adi(record("R1", "PACKAGE", "0402") + record("R1", "footprint", "0805")),
              "R1, footprint: another text is asked for under the name PACKAGE\n");
    EXPECT_EQ(adi(record("R1", "New", "1") + record("R1", "NEW", "2")),
              "R1, NEW: another text is asked for under the name New\n");
}

TEST_F(Batch, IsWrittenAndTheDesignReadAgain)
{
    planFile("Reference,Value\nR1,47k\nR2,1k\n");
    const COMPONENT *before = cache.components[0];
    EXPECT_EQ(adi(record("R1", "VALUE", "47k")), "No Errors\n");
    EXPECT_EQ(content(), "Reference,Value\nR1,47k\nR2,1k\n");
    EXPECT_EQ(session.lastWrittenFiles(), QStringList{path});
    EXPECT_FALSE(cache.isstale());
    ASSERT_EQ(cache.components.size(), 2U);
    EXPECT_EQ(cache.components[0]->value, QByteArrayView("47k"));
    EXPECT_EQ(before->value, QByteArrayView("10k")) << "records of the design before are still used";

    ASSERT_TRUE(session.canUndo());
    const DesignSession::Undone undone = session.undo();
    EXPECT_EQ(undone.files, QStringList{path});
    EXPECT_EQ(undone.problems, QStringList());
    EXPECT_EQ(content(), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(cache.components.size(), 1U);
}

TEST_F(Batch, InADryRunWritesNothing)
{
    planFile("Reference,Value\nR1,47k\n");
    session.setDryRun(true);
    EXPECT_EQ(adi(record("R1", "VALUE", "47k")), "No Errors\n");
    EXPECT_EQ(changes(), Texts{"R1 VALUE=47k"});
    EXPECT_EQ(content(), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(session.lastWrittenFiles(), QStringList());
    EXPECT_EQ(cache.components.size(), 4U) << "nothing is read again";

    write("changed\n");
    EXPECT_NE(adi(record("R1", "VALUE", "47k")), "No Errors\n") << "the file is checked as well";
    EXPECT_EQ(changes(), Texts());
}

TEST_F(Batch, ThatCannotBeWrittenChangesNothing)
{
    planFile("Reference,Value\nR1,47k\n");
    write("meanwhile\n");
    EXPECT_THAT(adi(record("R1", "VALUE", "47k")), testing::StartsWith(path.toStdString() + ": "));
    EXPECT_EQ(content(), "meanwhile\n");
    EXPECT_EQ(cache.components.size(), 4U);

    design->planning = [this](designs::EditPlan &plan) {
        plan.changes.clear();
        plan.problems.push_back({0, {path, 3, QStringLiteral("shared")}});
    };
    getcdb()->beginbatch();
    EXPECT_EQ(adi(record("R1", "VALUE", "47k")), "No Errors\n");
    EXPECT_FALSE(getcdb()->commitbatch());
    EXPECT_EQ(getcdb()->problems(), (QList<CDBPROBLEM>{{QStringLiteral("R1"), QStringLiteral("VALUE"), path,
                                                        3, QStringLiteral("shared")}}));
}

TEST_F(Batch, ThatLeavesAnUnreadableDesignKeepsTheOldOne)
{
    planFile("no references here\n");
    EXPECT_EQ(adi(record("R1", "VALUE", "47k")), "No Errors\n");
    EXPECT_EQ(session.design()->components().size(), 4U);
    EXPECT_FALSE(session.error().isEmpty());
}

} // namespace
