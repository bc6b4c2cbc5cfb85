// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplatefile.h"

#include "templates/variantxml.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {
const QLatin1String RootName("BOMTemplate");
const QLatin1String VersionName("version");

// In pieces, because a read with a limit allocates the limit. More than the limit means that there is more.
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
} // namespace

bool BOMTemplateFile::readXmlFile(QVariantMap &map)
{
    QFile file(m_filePath);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    return readDocument(file, map);
}

bool BOMTemplateFile::readDocument(QIODevice &device, QVariantMap &map)
{
    const QByteArray document = readUpTo(device, MaximumSize);
    if (document.size() > MaximumSize)
        return fail(tr("the file is too large for a template"));

    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && !readRoot(reader, map))
            break;
    }
    if (!reader.hasError())
        return true;
    if (reader.error() != QXmlStreamReader::CustomError)
        qDebug("BOMTemplate::readXmlFile errors encountered during parsing");
    return fail(reader.errorString(), reader.lineNumber());
}

bool BOMTemplateFile::readRoot(QXmlStreamReader &reader, QVariantMap &map)
{
    if (reader.name() != RootName) {
        reader.raiseError(tr("the document is no BOM template"));
        return false;
    }
    m_version = reader.attributes().value(VersionName).toInt();
    if (m_version == 0) {
        reader.raiseError(tr("the template has no version"));
        return false;
    }
    return readXML(reader, map);
}

bool BOMTemplateFile::writeXmlFile(const QVariantMap &map)
{
    if (m_filePath.isEmpty())
        return fail(tr("the template's name cannot be a file name"));
    QSaveFile file(m_filePath);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return fail(file.errorString());
    if (!writeDocument(file, map))
        return file.error() == QFileDevice::NoError ? false : fail(file.errorString());
    return file.commit() || fail(file.errorString());
}

bool BOMTemplateFile::writeDocument(QIODevice &device, const QVariantMap &map)
{
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(RootName);
    writer.writeAttribute(VersionName, QString::number(m_version));
    writeXML(map, writer, QString());
    writer.writeEndElement();
    writer.writeEndDocument();

    return !writer.hasError() || fail(tr("a text holds a character that XML cannot carry"));
}

bool BOMTemplateFile::fail(const QString &problem, qint64 line)
{
    const QString path = QDir::toNativeSeparators(m_filePath);
    const QString place = line > 0 ? path + QLatin1Char(':') + QString::number(line) : path;
    m_error = place.isEmpty() ? problem : place + QLatin1String(": ") + problem;
    return false;
}
