// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplatefile.h"

#include "files/regularfile.h"
#include "richtext/xhtml/htmlsize.h"
#include "templates/variantxml.h"

#include <QBuffer>
#include <QDebug>
#include <QDir>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {
const QLatin1String RootName("BOMTemplate");
const QLatin1String VersionName("version");

// Reads in pieces, because QIODevice::read(limit) would allocate the whole limit. A result longer than the
// limit means that the device holds more.
QByteArray readUpTo(QIODevice &device, qint64 limit)
{
    constexpr qint64 pieceSize = 65536;
    QByteArray content;
    while (content.size() <= limit) {
        const QByteArray piece = device.read(pieceSize);
        if (piece.isEmpty())
            break;
        content += piece;
    }
    return content;
}

/// Reads the root element with everything in it; false, with an error of the reader's, when it is no
/// template's.
bool readRoot(QXmlStreamReader &reader, BOMTemplateDocument &document)
{
    if (reader.name() != RootName) {
        reader.raiseError(BOMTemplateFile::tr("the document is no BOM template"));
        return false;
    }
    document.version = reader.attributes().value(VersionName).toInt();
    if (document.version == 0) {
        reader.raiseError(BOMTemplateFile::tr("the template has no version"));
        return false;
    }
    return readXML(reader, document.map);
}
} // namespace

std::optional<BOMTemplateDocument> BOMTemplateFile::readXmlFile(QString *problem) const
{
    QString reason;
    std::optional<QByteArray> bytes = contentOfRegularFile(m_filePath, MaximumSize, &reason);
    if (!bytes) {
        *problem = located(reason);
        return std::nullopt;
    }
    QBuffer buffer(&*bytes);
    buffer.open(QIODevice::ReadOnly);
    return readDocument(buffer, problem);
}

std::optional<BOMTemplateDocument> BOMTemplateFile::readDocument(QIODevice &device, QString *problem) const
{
    const QByteArray bytes = readUpTo(device, MaximumSize);
    if (bytes.size() > MaximumSize) {
        *problem = located(tr("the file is too large for a template"));
        return std::nullopt;
    }
    if (htmlSize(QString::fromLatin1(bytes)).attributeEnds > HtmlSize::mostAttributeEnds) {
        *problem = located(tr("an element has too many attributes"));
        return std::nullopt;
    }
    BOMTemplateDocument document;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && !readRoot(reader, document))
            break;
    }
    if (!reader.hasError())
        return document;
    if (reader.error() != QXmlStreamReader::CustomError)
        qDebug("BOMTemplate::readXmlFile errors encountered during parsing");
    *problem = located(reader.errorString(), reader.lineNumber());
    return std::nullopt;
}

bool BOMTemplateFile::writeXmlFile(const QVariantMap &map, QString *problem) const
{
    if (m_filePath.isEmpty()) {
        *problem = located(tr("the template's name cannot be a file name"));
        return false;
    }
    const auto bytes = document(map, problem);
    if (!bytes) {
        return false;
    }
    QSaveFile file(m_filePath);
    QString reason;
    const bool isWritten = openForReplacing(&file, QIODevice::WriteOnly | QIODevice::Text, &reason) &&
                           writeReplacement(&file, *bytes, &reason);
    if (!isWritten) {
        *problem = located(reason);
    }
    return isWritten;
}

std::optional<QByteArray> BOMTemplateFile::document(const QVariantMap &map, QString *problem) const
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(RootName);
    writer.writeAttribute(VersionName, QString::number(CurrentVersion));
    writeXML(map, writer, QString());
    writer.writeEndElement();
    writer.writeEndDocument();

    if (writer.hasError()) {
        *problem = located(tr("a text holds a character that XML cannot carry"));
        return std::nullopt;
    }
    return bytes;
}

QString BOMTemplateFile::located(const QString &problem, qint64 line) const
{
    const QString path = QDir::toNativeSeparators(m_filePath);
    const QString place = line > 0 ? path + QLatin1Char(':') + QString::number(line) : path;
    return place.isEmpty() ? problem : place + QLatin1String(": ") + problem;
}
