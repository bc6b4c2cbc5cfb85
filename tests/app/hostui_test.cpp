// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/qthostui.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace {

/// Does something with the next message box as soon as it is open.
void withBox(const std::function<void(QMessageBox &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

} // namespace

TEST(QtHostUiTest, ShowsTextsAsTheyAre)
{
    QtHostUi ui;
    withBox([](QMessageBox &box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), QStringLiteral("a<b>.csv: broken"));
        EXPECT_TRUE(box.detailedText().isEmpty());
        box.accept();
    });
    ui.warning(nullptr, QStringLiteral("Open Failed"), QStringLiteral("a<b>.csv: broken"));
}

TEST(QtHostUiTest, LongTextsLeaveRoomForTheButtons)
{
    QtHostUi ui;
    QStringList references;
    for (int number = 0; number < 2000; ++number) {
        references << QStringLiteral("R%1").arg(number);
    }
    for (const char *separator : {", ", "\n"}) {
        const QString text = references.join(QLatin1String(separator));
        withBox([&text](QMessageBox &box) {
            EXPECT_LT(box.height(), 600);
            EXPECT_EQ(box.detailedText(), text);
            box.button(QMessageBox::Yes)->click();
        });
        EXPECT_TRUE(ui.question(nullptr, QStringLiteral("Title"), text, false));
    }
}

TEST(QtHostUiTest, AnswersWhatWasPressed)
{
    QtHostUi ui;
    withBox([](QMessageBox &box) { box.reject(); });
    EXPECT_FALSE(ui.question(nullptr, {}, QStringLiteral("?"), true));
    withBox([](QMessageBox &box) { box.defaultButton()->click(); });
    EXPECT_TRUE(ui.question(nullptr, {}, QStringLiteral("?"), true));
    withBox([](QMessageBox &box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_EQ(ui.saveQuestion(nullptr, {}, QStringLiteral("?"), false), HostUi::SaveAnswer::Discard);
    withBox([](QMessageBox &box) { box.reject(); });
    EXPECT_EQ(ui.saveQuestion(nullptr, {}, QStringLiteral("?"), false), HostUi::SaveAnswer::Save);
    withBox([](QMessageBox &box) { box.button(QMessageBox::Cancel)->click(); });
    EXPECT_EQ(ui.saveQuestion(nullptr, {}, QStringLiteral("?"), true), HostUi::SaveAnswer::Cancel);
}

TEST(QtHostUiTest, FilesThatAreSavedGetAnEnding)
{
    QtHostUi ui;
    const QTemporaryDir folder;
    const QString filter = QStringLiteral("Web pages (*.html *.htm)");
    const std::pair<const char *, const char *> names[] = {
        {"", "amp.html"}, {"bill", "bill.html"}, {"bill.htm", "bill.htm"}};
    for (const auto &[typed, saved] : names) {
        QTimer::singleShot(0, qApp, [typed = QString::fromLatin1(typed)] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            if (!typed.isEmpty()) {
                dialog->findChild<QLineEdit *>()->setText(typed);
            }
            QMetaObject::invokeMethod(dialog, "accept");
        });
        EXPECT_EQ(ui.saveFileName(nullptr, {}, folder.filePath(QStringLiteral("amp.html")), filter),
                  folder.filePath(QString::fromLatin1(saved)));
    }
}

TEST(QtHostUiTest, DialogsHaveTheEverydayPointer)
{
    QtHostUi ui;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    withBox([](QMessageBox &box) {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        box.accept();
    });
    ui.information(nullptr, {}, QStringLiteral("!"));
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}
