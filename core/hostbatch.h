// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

/// A batch of the host's component database, of which there must be one. It is not written when it goes out
/// of scope without commit().
class HostBatch final
{
public:
    HostBatch() { getcdb()->beginbatch(); }
    HostBatch(const HostBatch &) = delete;
    HostBatch &operator=(const HostBatch &) = delete;
    ~HostBatch()
    {
        if (!m_isDone) {
            getcdb()->dropbatch();
        }
    }

    [[nodiscard]] bool commit()
    {
        m_isDone = true;
        return getcdb()->commitbatch();
    }

private:
    bool m_isDone = false;
};
