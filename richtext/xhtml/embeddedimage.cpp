// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/embeddedimage.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QMimeDatabase>

namespace {

constexpr qint64 largest = 2 * 1024 * 1024;
constexpr int widest = 10'000;

EmbeddedImage refused(const char *reason, const QString &path, const QString &detail = {})
{
    const QString text = QCoreApplication::translate("EmbeddedImage", reason);
    return {{}, {}, QDir::toNativeSeparators(path) + QStringLiteral(":\n") + text + detail};
}

} // namespace

EmbeddedImage embeddedImage(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refused(QT_TRANSLATE_NOOP("EmbeddedImage", "The file cannot be read: "), path,
                       file.errorString());
    }
    // One byte more tells a file that is too large, pipes included.
    QByteArray bytes = file.read(largest + 1);
    if (bytes.size() > largest) {
        return refused(
            QT_TRANSLATE_NOOP("EmbeddedImage", "The image is larger than 2 MiB. Make it smaller first."),
            path);
    }
    const QString type = QMimeDatabase().mimeTypeForData(bytes).name();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const bool isSensible = !size.isEmpty() && size.width() <= widest && size.height() <= widest;
    if (!type.startsWith(QLatin1String("image/")) || !isSensible || reader.read().isNull()) {
        return refused(QT_TRANSLATE_NOOP("EmbeddedImage", "The file holds no image that can be shown."),
                       path);
    }
    return {QStringLiteral("data:") + type + QStringLiteral(";base64,") +
                QString::fromLatin1(bytes.toBase64()),
            size,
            {}};
}
