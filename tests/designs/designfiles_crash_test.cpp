// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfilesfixture.h"

#include <cerrno>

using namespace designs;
using testing::HasSubstr;

namespace {

/// A copy of a process is made for each death, which takes its time where memory is watched.
#ifdef __SANITIZE_ADDRESS__
constexpr int stride = 41;
#else
constexpr int stride = 7;
#endif

class DesignFilesCrashTest : public DesignFilesTest
{
};

TEST_F(DesignFilesCrashTest, EveryDeathLeavesAllOldOrAllNew)
{
    for (const Backups backups : {Backups::Keep, Backups::None}) {
        ASSERT_EQ(joined(files().write(edits(1), Backups::Keep)), "");
        int step = 1;
        int completed = 0;
        const auto write = [&](FileSystem &system) {
            static_cast<void>(files(&system).write(edits(2), backups));
        };
        for (; diesIn(step, write); ++step) {
            SCOPED_TRACE(step);
            static_cast<void>(files().recover());
            EXPECT_EQ(joined(files().recover()), "");
            ASSERT_THAT(version(), testing::AnyOf(1, 2));
            expectTidy();
            const int reached = version();
            completed += reached == 2 ? 1 : 0;
            const bool undoable = reached == 1 || backups == Backups::Keep;
            ASSERT_EQ(files().canUndo(), undoable);
            if (undoable) {
                EXPECT_EQ(joined(files().undo().problems), "");
                ASSERT_EQ(version(), reached - 1);
            }
            if (version() != 0) {
                ASSERT_EQ(joined(files().write(edits(0), Backups::None)), "");
            }
            ASSERT_EQ(joined(files().write(edits(1), Backups::Keep)), "");
        }
        EXPECT_EQ(version(), 2);
        EXPECT_GT(step, 60);
        EXPECT_GT(completed, 10);
        ASSERT_EQ(joined(files().write(edits(0), Backups::None)), "");
    }
}

TEST_F(DesignFilesCrashTest, EveryDeathWhileTakingBackLeavesAllOldOrAllNew)
{
    ASSERT_EQ(joined(files().write(edits(1), Backups::Keep)), "");
    const auto undo = [&](FileSystem &system) { static_cast<void>(files(&system).undo()); };
    int step = 1;
    for (; diesIn(step, undo); ++step) {
        SCOPED_TRACE(step);
        static_cast<void>(files().recover());
        ASSERT_EQ(version(), files().canUndo() ? 1 : 0);
        expectTidy();
        if (version() == 0) {
            ASSERT_EQ(joined(files().write(edits(1), Backups::Keep)), "");
        }
    }
    EXPECT_EQ(version(), 0);
    EXPECT_GT(step, 60);
}

TEST_F(DesignFilesCrashTest, DeathsInTheRecoveryAreRecoveredFrom)
{
    const auto write = [&](FileSystem &system) {
        static_cast<void>(files(&system).write(edits(1), Backups::Keep));
    };
    const auto recover = [&](FileSystem &system) { static_cast<void>(files(&system).recover()); };
    bool died = true;
    // Every step of the recovery, from every seventh or so state that it can find.
    for (int step = 1; died; step += stride) {
        bool diedAgain = true;
        for (int again = 1; died && diedAgain; ++again) {
            SCOPED_TRACE(step * 1000 + again);
            died = diesIn(step, write);
            diedAgain = died && diesIn(again, recover);
            static_cast<void>(files().recover());
            ASSERT_THAT(version(), testing::AnyOf(0, 1));
            ASSERT_EQ(files().canUndo(), version() == 1);
            expectTidy();
            static_cast<void>(files().undo());
            QDir(path("board-backup")).removeRecursively();
            ASSERT_EQ(version(), 0);
        }
    }
}

TEST_F(DesignFilesCrashTest, EveryFailureIsReportedAndLeavesAllOldOrAllNew)
{
    for (const int failure : {ENOSPC, EIO}) {
        bool failed = true;
        for (int step = 1; failed; ++step) {
            SCOPED_TRACE(step);
            InterruptedFileSystem system(step, failure);
            DesignFiles design = files(&system);
            const std::vector<Problem> problems = design.write(edits(1), Backups::Keep);
            failed = system.hasFailed();
            ASSERT_EQ(version(), design.replaced() ? 1 : 0) << joined(problems);
            if (!design.replaced()) {
                EXPECT_THAT(joined(problems), HasSubstr(failure == EIO ? "error" : "space"));
                for (const Problem &problem : problems) {
                    const QString name = QFileInfo(problem.file).fileName();
                    EXPECT_FALSE(name.startsWith(QLatin1String(".bom-")) &&
                                 problem.text.contains(QLatin1String("written")))
                        << problem.message().toStdString();
                }
                EXPECT_EQ(listing(), "a.kicad_sch\nboard.kicad_sch\nsub\nsub/a.kicad_sch");
            }
            static_cast<void>(files().recover());
            expectTidy();
            EXPECT_EQ(files().canUndo(), design.replaced());
            static_cast<void>(files().undo());
            QDir(path("board-backup")).removeRecursively();
            ASSERT_EQ(version(), 0);
        }
    }
}

/// A write that died with the first file in place and the others not.
class InterruptedWriteTest : public DesignFilesTest
{
protected:
    void interrupt(Backups backups)
    {
        const auto write = [&](FileSystem &system) {
            static_cast<void>(files(&system).write(edits(1), backups));
        };
        int step = 1;
        while (get(names[0]) == content(names[0], 0)) {
            ASSERT_TRUE(diesIn(step++, write));
            if (get(names[0]) == content(names[0], 0)) {
                static_cast<void>(files().recover());
                ASSERT_NE(version(), -1);
                ASSERT_EQ(joined(files().write(edits(0), Backups::None)), "");
                QDir(path("board-backup")).removeRecursively();
            }
        }
    }
};

TEST_F(InterruptedWriteTest, ForeignChangesAreKeptAndTheRestGoesBack)
{
    for (const Backups backups : {Backups::Keep, Backups::None}) {
        interrupt(backups);
        put(names[2], "somebody's");
        const std::string told = joined(files().recover());
        EXPECT_THAT(told, HasSubstr("sub/a.kicad_sch: was changed while a write was interrupted"));
        EXPECT_THAT(told, HasSubstr("was taken back"));
        EXPECT_EQ(get(names[2]), "somebody's");
        put(names[2], content(names[2], 0));
        EXPECT_EQ(version(), 0);
        expectTidy();
    }
}

TEST_F(InterruptedWriteTest, WhatCannotBeDecidedStaysAndIsTold)
{
    interrupt(Backups::Keep);
    put(names[0], "mine");
    put(names[2], "yours");
    const std::string told = joined(files().recover());
    const std::string before = listing();
    EXPECT_EQ(joined(files().recover()), told);
    EXPECT_THAT(told, HasSubstr("a.kicad_sch: holds the previous content; the new content stands in "));
    EXPECT_THAT(told, HasSubstr("neither be completed nor taken back"));
    EXPECT_EQ(listing(), before);
    EXPECT_EQ(get(names[0]) + get(names[1]) + get(names[2]), "mine" + content(names[1], 0) + "yours");
    EXPECT_THAT(joined(files().write(edits(2), Backups::Keep)), HasSubstr("neither be completed"));
}

TEST_F(InterruptedWriteTest, WaitsForWhoHasAFileOpen)
{
    interrupt(Backups::Keep);
    put("~a.kicad_sch.lck", "no json");
    EXPECT_THAT(joined(files().recover()), HasSubstr("is open in KiCad (somebody)"));
    EXPECT_EQ(version(), -1);
    QFile::remove(path("~a.kicad_sch.lck"));
    EXPECT_THAT(joined(files().recover()), HasSubstr("was completed"));
    EXPECT_EQ(version(), 1);
}

} // namespace
