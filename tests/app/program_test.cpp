// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/designstatus.h"
#include "app/emptypage.h"
#include "app/framewindow.h"
#include "app/statusfields.h"
#include "support/testpaths.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QLabel>
#include <QProcess>
#include <QToolButton>

#include <gtest/gtest.h>

TEST(Program, SaysUsageWithoutADisplayAndWhatIsWrong)
{
    const std::pair<const char *, int> cases[] = {{"--bogus", 2}, {"--version", 0}, {"--help", 0}, {"-h", 0}};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    for (const auto &[arguments, status] : cases) {
        if (status == 0) {
            environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        }
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(BOM_BINARY_DIR "/bin/bomviewer"),
                      QString::fromUtf8(arguments).split(u' '));
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << arguments;
        EXPECT_EQ(program.exitCode(), status) << arguments;
        EXPECT_EQ(program.readAllStandardOutput().contains("bomviewer"), status == 0) << arguments;
        EXPECT_EQ(program.readAllStandardError().contains("bomviewer: "), status != 0) << arguments;
    }
}

TEST(Program, ExplainsItselfInTheLanguageOfTheUserAndItsManualInEnglish)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    const std::pair<const char *, const char *> cases[] = {{"--help", "Zeigt die Stückliste"},
                                                           {"--manual", "Shows the bill of materials"}};
    for (const auto &[argument, expected] : cases) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(BOM_BINARY_DIR "/bin/bomviewer"), {QString::fromLatin1(argument)});
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_TRUE(program.readAllStandardOutput().contains(expected)) << argument;
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

TEST(StatusFieldsTest, TipsShowTheTextsAsTheyAre)
{
    FrameWindow window;
    window.status().setDesign({{}, {}, {QStringLiteral("R&D.csv:1: \"<b>\"")}});
    const QString tip = window.findChild<QToolButton *>(QStringLiteral("warningsButton"))->toolTip();
    EXPECT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_TRUE(tip.contains(QStringLiteral("R&amp;D.csv:1: &quot;&lt;b&gt;&quot;")));
}
