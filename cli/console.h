// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

/// What the program returns to the shell.
enum class ExitStatus
{
    Done = 0,
    /// The design has a problem that the user must decide on.
    DesignProblem = 1,
    WrongUsage = 2,
    UnreadableInput = 3,
    UnwritableOutput = 4
};

/// The text with everything that is no printable character made visible: a name from a design can neither
/// break a message over lines nor steer the terminal.
[[nodiscard]] QString printable(const QString &text);

namespace console {

/// Writes the line "bom: text" to standard error: why something cannot be done.
void message(const QString &text);

/// The same for what the user should know although nothing failed, unless the user wants none of it.
void notice(const QString &text);
void notices(const QStringList &texts);
void setQuiet(bool isQuiet);
[[nodiscard]] bool isQuiet();

/// Messages name the files below this folder, an absolute path, as they do below the other one.
void showFolderAs(const QString &folder, const QString &shown);
/// The text with the paths at its beginning and behind blanks and brackets as messages name them.
[[nodiscard]] QString withShownPaths(const QString &text);

/// Writes to standard output; false, after a message, when it takes no more.
[[nodiscard]] bool write(QByteArrayView bytes);

} // namespace console

/// How the module speaks to the user of the command line: messages go to standard error, nothing is asked,
/// nothing is opened. The clock is SOURCE_DATE_EPOCH where that is set.
class CliUi final : public HostUi
{
public:
    /// Installs itself for as long as it lives.
    explicit CliUi(const QLocale &locale);
    ~CliUi() override;

    void information(QWidget *parent, const QString &title, const QString &text) override;
    void warning(QWidget *parent, const QString &title, const QString &text) override;
    /// Always no: what no option asked for is not done.
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
    void copyText(const QString &) override {}
    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] QLocale locale() const override { return m_locale; }

private:
    QLocale m_locale;
};
