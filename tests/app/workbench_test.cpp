// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

#include "app/emptypage.h"
#include "app/programmenus.h"
#include "app/recentfiles.h"
#include "host/framework/applnmodule.h"
#include "support/testpaths.h"

#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>

TEST_F(WorkbenchTest, TellsWhatToDoUntilADesignIsOpen)
{
    bench->window().show();
    EXPECT_TRUE(bench->window().emptyPage().isVisible());
    ASSERT_TRUE(bench->open(partList()));

    EXPECT_FALSE(bench->window().emptyPage().isVisible());
    EXPECT_EQ(bench->window().windowTitle(), QStringLiteral("parts \u2013 Bill of Materials Viewer"));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_FALSE(isReported("22k"));
    EXPECT_EQ(account(), QStringLiteral("1 listed, 1 not fitted"));
    QStringList titles;
    for (const QAction *menu : bench->window().menuBar()->actions()) {
        titles << menu->text();
    }
    EXPECT_EQ(titles.join(u' '), QStringLiteral("&File &Edit &Generate &View &Help"));
}

TEST_F(WorkbenchTest, KeepsTheOldDesignWhenAnotherCannotBeRead)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(bench->open(write(QStringLiteral("broken.kicad_sch"), "(kicad_sch (version")));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("broken.kicad_sch:1")));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(RecentFiles::list(), QStringList{path(QStringLiteral("parts.csv"))});
}

TEST_F(WorkbenchTest, AsksForAFileAndTakesDroppedOnes)
{
    ui.fileName = partList();
    action(QStringLiteral("&Open…"))->trigger();
    EXPECT_TRUE(isReported("10k"));

    const QString dropped = write(QStringLiteral("dropped.csv"), "Reference,Value\nC1,4u7\n");
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/x.csv")), QUrl::fromLocalFile(path({})),
                  QUrl::fromLocalFile(dropped)});
    // On what shows the report, which has no use for it.
    QWidget *target = bench->window().findChild<TextEdit *>()->viewport();
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    EXPECT_TRUE(isReported("10k"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(isReported("4u7"));
    EXPECT_EQ(RecentFiles::list(), QStringList({dropped, path(QStringLiteral("parts.csv"))}));
}

TEST_F(WorkbenchTest, RemembersTenDesigns)
{
    for (int number = 0; number < 12; ++number) {
        ASSERT_TRUE(bench->open(partList(QStringLiteral("list %1 & é.csv").arg(number))));
    }
    EXPECT_EQ(RecentFiles::list().size(), 10);
    EXPECT_EQ(RecentFiles::list().constFirst(), path(QStringLiteral("list 11 & é.csv")));

    const QString gone = path(QStringLiteral("list 5 & é.csv"));
    ASSERT_TRUE(QFile::remove(gone));
    EXPECT_FALSE(bench->open(gone));
    EXPECT_EQ(RecentFiles::list().size(), 9);

    action(QStringLiteral("&Clear This List"))->trigger();
    EXPECT_TRUE(RecentFiles::list().isEmpty());
    EXPECT_FALSE(action(QStringLiteral("Open &Recent"))->isEnabled());
}

TEST_F(WorkbenchTest, ListsPartsThatAreNotFittedWhenAsked)
{
    ASSERT_TRUE(bench->open(partList()));
    action(QStringLiteral("&Include"))->trigger();
    EXPECT_TRUE(isReported("10k") && isReported("22k"));
    action(QStringLiteral("&Only These"))->trigger();
    EXPECT_TRUE(!isReported("10k") && isReported("22k"));
    EXPECT_EQ(account(), QStringLiteral("1 listed, 1 fitted"));
    // The choice is the user's, not the design's.
    ASSERT_TRUE(bench->open(partList(QStringLiteral("other.csv"))));
    EXPECT_TRUE(!isReported("10k") && isReported("22k"));
}

TEST_F(WorkbenchTest, SaysWhatIsDoubtfulAboutADesign)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_TRUE(notes().warnings().isEmpty());
    const QString file = write(QStringLiteral("doubtful.csv"), "Reference,Value\nR1,1k\nR?,2k\nR1,3k\n");
    ASSERT_TRUE(bench->open(file));
    EXPECT_EQ(account(), QStringLiteral("2 listed, 1 repeated"));
    EXPECT_EQ(notes().warnings().size(), 2);
    EXPECT_TRUE(notes().warnings()[0].startsWith(file + QStringLiteral(":2: R1 occurs 2 times")));
    EXPECT_TRUE(notes().warnings()[1].startsWith(file + QStringLiteral(":3: R?")));
}

TEST_F(WorkbenchTest, OtherModulesFindTheModule)
{
    APPLNPROCESS *process = getapplnprocess();
    IMODULE *viewer = process->getmoduleinterface("BOM", INTERFACE_BOMVIEWER);
    ASSERT_NE(viewer, nullptr);
    EXPECT_EQ(viewer, process->getmoduleinterface("BOM", INTERFACE_NETCLIENT));
    EXPECT_EQ(process->getmoduleinterface("ABC", INTERFACE_BOMVIEWER), nullptr);
    EXPECT_EQ(process->getmoduleinterface(nullptr, INTERFACE_NETSERVER), nullptr);
    ASSERT_NE(process->getmoduleinterface(nullptr, INTERFACE_PROJECT), nullptr);
}

TEST(ModuleLibraryTest, SaysWhyAModuleCannotBeLoaded)
{
    ModuleLibrary library;
    EXPECT_FALSE(library.load(QStringLiteral("/nowhere/libbom.so"), nullptr));
    EXPECT_EQ(library.error(), QStringLiteral("/nowhere/libbom.so: there is no such file"));
    EXPECT_FALSE(library.load(QStringLiteral(BOM_BINARY_DIR "/lib/libhost.so"), nullptr));
    EXPECT_TRUE(library.error().contains(QStringLiteral("this is no module")));
    EXPECT_FALSE(library.load(QStringLiteral(BOM_BINARY_DIR "/lib/libothermodule.so"), nullptr));
    EXPECT_TRUE(library.error().contains(QStringLiteral("the module cannot be started")));
    EXPECT_EQ(library.module(), nullptr);
}

TEST_F(WorkbenchTest, SaysThatAModuleCannotStartOrHasNoWindow)
{
    const QString other = QStringLiteral(BOM_BINARY_DIR "/lib/libothermodule.so");
    bench.reset();
    bench = std::make_unique<Workbench>();
    EXPECT_FALSE(bench->start(other));
    EXPECT_TRUE(bench->error().contains(QStringLiteral("cannot be started")));

    qputenv("OTHER_MODULE_NAME", "ABC");
    bench.reset();
    bench = std::make_unique<Workbench>();
    ASSERT_TRUE(bench->start(other)) << bench->error().toStdString();
    EXPECT_FALSE(bench->open(partList()));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("\"ABC\"")));
    qunsetenv("OTHER_MODULE_NAME");
}

TEST(FrameWindowTest, PutsTheHelpOfAModuleIntoItsOwn)
{
    FrameWindow window;
    QMenu help(QStringLiteral("&Help"));
    help.addAction(QStringLiteral("&Bill of Materials"));
    QMenu late(QStringLiteral("late"));
    QMenu early(QStringLiteral("early"));
    window.addmenu(276, &help, 0);
    window.addmenu(275, &late, 0);
    window.addmenu(273, &early, 0);
    const QList<QAction *> bar = window.menuBar()->actions();
    ASSERT_EQ(bar.size(), 5);
    EXPECT_EQ(bar[1], early.menuAction());
    EXPECT_EQ(bar[2], late.menuAction());
    EXPECT_EQ(bar[4]->menu()->actions().constFirst(), help.actions().constFirst());

    window.removemenu(&help);
    window.removemenu(&early);
    EXPECT_EQ(window.menuBar()->actions().size(), 4);
    EXPECT_EQ(bar[4]->menu()->actions().size(), 1);
}
