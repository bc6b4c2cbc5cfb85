// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/notesfile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace {

/// More than any notes that people write; keeps a wrong file from filling the memory.
constexpr qint64 largestNotes = 16 * 1024 * 1024;

} // namespace

NotesFile readNotesFile(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return {};
    }
    if (!info.isFile()) {
        return {{}, QStringLiteral("is no file")};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {{}, file.errorString()};
    }
    const QByteArray bytes = file.read(largestNotes + 1);
    if (bytes.size() > largestNotes) {
        return {{}, QStringLiteral("is larger than 16 MB")};
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes);
    if (decoder.hasError()) {
        return {{}, QStringLiteral("is no UTF-8 text")};
    }
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return {text, {}};
}
