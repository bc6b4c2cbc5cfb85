// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnmodule.h"
#include "module/bomviewer.h"

#include <dlfcn.h>

#include <new>

namespace {

/// What the system knows this library by.
void *theLibrary = nullptr;

[[gnu::constructor]] void attachLibrary()
{
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void *>(&attachLibrary), &info) != 0) {
        theLibrary = info.dli_fbase;
    }
}

} // namespace

extern "C" {

/// The module for a process that outlives it; null when there is no memory for it.
[[gnu::visibility("default")]] APPLNMODULE *createmoduleinstance(APPLNPROCESS *process)
{
    auto *module = new (std::nothrow) BOMVIEWER(process);
    if (module) {
        module->setmoduleinstance(theLibrary);
    }
    return module;
}

/// Ends a module that createmoduleinstance() made; null is ignored.
[[gnu::visibility("default")]] void deletemoduleinstance(APPLNMODULE *module)
{
    delete static_cast<BOMVIEWER *>(module);
}
}
