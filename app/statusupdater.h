// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/designstatus.h"

#include <QObject>
#include <QTimer>

#include <functional>

class DesignSession;
class StatusFields;
class INETCLIENT;

/// Keeps the counts of the status bar true while the report, the pending edits and the design change.
class StatusUpdater final : public QObject
{
    Q_OBJECT

public:
    /// `client` gives the module as a client of the design, null when it is none. Nothing is owned.
    StatusUpdater(DesignSession *session, StatusFields *fields, std::function<INETCLIENT *()> client);

    /// To be called when the report has changed, or only the pending edits have.
    void reportChanged(bool isReport);
    void update();
    /// Updates when the session has read the design since the last update: the module wrote the files.
    void updateIfWritten();
    void clear();
    /// How many edits are pending.
    [[nodiscard]] qsizetype pending() const;

private:
    void updatePending();

    DesignSession *m_session;
    StatusFields *m_fields;
    std::function<INETCLIENT *()> m_client;
    QTimer m_timer;
    /// Of the reading that the counts are about.
    quint64 m_stamp = 0;
    DesignStatus m_shown;
};
