// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/designwrite.h"

#include "core/bompartsdatabase.h"
#include "host/netlist/cdbcore.h"

#include <utility>

DesignWrite::DesignWrite(BOMPartsDatabase *database)
    : m_database(database)
    , m_host(getcdb())
    , m_isOutermost(!database->isWriting())
    , m_isOpen(m_host != nullptr)
{
    m_database->setWriting(true);
    if (m_host) {
        m_host->beginbatch();
    }
}

DesignWrite::~DesignWrite()
{
    if (m_isOpen) {
        m_host->dropbatch();
    }
    if (m_isOutermost) {
        m_database->setWriting(false);
    }
}

void DesignWrite::whenWritten(const std::function<void()> &action)
{
    if (m_host) {
        m_host->afterbatch(action);
    }
}

bool DesignWrite::commit()
{
    return std::exchange(m_isOpen, false) && m_host->commitbatch();
}
