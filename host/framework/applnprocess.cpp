// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnprocess.h"

namespace {
APPLNPROCESS *theProcess = nullptr;
}

APPLNPROCESS *getapplnprocess()
{
    return theProcess;
}

void setapplnprocess(APPLNPROCESS *process)
{
    theProcess = process;
}
