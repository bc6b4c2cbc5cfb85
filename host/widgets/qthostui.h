// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"

#include <QCoreApplication>

/// How a desktop program speaks to the user: Qt's own boxes and dialogs, the desktop's handlers, the system's
/// clock and locale.
class QtHostUi : public HostUi
{
    Q_DECLARE_TR_FUNCTIONS(QtHostUi)

public:
    void information(QWidget *parent, const QString &title, const QString &text) override;
    void warning(QWidget *parent, const QString &title, const QString &text) override;
    void richWarning(QWidget *parent, const QString &title, const QString &html) override;
    bool question(QWidget *parent, const QString &title, const QString &text, bool defaultYes) override;
    bool warningQuestion(QWidget *parent, const QString &title, const QString &text,
                         bool defaultYes) override;
    SaveAnswer saveQuestion(QWidget *parent, const QString &title, const QString &text,
                            bool withCancel) override;
    QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
                         const QString &filter) override;
    QString openFileName(QWidget *parent, const QString &caption, const QString &path,
                         const QString &filter) override;
    bool openUrl(const QUrl &url) override;
    void copyText(const QString &text) override;
    QDateTime now() const override;
    QLocale locale() const override;
};
