// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/csv/csvdialect.h"
#include "designs/csv/partlistcolumns.h"
#include "designs/design.h"

#include <QByteArray>

namespace designs {

/// A design read from a list of parts in a file of delimited cells.
///
/// The components of one row share their properties. Component::origin is the row's index in CsvFile::rows().
class PartList final : public Design
{
public:
    [[nodiscard]] const CsvDialect &dialect() const { return m_dialect; }
    [[nodiscard]] const PartListColumns &columns() const { return m_columns; }

    /// Counts the references in the file as it is now, with a reader of its own.
    [[nodiscard]] SymbolCount recount(Problem *error) const override;

private:
    friend class PartListReader;

    /// What the texts of the components are cut out of.
    QByteArray m_bytes;
    CsvDialect m_dialect;
    PartListColumns m_columns;
};

} // namespace designs
