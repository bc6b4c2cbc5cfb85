// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// The numbers under which applications and modules offer their interfaces, see
/// APPLNPROCESS::getmoduleinterface().
constexpr unsigned INTERFACE_PROJECT = 2;
constexpr unsigned INTERFACE_NETSERVER = 7;
/// The module "BOM" offers the same object under both.
constexpr unsigned INTERFACE_NETCLIENT = 8;
constexpr unsigned INTERFACE_BOMVIEWER = 10;
