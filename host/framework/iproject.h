// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/imodule.h"

class APPLNDOCUMENT;

/// The project that is open in the host, interface INTERFACE_PROJECT of no application in particular.
class IPROJECT : public IMODULE
{
public:
    /// The document of the project, which tells what was modified. It stays the host's; null when there is
    /// none.
    [[nodiscard]] virtual APPLNDOCUMENT *getprojectdocument() = 0;

protected:
    ~IPROJECT() = default;
};
