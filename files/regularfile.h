// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>

#include <optional>

/// Opens a file for reading if it is an ordinary one or a resource of the program; otherwise `reason` says
/// why not. Never waits: a pipe would keep the program until its other end is opened. Read as many bytes as
/// its size() at most: some files of the system state none, and give their first byte only when something
/// happens.
[[nodiscard]] bool openRegularFile(QFile *file, QIODevice::OpenMode mode, QString *reason);

/// The content of such a file; nothing, with the reason, when it cannot be read. Of one that is larger than
/// `most` bytes only the first `most` and one are given.
[[nodiscard]] std::optional<QByteArray> contentOfRegularFile(const QString &path, qint64 most,
                                                             QString *reason);

/// The file that a path means, through links, also where it is still to be written; absolute.
[[nodiscard]] QString meantFile(const QString &path);

/// Opens a file that replaces the one of its name when it is committed. Refuses a symbolic link that leads
/// only to itself: the new file would stand in its place.
[[nodiscard]] bool openForReplacing(QSaveFile *file, QIODevice::OpenMode mode, QString *reason);

/// Gives such a file its content, which stands in the place of the old one once it is on the disk. Otherwise
/// the old one stays, and `reason` says why. QSaveFile::commit() alone misses a full disk when what it still
/// buffers does not fit.
[[nodiscard]] bool writeReplacement(QSaveFile *file, const QByteArray &bytes, QString *reason);
