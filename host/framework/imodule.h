// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class APPLNDOCUMENT;
class APPLNWINDOW;
class QToolBar;

/// The numbers under which applications and modules offer their interfaces, see
/// APPLNPROCESS::getmoduleinterface().
constexpr unsigned INTERFACE_PROJECT = 2;
constexpr unsigned INTERFACE_NETSERVER = 7;
constexpr unsigned INTERFACE_NAVIGATOR = 9;
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
    /// The controls that the host offers beside a module's window; the caller owns them. Null for none.
    [[nodiscard]] virtual QToolBar *createctrlbar(APPLNWINDOW *) { return nullptr; }

protected:
    ~IPROJECT() = default;
};

/// What came of showing a part.
struct NAVIGATION
{
    /// Whether an editor of the design was told.
    bool isShown = false;
    /// For the status line: where the part stands, and what was done.
    QString text;

    bool operator==(const NAVIGATION &) const = default;
};

/// An application that shows where the parts of its design are drawn, interface INTERFACE_NAVIGATOR.
class INAVIGATOR : public IMODULE
{
public:
    /// Shows the component of that identifier, which has that reference. Where nothing can show it the place
    /// is told, and the reference goes to the clipboard.
    virtual NAVIGATION showpart(const QString &reference, quint64 identifier) = 0;

protected:
    ~INAVIGATOR() = default;
};
