// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What is to be done about files and folders that were dropped on the window.
struct DroppedFiles
{
    /// What may be designs, going by their names, each once; a folder stands for the design in it.
    QStringList designs;
    /// Why something is none, in one sentence; empty when all are.
    QString problem;

    bool operator==(const DroppedFiles &) const = default;
};

[[nodiscard]] DroppedFiles droppedFiles(const QStringList &paths);
