// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <deque>
#include <unordered_map>

/// A component database, installed while it lives, that knows the placements a test gives it.
class FakeCdb final : public CDBCORE
{
public:
    FakeCdb() { setcdb(this); }
    ~FakeCdb() override { setcdb(nullptr); }

    void place(quint64 identifier, const QByteArray &side)
    {
        CDBLAYOUT &layout = m_layouts.emplace_back();
        layout.setname(side);
        m_parts[identifier].setlayout(&layout);
    }
    /// A record without a placement.
    void addUnplaced(quint64 identifier) { m_parts[identifier].setlayout(nullptr); }

    const CDBPART *getpart(quint64 identifier) override
    {
        const auto found = m_parts.find(identifier);
        return found == m_parts.end() ? nullptr : &found->second;
    }

private:
    std::deque<CDBLAYOUT> m_layouts;
    std::unordered_map<quint64, CDBPART> m_parts;
};
