// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class FrameWindow;

/// The report that was written last: its name stands in the status bar, and the File menu opens it and its
/// folder.
class LastOutput final : public QObject
{
    Q_OBJECT

public:
    /// Hears of what is written through the HostUi that is installed.
    explicit LastOutput(FrameWindow *window);
    ~LastOutput() override;

    void forget() { set({}); }

private:
    void set(const QString &path);
    void openFile();
    void openFolder();
    void open(const QString &path);

    FrameWindow *m_window;
    QString m_path;
};
