// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class APPLNDOCUMENT;

/// The numbers under which applications and modules offer their interfaces, see
/// APPLNPROCESS::getmoduleinterface().
constexpr unsigned INTERFACE_PROJECT = 2;
constexpr unsigned INTERFACE_NETSERVER = 7;
/// The module "BOM" offers the same object under both.
constexpr unsigned INTERFACE_NETCLIENT = 8;
constexpr unsigned INTERFACE_BOMVIEWER = 10;

/// An interface that one module of the host offers to the others.
class IMODULE
{
public:
    /// The interface with that number of the same object, null when it has none.
    virtual IMODULE *queryinterface(unsigned id) = 0;

protected:
    IMODULE() = default;
    IMODULE(const IMODULE &) = default;
    IMODULE &operator=(const IMODULE &) = default;
    ~IMODULE() = default;
};

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
