// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

/// A line on standard error about something that takes longer than a second, where that is a terminal and
/// notices are wanted. It goes away with the object.
class ProgressLine final
{
public:
    explicit ProgressLine(const QString &what);
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    ~ProgressLine();

private:
    void show(const QByteArray &what);

    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_isEnded = false;
    std::thread m_thread;
};
