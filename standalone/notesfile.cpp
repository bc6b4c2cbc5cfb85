// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/notesfile.h"

#include "files/regularfile.h"
#include "standalone/texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

namespace {

/// More than any notes that people write; keeps a wrong file from filling the memory.
constexpr qint64 largestNotes = 16 * 1024 * 1024;

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

struct Form
{
    bool hasMark = false;
    bool hasCarriageReturns = false;
};

/// The byte-order mark and line ends of the present file, by its first line.
Form formOf(const QString &path)
{
    QString reason;
    const QByteArray text = contentOfRegularFile(path, largestNotes, &reason).value_or(QByteArray());
    const QByteArray line = text.left(text.indexOf('\n') + 1);
    return {text.startsWith(byteOrderMark), line.endsWith("\r\n")};
}

QByteArray bytesOf(QString text, Form form)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (form.hasCarriageReturns) {
        text.replace(u'\n', QStringLiteral("\r\n"));
    }
    return (form.hasMark ? QByteArray(byteOrderMark) : QByteArray()) + text.toUtf8();
}

bool removeFile(const QString &path, QString *reason)
{
    QFile file(path);
    if (!file.exists() || file.remove()) {
        return true;
    }
    *reason = file.errorString();
    return false;
}

bool saveFile(const QString &path, const QByteArray &bytes, QString *reason)
{
    QSaveFile file(path);
    return openForReplacing(&file, QIODevice::WriteOnly, reason) && writeReplacement(&file, bytes, reason);
}

bool replaceFile(const QString &path, const QByteArray &bytes, QString *reason)
{
    if (bytes.size() > largestNotes) {
        *reason = SessionTexts::tr("notes are at most 16 MB");
        return false;
    }
    return saveFile(path, bytes, reason);
}

/// Without a file there is nothing to keep, and an older backup stays.
bool keepContent(const QString &path, const QString &backup, QString *reason)
{
    QFile file(path);
    if (!file.exists()) {
        return true;
    }
    if (!openRegularFile(&file, QIODevice::ReadOnly, reason)) {
        return false;
    }
    const bool isKept =
        QDir().mkpath(QFileInfo(backup).path()) && saveFile(backup, file.read(file.size()), reason);
    if (!isKept) {
        *reason = reason->isEmpty()
                      ? SessionTexts::tr("the previous notes cannot be kept in %1").arg(backup)
                      : SessionTexts::tr("the previous notes cannot be kept in %1: %2").arg(backup, *reason);
    }
    return isKept;
}

} // namespace

NotesFile readNotesFile(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        return {};
    }
    if (!info.isFile()) {
        return {{}, SessionTexts::tr("is no file")};
    }
    QString reason;
    const std::optional<QByteArray> bytes = contentOfRegularFile(path, largestNotes, &reason);
    if (!bytes) {
        return {{}, reason};
    }
    if (bytes->size() > largestNotes) {
        return {{}, SessionTexts::tr("is larger than 16 MB")};
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(*bytes);
    if (decoder.hasError()) {
        return {{}, SessionTexts::tr("is no UTF-8 text")};
    }
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return {text, {}};
}

bool writeNotesFile(const QString &path, const QString &backup, const QString &text, QString *reason)
{
    QString problem;
    const bool isWritten = keepContent(path, backup, &problem) &&
                           (text.isEmpty() ? removeFile(path, &problem)
                                           : replaceFile(path, bytesOf(text, formOf(path)), &problem));
    *reason = isWritten ? QString() : path + QStringLiteral(": ") + problem;
    return isWritten;
}
