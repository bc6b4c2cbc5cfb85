// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

/// A line for the status bar that goes when it is no longer so, or has been read.
class PassingMessage final : public QObject
{
    Q_OBJECT

public:
    PassingMessage()
    {
        constexpr int timeToRead = 20'000;
        m_shown.setSingleShot(true);
        m_shown.setInterval(timeToRead);
        connect(&m_shown, &QTimer::timeout, this, [this] { Q_EMIT changed({}); });
    }

    void show(const QString &text)
    {
        m_shown.start();
        Q_EMIT changed(text);
    }
    /// Does nothing to a line that somebody else shows.
    void clear()
    {
        if (m_shown.isActive()) {
            m_shown.stop();
            Q_EMIT changed({});
        }
    }

Q_SIGNALS:
    /// Empty for no message.
    void changed(const QString &text);

private:
    QTimer m_shown;
};
