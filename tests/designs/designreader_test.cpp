// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/formats/designreader.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

const std::string small = kicadtext::schematic(
    kicadtext::v8, "top", kicadtext::symbol(kicadtext::v8, {.uses = {{.path = "/top", .reference = "R1"}}}));

std::string errorOf(const QString &path)
{
    const designs::ReadResult read = designs::readDesign(path);
    return read.design ? "no error" : read.error.text.toStdString();
}

TEST(DesignReader, GoesByTheNameAndThenByTheContent)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("named.kicad_sch"), small);
    folder.write(QStringLiteral("other.txt"), small);
    folder.write(QStringLiteral("list.txt"), "Reference,Value\nR1,10k\n");
    for (const char *name : {"named.kicad_sch", "other.txt", "list.txt"}) {
        const auto read = designs::readDesign(folder.path(QString::fromLatin1(name)));
        ASSERT_TRUE(read.design) << name << ": " << read.error.text.toStdString();
        EXPECT_EQ(references(*read.design), "R1") << name;
    }
}

TEST(DesignReader, SaysWhatAFileIsThatIsNoDesign)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("old.sch"), "EESchema Schematic File Version 4\n");
    folder.write(QStringLiteral("board.kicad_pcb"), "(kicad_pcb (version 20240108))");
    EXPECT_NE(errorOf(folder.path(QStringLiteral("old.sch"))).find("KiCad 5"), std::string::npos);
    EXPECT_NE(errorOf(folder.path(QStringLiteral("board.kicad_pcb"))).find("a board"), std::string::npos);
    EXPECT_NE(errorOf(folder.path(QStringLiteral("missing.csv"))).find("no such file"), std::string::npos);
    EXPECT_NE(errorOf(folder.path(QString())).find("a folder"), std::string::npos);
}

TEST(DesignReader, DoesNotWaitForAPipe)
{
    const DesignFolder folder;
    const QString pipe = folder.path(QStringLiteral("pipe.kicad_sch"));
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_NE(errorOf(pipe).find("pipe"), std::string::npos);
}

} // namespace
