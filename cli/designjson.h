// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

class BOMPartsDatabase;
class JsonWriter;

/// Writes what the design says of itself as the entry "design" of the object that is open.
void writeDesign(JsonWriter &json, const BOMPartsDatabase &database);
