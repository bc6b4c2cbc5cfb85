// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/netcache.h"

/// What the module offers to other modules, under INTERFACE_NETCLIENT and INTERFACE_BOMVIEWER.
class IBOMVIEWER : public INETCLIENT
{
public:
    /// Shows the viewer's window.
    virtual void show() = 0;

protected:
    ~IBOMVIEWER() = default;
};
