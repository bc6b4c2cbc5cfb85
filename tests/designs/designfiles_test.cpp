// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfiles.h"
#include "designs/designfolder.h"
#include "designs/interruptedfilesystem.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace designs;
using testing::HasSubstr;

namespace {

std::string joined(const std::vector<Problem> &problems)
{
    std::string text;
    for (const Problem &problem : problems) {
        text += problem.message().toStdString() + '\n';
    }
    return text;
}

/// A design of three files, one in a sub-folder, and what is written to it.
class DesignFilesTest : public testing::Test
{
protected:
    static constexpr std::array<const char *, 3> names = {"board.kicad_sch", "a.kicad_sch",
                                                          "sub/a.kicad_sch"};

    DesignFilesTest()
    {
        for (const char *name : names) {
            put(name, content(name, 0));
        }
        EXPECT_EQ(::chmod(path("a.kicad_sch").toLocal8Bit().constData(), 0640), 0);
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.path(QLatin1String(name)); }
    void put(const char *name, const std::string &text) const { m_folder.write(QLatin1String(name), text); }

    [[nodiscard]] std::string get(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(no file)";
    }

    static std::string content(const char *name, int version)
    {
        return std::string(name) + " version " + std::to_string(version) +
               std::string(std::size_t(version) * 10, '.');
    }

    [[nodiscard]] std::vector<FileEdit> edits(int version) const
    {
        std::vector<FileEdit> files;
        for (const char *name : names) {
            files.push_back({path(name), fingerprintOfFile(path(name)).value_or(FileFingerprint()),
                             QByteArray::fromStdString(content(name, version))});
        }
        return files;
    }

    [[nodiscard]] DesignFiles files(FileSystem *system = nullptr)
    {
        return DesignFiles(path(names[0]), system ? system : &m_system);
    }

    /// The version that all files have; -1 for a mixture.
    [[nodiscard]] int version() const
    {
        for (int version = 0; version < 4; ++version) {
            if (std::ranges::all_of(names, [&](const char *n) { return get(n) == content(n, version); })) {
                return version;
            }
        }
        return -1;
    }

    /// Everything in the folder, one name per line.
    [[nodiscard]] std::string listing() const
    {
        QStringList found;
        QDirIterator all(m_folder.path({}), QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext()) {
            found << QDir(m_folder.path({})).relativeFilePath(all.next());
        }
        found.sort();
        return found.join(u'\n').toStdString();
    }

    /// Nothing lies about but the files, and backups for all of them or none.
    void expectTidy() const
    {
        const std::string plain = "a.kicad_sch\nboard.kicad_sch\nsub\nsub/a.kicad_sch";
        const std::string kept = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                 "board-backup/board.kicad_sch.bak\n"
                                 "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\nsub/a.kicad_sch";
        const std::string undoable = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                     "board-backup/board.kicad_sch.bak\nboard-backup/board.kicad_sch.undo\n"
                                     "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\n"
                                     "sub/a.kicad_sch";
        EXPECT_THAT(listing(), testing::AnyOf(plain, kept, undoable));
        EXPECT_EQ(QFileInfo(path("a.kicad_sch")).permissions() & QFile::ReadOther, 0);
    }

    /// Runs something in a process of its own that dies at one of its steps; false when it ran through.
    static bool diesIn(int step, const std::function<void(FileSystem &)> &run)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            InterruptedFileSystem system(step, 0);
            run(system);
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == InterruptedFileSystem::diedStatus;
    }

    DesignFolder m_folder;
    InterruptedFileSystem m_system{0, 0};
};

TEST_F(DesignFilesTest, WritesAllFilesKeepsBackupsAndTakesBackOnce)
{
    DesignFiles design(path(names[0]));
    EXPECT_FALSE(design.canUndo());
    EXPECT_EQ(joined(design.check(edits(1))), "");
    EXPECT_EQ(joined(design.write(edits(1), Backups::Keep)), "");
    EXPECT_EQ(joined(design.write(edits(2), Backups::Keep)), "");
    EXPECT_EQ(version(), 2);
    EXPECT_EQ(get("board-backup/sub%2Fa.kicad_sch.bak"), content(names[2], 1));
    EXPECT_TRUE(design.canUndo());
    expectTidy();

    const DesignFiles::Undone undone = design.undo();
    EXPECT_EQ(joined(undone.problems), "");
    EXPECT_EQ(undone.files.size(), 3);
    EXPECT_EQ(version(), 1);
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("nothing to take back"));
    EXPECT_EQ(version(), 1);
    expectTidy();
}

TEST_F(DesignFilesTest, WithoutBackupsThereIsNothingToTakeBack)
{
    DesignFiles design = files();
    EXPECT_EQ(joined(design.write(edits(1), Backups::Keep)), "");
    EXPECT_EQ(joined(design.write(edits(2), Backups::None)), "");
    EXPECT_FALSE(design.canUndo());
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("nothing to take back"));
    EXPECT_EQ(version(), 2);
    expectTidy();
}

TEST_F(DesignFilesTest, RefusesWhatWouldLoseOthersWork)
{
    const std::string before = listing();
    const std::vector<FileEdit> planned = edits(1);
    const auto refused = [&](const char *why) {
        EXPECT_THAT(joined(files().check(planned)), HasSubstr(why));
        EXPECT_THAT(joined(files().write(planned, Backups::Keep)), HasSubstr(why));
        EXPECT_EQ(get(names[0]), content(names[0], 0));
    };
    put("sub/~a.kicad_sch.lck", R"({"hostname":"desk","username":"anna"})");
    refused("sub/a.kicad_sch: is open in KiCad (anna on desk)");
    QFile::remove(path("sub/~a.kicad_sch.lck"));

    put(names[2], "changed");
    refused("sub/a.kicad_sch: was changed since it was read");
    QFile::remove(path(names[2]));
    refused("sub/a.kicad_sch: does not exist any more");
    put(names[2], content(names[2], 0));

    ASSERT_EQ(::chmod(path(names[1]).toLocal8Bit().constData(), 0440), 0);
    refused("a.kicad_sch: may not be written: it is read-only");
    ASSERT_EQ(::chmod(path(names[1]).toLocal8Bit().constData(), 0640), 0);

    ASSERT_EQ(::link(path(names[1]).toLocal8Bit().constData(), path("twin").toLocal8Bit().constData()), 0);
    refused("a.kicad_sch: has 2 names (hard links)");
    QFile::remove(path("twin"));
    EXPECT_EQ(listing(), before);
}

TEST_F(DesignFilesTest, FollowsLinksAndKeepsPermissions)
{
    ASSERT_TRUE(QFile::rename(path(names[1]), path("sub/real.kicad_sch")));
    ASSERT_TRUE(QFile::link(QStringLiteral("sub/real.kicad_sch"), path(names[1])));
    EXPECT_EQ(joined(files().write(edits(1), Backups::Keep)), "");
    EXPECT_EQ(version(), 1);
    EXPECT_TRUE(QFileInfo(path(names[1])).isSymLink());
    EXPECT_EQ(get("board-backup/sub%2Freal.kicad_sch.bak"), content(names[1], 0));
    for (const char *name : {"sub/real.kicad_sch", "board-backup/sub%2Freal.kicad_sch.bak"}) {
        struct stat found = {};
        ASSERT_EQ(::stat(path(name).toLocal8Bit().constData(), &found), 0);
        EXPECT_EQ(found.st_mode & 07777U, 0640U) << name;
    }
}

TEST_F(DesignFilesTest, TakesBackOnlyWhatStandsAsItWasLeft)
{
    DesignFiles design = files();
    EXPECT_EQ(joined(design.write(edits(1), Backups::Keep)), "");
    put(names[1], "mine");
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("a.kicad_sch: was changed since it was written"));
    EXPECT_EQ(get(names[0]), content(names[0], 1));
    put(names[1], content(names[1], 1));

    put("board-backup/a.kicad_sch.bak", "damaged");
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("a.kicad_sch.bak: is missing or damaged"));
    EXPECT_EQ(version(), 1);

    put("board-backup/board.kicad_sch.undo", R"({"version":1,"files":[{"file":"../../etc/passwd",)"
                                             R"("before":"1-00000000000000000000000000000000",)"
                                             R"("after":"1-00000000000000000000000000000000"}]})");
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("files that are none of this design"));
    EXPECT_EQ(version(), 1);
}

TEST_F(DesignFilesTest, EveryDeathLeavesAllOldOrAllNew)
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

TEST_F(DesignFilesTest, EveryDeathWhileTakingBackLeavesAllOldOrAllNew)
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

TEST_F(DesignFilesTest, DeathsInTheRecoveryAreRecoveredFrom)
{
    const auto write = [&](FileSystem &system) {
        static_cast<void>(files(&system).write(edits(1), Backups::Keep));
    };
    const auto recover = [&](FileSystem &system) { static_cast<void>(files(&system).recover()); };
    bool died = true;
    // Every step of the recovery, from every seventh state that it can find.
    for (int step = 1; died; step += 7) {
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

TEST_F(DesignFilesTest, EveryFailureIsReportedAndLeavesAllOldOrAllNew)
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

TEST_F(DesignFilesTest, HostileJournalsAreRefused)
{
    const std::string fingerprint = R"("1-00000000000000000000000000000000")";
    const auto journal = [&](const std::string &file) {
        return R"({"version":1,"state":"committed","token":"0123456789abcdef","files":[{"file":")" + file +
               R"(","before":)" + fingerprint + R"(,"after":)" + fingerprint + "}]}";
    };
    for (const std::string &text :
         {std::string("\0\x01\xff", 3), std::string(), std::string("[]"), std::string(9U << 20U, ' '),
          journal("/etc/passwd"), journal("../../../../etc/passwd"), journal("sub/../a.kicad_sch"),
          journal("")}) {
        put(".board.kicad_sch.bom-journal", text);
        const std::string before = listing();
        EXPECT_THAT(joined(files().recover()), HasSubstr("cannot be used")) << text.substr(0, 200);
        EXPECT_THAT(joined(files().write(edits(1), Backups::Keep)), HasSubstr("cannot be used"));
        EXPECT_EQ(listing(), before);
        EXPECT_EQ(version(), 0);
    }
}

TEST_F(DesignFilesTest, OneProcessWritesAtATime)
{
    InterruptedFileSystem holder(0, 0);
    int file = -1;
    const QString lock = path(".board.kicad_sch.bom-lock");
    ASSERT_EQ(holder.lock(lock, &file), 0);
    InterruptedFileSystem other(0, 0);
    EXPECT_THAT(joined(files(&other).write(edits(1), Backups::Keep)), HasSubstr("just writing"));
    EXPECT_THAT(joined(files(&other).recover()), HasSubstr("just writing"));
    EXPECT_EQ(version(), 0);
    ASSERT_EQ(holder.unlock(lock, file), 0);
    EXPECT_EQ(joined(files(&other).write(edits(1), Backups::Keep)), "");
}

} // namespace
