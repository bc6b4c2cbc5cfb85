// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/filefingerprint.h"

#include <QString>

#include <optional>

class LoadedDesign;

/// The board file beside a schematic, which need not exist; empty for a part list.
[[nodiscard]] QString boardFileOf(const LoadedDesign &design);
/// The project file beside a schematic, likewise.
[[nodiscard]] QString projectFileOf(const LoadedDesign &design);

/// Finds out whether a file changed since the last look. Appearing and disappearing are changes.
class FileLook final
{
public:
    /// An empty path stands for no file, which never changes.
    void setFile(const QString &path);
    [[nodiscard]] const QString &file() const { return m_path; }
    /// Whether the content is another one than at the last call or setFile().
    [[nodiscard]] bool hasChanged();

private:
    [[nodiscard]] std::optional<designs::FileFingerprint> fingerprint() const;

    QString m_path;
    std::optional<designs::FileFingerprint> m_known;
};
