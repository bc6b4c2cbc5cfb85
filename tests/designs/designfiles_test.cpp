// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/transaction/designfiles.h"

#include "designs/designfolder.h"
#include "designs/interruptedfilesystem.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>

#include <gmock/gmock.h>

#include <cerrno>
#include <functional>
#include <map>
#include <sys/stat.h>
#include <sys/wait.h>

using namespace designs;
using testing::AllOf;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

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
    static constexpr char plain[] = "a.kicad_sch\nboard.kicad_sch\nsub\nsub/a.kicad_sch";

    DesignFilesTest()
    {
        for (const char *name : names) {
            put(name, content(name, 0));
        }
        EXPECT_EQ(::chmod(path("a.kicad_sch").toLocal8Bit().constData(), 0640), 0);
    }

    [[nodiscard]] QString path(const char *name) const { return m_folder.path(QLatin1String(name)); }
    void put(const char *name, const std::string &text) const { m_folder.write(QLatin1String(name), text); }

    [[nodiscard]] std::string get(const char *name) const { return contentIfAny(path(name)).toStdString(); }
    static std::string content(const char *name, int version)
    {
        return name + std::to_string(version) + std::string(std::size_t(version) * 10, '.');
    }

    [[nodiscard]] std::vector<FileReplacement> replacements(int version) const
    {
        std::vector<FileReplacement> files;
        for (const char *name : names) {
            files.push_back(FileReplacement::whole(path(name),
                                                   fingerprintOfFile(path(name)).value_or(FileFingerprint()),
                                                   content(name, version)));
        }
        return files;
    }

    [[nodiscard]] DesignFiles files(FileSystem *system = nullptr)
    {
        QStringList members;
        for (const char *name : names) {
            members << path(name);
        }
        return {path(names[0]), members, system ? system : &m_system, m_threads};
    }
    /// Brings all files to a version; the problems.
    std::string replace(int version, Backups backups = Backups::Keep)
    {
        return joined(files().replace(replacements(version), backups).problems);
    }
    std::string undo() { return joined(files().undo().problems); }
    std::string recover()
    {
        const RecoveryResult result = files().recover();
        return joined(result.actions) + joined(result.problems);
    }
    void removeBackups() const { QDir(path("board-backup")).removeRecursively(); }

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
        const std::string record = "board-backup/board.kicad_sch.undo\n";
        const std::string undoable = "a.kicad_sch\nboard-backup\nboard-backup/a.kicad_sch.bak\n"
                                     "board-backup/board.kicad_sch.bak\n" +
                                     record +
                                     "board-backup/sub%2Fa.kicad_sch.bak\nboard.kicad_sch\nsub\n"
                                     "sub/a.kicad_sch";
        const std::string kept = std::string(undoable).erase(undoable.find(record), record.size());
        EXPECT_THAT(listing(), AnyOf(plain, kept, undoable));
        EXPECT_EQ(QFileInfo(path("a.kicad_sch")).permissions() & QFile::ReadOther, 0);
    }

    /// Uses the files in a process of its own that dies at one of its steps; false when it ran through.
    bool diesIn(int step, const std::function<void(const DesignFiles &)> &use)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            InterruptedFileSystem system(step, 0);
            use(files(&system));
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == InterruptedFileSystem::diedStatus;
    }

    /// In memory where that can be had: thousands of files are renamed.
    static QString pattern()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + QStringLiteral("/bom-XXXXXX");
    }

    int m_threads = 1;
    DesignFolder m_folder{pattern()};
    InterruptedFileSystem m_system{0, 0};
};

TEST_F(DesignFilesTest, ReplacesAllFilesKeepsBackupsAndTakesBackOnce)
{
    const DesignFiles design = files();
    EXPECT_FALSE(design.canUndo());
    EXPECT_EQ(joined(design.check(replacements(1))), "");
    EXPECT_EQ(joined(design.replace(replacements(1), Backups::Keep).problems), "");
    EXPECT_EQ(design.replace(replacements(2), Backups::Keep).replaced.size(), 3);
    EXPECT_EQ(version(), 2);
    EXPECT_EQ(get("board-backup/sub%2Fa.kicad_sch.bak"), content(names[2], 1));
    EXPECT_TRUE(design.canUndo());
    expectTidy();

    const TransactionResult undone = design.undo();
    EXPECT_EQ(joined(undone.problems), "");
    EXPECT_EQ(undone.replaced.size(), 3);
    EXPECT_EQ(version(), 1);
    EXPECT_THAT(joined(design.undo().problems), HasSubstr("nothing to take back"));
    EXPECT_EQ(version(), 1);
    expectTidy();
}

TEST_F(DesignFilesTest, RefusesWhatWouldLoseOthersWork)
{
    const std::vector<FileReplacement> planned = replacements(1);
    const auto expectRefused = [&](const char *why) {
        EXPECT_THAT(joined(files().check(planned)), HasSubstr(why));
        EXPECT_THAT(joined(files().replace(planned, Backups::Keep).problems), HasSubstr(why));
        EXPECT_EQ(get(names[0]), content(names[0], 0));
    };
    put("sub/~a.kicad_sch.lck", R"({"hostname":"desk","username":"anna"})");
    expectRefused("sub/a.kicad_sch: is open in KiCad (anna on desk)");
    QFile::remove(path("sub/~a.kicad_sch.lck"));

    // KiCad marks only the sheet at the top of those that it holds.
    put("~board.kicad_sch.lck", "{}");
    EXPECT_THAT(joined(files().replace(std::span(planned).subspan(1), Backups::Keep).problems),
                HasSubstr("board.kicad_sch: is open in KiCad (somebody)"));
    EXPECT_EQ(files().check(planned).size(), 1U);
    QFile::remove(path("~board.kicad_sch.lck"));

    // A schematic above the design that KiCad has open, found through what it names; another one is not.
    put("top.kicad_sch", R"((sheet (property "Sheetfile" "sub\mid.kicad_sch")))");
    put("sub/mid.kicad_sch", R"((sheet (property "Sheetfile" "${KIPRJMOD}/sub/../board.kicad_sch")))");
    put("~top.kicad_sch.lck", R"({"username":"anna"})");
    expectRefused("board.kicad_sch: belongs to ");
    put("top.kicad_sch", R"((sheet (property "Sheetfile" "elsewhere.kicad_sch")))");
    EXPECT_EQ(joined(files().check(planned)), "");
    QFile::remove(path("~top.kicad_sch.lck"));
    QFile::remove(path("top.kicad_sch"));
    QFile::remove(path("sub/mid.kicad_sch"));
    std::vector<FileReplacement> twice = planned;
    twice.push_back(planned.front());
    EXPECT_THAT(joined(files().check(twice)), HasSubstr("is named twice among the files to write"));

    put(names[2], "changed");
    expectRefused("sub/a.kicad_sch: was changed since it was read");
    QFile::remove(path(names[2]));
    expectRefused("sub/a.kicad_sch: does not exist any more");
    put(names[2], content(names[2], 0));

    ASSERT_EQ(::chmod(path(names[1]).toLocal8Bit().constData(), 0440), 0);
    expectRefused("a.kicad_sch: may not be written: it is read-only");
    ASSERT_EQ(::chmod(path(names[1]).toLocal8Bit().constData(), 0640), 0);

    ASSERT_EQ(::link(path(names[1]).toLocal8Bit().constData(), path("twin").toLocal8Bit().constData()), 0);
    expectRefused("a.kicad_sch: has 2 names (hard links)");
    QFile::remove(path("twin"));
    EXPECT_EQ(listing(), plain);
}

TEST_F(DesignFilesTest, FollowsLinksAndKeepsPermissions)
{
    ASSERT_TRUE(QFile::rename(path(names[1]), path("sub/real.kicad_sch")));
    ASSERT_TRUE(QFile::link(QStringLiteral("sub/real.kicad_sch"), path(names[1])));
    EXPECT_EQ(replace(1), "");
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
    EXPECT_EQ(replace(1), "");
    put(names[1], "mine");
    EXPECT_THAT(undo(), HasSubstr("a.kicad_sch: was changed since it was written"));
    EXPECT_EQ(get(names[0]), content(names[0], 1));
    put(names[1], content(names[1], 1));
    put("board-backup/a.kicad_sch.bak", "damaged");
    EXPECT_THAT(undo(), HasSubstr("a.kicad_sch.bak: is missing or damaged"));
    put("other.kicad_sch", "other");
    for (const char *foreign : {"../../etc/passwd", "other.kicad_sch"}) {
        put("board-backup/board.kicad_sch.undo", std::string(R"({"version":1,"files":[{"file":")") + foreign +
                                                     R"(","before":"1-00000000000000000000000000000000",)"
                                                     R"("after":"1-00000000000000000000000000000000"}]})");
        EXPECT_THAT(undo(), HasSubstr("files that are none of this design"));
    }
    EXPECT_EQ(version(), 1);
}

TEST_F(DesignFilesTest, HostileJournalsAreRefused)
{
    // Names that are none of the design's, though the files are there and of the same kind.
    put("other.kicad_sch", "other");
    const std::string fingerprint = R"("1-00000000000000000000000000000000")";
    const auto entry = [&](const std::string &file) {
        return R"({"file":")" + file + R"(","before":)" + fingerprint + R"(,"after":)" + fingerprint + '}';
    };
    const auto journal = [&](const std::string &file, const std::string &token = "0123456789abcdef",
                             int version = 1, const std::string &more = {}) {
        return R"({"version":)" + std::to_string(version) + R"(,"state":"committed","token":")" + token +
               R"(","files":[)" + entry(file) + more + "]}";
    };
    for (const std::string &text :
         {std::string("\0\x01\xff", 3), std::string(), std::string("[]"), std::string(9U << 20U, ' '),
          journal("/etc/passwd"), journal("../../../../etc/passwd"), journal("sub/../a.kicad_sch"),
          journal(""), journal("other.kicad_sch"), journal("a.kicad_sch", "../../../0123456"),
          journal("a.kicad_sch", "0123456789abcdef", 2),
          journal("a.kicad_sch", "0123456789abcdef", 1, ',' + entry("a.kicad_sch")),
          R"({"version":1,"state":"taking back","token":"0123456789abcdef","backups":true,"files":[{"file":)"
          R"("other.kicad_sch","before":)" +
              fingerprint + R"(,"after":")" + fingerprintOf("other").toString().toStdString() + "\"}]}"}) {
        put(".board.kicad_sch.bom-journal", text);
        const std::string before = listing();
        EXPECT_THAT(recover(), HasSubstr("cannot be used")) << text.substr(0, 200);
        EXPECT_THAT(replace(1), HasSubstr("cannot be used"));
        EXPECT_EQ(listing(), before);
        EXPECT_EQ(version(), 0);
    }
}

TEST_F(DesignFilesTest, PipesAreNamedAndNeverWaitedFor)
{
    const QByteArray lock = path(".board.kicad_sch.bom-lock").toLocal8Bit();
    ASSERT_EQ(::mkfifo(lock.constData(), 0600), 0);
    EXPECT_THAT(replace(1), HasSubstr("board.kicad_sch: cannot be written: " + lock.toStdString()));
    ASSERT_EQ(::unlink(lock.constData()), 0);
    ASSERT_EQ(::mkfifo(path("pipe.kicad_sch").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(fingerprintOfFile(path("pipe.kicad_sch")));
}

TEST_F(DesignFilesTest, OneProcessWritesAtATime)
{
    int file = -1;
    const QString lock = path(".board.kicad_sch.bom-lock");
    InterruptedFileSystem holder(0, 0);
    ASSERT_EQ(holder.lock(lock, &file), 0);
    EXPECT_THAT(replace(1), HasSubstr("just writing"));
    put(".board.kicad_sch.bom-journal", "of that process");
    EXPECT_THAT(recover(), AllOf(HasSubstr("just writing"), Not(HasSubstr("interrupted"))));
    QFile::remove(path(".board.kicad_sch.bom-journal"));
    EXPECT_EQ(version(), 0);
    ASSERT_EQ(holder.unlock(lock, file), 0);
    EXPECT_EQ(replace(1), "");
}

/// The machine's file system, on which somebody holds every lock for a while.
class BusySystem final : public PosixFileSystem
{
public:
    int lock(const QString &path, int *file) override
    {
        return --m_left > 0 ? EWOULDBLOCK : PosixFileSystem::lock(path, file);
    }
    void pause() override {}

private:
    int m_left = 100;
};

TEST_F(DesignFilesTest, WaitsUntilTheOtherProcessHasWritten)
{
    BusySystem system;
    EXPECT_EQ(joined(files(&system).replace(replacements(1), Backups::Keep).problems), "");
    EXPECT_EQ(version(), 1);
}

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
