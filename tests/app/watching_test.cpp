// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

#include <QDialog>

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::StartsWith;

TEST_F(WorkbenchTest, FollowsTheFilesOfTheDesign)
{
    ASSERT_TRUE(bench->open(partList()));
    // Twice, for a file that was replaced is another one to the system.
    EXPECT_TRUE(waitForValue("33k"));
    EXPECT_TRUE(waitForValue("47k"));
    // In a folder that never settles.
    bench->watcher().setDelay(patience);
    bench->watcher().setLongest(1);
    EXPECT_TRUE(waitForValue("56k"));
}

TEST_F(WorkbenchTest, FollowsWhatHappenedBeforeItWatched)
{
    ASSERT_TRUE(bench->open(partList()));
    // All that the system has told of the folder is forgotten.
    bench->watcher().setFiles({});
    writeValue("33k");
    QCoreApplication::processEvents();
    EXPECT_TRUE(waitFor([&] { bench->watcher().setFiles(bench->session().files()); },
                        [&] { return isReported("33k"); }));
}

TEST_F(WorkbenchTest, ReadsNeitherTheSameNorItsOwnWritesAgain)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_EQ(account(), "1 line, 1 part, 1 not fitted");
    const quint64 before = stamp();
    EXPECT_TRUE(waitForLook([&] { partList(); }));
    EXPECT_EQ(stamp(), before);
    EXPECT_TRUE(waitForLook([] { setProperty("R2", "DNP", "[REMOVE]"); }));
    EXPECT_EQ(stamp(), before + 1);
    EXPECT_TRUE(isReported("22k"));
    EXPECT_EQ(account(), "2 lines, 2 parts");
}

TEST_F(WorkbenchTest, WaitsForAHalfWrittenFile)
{
    const QString file = partList();
    ASSERT_TRUE(bench->open(file));
    EXPECT_TRUE(
        waitFor([&] { write("parts.csv", "Reference,Value\n\"R1,1"); }, [&] { return !problem().empty(); }));
    EXPECT_THAT(problem(), StartsWith(file.toStdString()));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_TRUE(ui.warnings.isEmpty());

    EXPECT_TRUE(waitFor([&] { QFile::remove(file); },
                        [&] { return problem().find("no such file") != std::string::npos; }));
    EXPECT_TRUE(waitForValue("56k"));
    EXPECT_EQ(problem(), "");
}

TEST_F(WorkbenchTest, ReadsAgainAfterAFailureAlthoughTheFilesAreAsItKnowsThem)
{
    const QString file = partList();
    ASSERT_TRUE(bench->open(file));
    EXPECT_TRUE(waitFor([&] { QFile::remove(file); }, [&] { return !problem().empty(); }));
    const quint64 before = stamp();
    EXPECT_TRUE(waitFor([&] { partList(); }, [&] { return problem().empty(); }));
    EXPECT_GT(stamp(), before);
}

TEST_F(WorkbenchTest, FollowsTheNotesBesideTheDesign)
{
    ASSERT_TRUE(bench->open(partList()));
    const quint64 before = stamp();
    EXPECT_TRUE(waitFor([&] { write("parts.bomnotes.txt", "solder first"); },
                        [&] { return isReported("solder first"); }));
    EXPECT_TRUE(waitForLook([&] { write("parts.bomnotes.txt", "solder first"); }));
    EXPECT_TRUE(waitFor([&] { QFile::remove(path("parts.bomnotes.txt")); },
                        [&] { return !isReported("solder first"); }));
    EXPECT_EQ(stamp(), before) << "the design is the same";
}

TEST_F(WorkbenchTest, ReadsTheFilesWhenTheUserAsksForIt)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->watcher().setDelay(patience);
    writeValue("33k");
    action("Reload The &BOM")->trigger();
    EXPECT_TRUE(isReported("33k"));
    QFile::remove(path("parts.csv"));
    action("Reload The &BOM")->trigger();
    EXPECT_THAT(problem(), HasSubstr("no such file"));
    EXPECT_TRUE(isReported("33k"));
}

TEST_F(WorkbenchTest, CountsThePartsOfTheReport)
{
    ASSERT_TRUE(bench->open(
        write("parts.csv", "Reference,Value,DNP,BOMPART1\nR1,10k,,\"2,'SCR','M3'\"\nR2,22k,1,\n")));
    EXPECT_EQ(account(), "2 lines, 3 parts (2 BOM-only), 1 not fitted");
    EXPECT_TRUE(isReported("<p class='headerValue'>3</p>"));
}

TEST_F(WorkbenchTest, LeavesThePartsAloneWhileADialogIsOpen)
{
    ASSERT_TRUE(bench->open(partList()));
    const quint64 before = stamp();
    QDialog dialog(&bench->window());
    dialog.open();
    QSignalSpy touches(&bench->watcher(), &FileWatcher::touched);
    writeValue("33k");
    while (touches.size() < 3) {
        ASSERT_TRUE(touches.wait(patience));
    }
    EXPECT_EQ(stamp(), before);
    EXPECT_TRUE(waitFor([&] { dialog.close(); }, [&] { return isReported("33k"); }));
}

TEST_F(WorkbenchTest, FollowsTheBoardBesideTheSchematic)
{
    ASSERT_TRUE(bench->open(schematic()));
    const auto side = [&] {
        const auto *layout =
            getcdb()->getpart(bench->session().design()->components()[0]->identifier)->layout();
        return layout ? layout->name().toByteArray().toStdString() : "none";
    };
    EXPECT_EQ(side(), "none");
    const quint64 before = stamp();
    std::string board;
    QObject::connect(&bench->session().document(), &APPLNDOCUMENT::modified,
                     [&](const APPLNDOCUMENT *document) {
                         EXPECT_TRUE(document->isdoctype("LYT"));
                         board += document->getinfo("FILENAME").toStdString();
                     });

    const auto place = [&] {
        write("amp.kicad_pcb", "(kicad_pcb (version 20240108) (footprint \"X\" (layer \"B.Cu\") "
                               "(property \"Reference\" \"R1\")))");
    };
    EXPECT_TRUE(waitFor(place, [&] { return !board.empty(); }));
    EXPECT_EQ(board, path("amp.kicad_pcb").toStdString());
    EXPECT_EQ(side(), "Bottom");

    EXPECT_TRUE(
        waitFor([&] { write("amp.kicad_pcb", "(kicad_pcb (version"); }, [&] { return !problem().empty(); }));
    EXPECT_THAT(problem(), StartsWith(board));
    EXPECT_EQ(side(), "Bottom");

    // Something else in the folder does not make it a good one.
    EXPECT_TRUE(waitForLook([&] { write("other.txt", "x"); }));
    EXPECT_THAT(problem(), StartsWith(board));
    EXPECT_EQ(side(), "Bottom");
    EXPECT_EQ(stamp(), before);
    EXPECT_TRUE(waitFor(place, [&] { return problem().empty(); }));
    EXPECT_EQ(side(), "Bottom");
}

TEST_F(WorkbenchTest, TakesTheLastWriteBackAndReadsOnce)
{
    EXPECT_FALSE(undo()->isEnabled());
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(undo()->isEnabled());
    setProperty("R1", "VALUE", "68k");
    ASSERT_TRUE(undo()->isEnabled());

    undo()->trigger();
    ASSERT_EQ(ui.questions.size(), 1);
    EXPECT_TRUE(ui.questions[0].text.contains(QStringLiteral("\n\nWritten ")));
    EXPECT_TRUE(ui.questions[0].text.endsWith(QStringLiteral(": parts.csv")));
    EXPECT_EQ(bench->session().changedFiles(), QStringList());

    ui.answer = true;
    const quint64 before = stamp();
    EXPECT_TRUE(waitForLook([&] { undo()->trigger(); }));
    EXPECT_EQ(stamp(), before + 1);
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(statusText(), "Restored: parts.csv");
    EXPECT_TRUE(ui.warnings.isEmpty());
    EXPECT_FALSE(undo()->isEnabled());
}

TEST_F(WorkbenchTest, SaysWhyAWriteCannotBeTakenBack)
{
    ASSERT_TRUE(bench->open(partList()));
    setProperty("R1", "VALUE", "68k");
    bench->watcher().setDelay(patience);
    const QString file = writeValue("91k");
    ui.answer = true;
    undo()->trigger();
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(file)) << ui.warnings[0].text.toStdString();
    EXPECT_EQ(statusText(), "");
    EXPECT_EQ(bench->session().changedFiles(), QStringList{file});
}

TEST_F(WorkbenchTest, ShowsTheVariantThatIsChosen)
{
    const auto variant = [](const QByteArray &name, const QByteArray &value) {
        return "(variant (name \"" + name + "\") (field (name \"Value\") (value \"" + value + "\")))";
    };
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(action("&Variant")->isVisible());
    ASSERT_TRUE(bench->open(schematic(variant("R&D [*]", "22k") + variant("Lite", "33k"))));
    EXPECT_TRUE(isReported("10k"));
    action("R&&D [*]")->trigger();
    EXPECT_TRUE(isReported("22k"));
    EXPECT_TRUE(action("R&&D [*]")->isChecked());
    action("Lite")->trigger();
    EXPECT_TRUE(isReported("33k"));
    EXPECT_EQ(bench->window().windowTitle(), QStringLiteral("amp [Lite][*] \u2013 Bill of Materials Viewer"));

    // It stays the variant that is shown, as long as there is one.
    EXPECT_TRUE(waitFor([&] { schematic(variant("Lite", "47k")); }, [&] { return isReported("47k"); }));
    EXPECT_TRUE(waitFor([&] { schematic(); }, [&] { return !problem().empty(); }));
    EXPECT_THAT(problem(), HasSubstr("Lite"));
    EXPECT_TRUE(isReported("47k"));
    action("&As Drawn")->trigger();
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(problem(), "");
    EXPECT_FALSE(action("&Variant")->isVisible());
}
