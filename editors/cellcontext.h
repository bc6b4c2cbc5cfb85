// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "editors/propertyrows.h"

#include <QBrush>
#include <QFont>
#include <QIcon>

class BOMPartsDatabase;
class PropertyAssignments;
class QPalette;

/// How cells look on a light or dark table.
struct CellLook
{
    CellLook() = default;
    CellLook(const QPalette &palette, const QFont &font);

    /// Texts that are not in the design yet.
    QBrush blue;
    /// Texts that cannot be edited, and what stands for several.
    QBrush grey;
    /// Behind a required cell without a text.
    QBrush missing;
    QFont link;
    QFont bomOnly;
    QFont bomOnlyLink;
    QIcon conflict;
};

/// What the cells of a table share. It must outlive them.
struct CellContext
{
    PropertyRows rows;
    CellLook look;
    const BOMPartsDatabase *database = nullptr;
    const PropertyAssignments *assignments = nullptr;
};
