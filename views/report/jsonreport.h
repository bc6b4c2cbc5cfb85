// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class JsonWriter;
class Report;
struct ReportDesign;

/// The report as a JSON document in UTF-8, for programs.
[[nodiscard]] QByteArray jsonReport(const Report &report);

/// Writes the entry "design" of the object that is open.
void writeDesign(JsonWriter &json, const ReportDesign &design);
