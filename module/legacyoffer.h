// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

/// The import of templates from scripts of earlier versions: offered once, soon after the first window. A
/// child of the window: one that waits goes with it, before the module's library may be unloaded.
class LegacyOffer final : public QObject
{
    Q_OBJECT

public:
    /// `isBusy` says whether the window has something open that the offer must not cover.
    LegacyOffer(std::function<bool()> isBusy, QObject *parent);

    /// Does nothing when the import has been offered in an earlier run.
    void start();
    /// Ends the offer, for the import is about to be shown. True when it was still open.
    [[nodiscard]] bool take();

Q_SIGNALS:
    void due();

private:
    void offer();

    QTimer m_timer;
    std::function<bool()> m_isBusy;
    bool m_isOpen;
};
