// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/imodule.h"

class QWidget;

/// Follows links out of a module's window.
class LinkHandler
{
public:
    LinkHandler() = delete;

    /// Has the host show a placed part where it is drawn. `identifier` is that of the part's component. What
    /// came of it also goes to the status line of the window that `parent`, which may be null, stands in. A
    /// host that has nothing to show parts with does nothing; the text says so.
    static NAVIGATION navigateLink(const QString &reference, quint64 identifier, QWidget *parent);
};
