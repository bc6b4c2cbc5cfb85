// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/netlist/netcache.h"

NETCACHE::~NETCACHE()
{
    setsource(nullptr);
}

void NETCACHE::setsource(INETSERVER *server)
{
    if (m_server) {
        m_server->removecache(this);
    }
    m_server = server;
    invalidate();
    if (m_server) {
        m_server->addcache(this);
    }
}

void NETCACHE::setcontext(int context, int detail)
{
    m_context = context;
    m_detail = detail;
    invalidate();
}

void NETCACHE::validate(int wait)
{
    if (!m_stale || !m_server) {
        return;
    }
    const bool loaded = wait != 0 && m_server->sendnetlist(*this, m_context, m_detail);
    m_stale = !loaded;
    if (m_client) {
        m_client->designChanged(loaded);
    }
}

void NETCACHE::releaseformer()
{
    if (m_server) {
        m_server->releaseformer(*this);
    }
}
