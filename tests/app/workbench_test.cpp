// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/workbench.h"

#include "app/emptypage.h"
#include "app/programmenus.h"
#include "app/recentfiles.h"
#include "app/statusnotes.h"
#include "host/framework/applnmodule.h"
#include "host/framework/applnwindow.h"
#include "host/framework/hostsettings.h"
#include "host/netlist/cdbcore.h"
#include "host/richtext/textedit.h"
#include "standalone/loadeddesign.h"
#include "support/scriptedui.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

namespace {

constexpr int patience = 20000;

/// A running program, with designs in a folder of its own.
class WorkbenchTest : public testing::Test
{
protected:
    WorkbenchTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
        HostSettings::install(&settings);
        bench = std::make_unique<Workbench>();
        EXPECT_TRUE(bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")))
            << bench->error().toStdString();
        bench->watcher().setDelay(0);
    }
    ~WorkbenchTest() override
    {
        bench.reset();
        HostSettings::install(nullptr);
        QDir::setCurrent(m_before);
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// In one step, as editors do.
    QString write(const QString &name, const QByteArray &text) const
    {
        QSaveFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit());
        return path(name);
    }
    QString partList(const QString &name = QStringLiteral("parts.csv")) const
    {
        return write(name, "Reference,Value,DNP\nR1,10k,\nR2,22k,1\n");
    }
    /// A schematic with U1, and a board that does not place it yet.
    QString schematic() const
    {
        write(QStringLiteral("amp.kicad_pcb"), "(kicad_pcb (version 20240108))");
        return write(QStringLiteral("amp.kicad_sch"), R"((kicad_sch (version 20231120) (generator "eeschema")
  (uuid "root") (paper "A4") (lib_symbols)
  (symbol (lib_id "Amp:LM358") (at 0 0 0) (unit 1) (in_bom yes) (on_board yes) (dnp no) (uuid "s1")
    (property "Reference" "U1" (at 0 0 0)) (property "Value" "LM358" (at 0 0 0))
    (instances (project "amp" (path "/root" (reference "U1") (unit 1))))))
)");
    }

    /// Does something to the files and waits until the program has looked at them and `isDone`.
    bool waitFor(const std::function<void()> &change, const std::function<bool()> &isDone)
    {
        QSignalSpy looks(bench.get(), &Workbench::filesChecked);
        change();
        while (!isDone()) {
            if (!looks.wait(patience)) {
                return false;
            }
        }
        return true;
    }
    QString report() const
    {
        const auto *edit = bench->window().findChild<TextEdit *>();
        return edit ? edit->document()->getHtml() : QString();
    }
    bool isReported(const char *text) const { return report().contains(QLatin1String(text)); }
    StatusNotes &notes() { return bench->window().notes(); }
    QString account() const { return bench->window().findChild<QLabel *>(QStringLiteral("account"))->text(); }
    QAction *action(const QString &text) const
    {
        for (QAction *found : bench->window().menuBar()->findChildren<QAction *>()) {
            if (found->text() == text) {
                return found;
            }
        }
        ADD_FAILURE() << "no action " << text.toStdString();
        return nullptr;
    }

    ScriptedUi ui;
    MemoryHostSettings settings;
    std::unique_ptr<Workbench> bench;

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_home;
    QString m_before = QDir::currentPath();
};

} // namespace

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
    EXPECT_TRUE(library.error().contains(QStringLiteral("/nowhere/libbom.so")));
    EXPECT_FALSE(library.load(QStringLiteral(BOM_BINARY_DIR "/lib/libhost.so"), nullptr));
    EXPECT_TRUE(library.error().contains(QStringLiteral("this is no module")));
    EXPECT_EQ(library.module(), nullptr);
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
