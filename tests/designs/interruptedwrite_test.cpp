// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Writes that end before they are through.
#include "designs/designfilesfixture.h"

#include <QRegularExpression>

#include <cerrno>
#include <map>

using namespace designs;
using testing::AllOf;
using testing::AnyOf;
using testing::HasSubstr;

namespace {

/// A copy of a process is made for each death, which takes its time where memory is watched.
#ifdef __SANITIZE_ADDRESS__
constexpr int stride = 41;
#else
constexpr int stride = 7;
#endif

TEST_F(DesignFilesTest, EveryDeathLeavesAllOldOrAllNew)
{
    for (const Backups backups : {Backups::Keep, Backups::None, Backups::Keep}) {
        ASSERT_EQ(replace(1), "");
        int step = 1;
        int completed = 0;
        const auto replaceAll = [&](const DesignFiles &design) {
            (void)design.replace(replacements(2), backups);
        };
        for (; diesIn(step, replaceAll); ++step) {
            SCOPED_TRACE(step);
            (void)recover();
            EXPECT_EQ(recover(), "");
            const int reached = version();
            ASSERT_THAT(reached, AnyOf(1, 2));
            expectTidy();
            completed += reached == 2 ? 1 : 0;
            const bool undoable = reached == 1 || backups == Backups::Keep;
            ASSERT_EQ(files().canUndo(), undoable);
            if (undoable) {
                EXPECT_EQ(undo(), "");
                ASSERT_EQ(version(), reached - 1);
            }
            if (version() != 0) {
                ASSERT_EQ(replace(0, Backups::None), "");
            }
            ASSERT_EQ(replace(1), "");
        }
        EXPECT_EQ(version(), 2);
        EXPECT_GT(step, 60);
        EXPECT_GT(completed, 10);
        ASSERT_EQ(replace(0, Backups::None), "");
        m_threads = backups == Backups::None ? 3 : 1;
    }
}

TEST_F(DesignFilesTest, EveryDeathWhileTakingBackLeavesAllOldOrAllNew)
{
    ASSERT_EQ(replace(1), "");
    int step = 1;
    for (; diesIn(step, [](const DesignFiles &design) { (void)design.undo(); }); ++step) {
        SCOPED_TRACE(step);
        (void)recover();
        ASSERT_EQ(version(), files().canUndo() ? 1 : 0);
        expectTidy();
        if (version() == 0) {
            ASSERT_EQ(replace(1), "");
        }
    }
    EXPECT_EQ(version(), 0);
    EXPECT_GT(step, 60);
}

TEST_F(DesignFilesTest, DeathsInTheRecoveryAreRecoveredFrom)
{
    const auto replaceAll = [this](const DesignFiles &design) {
        (void)design.replace(replacements(1), Backups::Keep);
    };
    bool died = true;
    // Every step of the recovery, from every seventh or so state that it can find.
    for (int step = 1; died; step += stride) {
        bool diedAgain = true;
        for (int again = 1; died && diedAgain; ++again) {
            SCOPED_TRACE(step * 1000 + again);
            died = diesIn(step, replaceAll);
            diedAgain = died && diesIn(again, [](const DesignFiles &design) { (void)design.recover(); });
            (void)recover();
            ASSERT_THAT(version(), AnyOf(0, 1));
            ASSERT_EQ(files().canUndo(), version() == 1);
            expectTidy();
            (void)undo();
            removeBackups();
            ASSERT_EQ(version(), 0);
        }
    }
}

TEST_F(DesignFilesTest, EveryFailureIsReportedAndLeavesAllOldOrAllNew)
{
    for (const int failure : {ENOSPC, EIO, EIO}) {
        bool failed = true;
        for (int step = 1; failed; ++step) {
            SCOPED_TRACE(step);
            InterruptedFileSystem system(step, failure);
            const TransactionResult result = files(&system).replace(replacements(1), Backups::Keep);
            failed = system.hasFailed();
            const bool isReplaced = !result.replaced.isEmpty();
            ASSERT_EQ(version(), isReplaced ? 1 : 0) << joined(result.problems);
            if (!isReplaced) {
                EXPECT_THAT(joined(result.problems), HasSubstr(failure == EIO ? "error" : "space"));
                for (const Problem &problem : result.problems) {
                    const QString name = QFileInfo(problem.file).fileName();
                    EXPECT_FALSE(name.startsWith(QLatin1String(".bom-")) &&
                                 problem.text.contains(QLatin1String("written")))
                        << problem.message().toStdString();
                }
                EXPECT_EQ(listing(), plain);
            }
            (void)recover();
            expectTidy();
            EXPECT_EQ(files().canUndo(), isReplaced);
            (void)undo();
            removeBackups();
            ASSERT_EQ(version(), 0);
        }
        m_threads = failure == EIO ? 3 : 1;
    }
}

TEST_F(DesignFilesTest, AnyNumberOfThreadsLeavesTheSameFilesAndProblems)
{
    std::string expected;
    for (m_threads = 1; m_threads <= 4; m_threads += 3) {
        std::string told;
        for (const char *foreign : {"", names[0], names[2]}) {
            const std::vector<FileReplacement> planned = replacements(1);
            if (*foreign != 0) {
                put(foreign, "mine");
            }
            PosixFileSystem system;
            told += joined(files(&system).replace(planned, Backups::Keep).problems) + listing();
            for (const char *name : names) {
                told += get(name);
                put(name, content(name, 0));
            }
            removeBackups();
        }
        expected = m_threads == 1 ? told : expected;
        EXPECT_EQ(told, expected);
    }
}

/// The machine's file system, on which renames fail from one of them on, or something happens before one.
class RenameSystem final : public PosixFileSystem
{
public:
    explicit RenameSystem(int failsFrom, std::function<void(int)> before = {})
        : m_failsFrom(failsFrom)
        , m_before(std::move(before))
    {
    }
    int create(const QString &path, int *file) override
    {
        const int failure = PosixFileSystem::create(path, file);
        m_paths[*file] = path;
        return failure;
    }
    int open(const QString &path, int *file) override
    {
        const int failure = PosixFileSystem::open(path, file);
        m_paths[*file] = path;
        return failure;
    }
    int sync(int file) override
    {
        synced << m_paths[file];
        return PosixFileSystem::sync(file);
    }
    int syncFolder(const QString &path) override
    {
        synced << path + u'/';
        return PosixFileSystem::syncFolder(path);
    }
    int rename(const QString &from, const QString &to) override
    {
        ++m_renames;
        if (m_before) {
            m_before(m_renames);
        }
        return m_failsFrom > 0 && m_renames >= m_failsFrom ? EIO : PosixFileSystem::rename(from, to);
    }

    /// The files and folders that were brought to the disk.
    QStringList synced;

private:
    int m_failsFrom;
    std::map<int, QString> m_paths;
    int m_renames = 0;
    std::function<void(int)> m_before;
};

TEST_F(DesignFilesTest, FailuresThatLastAreToldWithWhatEachFileHolds)
{
    int undecided = 0;
    // Two renames of the journal come first, then those of the files and of their backups.
    for (int rename = 1; rename <= 9; ++rename) {
        SCOPED_TRACE(rename);
        RenameSystem system(rename);
        const TransactionResult result = files(&system).replace(replacements(1), Backups::Keep);
        const int left = version();
        (void)recover();
        const int recovered = version();
        if (result.isUndecided) {
            ++undecided;
            EXPECT_THAT(joined(result.problems), HasSubstr("sub/a.kicad_sch: holds the previous content"));
            EXPECT_THAT(joined(result.problems), HasSubstr("next command that reads the design"));
            EXPECT_EQ(recovered, 0) << "a restored content stands where the new one did";
        } else {
            EXPECT_EQ(left, result.replaced.isEmpty() ? 0 : 1);
            EXPECT_EQ(recovered, left) << "what was said stays true";
            EXPECT_EQ(result.problems.empty(), left == 1);
        }
        (void)undo();
        removeBackups();
        ASSERT_EQ(version(), 0);
    }
    EXPECT_EQ(undecided, 2) << "behind the first and behind the second file";
}

TEST_F(DesignFilesTest, WhatIsSavedWhileAWriteIsPreparedStays)
{
    RenameSystem system(0, [this](int rename) {
        if (rename == 2) {
            put(names[1], "mine");
        }
    });
    const TransactionResult result = files(&system).replace(replacements(1), Backups::Keep);
    EXPECT_THAT(joined(result.problems), HasSubstr("a.kicad_sch: was changed since it was read"));
    EXPECT_EQ(get(names[0]) + get(names[1]), content(names[0], 0) + "mine");
    put(names[1], content(names[1], 0));
    EXPECT_EQ(version(), 0);
    expectTidy();
}

TEST_F(DesignFilesTest, AllThatACommitPromisesIsOnTheDiskBefore)
{
    int contents = 0;
    RenameSystem system(0, [&](int rename) {
        if (rename == 2) {
            contents = int(system.synced.filter(QRegularExpression(QStringLiteral("-[0-2].new$"))).size());
            EXPECT_EQ(system.synced.filter(QStringLiteral(".undo")).size(), 1);
            for (const char *folder : {"board-backup/", "sub/"}) {
                EXPECT_TRUE(system.synced.contains(path(folder))) << folder;
            }
        }
    });
    EXPECT_EQ(joined(files(&system).replace(replacements(1), Backups::Keep).problems), "");
    EXPECT_EQ(contents, 3);
}

TEST_F(DesignFilesTest, WhatIsOpenedWhileAWriteIsPreparedIsNotWritten)
{
    RenameSystem system(0, [this](int) { put("sub/~a.kicad_sch.lck", "{}"); });
    EXPECT_THAT(joined(files(&system).replace(replacements(1), Backups::Keep).problems),
                HasSubstr("sub/a.kicad_sch: is open in KiCad (somebody)"));
    QFile::remove(path("sub/~a.kicad_sch.lck"));
    EXPECT_EQ(version(), 0);
    expectTidy();
}

/// A transaction that died with the first file in place and the others not.
class InterruptedTransactionTest : public DesignFilesTest
{
protected:
    void interrupt(Backups backups)
    {
        for (int step = 1; get(names[0]) == content(names[0], 0); ++step) {
            (void)recover();
            ASSERT_NE(version(), -1);
            ASSERT_EQ(replace(0, Backups::None), "");
            removeBackups();
            ASSERT_TRUE(diesIn(
                step, [&](const DesignFiles &design) { (void)design.replace(replacements(1), backups); }));
        }
    }
};

TEST_F(InterruptedTransactionTest, ForeignChangesAreKeptAndTheRestGoesBack)
{
    for (const Backups backups : {Backups::Keep, Backups::None}) {
        interrupt(backups);
        put(names[2], "somebody's");
        EXPECT_THAT(recover(), AllOf(HasSubstr("sub/a.kicad_sch: was changed while a write was interrupted"),
                                     HasSubstr("was taken back")));
        EXPECT_EQ(get(names[2]), "somebody's");
        put(names[2], content(names[2], 0));
        EXPECT_EQ(version(), 0);
        expectTidy();
    }
    interrupt(Backups::Keep);
    put(names[0], "mine");
    EXPECT_THAT(recover(),
                AllOf(HasSubstr("board.kicad_sch: was changed after an interrupted write had replaced it"),
                      HasSubstr("was completed")));
    EXPECT_EQ(get(names[0]) + get(names[1]), "mine" + content(names[1], 1));
}

TEST_F(InterruptedTransactionTest, WhatCannotBeDecidedStaysAndIsTold)
{
    interrupt(Backups::Keep);
    put(names[0], "mine");
    put(names[2], "yours");
    const std::string told = recover();
    const std::string before = listing();
    EXPECT_EQ(recover(), told);
    EXPECT_THAT(told, HasSubstr("a.kicad_sch: holds the previous content; the new content stands in "));
    EXPECT_THAT(told, HasSubstr("neither be completed nor taken back"));
    EXPECT_EQ(listing(), before);
    EXPECT_EQ(get(names[0]) + get(names[1]) + get(names[2]), "mine" + content(names[1], 0) + "yours");
    EXPECT_THAT(replace(2), HasSubstr("neither be completed"));
}

TEST_F(InterruptedTransactionTest, AJournalThatDeniesWhatTheFilesHoldIsNotBelieved)
{
    interrupt(Backups::Keep);
    std::string journal = get(".board.kicad_sch.bom-journal");
    const std::string state = "committed";
    journal.replace(journal.find(state), state.size(), "preparing");
    put(".board.kicad_sch.bom-journal", journal);
    EXPECT_THAT(recover(), HasSubstr("was completed"));
    EXPECT_EQ(version(), 1);
    expectTidy();
}

TEST_F(InterruptedTransactionTest, WaitsForWhoHasAFileOpen)
{
    interrupt(Backups::Keep);
    put("~a.kicad_sch.lck", "no json");
    EXPECT_THAT(recover(), HasSubstr("is open in KiCad (somebody)"));
    QFile::remove(path("~a.kicad_sch.lck"));
    put("top.kicad_sch", R"((sheet (property "Sheetfile" "board.kicad_sch")))");
    put("~top.kicad_sch.lck", "{}");
    EXPECT_THAT(recover(), HasSubstr("belongs to "));
    EXPECT_EQ(version(), -1);
    QFile::remove(path("~top.kicad_sch.lck"));
    EXPECT_THAT(recover(), HasSubstr("was completed"));
    EXPECT_EQ(version(), 1);
}

} // namespace
