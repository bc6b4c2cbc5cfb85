// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// Large designs, outputs, further windows, and what is dropped on the window.
#include "tests/app/workbenchfixture.h"

#include "app/droppedfiles.h"
#include "app/recentfiles.h"

#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

class ReadingTest : public WorkbenchTest
{
protected:
    /// A part list that takes longer to read than the program waits for.
    QString largeList() const
    {
        QByteArray rows = "Reference,Value\n";
        for (int number = 1; number <= 100000; ++number) {
            rows += 'R' + QByteArray::number(number) + ",10k\n";
        }
        return write("large.csv", rows);
    }
    QWidget *panel() const { return bench->window().findChild<QWidget *>(QStringLiteral("readingPanel")); }
    /// Does something as soon as the panel is seen.
    void whileReading(const std::function<void()> &act)
    {
        bench->reading().setDelay(0);
        m_poll.setInterval(0);
        QObject::connect(&m_poll, &QTimer::timeout, [this, act] {
            if (panel()->isVisible()) {
                m_poll.stop();
                ++m_seen;
                act();
            }
        });
        m_poll.start();
    }
    int m_seen = 0;

private:
    QTimer m_poll;
};

TEST_F(ReadingTest, CancelStopsItAndKeepsTheOldDesign)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->window().show();
    const QString large = largeList();
    whileReading([this] { panel()->findChild<QPushButton *>()->click(); });
    EXPECT_FALSE(bench->open(large));
    ASSERT_EQ(m_seen, 1);
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(statusText(), "Reading large.csv was cancelled.");
    EXPECT_TRUE(ui.warnings.isEmpty());
    EXPECT_FALSE(panel()->isVisible());
}

TEST_F(ReadingTest, InputReachesNothingButTheCancelButton)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->window().show();
    bench->window().activateWindow();
    const QString large = largeList();
    whileReading([this] {
        EXPECT_FALSE(bench->open(partList()));
        EXPECT_FALSE(bench->window().close());
        QTest::keyClick(&bench->window(), Qt::Key_W, Qt::ControlModifier);
    });
    EXPECT_FALSE(bench->open(large)) << "closing the window stops it";
    ASSERT_EQ(m_seen, 1);
    EXPECT_TRUE(bench->session().design());
    EXPECT_TRUE(bench->window().isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(bench->window().isVisible()) << "closed when reading has ended";
}

TEST_F(ReadingTest, QuitEndsTheProgramWhenReadingHasEnded)
{
    bench->window().show();
    bench->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench->window()));
    whileReading([this] { QTest::keyClick(&bench->window(), Qt::Key_Q, Qt::ControlModifier); });
    EXPECT_FALSE(bench->open(largeList()));
    QCoreApplication::processEvents();
    EXPECT_FALSE(bench->window().isVisible());
}

TEST_F(ReadingTest, NamesTheLastOutputAndOpensItsFolder)
{
    ASSERT_TRUE(bench->open(partList()));
    auto *button = bench->window().findChild<QToolButton *>(QStringLiteral("writtenButton"));
    EXPECT_TRUE(button->isHidden() && !action("Open &Folder of the Last Output")->isEnabled());
    for (const char *name : {"out.csv", "out.pdf", "out.txt"}) {
        ui.fileName = path(name);
        const QString form = QString::fromLatin1(name).section(u'.', 1);
        action(form == u"csv" ? "&CSV" : form == u"pdf" ? "&PDF" : "&ASCII")->trigger();
        EXPECT_EQ(button->text(), QStringLiteral("Written: ") + QLatin1String(name));
    }
    action("Open &Folder of the Last Output")->trigger();
    EXPECT_EQ(ui.openedUrls.constLast(), QUrl::fromLocalFile(QFileInfo(ui.fileName).path()));
    QFile::remove(path("out.txt"));
    action("Open &Last Output")->trigger();
    EXPECT_EQ(ui.warnings.size(), 1);
}

TEST_F(ReadingTest, ADesignOfAnotherWindowIsOpenedWhenTheUserWantsIt)
{
    const QString file = schematic();
    write("amp.kicad_pro", "{}");
    DesignClaim other;
    ASSERT_TRUE(other.take(path("amp.kicad_pro")));
    EXPECT_FALSE(bench->open(file));
    ASSERT_EQ(ui.questions.size(), 1);
    ui.answer = true;
    EXPECT_TRUE(bench->open(file));
    other = {};
    ui.answer = false;
    EXPECT_TRUE(bench->open(file));
    EXPECT_FALSE(DesignClaim().take(file));
    EXPECT_TRUE(bench->open(file)) << "this window has it itself";
    EXPECT_EQ(ui.questions.size(), 2);
}

TEST_F(ReadingTest, FurtherDesignsHaveWindowsOfTheirOwn)
{
    QStringList started;
    bench->setStarter([&started](const QStringList &arguments) {
        started << arguments.constLast();
        return true;
    });
    ui.fileName = partList();
    action("Open in &New Window…")->trigger();
    EXPECT_EQ(started, QStringList(path("parts.csv")));
    EXPECT_FALSE(bench->session().design());
    Q_EMIT bench->window().filesDropped({schematic(), path("parts.csv"), write("notes.txt", "x")});
    EXPECT_EQ(started, QStringList({path("parts.csv"), path("parts.csv")}));
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(statusText(), "notes.txt is no design: drop a .kicad_sch, .kicad_pro or .csv file.");
}

TEST_F(ReadingTest, AFolderStandsForTheDesignInIt)
{
    schematic();
    EXPECT_EQ(droppedFiles({path("")}).designs, QStringList(path("amp.kicad_sch")));
    write("amp.kicad_pro", "{}");
    EXPECT_EQ(droppedFiles({path("amp.kicad_sch"), path("")}).designs, QStringList(path("amp.kicad_sch")));
    write("other.kicad_pro", "{}");
    EXPECT_TRUE(droppedFiles({path("")}).problem.contains(QStringLiteral("holds 2 designs")));
    EXPECT_FALSE(bench->open(path("")));
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_EQ(ui.warnings[0].text, droppedFiles({path("")}).problem);
    QFile::remove(path("other.kicad_pro"));
    EXPECT_TRUE(bench->open(path("")));
    EXPECT_EQ(RecentFiles::list(), QStringList(path("amp.kicad_pro")));
    QDir(path("")).mkdir(QStringLiteral("empty"));
    EXPECT_EQ(droppedFiles({path("empty")}).problem,
              QStringLiteral("There is no design in the folder empty."));
}

TEST_F(ReadingTest, F5ReadsTheFilesAndKeepsPendingEdits)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->watcher().setDelay(patience);
    writeValue("33k");
    action("Read the Design Again")->trigger();
    EXPECT_TRUE(isReported("33k"));
    EXPECT_EQ(statusText(), "parts.csv was read again.");
    QFile::remove(path("parts.csv"));
    action("Read the Design Again")->trigger();
    EXPECT_EQ(statusText(), "");
    EXPECT_FALSE(problem().empty());
}

TEST(CountsLabelTest, LeavesOutTheLastTextsAsAWhole)
{
    CountsLabel label;
    label.setTexts({QStringLiteral("57 lines"), QStringLiteral("215 parts"), QStringLiteral("3 skipped")});
    label.resize(label.sizeHint());
    EXPECT_EQ(label.shownText(), QStringLiteral("57 lines, 215 parts, 3 skipped"));
    label.resize(label.width() - 5, label.height());
    EXPECT_EQ(label.shownText(), QStringLiteral("57 lines, 215 parts, \u2026"));
    label.resize(label.minimumSizeHint());
    EXPECT_EQ(label.shownText(), QStringLiteral("57 lines, \u2026"));
}

} // namespace
