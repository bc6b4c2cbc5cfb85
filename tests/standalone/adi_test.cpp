// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Batches of the component database.
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

namespace {

const char *const done = "No Errors\n";

/// A design of R1, R2, R4 and two of R3 that stands for the file list.csv.
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
        made->add("R4", "10k", {{"bompart1", "mine"}});
        made->editInfo().file = path;
        session.open(std::move(made));
        cache.setsource(&session.netlist());
        cache.validate(1);
    }

    void write(const QByteArray &bytes) const { writeFile(path, bytes); }
    [[nodiscard]] QByteArray content() const { return contentIfAny(path); }
    /// Lets the next write replace the file.
    void planFile(const QByteArray &after)
    {
        const auto before = designs::fingerprintOfFile(path);
        ASSERT_TRUE(before);
        design->planning = [this, after, before](designs::EditPlan &plan) {
            plan.files.push_back(designs::FileReplacement::whole(path, *before, after.toStdString()));
        };
    }
    static std::string adi(const std::string &script)
    {
        std::istringstream in(script);
        std::ostringstream out;
        getcdb()->adi(in, out, 0);
        return out.str();
    }
    /// Runs a script as the batch of a program, in a nested one as modules do it.
    WriteResult writeBatch(const std::string &script, const WriteOptions &options = {})
    {
        return session.write(options, [&] {
            getcdb()->beginbatch();
            (void)adi(script);
            return getcdb()->commitbatch();
        });
    }
    static std::string record(const std::string &reference, const std::string &property,
                              const std::string &value)
    {
        return "DATA NAME : " + reference + "-\n\"" + property + "\"   :   \"" + value + "\"\nEND\n\n";
    }
    static std::string changesOf(const WriteResult &result)
    {
        QString text;
        for (const CDBCHANGE &change : result.changes) {
            text += change.reference + u' ' + change.name + u'=' +
                    change.after.value_or(QStringLiteral("-")) + u';';
        }
        return text.toStdString();
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("list.csv"));
    const std::string ohms = record("R1", "VALUE", "47k");
    DesignSession session;
    NETCACHE cache;
    TableDesign *design = nullptr;
};

TEST_F(Batch, IsAScriptOutsideOfOne)
{
    planFile("Reference,Value\nR1,47k\n");
    EXPECT_EQ(adi(ohms), done);
    EXPECT_EQ(content(), "Reference,Value\nR1,47k\n");
    EXPECT_TRUE(getcdb()->problems().isEmpty());
    EXPECT_EQ(adi("nonsense\n").find("script line 1: "), 0U);
    EXPECT_EQ(getcdb()->problems().size(), 1);
}

TEST_F(Batch, RefusesByName)
{
    design->editCheck = [](const designs::Edit &edit) {
        return edit.name == "Reference" ? std::optional(QStringLiteral("no")) : std::nullopt;
    };
    const std::string lowerCase =
        ", BOMPART1: the design spells this name bompart1, which defines no BOM-only "
        "parts: rename it there first\n";
    const std::pair<std::string, std::string> cases[] = {
        {record("R9", "A", "1") + record("R3", "B", "2") + record("R1", "Reference", "R7") +
             record("R2", "C", "3"),
         "R9, A: the design has no part of this reference\n"
         "R3, B: several symbols have this reference: /d/amp.kicad_sch:30, /d/amp.kicad_sch:40\n"
         "/d/amp.kicad_sch:10: R1, Reference: no\n"},
        {record("R4", "BOMPART1", "1,'SCR','M3'"), "R4" + lowerCase},
        {record("R1", "BOMPART1", "1,'SCR','M3'"), "R1" + lowerCase},
        {record("R4", "bompart1", "yours") + record("R2", "BOMPART2", "1,'SCR','M3'"), done},
        {record("R1", "A", "1") + record("R2", "NOTE", std::string(2'000'000, 'x')),
         "R2, NOTE: script line 6: the line is longer than 1048576 bytes\n"},
        {record("R1", "PACKAGE", "0402") + record("R1", "footprint", "0805"),
         "R1, footprint: another text is asked for under the name PACKAGE\n"},
        {record("R1", "New", "1") + record("R1", "NEW", "2"),
         "R1, NEW: another text is asked for under the name New\n"},
        {record("R1", "PACKAGE", "0402") + record("R1", "Footprint", "0402") +
             record("R2", "Footprint", "0805"),
         done},
    };
    for (const auto &[script, report] : cases) {
        EXPECT_EQ(adi(script), report);
        EXPECT_EQ(getcdb()->problems().size(), report == done ? 0 : std::ranges::count(report, '\n'));
    }
}

TEST_F(Batch, OfNestedOnesTheOutermostWrites)
{
    const WriteResult result = session.write({}, [&] {
        getcdb()->beginbatch();
        EXPECT_EQ(adi(record("R1", "A", "1")), done);
        EXPECT_TRUE(getcdb()->commitbatch());
        EXPECT_EQ(adi(record("R2", "A", "[REMOVE]") + record("R1", "A", "3")), done);
        return true;
    });
    EXPECT_EQ(changesOf(result), "R1 A=1;R2 A=-;R1 A=3;");
    EXPECT_EQ(session.write({}, [] { return true; }), WriteResult()) << "nothing is asked for";
}

TEST_F(Batch, WithAnythingRefusedOrGivenUpIsNotWritten)
{
    planFile("Reference,Value\nR1,47k\n");
    const QByteArray before = content();
    getcdb()->beginbatch();
    EXPECT_EQ(adi(record("R1", "A", "1")), done);
    EXPECT_NE(adi(record("R9", "A", "1")), done);
    EXPECT_EQ(adi(record("R2", "A", "1")), done) << "each script is reported by itself";
    EXPECT_FALSE(getcdb()->commitbatch());
    EXPECT_EQ(getcdb()->problems().size(), 1);

    const WriteResult dropped = session.write({}, [&] {
        getcdb()->beginbatch();
        (void)adi(record("R1", "A", "1"));
        getcdb()->dropbatch();
        (void)adi(record("R2", "A", "1"));
        return true;
    });
    EXPECT_EQ(dropped.problems.size(), 1);
    const WriteResult givenUp = session.write({}, [&] { return adi(ohms) != done; });
    EXPECT_EQ(givenUp, WriteResult());

    const WriteResult outdated = session.write({}, [&] {
        (void)adi(record("R1", "A", "1"));
        EXPECT_TRUE(session.reread());
        return adi(record("R1", "A", "2")) == done;
    });
    EXPECT_EQ(outdated.problems.size(), 1) << "it was made for the design before";
    EXPECT_EQ(content(), before);
}

TEST_F(Batch, IsWrittenAndTheDesignReadAgain)
{
    planFile("Reference,Value\nR1,47k\nR2,1k\n");
    const COMPONENT *before = cache.components[0];
    EXPECT_EQ(writeBatch(ohms).files, QStringList{path});
    EXPECT_EQ(content(), "Reference,Value\nR1,47k\nR2,1k\n");
    EXPECT_FALSE(cache.isstale());
    ASSERT_EQ(cache.components.size(), 2U);
    EXPECT_EQ(cache.components[0]->value, QByteArrayView("47k"));
    EXPECT_EQ(before->value, QByteArrayView("10k")) << "records of the design before are still used";

    ASSERT_TRUE(session.canUndo());
    EXPECT_EQ(session.undo(), (UndoResult{{path}, {}, {}, false}));
    EXPECT_EQ(content(), "Reference,Value\nR1,10k\n");
    EXPECT_EQ(cache.components.size(), 1U);
}

TEST_F(Batch, OptionsCountForThatBatchOnly)
{
    planFile("Reference,Value\nR1,47k\n");
    const WriteResult dry = writeBatch(ohms, {.isDryRun = true});
    EXPECT_EQ(changesOf(dry), "R1 VALUE=47k;");
    EXPECT_EQ(dry.files, QStringList{path});
    EXPECT_EQ(content(), "Reference,Value\nR1,10k\n");

    EXPECT_EQ(writeBatch(ohms, {.keepsBackups = false, .rereads = false}), dry);
    EXPECT_EQ(content(), "Reference,Value\nR1,47k\n");
    EXPECT_FALSE(session.canUndo());
    EXPECT_EQ(cache.components.size(), 5U) << "nothing is read again";
    EXPECT_EQ(writeBatch(ohms, {.isDryRun = true}).problems.size(), 1) << "the file is checked as well";

    planFile("Reference,Value\nR1,10k\n");
    getcdb()->beginbatch();
    EXPECT_EQ(adi(ohms), done);
    EXPECT_TRUE(getcdb()->commitbatch());
    EXPECT_TRUE(session.canUndo());
    EXPECT_EQ(cache.components.size(), 1U);
}

TEST_F(Batch, ThatCannotBeWrittenChangesNothing)
{
    planFile("Reference,Value\nR1,47k\n");
    write("meanwhile\n");
    EXPECT_THAT(adi(ohms), testing::StartsWith(path.toStdString() + ": "));
    EXPECT_EQ(content(), "meanwhile\n");
    EXPECT_EQ(cache.components.size(), 5U);

    design->planning = [this](designs::EditPlan &plan) {
        plan.changes.clear();
        plan.problems.push_back({0, {path, 3, QStringLiteral("shared")}});
    };
    WriteResult shared;
    shared.problems = {{QStringLiteral("R1"), QStringLiteral("VALUE"), path, 3, QStringLiteral("shared")}};
    EXPECT_EQ(writeBatch(ohms), shared);
}

TEST_F(Batch, ThatLeavesAnUnreadableDesignKeepsTheOldOne)
{
    planFile("no references here\n");
    EXPECT_EQ(adi(ohms), done);
    EXPECT_EQ(session.design()->components().size(), 5U);
    EXPECT_FALSE(session.error().isEmpty());
}

} // namespace
