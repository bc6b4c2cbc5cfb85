// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

#include "host/netlist/cdbcore.h"
#include "standalone/loadeddesign.h"

#include <QDialog>

#include <sstream>

TEST_F(WorkbenchTest, FollowsTheFilesOfTheDesign)
{
    ASSERT_TRUE(bench->open(partList()));
    // Twice, for a file that was replaced is another one to the system.
    for (const char *value : {"33k", "47k"}) {
        const auto change = [&] {
            write(QStringLiteral("parts.csv"), QByteArray("Reference,Value\nR1,") + value + '\n');
        };
        EXPECT_TRUE(waitFor(change, [&] { return isReported(value); })) << value;
    }
}

TEST_F(WorkbenchTest, DoesNotReadAgainWhatIsTheSame)
{
    const QString file = partList();
    ASSERT_TRUE(bench->open(file));
    const LoadedDesign *before = bench->session().design();
    int looks = 0;
    QObject::connect(bench.get(), &Workbench::filesChecked, [&looks] { ++looks; });
    EXPECT_TRUE(waitFor([&] { partList(); }, [&] { return looks > 0; }));
    EXPECT_EQ(bench->session().design(), before);
}

TEST_F(WorkbenchTest, LooksAtFilesInAFolderThatNeverSettles)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->watcher().setDelay(patience);
    bench->watcher().setLongest(1);
    const auto change = [&] { write(QStringLiteral("parts.csv"), "Reference,Value\nR1,33k\n"); };
    EXPECT_TRUE(waitFor(change, [&] { return isReported("33k"); }));
}

TEST_F(WorkbenchTest, FollowsWhatHappenedBeforeItWatched)
{
    ASSERT_TRUE(bench->open(partList()));
    // All that the system has told of the folder is forgotten.
    bench->watcher().setFiles({});
    write(QStringLiteral("parts.csv"), "Reference,Value\nR1,33k\n");
    QCoreApplication::processEvents();
    EXPECT_TRUE(waitFor([&] { bench->watcher().setFiles(bench->session().files()); },
                        [&] { return isReported("33k"); }));
}

TEST_F(WorkbenchTest, DoesNotReadItsOwnWritesTwice)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_EQ(account(), QStringLiteral("1 listed, 1 not fitted"));
    quint64 written = 0;
    int looks = 0;
    QObject::connect(bench.get(), &Workbench::filesChecked, [&looks] { ++looks; });
    const auto write = [&written, this] {
        std::istringstream script("DATA NAME : R2-\n\"DNP\"   :   \"[REMOVE]\"\nEND\n\n");
        std::ostringstream answer;
        getcdb()->beginbatch();
        getcdb()->adi(script, answer, 0);
        EXPECT_TRUE(getcdb()->commitbatch()) << answer.str();
        written = bench->session().design()->properties().stamp();
    };
    EXPECT_TRUE(waitFor(write, [&] { return looks > 0; }));
    EXPECT_EQ(bench->session().design()->properties().stamp(), written);
    EXPECT_TRUE(isReported("22k"));
    EXPECT_EQ(account(), QStringLiteral("2 listed"));
}

TEST_F(WorkbenchTest, WaitsForAHalfWrittenFile)
{
    const QString file = partList();
    ASSERT_TRUE(bench->open(file));
    EXPECT_TRUE(waitFor([&] { write(QStringLiteral("parts.csv"), "Reference,Value\n\"R1,1"); },
                        [&] { return !notes().problem().isEmpty(); }));
    EXPECT_TRUE(notes().problem().startsWith(file));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_TRUE(ui.warnings.isEmpty());

    EXPECT_TRUE(waitFor([&] { QFile::remove(file); },
                        [&] { return notes().problem().contains(QStringLiteral("no such file")); }))
        << notes().problem().toStdString();
    EXPECT_TRUE(waitFor([&] { write(QStringLiteral("parts.csv"), "Reference,Value\nR1,56k\n"); },
                        [&] { return isReported("56k"); }));
    EXPECT_TRUE(notes().problem().isEmpty());
}

TEST_F(WorkbenchTest, LeavesThePartsAloneWhileADialogIsOpen)
{
    ASSERT_TRUE(bench->open(partList()));
    const LoadedDesign *before = bench->session().design();
    QDialog dialog(&bench->window());
    dialog.open();
    QSignalSpy touches(&bench->watcher(), &FileWatcher::touched);
    write(QStringLiteral("parts.csv"), "Reference,Value\nR1,33k\n");
    while (touches.size() < 3) {
        ASSERT_TRUE(touches.wait(patience));
    }
    EXPECT_EQ(bench->session().design(), before);
    EXPECT_TRUE(waitFor([&] { dialog.close(); }, [&] { return isReported("33k"); }));
}

TEST_F(WorkbenchTest, FollowsTheBoardBesideTheSchematic)
{
    ASSERT_TRUE(bench->open(schematic()));
    const quint64 identifier = bench->session().design()->components()[0]->identifier;
    ASSERT_EQ(getcdb()->getpart(identifier)->layout(), nullptr);
    const LoadedDesign *before = bench->session().design();
    QStringList boards;
    QObject::connect(&bench->session().document(), &APPLNDOCUMENT::modified,
                     [&](const APPLNDOCUMENT *document) {
                         EXPECT_TRUE(document->isdoctype("LYT"));
                         boards << document->getinfo("FILENAME");
                     });

    const auto place = [&] {
        write(QStringLiteral("amp.kicad_pcb"), "(kicad_pcb (version 20240108) (footprint \"X\" (layer "
                                               "\"B.Cu\") (property \"Reference\" \"U1\")))");
    };
    EXPECT_TRUE(waitFor(place, [&] { return !boards.isEmpty(); }));
    EXPECT_EQ(boards, QStringList{path(QStringLiteral("amp.kicad_pcb"))});
    EXPECT_EQ(bench->session().design(), before);
    ASSERT_NE(getcdb()->getpart(identifier)->layout(), nullptr);
    EXPECT_EQ(getcdb()->getpart(identifier)->layout()->name(), QByteArray("Bottom"));

    const auto spoil = [&] { write(QStringLiteral("amp.kicad_pcb"), "(kicad_pcb (version"); };
    EXPECT_TRUE(waitFor(spoil, [&] { return !notes().problem().isEmpty(); }));
    EXPECT_TRUE(notes().problem().startsWith(boards[0]));
    EXPECT_EQ(getcdb()->getpart(identifier)->layout()->name(), QByteArray("Bottom"));

    // Something else in the folder does not make it a good one.
    int looks = 0;
    QObject::connect(bench.get(), &Workbench::filesChecked, [&looks] { ++looks; });
    EXPECT_TRUE(waitFor([&] { write(QStringLiteral("other.txt"), "x"); }, [&] { return looks > 0; }));
    EXPECT_TRUE(notes().problem().startsWith(boards[0])) << notes().problem().toStdString();
    EXPECT_EQ(bench->session().design(), before);
    const quint64 now = bench->session().design()->components()[0]->identifier;
    ASSERT_NE(getcdb()->getpart(now)->layout(), nullptr);
    EXPECT_TRUE(waitFor(place, [&] { return notes().problem().isEmpty(); }));
    EXPECT_EQ(getcdb()->getpart(now)->layout()->name(), QByteArray("Bottom"));
}
