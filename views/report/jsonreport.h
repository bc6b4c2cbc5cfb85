// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/joinedlines.h"

#include <QByteArray>
#include <QStringList>

class JsonWriter;
class Report;
struct ReportDesign;

/// The report as a JSON document in UTF-8, for programs. Beside the "values" of a line, which are the texts
/// that a report shows, stand those "stored" where one of them differs: numbers without decimal places,
/// prefix and suffix of the field, 1 for Yes. A line that is among the joined ones tells in what its parts
/// differ.
[[nodiscard]] QByteArray jsonReport(const Report &report, const QList<JoinedLine> &joined = {});

/// Writes an entry that is a list of texts.
void writeTexts(JsonWriter &json, QStringView name, const QStringList &texts);

/// Writes the entry "design" of the object that is open.
void writeDesign(JsonWriter &json, const ReportDesign &design);
