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

/// What the file system says about a file: as long as it says the same, the file is the same. Read before the
/// content, it spares comparing that later.
struct FileStamp
{
    quint64 device = 0;
    quint64 number = 0;
    qint64 size = -1;
    /// In nanoseconds, of the content and of anything about the file.
    qint64 modified = 0;
    qint64 changed = 0;
    /// Whether the file was left alone for a while when this was read. If not, a further change may carry the
    /// same times: file systems count in steps of up to two seconds.
    bool isTelling = false;

    /// Of an open file; tells nothing when that cannot be found out.
    [[nodiscard]] static FileStamp of(int file);
    /// Whether the file under a path, links followed, surely still is the one with this stamp.
    [[nodiscard]] bool isOf(const QString &path) const;
};

[[nodiscard]] FileFingerprint fingerprintOf(std::string_view bytes);

/// Of the file as it is now, links followed; nothing when it cannot be read.
[[nodiscard]] std::optional<FileFingerprint> fingerprintOfFile(const QString &path);

} // namespace designs
