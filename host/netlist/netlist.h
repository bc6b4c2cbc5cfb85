// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/component.h"

#include <QByteArrayList>

#include <span>

/// The components of a design as the host sends them. The records belong to the sender and stay until it
/// sends again.
struct NETLIST
{
    /// The content can be used when the two words have a bit in common.
    quint32 validMask = 0;
    quint32 wantedMask = 0;

    /// Entries may be null.
    std::span<const COMPONENT *const> components;

    /// Every property name that occurs in the design.
    QByteArrayList propertyNames;

    [[nodiscard]] bool isValid() const { return (validMask & wantedMask) != 0; }
};
