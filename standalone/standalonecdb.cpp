// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonecdb.h"

#include "standalone/loadeddesign.h"

StandaloneCdb::StandaloneCdb()
{
    m_topLayout.setname("Top");
    m_bottomLayout.setname("Bottom");
    m_top.setlayout(&m_topLayout);
    m_bottom.setlayout(&m_bottomLayout);
}

void StandaloneCdb::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
}

const CDBPART *StandaloneCdb::getpart(quint64 identifier)
{
    const designs::Component *component = m_design ? m_design->component(identifier) : nullptr;
    if (!component) {
        return nullptr;
    }
    switch (m_design->design().placement(component->reference)) {
    case designs::Side::Top:
        return &m_top;
    case designs::Side::Bottom:
        return &m_bottom;
    case designs::Side::NotPlaced:
        break;
    }
    return &m_notPlaced;
}
