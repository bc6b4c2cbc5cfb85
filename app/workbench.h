// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/designclaim.h"
#include "app/designfiles.h"
#include "app/designreading.h"
#include "app/exampledesigns.h"
#include "app/fittedfolder.h"
#include "app/framewindow.h"
#include "app/lastoutput.h"
#include "app/modulelibrary.h"
#include "app/statusupdater.h"
#include "standalone/designsession.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

/// The desktop program: one window, the module in it, and the design that is open.
class Workbench final : public QObject
{
    Q_OBJECT

public:
    Workbench();
    /// Ends the module the way a host does: its window first.
    ~Workbench() override;

    /// Loads the module from a file, or from where it is installed when the name is empty. On failure
    /// error() says why, and there is nothing to show.
    [[nodiscard]] bool start(const QString &modulePath = {});
    [[nodiscard]] const QString &error() const { return m_error; }

    [[nodiscard]] FrameWindow &window() { return m_window; }
    [[nodiscard]] DesignSession &session() { return m_session; }
    [[nodiscard]] FileWatcher &watcher() { return m_files.watcher(); }
    [[nodiscard]] DesignReading &reading() { return m_reading; }

    /// Opens a design, or the one in a folder, as drawn or in a variant, in place of the one that is open.
    /// When it cannot be read the user is told, and the old one stays; likewise when the user cancels it.
    bool open(const QString &path, const QString &variant = {});
    /// Opens designs in windows of their own, which are further processes of this program.
    void openInNewWindows(const QStringList &paths);
    /// What starts those, with the arguments; the program itself at first.
    void setStarter(std::function<bool(const QStringList &arguments)> starter)
    {
        m_startProgram = std::move(starter);
    }

Q_SIGNALS:
    /// The window shows the design as it is on the disk, or says why it cannot.
    void filesChecked();

private:
    void connectWindow();
    void openVariant(const QString &variant);
    void openExample(const ExampleDesign &example);
    void openDropped(const QStringList &paths);
    void closeDesign();
    void tellOpenFailed(const QString &file);
    void chooseDnp(DnpChoice choice);
    void clearRecentFiles();
    void undoLastWrite();
    /// Asks the module about what is not saved, before another state of the design replaces what is open.
    [[nodiscard]] bool canClose();
    /// The module as a client of the design; null when it is none.
    [[nodiscard]] INETCLIENT *client() const;

    /// To be called when the session has opened another design, or has read its design again.
    void showDesign();
    void updateRecentFiles();
    void showStartPage();
    void checkFiles();
    void followChangedFiles();
    /// What F5 does.
    void rereadNow();
    bool rereadDesign();
    [[nodiscard]] bool isUserBusy() const;
    void rereadBoard();
    void rereadNotes();

    // In this order: the module's instance is gone before the session, the process, is.
    DesignSession m_session;
    FittedFolder m_fitted;
    ModuleLibrary m_library;
    FrameWindow m_window;
    LastOutput m_output{&m_window};
    DesignReading m_reading{&m_window};
    DesignClaim m_claim;
    DesignFiles m_files;
    StatusUpdater m_status{&m_session, &m_window.status(), [this] { return client(); }};
    bool m_isAskingToClose = false;
    std::function<bool(const QStringList &arguments)> m_startProgram;
    QString m_modulePath;
    QString m_error;
    /// As the user named it, absolute.
    QString m_path;
    QString m_variant;
};
