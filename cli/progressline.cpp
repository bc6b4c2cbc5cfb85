// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/progressline.h"

#include "cli/console.h"
#include "cli/terminal.h"

#include <chrono>
#include <cstdio>

ProgressLine::ProgressLine(const QString &what)
{
    if (isErrorTerminal() && !console::isQuiet()) {
        m_thread = std::thread([this, text = printable(what).toUtf8()] { show(text); });
    }
}

ProgressLine::~ProgressLine()
{
    if (!m_thread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_isEnded = true;
    }
    m_ended.notify_one();
    m_thread.join();
}

void ProgressLine::show(const QByteArray &what)
{
    std::unique_lock lock(m_mutex);
    int seconds = 0;
    while (!m_ended.wait_for(lock, std::chrono::seconds(1), [this] { return m_isEnded; })) {
        ++seconds;
        std::fprintf(stderr, "\rbom: %s, %d s", what.constData(), seconds);
        std::fflush(stderr);
    }
    if (seconds > 0) {
        std::fputs("\r\033[K", stderr);
    }
}
