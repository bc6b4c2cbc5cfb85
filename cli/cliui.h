// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"

/// The seam of the command line: notices go to standard error, nothing is asked, nothing is opened. The clock
/// is SOURCE_DATE_EPOCH where that is set.
class CliUi final : public HostUi
{
public:
    /// Installs itself for as long as it lives.
    explicit CliUi(const QLocale &locale);
    ~CliUi() override;

    void information(QWidget *parent, const QString &title, const QString &text) override;
    void warning(QWidget *parent, const QString &title, const QString &text) override;
    /// No, always; what was not asked for by an option is not done.
    [[nodiscard]] bool question(QWidget *parent, const QString &title, const QString &text,
                                bool defaultYes) override;
    /// Discards: a command that changes settings saves them itself.
    [[nodiscard]] SaveAnswer saveQuestion(QWidget *parent, const QString &title, const QString &text,
                                          bool withCancel) override;
    [[nodiscard]] QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
                                       const QString &filter) override;
    [[nodiscard]] QString openFileName(QWidget *parent, const QString &caption, const QString &path,
                                       const QString &filter) override;
    bool openUrl(const QUrl &url) override;
    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] QLocale locale() const override { return m_locale; }

private:
    QLocale m_locale;
};
