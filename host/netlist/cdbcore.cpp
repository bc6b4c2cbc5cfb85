// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/netlist/cdbcore.h"

namespace {
CDBCORE *theDatabase = nullptr;
}

CDBCORE *getcdb()
{
    return theDatabase;
}

void setcdb(CDBCORE *database)
{
    theDatabase = database;
}
