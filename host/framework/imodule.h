// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

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
