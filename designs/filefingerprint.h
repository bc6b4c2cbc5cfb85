// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace designs {

/// What tells one content of a file from another: its size and 128 bits of XXH3. The same on every machine.
struct FileFingerprint
{
    quint64 size = 0;
    quint64 high = 0;
    quint64 low = 0;

    bool operator==(const FileFingerprint &) const = default;

    /// "SIZE-HEX", for records that outlive the process.
    [[nodiscard]] QString toString() const;
    [[nodiscard]] static std::optional<FileFingerprint> fromString(QStringView text);
};

[[nodiscard]] FileFingerprint fingerprintOf(std::string_view bytes);

/// Of the file as it is now, links followed; nothing when it cannot be read.
[[nodiscard]] std::optional<FileFingerprint> fingerprintOfFile(const QString &path);

} // namespace designs
