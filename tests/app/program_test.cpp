// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/emptypage.h"
#include "app/framewindow.h"
#include "app/statusnotes.h"
#include "support/testpaths.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QLabel>
#include <QProcess>
#include <QToolButton>

#include <gtest/gtest.h>

TEST(Program, TellsVersionAndUsageWithoutADisplay)
{
    for (const char *option : {"--version", "--help", "-h"}) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(BOM_BINARY_DIR "/bin/bomviewer"), {QLatin1String(option)});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << option;
        EXPECT_EQ(program.exitCode(), 0) << option;
        EXPECT_TRUE(program.readAllStandardOutput().contains("bomviewer")) << option;
    }
}

TEST(Program, TellsWrongUsage)
{
    for (const QStringList &arguments :
         {QStringList{QStringLiteral("--bogus")}, QStringList{QStringLiteral("a"), QStringLiteral("b")}}) {
        QProcess program;
        program.start(QStringLiteral(BOM_BINARY_DIR "/bin/bomviewer"), arguments);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), 2);
        EXPECT_TRUE(program.readAllStandardError().contains("bomviewer: "));
    }
}

TEST(EmptyPageTest, ShowsItsTextsInFull)
{
    QAction open;
    EmptyPage page(&open);
    page.resize(600, 600);
    page.show();
    for (const QLabel *label : page.findChildren<QLabel *>()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
    }
}

TEST(EmptyPageTest, ItsButtonsMayBeTakenAwayByWhatTheyDo)
{
    QAction open;
    EmptyPage page(&open);
    page.setRecentFiles({QStringLiteral("/a.csv"), QStringLiteral("/b.csv")});
    QStringList chosen;
    QObject::connect(&page, &EmptyPage::recentChosen, [&](const QString &path) {
        chosen << path;
        page.setRecentFiles({QStringLiteral("/c.csv")});
        EXPECT_EQ(path, chosen.constLast());
    });
    auto *first = page.findChild<QCommandLinkButton *>();
    QObject::connect(first, &QAbstractButton::clicked, [&] { chosen << first->text(); });
    first->click();
    EXPECT_EQ(chosen, QStringList({QStringLiteral("/a.csv"), QStringLiteral("a.csv")}));
}

TEST(StatusNotesTest, TipsShowTheTextsAsTheyAre)
{
    FrameWindow window;
    window.notes().setWarnings({QStringLiteral("R&D.csv:1: \"<b>\"")});
    const QString tip = window.findChild<QToolButton *>(QStringLiteral("warningsButton"))->toolTip();
    EXPECT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_TRUE(tip.contains(QStringLiteral("R&amp;D.csv:1: &quot;&lt;b&gt;&quot;")));
}
