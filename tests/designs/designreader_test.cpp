// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"
#include "designs/formats/designreader.h"
#include "designs/kicadtext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using testing::HasSubstr;

TEST(DesignReader, GoesByTheNameAndThenByTheContent)
{
    const std::string small =
        kicadtext::schematic(kicadtext::v8, "top", kicadtext::symbol(kicadtext::v8, {.reference = "R1"}));
    const DesignFolder folder;
    for (const QString &path :
         {folder.write(u"named.kicad_sch"_s, small), folder.write(u"other.txt"_s, small),
          folder.write(u"list.txt"_s, "Reference,Value\nR1,10k\n")}) {
        const auto read = designs::readDesign(path);
        ASSERT_TRUE(read.design) << errorOf(read);
        EXPECT_EQ(references(*read.design), "R1") << path.toStdString();
    }
}

TEST(DesignReader, SaysWhatAFileIsThatIsNoDesignAndDoesNotWaitForAPipe)
{
    const DesignFolder folder;
    folder.write(u"old.sch"_s, "EESchema Schematic File Version 4\n");
    folder.write(u"board.kicad_pcb"_s, "(kicad_pcb (version 20240108))");
    ASSERT_EQ(mkfifo(qPrintable(folder.path(u"pipe.kicad_sch"_s)), 0600), 0);
    const std::vector<std::pair<QString, std::string>> cases{{u"old.sch"_s, "KiCad 5"},
                                                             {u"board.kicad_pcb"_s, "a board"},
                                                             {u"missing.csv"_s, "no such file"},
                                                             {QString(), "a folder"},
                                                             {u"pipe.kicad_sch"_s, "pipe"}};
    for (const auto &[name, says] : cases) {
        EXPECT_THAT(errorOf(designs::readDesign(folder.path(name))), HasSubstr(says)) << name.toStdString();
    }
}
