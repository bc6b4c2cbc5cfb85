// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/filewatcher.h"
#include "app/fittedfolder.h"
#include "app/framewindow.h"
#include "app/modulelibrary.h"
#include "standalone/companionfiles.h"
#include "standalone/designsession.h"

#include <QObject>
#include <QString>

#include <optional>

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
    [[nodiscard]] FileWatcher &watcher() { return m_watcher; }

    /// Opens a design in place of the one that is open. When it cannot be read the user is told, and the old
    /// one stays.
    bool open(const QString &path);

Q_SIGNALS:
    /// The window shows the design as it is on the disk, or says why it cannot.
    void filesChecked();

private:
    void connectWindow();
    void chooseFile();
    void openVariant(const QString &variant);
    void chooseDnp(DnpChoice choice);
    void clearRecentFiles();
    void undoLastWrite();
    void showAbout();
    /// Asks the module about what is not saved, before another state of the design replaces what is open.
    [[nodiscard]] bool canClose();
    /// The module as a client of the design; null when it is none.
    [[nodiscard]] INETCLIENT *client() const;

    /// To be called when the session has opened another design, or has read its design again.
    void showDesign();
    void watchDesign();
    void updateRecentFiles();
    void updateStatus();
    /// The lines of the module's report that join different parts, in words.
    [[nodiscard]] QStringList joinedLines() const;
    /// How many parts the module lists, where it counts them.
    [[nodiscard]] std::optional<qsizetype> listedParts() const;
    void checkFiles();
    bool rereadDesign();
    void rereadBoard();
    void rereadNotes();

    // In this order: the module's instance is gone before the session, the process, is.
    DesignSession m_session;
    FittedFolder m_fitted;
    ModuleLibrary m_library;
    FrameWindow m_window;
    FileWatcher m_watcher;
    FileLook m_board;
    FileLook m_project;
    /// The files of the design could not be read when they had changed.
    bool m_isBehind = false;
    /// The stamp of the reading that the status bar is about.
    quint64 m_statusStamp = 0;
    QString m_error;
    /// As the user named it, absolute.
    QString m_path;
    QString m_variant;
};
