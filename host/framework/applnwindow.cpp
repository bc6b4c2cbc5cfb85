// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnwindow.h"

#include "host/framework/applnmodule.h"

APPLNWINDOW::~APPLNWINDOW()
{
    setowner(nullptr);
}

void APPLNWINDOW::setowner(APPLNMODULE *module)
{
    if (m_owner == module) {
        return;
    }
    if (m_owner) {
        m_owner->forgetwindow(this);
    }
    m_owner = module;
    if (m_owner) {
        m_owner->addwindow(this);
    }
}
