// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/embeddedimage.h"

#include "files/regularfile.h"
#include "richtext/xhtml/htmlsize.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

constexpr qint64 largest = 2 * 1024 * 1024;
constexpr int widest = 10'000;
/// A thin image that is drawn wide is taller than all paper.
constexpr int steepest = 50;
/// Five thousand by five thousand.
constexpr qint64 mostPixelsOfOne = 25'000'000;

EmbeddedImage refused(const char *reason, const QString &path, const QString &detail = {})
{
    const QString text = QCoreApplication::translate("EmbeddedImage", reason);
    return {{}, {}, QDir::toNativeSeparators(path) + QStringLiteral(":\n") + text + detail};
}

/// Whether a drawing is made of plain shapes. Images in it would be opened as files, uses of its own parts
/// can multiply without end, and entities as well.
bool isPlainDrawing(const QByteArray &svg)
{
    constexpr int mostElements = 10'000;
    if (htmlSize(QString::fromUtf8(svg)).attributeEnds > HtmlSize::mostAttributeEnds) {
        return false;
    }
    QXmlStreamReader reader(svg);
    int elements = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::DTD:
            return false;
        case QXmlStreamReader::StartElement:
            if (++elements > mostElements || reader.name() == QLatin1String("image") ||
                reader.name() == QLatin1String("use")) {
                return false;
            }
            break;
        default:
            break;
        }
    }
    return !reader.hasError();
}

/// Null when it cannot be shown.
QImage readImage(QByteArray bytes, qint64 mostPixels)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    // Before its size is asked for: that loads all of a drawing, with the files that it names.
    if (reader.format().startsWith("svg") && !isPlainDrawing(bytes)) {
        return {};
    }
    const QSize size = reader.size();
    const bool isSensible = !size.isEmpty() && size.width() <= widest && size.height() <= widest &&
                            size.width() <= steepest * size.height() &&
                            size.height() <= steepest * size.width() &&
                            qint64(size.width()) * size.height() <= mostPixels;
    return isSensible ? reader.read() : QImage();
}

} // namespace

EmbeddedImage embeddedImage(const QString &path)
{
    QString reason;
    std::optional<QByteArray> content = contentOfRegularFile(path, largest, &reason);
    if (!content) {
        return refused(QT_TRANSLATE_NOOP("EmbeddedImage", "The file cannot be read: "), path, reason);
    }
    const QByteArray &bytes = *content;
    if (bytes.size() > largest) {
        return refused(
            QT_TRANSLATE_NOOP("EmbeddedImage", "The image is larger than 2 MiB. Make it smaller first."),
            path);
    }
    const QString type = QMimeDatabase().mimeTypeForData(bytes).name();
    const QImage image = readImage(bytes, mostPixelsOfOne);
    if (!type.startsWith(QLatin1String("image/")) || image.isNull()) {
        return refused(QT_TRANSLATE_NOOP("EmbeddedImage", "The file holds no image that can be shown."),
                       path);
    }
    return {QStringLiteral("data:") + type + QStringLiteral(";base64,") +
                QString::fromLatin1(bytes.toBase64()),
            image.size(),
            {}};
}

QImage decodedImage(const QString &address, qint64 mostPixels)
{
    static const QRegularExpression form(QStringLiteral("^data:image/[^,]*,"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(address);
    if (!match.hasMatch()) {
        return {};
    }
    const QByteArray data =
        QByteArray::fromPercentEncoding(QStringView(address).mid(match.capturedEnd()).toUtf8());
    const bool isBase64 = match.capturedView().contains(QLatin1String(";base64"), Qt::CaseInsensitive);
    return readImage(isBase64 ? QByteArray::fromBase64(data) : data, std::min(mostPixels, mostPixelsOfOne));
}
