// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/referencerange.h"

#include "designs/csv/referencecell.h"

std::optional<QStringList> readReferences(const QString &text, QString *error)
{
    const std::string cell = text.toStdString();
    designs::TextArena arena;
    designs::ReferenceCell reader(arena);
    if (!reader.read(cell)) {
        *error = reader.error();
        return std::nullopt;
    }
    if (reader.references().empty()) {
        *error = QStringLiteral("no reference is named");
        return std::nullopt;
    }
    QStringList references;
    for (const std::string_view reference : reader.references()) {
        references << QString::fromUtf8(reference.data(), qsizetype(reference.size()));
    }
    return references;
}
