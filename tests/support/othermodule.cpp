// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnmodule.h"

namespace {

/// A module without a window, which starts under a name only.
class OtherModule final : public APPLNMODULE
{
public:
    explicit OtherModule(APPLNPROCESS *process)
        : APPLNMODULE(process)
    {
        setapplnname(qEnvironmentVariable("OTHER_MODULE_NAME"), QStringLiteral("Other"));
    }
    bool system_init() override { return !getapplnname().isEmpty(); }
};

} // namespace

extern "C" {

[[gnu::visibility("default")]] APPLNMODULE *createmoduleinstance(APPLNPROCESS *process)
{
    return process ? new OtherModule(process) : nullptr;
}

[[gnu::visibility("default")]] void deletemoduleinstance(APPLNMODULE *module)
{
    delete module;
}
}
