// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filebuffer.h"

#include <QHash>
#include <QString>

#include <vector>

namespace designs {

/// Tells the line of a byte offset in a file, for messages. A file is read at the first question about it.
class LineNumbers
{
public:
    /// `start` is what files of this kind begin with.
    explicit LineNumbers(std::string_view start)
        : m_start(start)
    {
    }

    /// Counted from 1; 0 when the file cannot be read any more.
    [[nodiscard]] int line(const QString &path, quint64 offset);

private:
    std::string_view m_start;
    FileBuffer m_buffer;
    /// The offsets of the line feeds of each file.
    QHash<QString, std::vector<quint64>> m_lineEnds;
};

} // namespace designs
