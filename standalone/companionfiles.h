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

/// Tells when a file has another content than at the last look; not being there is a content too.
class FileLook final
{
public:
    /// The look at an empty name never finds anything.
    void setFile(const QString &path);
    [[nodiscard]] const QString &file() const { return m_path; }
    /// Whether the content is another one; it is then the known one.
    [[nodiscard]] bool hasChanged();

private:
    [[nodiscard]] std::optional<designs::FileFingerprint> fingerprint() const;

    QString m_path;
    std::optional<designs::FileFingerprint> m_known;
};
