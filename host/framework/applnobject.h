// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class QPainter;

/// The kinds of object that a process is asked for.
constexpr int OBJECT_KIND_PROJECT_NOTES = 34;

/// How an object paints itself.
constexpr int PAINT_MODE_APPEND = 2;

/// Something of the host's that can show itself on a module's output.
class APPLNOBJECT
{
public:
    APPLNOBJECT() = default;
    APPLNOBJECT(const APPLNOBJECT &) = delete;
    APPLNOBJECT &operator=(const APPLNOBJECT &) = delete;
    virtual ~APPLNOBJECT() = default;

    /// With PAINT_MODE_APPEND: on pages of its own after what the painter has painted, on the same device.
    virtual void paint(QPainter &painter, int mode) = 0;
};
