// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

class PROPLIST;

/// One component of the host's netlist. Texts are host text; they and the property list belong to the
/// netlist.
struct COMPONENT
{
    QByteArrayView reference;
    QByteArrayView value;
    QByteArrayView name;
    quint64 identifier = 0;
    const PROPLIST *properties = nullptr;
};
