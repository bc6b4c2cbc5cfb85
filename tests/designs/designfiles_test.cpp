// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfilesfixture.h"

using namespace designs;
using testing::HasSubstr;

namespace {

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
    const std::vector<FileReplacement> planned = edits(1);
    const auto refused = [&](const char *why) {
        EXPECT_THAT(joined(files().check(planned)), HasSubstr(why));
        EXPECT_THAT(joined(files().write(planned, Backups::Keep)), HasSubstr(why));
        EXPECT_EQ(get(names[0]), content(names[0], 0));
    };
    put("sub/~a.kicad_sch.lck", R"({"hostname":"desk","username":"anna"})");
    refused("sub/a.kicad_sch: is open in KiCad (anna on desk)");
    QFile::remove(path("sub/~a.kicad_sch.lck"));

    // KiCad marks only the sheet at the top of those that it holds.
    put("~board.kicad_sch.lck", "{}");
    EXPECT_THAT(joined(files().write(std::span(planned).subspan(1), Backups::Keep)),
                HasSubstr("board.kicad_sch: is open in KiCad (somebody)"));
    EXPECT_EQ(files().check(planned).size(), 1U);
    QFile::remove(path("~board.kicad_sch.lck"));

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

TEST_F(DesignFilesTest, WhatIsInTheWayIsNamedAndNeverWaitedFor)
{
    const QByteArray lock = path(".board.kicad_sch.bom-lock").toLocal8Bit();
    ASSERT_EQ(::mkfifo(lock.constData(), 0600), 0);
    EXPECT_THAT(joined(files().write(edits(1), Backups::Keep)),
                HasSubstr("board.kicad_sch: cannot be written: " + lock.toStdString()));
    ASSERT_EQ(::unlink(lock.constData()), 0);

    ASSERT_EQ(::mkfifo(path("pipe.kicad_sch").toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(fingerprintOfFile(path("pipe.kicad_sch")));
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
