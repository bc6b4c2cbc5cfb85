// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/statusupdater.h"

#include "app/statusfields.h"
#include "standalone/buyerfields.h"
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"

#include <utility>

StatusUpdater::StatusUpdater(DesignSession *session, StatusFields *fields,
                             std::function<INETCLIENT *()> client)
    : m_session(session)
    , m_fields(fields)
    , m_client(std::move(client))
{
    // The report changes several times in a row.
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &StatusUpdater::update);
}

void StatusUpdater::reportChanged(bool isReport)
{
    if (isReport) {
        m_timer.start();
    } else {
        updatePending();
    }
}

void StatusUpdater::update()
{
    m_timer.stop();
    if (!m_session->design()) {
        return;
    }
    m_stamp = m_session->design()->properties().stamp();
    ReportStatus report;
    if (INETCLIENT *client = m_client()) {
        const TellingProperties telling = tellingProperties(*m_session->design());
        report = {client->reportcounts(), client->differinglines(telling.always, telling.whereFilled)};
    }
    m_shown = designStatus(*m_session, report);
    m_fields->setDesign(m_shown);
}

void StatusUpdater::updateIfWritten()
{
    if (m_session->design() && m_stamp != m_session->design()->properties().stamp()) {
        update();
    }
}

void StatusUpdater::updatePending()
{
    const auto count = pendingCount(m_client()->reportcounts());
    if (m_session->design() && count != m_shown.pending) {
        m_shown.pending = count;
        m_fields->setDesign(m_shown);
    }
}

void StatusUpdater::clear()
{
    m_timer.stop();
    m_shown = {};
    m_fields->setDesign({});
    m_fields->setProblem({});
}

qsizetype StatusUpdater::pending() const
{
    return m_shown.pending ? m_client()->reportcounts()->pending : 0;
}
