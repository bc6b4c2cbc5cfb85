// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class BOMPartsDatabase;
class PropertyAssignments;
class QWidget;

/// Asks whether the edits of the open design that an earlier run of the program left are to be pending again,
/// where there are any, and does so on Yes; on No they wait for the next time. True when they are pending.
bool offerEarlierEdits(PropertyAssignments *assignments, const BOMPartsDatabase *database, QWidget *parent);
