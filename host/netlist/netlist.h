// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/component.h"

#include <QByteArrayList>
#include <QByteArrayView>

#include <functional>
#include <optional>
#include <span>

/// What a mark for parts that are not fitted makes of a part.
struct FITTING
{
    bool isFitted = true;
    /// Whether the user wants parts like it in the bill.
    bool isListed = true;

    bool operator==(const FITTING &) const = default;
};

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

    /// What the text of a property DNP, empty where there is none, says of a part that the host does not
    /// know. Without it such parts are fitted and listed.
    std::function<FITTING(QByteArrayView)> fitting;

    /// Whether the user wants parts that are not fitted listed beside the others: a bill then marks those
    /// that `fitting` names, in lines of their own, and does not count them.
    bool marksnotfitted = false;

    /// How well a property of another name answers for the one that is asked for, on a part that the host
    /// does not know: the smallest is the best, nothing when it does not mean the same. Without it such parts
    /// have each property under its own name only.
    std::function<std::optional<std::size_t>(const QByteArray &asked, const QByteArray &other)> samemeaning;

    /// What tells the component with an identifier from any other of the design, also after references were
    /// changed and the design was read again. Without it, or where it is empty, the reference does.
    std::function<QByteArray(quint64 identifier)> identityof;

    [[nodiscard]] bool isValid() const { return (validMask & wantedMask) != 0; }
};
