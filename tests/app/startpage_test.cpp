// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What is offered while no design is open, and the ways to and from there.
#include "tests/app/workbenchfixture.h"

#include "app/emptypage.h"
#include "app/recentfiles.h"

#include <QApplication>
#include <QCommandLinkButton>
#include <QTableWidget>
#include <QTest>

namespace {

class StartPageTest : public WorkbenchTest
{
protected:
    /// "TEXT | DETAIL" of each entry of a section.
    [[nodiscard]] QStringList entries(const char *section) const
    {
        QStringList texts;
        for (const QCommandLinkButton *button : buttons(section)) {
            texts << button->text() + QStringLiteral(" | ") + button->accessibleDescription();
        }
        return texts;
    }
    [[nodiscard]] QList<QCommandLinkButton *> buttons(const char *section) const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const auto *box = bench->window().emptyPage().findChild<QWidget *>(QLatin1String(section));
        return box->findChildren<QCommandLinkButton *>();
    }
};

TEST_F(StartPageTest, ClosingADesignAsksAndLeadsBackToIt)
{
    EXPECT_FALSE(action("&Close")->isEnabled());
    ASSERT_TRUE(bench->open(partList()));
    auto *table = bench->window().findChild<QTableWidget *>(QStringLiteral("partsView"));
    table->item(0, 2)->setText(QStringLiteral("11k"));
    EXPECT_EQ(account(), "1 line, 1 part, 1 pending, 1 not fitted");
    action("&Close")->trigger();
    EXPECT_TRUE(bench->session().design()) << "cancelled";

    ui.saveAnswer = HostUi::SaveAnswer::Discard;
    bench->window().show();
    action("&Close")->trigger();
    EXPECT_FALSE(bench->session().design());
    EXPECT_TRUE(bench->window().emptyPage().isVisible());
    EXPECT_EQ(bench->window().windowTitle(), QStringLiteral("Bill of Materials Viewer"));
    EXPECT_EQ(bench->window().menuBar()->actions().size(), 3);
    EXPECT_EQ(account(), "");
    ASSERT_EQ(entries("unwritten").size(), 1);
    EXPECT_TRUE(entries("unwritten")[0].startsWith(QStringLiteral("parts.csv | 1 edit, ")));

    buttons("unwritten")[0]->click();
    EXPECT_EQ(account(), "1 line, 1 part, 1 pending, 1 not fitted");
}

TEST_F(StartPageTest, OffersEditsOfAnEarlierRun)
{
    ASSERT_TRUE(bench->open(partList()));
    bench->window()
        .findChild<QTableWidget *>(QStringLiteral("partsView"))
        ->item(0, 2)
        ->setText(QStringLiteral("1"));
    bench.reset();
    bench = std::make_unique<Workbench>();
    ASSERT_TRUE(bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")));
    ASSERT_EQ(entries("unwritten").size(), 1);
    QFile::remove(path("parts.csv"));
    buttons("unwritten")[0]->click();
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(
        ui.warnings[0].text.startsWith(QStringLiteral("The design \"parts.csv\" cannot be opened.\n\n")));
    EXPECT_EQ(entries("unwritten").size(), 1) << "it may come back";
}

TEST_F(StartPageTest, NamesRecentDesignsThatAreGone)
{
    RecentFiles::add(path("gone.csv"));
    RecentFiles::add(partList());
    bench = nullptr;
    bench = std::make_unique<Workbench>();
    const QStringList recent = entries("recent");
    ASSERT_EQ(recent.size(), 2);
    EXPECT_TRUE(recent[0].startsWith(QStringLiteral("parts.csv | /")));
    EXPECT_TRUE(recent[1].startsWith(QStringLiteral("gone.csv | Not there any more: /")));
}

TEST_F(StartPageTest, OpensCopiesOfExamples)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(path("")));
    const auto open = [&] {
        buttons("examples")[0]->click();
        return statusText();
    };
    EXPECT_EQ(entries("examples")[0], QStringLiteral("audio-amplifier | audio-amplifier.kicad_pro"));
    EXPECT_TRUE(
        QString::fromStdString(open()).startsWith(QStringLiteral("This is a copy of the example, in /")));
    const QString copy = RecentFiles::list().value(0);
    EXPECT_TRUE(copy.startsWith(path("")) && QFile::exists(copy)) << copy.toStdString();
    EXPECT_TRUE(
        QString::fromStdString(open()).startsWith(QStringLiteral("This is your copy of the example")));
    qputenv("HOME", home);
}

TEST_F(StartPageTest, TheButtonHasTheFocusAndTabLeadsThroughTheEntries)
{
    RecentFiles::add(partList());
    bench = nullptr;
    bench = std::make_unique<Workbench>();
    bench->window().show();
    bench->window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bench->window()));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("openButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(qobject_cast<QCommandLinkButton *>(QApplication::focusWidget()), buttons("recent")[0]);
}

} // namespace
