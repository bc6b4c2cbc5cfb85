// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfilesfixture.h"

#include <cerrno>

using namespace designs;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

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

} // namespace
