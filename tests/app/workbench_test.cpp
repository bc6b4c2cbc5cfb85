// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

#include "app/emptypage.h"
#include "app/recentfiles.h"
#include "host/framework/applnmodule.h"

#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTest>
#include <QToolBar>

TEST_F(WorkbenchTest, TellsWhatToDoUntilADesignIsOpen)
{
    bench->window().show();
    EXPECT_TRUE(bench->window().emptyPage().isVisible());
    ASSERT_TRUE(bench->open(partList()));

    EXPECT_FALSE(bench->window().emptyPage().isVisible());
    EXPECT_EQ(bench->window().windowTitle(), QStringLiteral("parts[*] \u2013 Bill of Materials Viewer"));
    EXPECT_TRUE(isReported("10k") && !isReported("22k"));
    QStringList titles;
    for (const QAction *menu : bench->window().menuBar()->actions()) {
        titles << menu->text();
    }
    EXPECT_EQ(titles.join(u' '), QStringLiteral("&File &Edit &Generate &Templates &View &Help"));
}

TEST_F(WorkbenchTest, KeepsTheOldDesignWhenAnotherCannotBeRead)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(bench->open(write("broken.kicad_sch", "(kicad_sch (version")));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("broken.kicad_sch:1")));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(RecentFiles::list(), QStringList{path("parts.csv")});
}

TEST_F(WorkbenchTest, OutputsReplaceNoFileOfTheDesign)
{
    const QString list = partList();
    ASSERT_TRUE(bench->open(list));
    const QString link = path("link.csv");
    ASSERT_TRUE(QFile::link(list, link));
    const QString board = write("other.kicad_pcb", "(kicad_pcb)");
    const auto bytes = [](const QString &name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QString fieldNames = write("parts.bomfields.txt", "");
    for (const QString &file : {list, link, board, fieldNames}) {
        ui.fileName = file;
        const QByteArray before = bytes(file);
        for (const char *output : {"&CSV", "&PDF"}) {
            ui.warnings.clear();
            action(output)->trigger();
            ASSERT_EQ(ui.warnings.size(), 1) << file.toStdString();
            EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("belongs to the design")));
        }
        EXPECT_EQ(bytes(file), before);
    }
    ui.fileName = path("bill.csv");
    action("&CSV")->trigger();
    EXPECT_TRUE(QFile::exists(ui.fileName));
}

TEST_F(WorkbenchTest, AsksForAFileAndTakesDroppedOnes)
{
    ui.fileName = partList();
    action("&Open…")->trigger();
    EXPECT_TRUE(isReported("10k"));

    const QString dropped = write("dropped.csv", "Reference,Value\nC1,4u7\n");
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/x.csv")), QUrl::fromLocalFile(path("")),
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
    EXPECT_EQ(RecentFiles::list(), QStringList({dropped, path("parts.csv")}));
}

TEST_F(WorkbenchTest, RemembersTenDesigns)
{
    for (int number = 0; number < 12; ++number) {
        ASSERT_TRUE(bench->open(partList(("list " + std::to_string(number) + " & é.csv").c_str())));
    }
    EXPECT_EQ(RecentFiles::list().size(), 10);
    EXPECT_EQ(RecentFiles::list().constFirst(), path("list 11 & é.csv"));

    const QString gone = path("list 5 & é.csv");
    ASSERT_TRUE(QFile::remove(gone));
    EXPECT_FALSE(bench->open(gone));
    EXPECT_EQ(RecentFiles::list().size(), 9);

    const QString project = write("list 10 & é.kicad_pro", "{}");
    RecentFiles::add(path("list 10 & é.kicad_sch"));
    RecentFiles::add(project);
    EXPECT_EQ(RecentFiles::list().size(), 10) << "a project and its schematic are one design";
    EXPECT_EQ(RecentFiles::list().constFirst(), project);

    action("&Clear This List")->trigger();
    EXPECT_TRUE(RecentFiles::list().isEmpty());
    EXPECT_FALSE(action("Open &Recent")->isEnabled());
    action("&Open…")->trigger();
    EXPECT_EQ(ui.fileRequests.constLast().path, QFileInfo(gone).path()) << "the last folder";
}

TEST_F(WorkbenchTest, ListsPartsThatAreNotFittedWhenAsked)
{
    ASSERT_TRUE(bench->open(partList()));
    action("&Include")->trigger();
    EXPECT_TRUE(isReported("10k") && isReported("22k") && isReported("0 + 1 DNP"));
    action("&Only These")->trigger();
    EXPECT_TRUE(!isReported("10k") && isReported("22k") && !isReported("DNP"));
    EXPECT_EQ(account(), "1 line, 1 part, 1 fitted");
    // The choice is the user's, not the design's.
    ASSERT_TRUE(bench->open(partList("other.csv")));
    EXPECT_TRUE(!isReported("10k") && isReported("22k"));
}

TEST_F(WorkbenchTest, SaysWhatIsDoubtfulAboutADesign)
{
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_TRUE(bench->window().status().warnings().isEmpty());
    const QString file =
        write("doubtful.csv", "Reference,Value,BOMSKIP\nR1,1k,\nR?,${X},\nR1,3k,\nR2,1k,1\n");
    ASSERT_TRUE(bench->open(file));
    EXPECT_EQ(account(), "2 lines, 2 parts, 1 skipped, 1 repeated");
    const QString warnings = bench->window().status().warnings().join(u'\n');
    EXPECT_EQ(QString(warnings).replace(file, QStringLiteral("F")).toStdString(),
              "F:2: R1 occurs 2 times, also at F:4\nF:3: R? is not annotated\n"
              "R?: a text variable ${...} is not resolved");
}

TEST_F(WorkbenchTest, BeginsWithColumnsThatFitTheDesignUntilTheUserChooses)
{
    ASSERT_TRUE(bench->open(write("parts.csv", "Reference,Value,manf#\nR1,10k,RC-10K\nR2,10k,RC-22K\n")));
    EXPECT_TRUE(isReported("RC-22K"));
    EXPECT_EQ(bench->window().status().warnings().size(), 0);
    ASSERT_TRUE(bench->open(write("other.csv", "Reference,Value,LCSC\nR1,10k,C100\n")));
    EXPECT_TRUE(isReported("C100") && !isReported("MPN"));

    bench.reset();
    settings.setValue(QStringLiteral("BOM"), QStringLiteral("CurrentTemplate"), QStringLiteral("Default"));
    bench = std::make_unique<Workbench>();
    ASSERT_TRUE(bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")) &&
                bench->open(path("parts.csv")));
    EXPECT_TRUE(isReported("Stock Code") && !isReported("RC-22K"));
    EXPECT_TRUE(bench->window().status().warnings().join(u'\n').contains(
        QStringLiteral("R1-R2 are one line and differ in MPN")));
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
    const std::pair<const char *, const char *> cases[] = {
        {"/nowhere/libbom.so", "/nowhere/libbom.so: there is no such file"},
        {BOM_BINARY_DIR "/lib/libhost.so", BOM_BINARY_DIR "/lib/libhost.so: this is no module"},
        {BOM_BINARY_DIR "/lib/libothermodule.so",
         BOM_BINARY_DIR "/lib/libothermodule.so: the module cannot be started"}};
    ModuleLibrary library;
    for (const auto &[path, error] : cases) {
        EXPECT_FALSE(library.load(QString::fromUtf8(path), nullptr));
        EXPECT_EQ(library.error().toStdString(), error);
        EXPECT_EQ(library.module(), nullptr);
    }
}

TEST_F(WorkbenchTest, SaysThatAModuleCannotStartOrHasNoWindow)
{
    const auto isStarted = [this] {
        bench.reset();
        bench = std::make_unique<Workbench>();
        return bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libothermodule.so"));
    };
    EXPECT_FALSE(isStarted());
    EXPECT_TRUE(bench->error().contains(QStringLiteral("cannot be started")));
    qputenv("OTHER_MODULE_NAME", "ABC");
    ASSERT_TRUE(isStarted()) << bench->error().toStdString();
    EXPECT_FALSE(bench->open(partList()));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(QStringLiteral("\"ABC\"")));
    qunsetenv("OTHER_MODULE_NAME");
}

TEST(FrameWindowTest, IsNoLargerThanTheScreen)
{
    const FrameWindow window;
    const QSize screen = window.screen()->availableSize();
    EXPECT_EQ(window.size().boundedTo(screen), window.size());
}

TEST_F(WorkbenchTest, ToolBarsComeBackAsTheyWere)
{
    const auto bars = [this] {
        QList<QToolBar *> found;
        for (const char *name : {"designBar", "bomToolBar"}) {
            found << bench->window().findChild<QToolBar *>(QLatin1String(name));
        }
        return found;
    };
    const auto startAgain = [&] {
        bench->window().close();
        bench = nullptr;
        bench = std::make_unique<Workbench>();
        EXPECT_TRUE(bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")));
        bench->window().show();
        EXPECT_TRUE(bench->open(partList()));
        QCoreApplication::processEvents();
    };
    startAgain();
    EXPECT_LT(bars()[0]->x(), bars()[1]->x());
    startAgain();
    EXPECT_LT(bars()[0]->x(), bars()[1]->x()) << "the second start";
    bench->window().insertToolBar(bars()[0], bars()[1]);
    bars()[0]->hide();
    startAgain();
    EXPECT_TRUE(bars()[0]->isHidden());
    bars()[0]->show();
    QCoreApplication::processEvents();
    EXPECT_GT(bars()[0]->x(), bars()[1]->x());
}

TEST(FrameWindowTest, StaysOnTheScreenWhenItMustGrow)
{
    FrameWindow window;
    const QRect screen = window.screen()->availableGeometry();
    window.setGeometry(screen.right() - 600, screen.top() + 50, 550, 400);
    window.show();
    QWidget wide;
    wide.setMinimumWidth(700);
    window.setwidget(&wide);
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.width() >= 700; }));
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
    window.removewidget(&wide);
}

TEST(FrameWindowTest, PutsTheHelpOfAModuleIntoItsOwn)
{
    FrameWindow window;
    QMenu help;
    help.addAction(QStringLiteral("&Bill of Materials"));
    QMenu late;
    QMenu early;
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
