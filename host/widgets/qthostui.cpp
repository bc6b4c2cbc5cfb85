// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/qthostui.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>

void QtHostUi::information(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::information(parent, title, text);
}

void QtHostUi::warning(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox::warning(parent, title, text);
}

bool QtHostUi::question(QWidget *parent, const QString &title, const QString &text, bool defaultYes)
{
    const auto answer = QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No,
                                              defaultYes ? QMessageBox::Yes : QMessageBox::No);
    return answer == QMessageBox::Yes;
}

HostUi::SaveAnswer QtHostUi::saveQuestion(QWidget *parent, const QString &title, const QString &text,
                                          bool withCancel)
{
    QMessageBox::StandardButtons buttons = QMessageBox::Save | QMessageBox::Discard;
    buttons.setFlag(QMessageBox::Cancel, withCancel);
    // Closing a box that has no Cancel must not throw changes away.
    switch (QMessageBox::question(parent, title, text, buttons, QMessageBox::Save)) {
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    case QMessageBox::Cancel:
        return SaveAnswer::Cancel;
    default:
        return SaveAnswer::Save;
    }
}

QString QtHostUi::saveFileName(QWidget *parent, const QString &caption, const QString &path,
                               const QString &filter)
{
    return QFileDialog::getSaveFileName(parent, caption, path, filter);
}

QString QtHostUi::openFileName(QWidget *parent, const QString &caption, const QString &path,
                               const QString &filter)
{
    return QFileDialog::getOpenFileName(parent, caption, path, filter);
}

bool QtHostUi::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

QDateTime QtHostUi::now() const
{
    return QDateTime::currentDateTime();
}

QLocale QtHostUi::locale() const
{
    return QLocale::system();
}
