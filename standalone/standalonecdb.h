// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <memory>

class LoadedDesign;

/// The component database of the standalone host: says on which side of the board a component stands.
class StandaloneCdb final : public CDBCORE
{
public:
    StandaloneCdb();

    void setDesign(std::shared_ptr<const LoadedDesign> design);

    /// Reads the board file at the first question about a design. The records are shared: one per side.
    [[nodiscard]] const CDBPART *getpart(quint64 identifier) override;

private:
    std::shared_ptr<const LoadedDesign> m_design;
    CDBLAYOUT m_topLayout;
    CDBLAYOUT m_bottomLayout;
    CDBPART m_notPlaced;
    CDBPART m_top;
    CDBPART m_bottom;
};
