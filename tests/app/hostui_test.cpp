// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/qthostui.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

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

TEST(QtHostUiTest, FilesThatAreSavedGetAnEndingAndReplaceOthersOnRequestOnly)
{
    QtHostUi ui;
    const QTemporaryDir folder;
    QFile old(folder.filePath(QStringLiteral("old.html")));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    /// Types a name into the dialog, and answers what it asks then.
    const auto save = [&](const QString &proposed, const QString &typed, std::optional<bool> replaces = {}) {
        QTimer::singleShot(0, qApp, [&folder, typed, replaces] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->directory(), QDir(folder.path()));
            if (!typed.isEmpty()) {
                dialog->findChild<QLineEdit *>()->setText(typed);
            }
            QMetaObject::invokeMethod(dialog, "accept");
            if (replaces) {
                withBox([replaces, dialog](QMessageBox &box) {
                    EXPECT_TRUE(box.text().contains(QStringLiteral("old.html already exists")));
                    box.button(*replaces ? QMessageBox::Yes : QMessageBox::No)->click();
                    QTimer::singleShot(0, dialog, &QDialog::reject);
                });
            }
        });
        const QString path = ui.saveFileName(nullptr, {}, folder.filePath(proposed),
                                             QStringLiteral("Web pages (*.html *.htm)"));
        return QDir(folder.path()).relativeFilePath(path).toStdString();
    };
    EXPECT_EQ(save(QStringLiteral("amp.html"), {}), "amp.html");
    EXPECT_EQ(save(QStringLiteral("amp.html"), QStringLiteral("bill 1.2")), "bill 1.2.html");
    EXPECT_EQ(save({}, QStringLiteral("bill.HTM")), "bill.HTM");
    EXPECT_EQ(save({}, QStringLiteral("old"), true), "old.html");
    EXPECT_EQ(save({}, QStringLiteral("old"), false), "");
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
