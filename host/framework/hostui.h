// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <functional>
#include <utility>

class QUrl;
class QWidget;

/// The one place where the system talks to the user and the desktop: message boxes, questions, file names,
/// opening files, the clipboard, the clock and the number format. The desktop program installs a real one,
/// the command line one that writes to standard error, tests a scripted one.
class HostUi
{
public:
    enum class SaveAnswer
    {
        Save,
        Discard,
        Cancel
    };

    HostUi() = default;
    HostUi(const HostUi &) = delete;
    HostUi &operator=(const HostUi &) = delete;
    virtual ~HostUi() = default;

    virtual void information(QWidget *parent, const QString &title, const QString &text) = 0;
    virtual void warning(QWidget *parent, const QString &title, const QString &text) = 0;
    /// The same for a text that is markup.
    virtual void richWarning(QWidget *parent, const QString &title, const QString &html)
    {
        warning(parent, title, html);
    }

    /// A Yes/No question; true for Yes. `defaultYes` is what a bare Return answers.
    [[nodiscard]] virtual bool question(QWidget *parent, const QString &title, const QString &text,
                                        bool defaultYes) = 0;

    /// The same in a box that warns.
    [[nodiscard]] virtual bool warningQuestion(QWidget *parent, const QString &title, const QString &text,
                                               bool defaultYes)
    {
        return question(parent, title, text, defaultYes);
    }

    /// What to do with unsaved changes: Save, which is what a bare Return answers, Discard, and `withCancel`
    /// Cancel.
    [[nodiscard]] virtual SaveAnswer saveQuestion(QWidget *parent, const QString &title, const QString &text,
                                                  bool withCancel) = 0;

    /// The file to write or read, empty when the user cancels.
    [[nodiscard]] virtual QString saveFileName(QWidget *parent, const QString &caption, const QString &path,
                                               const QString &filter) = 0;
    [[nodiscard]] virtual QString openFileName(QWidget *parent, const QString &caption, const QString &path,
                                               const QString &filter) = 0;

    /// Hands a file or link to the desktop; false when the desktop refused.
    virtual bool openUrl(const QUrl &url) = 0;

    /// Hands a report that was just written to the desktop, and tells whom setFileListener() named.
    void showWrittenFile(const QString &path);
    /// Who is to hear of written reports, by their absolute paths; null for nobody.
    void setFileListener(std::function<void(const QString &path)> listener)
    {
        m_fileListener = std::move(listener);
    }

    /// Puts a text on the clipboard, where there is one.
    virtual void copyText(const QString &text) = 0;

    [[nodiscard]] virtual QDateTime now() const = 0;

    /// The format in which numbers are shown and read.
    [[nodiscard]] virtual QLocale locale() const = 0;

    /// The installed one. Before any is installed: a silent one that answers No, cancels or discards,
    /// with the system's clock and the C number format.
    [[nodiscard]] static HostUi &current();

    /// Installs `ui`, which stays owned by the caller; null goes back to the silent one.
    static void install(HostUi *ui);

private:
    std::function<void(const QString &path)> m_fileListener;
};
