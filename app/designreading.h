// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/settleddesign.h"

#include <QObject>
#include <QTimer>

#include <algorithm>
#include <stop_token>

class QWidget;
class ReadingPanel;

/// Reads designs in a thread of its own. The window stays alive meanwhile, but the user's input reaches
/// nothing in it; when it takes longer than a moment a panel says so and offers to cancel it. Escape does
/// that, too.
class DesignReading final : public QObject
{
    Q_OBJECT

public:
    explicit DesignReading(QWidget *window);

    /// Returns when the design is read, or reading was stopped. One at a time: another one is refused.
    [[nodiscard]] SettledDesign read(const QString &path, const OpenOptions &options);
    [[nodiscard]] bool isReading() const { return m_isReading; }
    /// Whether the last one was stopped by the user.
    [[nodiscard]] bool wasStopped() const { return m_stop.stop_requested(); }
    void stop() { m_stop.request_stop(); }

    /// To be called when the window shows the design, or the reading came to nothing.
    void finish();

    /// After how many milliseconds the panel is shown. With 0 it is, however fast the reading.
    void setDelay(int milliseconds)
    {
        m_delay.setInterval(milliseconds);
        m_atOnce = std::min(m_atOnce, milliseconds);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void wait(QThread *thread);

    QWidget *m_window;
    ReadingPanel *m_panel;
    QTimer m_delay;
    std::stop_source m_stop;
    bool m_isReading = false;
    /// How long nothing else is done, in milliseconds: most designs are read by then.
    int m_atOnce = 100;
    bool m_isToBeClosed = false;
};
