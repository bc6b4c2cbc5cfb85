// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"

#include <utility>

/// Holds notices back while it lives. The outermost one sends the notice at its end.
class BOMPartsDatabase::BulkChange final
{
public:
    explicit BulkChange(BOMPartsDatabase *database)
        : m_database(std::exchange(database->m_isUpdating, true) ? nullptr : database)
    {
    }
    BulkChange(const BulkChange &) = delete;
    BulkChange &operator=(const BulkChange &) = delete;
    ~BulkChange()
    {
        if (m_database) {
            m_database->m_isUpdating = false;
            m_database->notify();
        }
    }

private:
    BOMPartsDatabase *m_database;
};
