// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/texts.h"

#include <QString>

namespace designs {

/// Something wrong with a design file: where, and what. `line` counts from 1; 0 when the whole file is meant.
struct Problem
{
    QString file;
    int line = 0;
    QString text;

    /// "FILE:LINE: text", without the line when there is none.
    [[nodiscard]] QString message() const
    {
        return line > 0 ? file + u':' + QString::number(line) + QStringLiteral(": ") + text
                        : file + QStringLiteral(": ") + text;
    }

    bool operator==(const Problem &) const = default;
};

/// What a reader says that was told to stop.
[[nodiscard]] inline Problem stoppedProblem(const QString &file)
{
    return {file, 0, FileTexts::tr("reading was stopped")};
}

} // namespace designs
