// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvfile.h"
#include "designs/csv/partlist.h"

namespace designs {

/// Reads a part list: delimited cells, a row of headings, a row per part or group of equal parts. The design
/// is a PartList.
///
/// Each reference becomes a component; a reference that stands in several rows becomes several. The
/// properties are the cells of all columns but reference, value and quantity under their headings, empty
/// cells included except in BOMSKIP, BOMLINKS and BOMPART..., which mark a part by having a text; the
/// footprint can be asked for as PACKAGE, the value as VALUE. A column DNP (any letter case) marks the parts
/// that are not fitted, by any text but 0, no, n, false and ~. References that begin with
/// "#" are no components: they are counted as power symbols.
///
/// Errors are what would lose a part or a text: a row that says something but names no reference, texts
/// behind the last column, references that cannot be understood, more than 2,000,000 components, and what the
/// file itself refuses. Warnings are rows with too few cells, quantities that differ from the number of
/// references, references that begin with "#", a missing value column, and headings that had to be settled by
/// choice. All of them name the file by its absolute path.
///
/// `list` is what is filled, an empty list of a class that can do more with it.
[[nodiscard]] ReadResult readPartList(const QString &path, const ReadOptions &options = {},
                                      const CsvLimits &limits = {},
                                      std::unique_ptr<PartList> list = std::make_unique<PartList>());

/// Reads what a part list would hold.
[[nodiscard]] ReadResult readPartListBytes(const QString &absolutePath, QByteArray bytes,
                                           const CsvLimits &limits = {},
                                           std::unique_ptr<PartList> list = std::make_unique<PartList>(),
                                           const std::stop_token &stop = {});

} // namespace designs
