// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QString>

#include <memory>
#include <optional>

/// What a spreadsheet file may hold at most. Sizes are known from the archive's directory, so that nothing is
/// unpacked of a file that says more; one that says less than it holds is refused where that shows.
struct SheetLimits
{
    qint64 fileBytes = qint64(256) * 1024 * 1024;
    /// Of one part of the archive.
    qint64 unpackedBytes = qint64(512) * 1024 * 1024;
    int archiveEntries = 10'000;
    /// Of a sheet, cells in front of and between filled ones included.
    qsizetype cells = 10'000'000;
    /// Characters of all texts of a sheet.
    qsizetype characters = qsizetype(512) * 1024 * 1024;
};

/// The directory of a zip archive, and its parts one by one, unpacked as they are read.
class ZipArchive final
{
public:
    /// Nothing, with the reason in `problem`, for bytes that are no such archive.
    [[nodiscard]] static std::optional<ZipArchive> open(QByteArray bytes, const SheetLimits &limits,
                                                        QString *problem);
    /// Whether the bytes begin as an archive does.
    [[nodiscard]] static bool isArchive(const QByteArray &bytes);

    [[nodiscard]] bool has(const QString &name) const { return m_entries.contains(name); }
    /// The content of a part, open for reading. Null, with the reason in `problem`, when there is none of
    /// that name or it cannot be unpacked. Reading fails where the part is damaged. The archive must outlive
    /// it.
    [[nodiscard]] std::unique_ptr<QIODevice> part(const QString &name, QString *problem) const;

private:
    struct Entry
    {
        quint16 flags = 0;
        quint16 method = 0;
        quint32 checksum = 0;
        quint32 packedSize = 0;
        quint32 size = 0;
        quint32 header = 0;
    };

    ZipArchive() = default;
    [[nodiscard]] bool readDirectory(qsizetype end, QString *problem);
    /// Where the packed bytes of an entry begin; -1 when they do not lie inside the file.
    [[nodiscard]] qsizetype beginOf(const Entry &entry) const;

    QByteArray m_bytes;
    SheetLimits m_limits;
    QHash<QString, Entry> m_entries;
};
