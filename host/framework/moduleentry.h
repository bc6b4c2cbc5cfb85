// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class APPLNMODULE;
class APPLNPROCESS;

/// The two functions that a module's library exports under these names. The instance belongs to the library:
/// it is deleted by the function that stands beside the one that made it.
constexpr const char *MODULE_CREATE = "createmoduleinstance";
constexpr const char *MODULE_DELETE = "deletemoduleinstance";
using CREATEMODULEINSTANCE = APPLNMODULE *(*)(APPLNPROCESS *process);
using DELETEMODULEINSTANCE = void (*)(APPLNMODULE *module);
