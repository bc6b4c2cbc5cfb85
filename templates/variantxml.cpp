// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/variantxml.h"

#include "templates/clampedint.h"

#include <QCoreApplication>
#include <QDebug>
#include <QMetaType>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(BOMTemplateFile)
};

const QLatin1String ElementName("Element");
const QLatin1String TypeName("Type");
const QLatin1String ValueName("Value");

// A reader turns a bare carriage return into a line feed, so it is written as a character reference.
void writeText(QXmlStreamWriter &writer, const QString &text)
{
    const QStringList pieces = text.split(u'\r');
    writer.writeCharacters(pieces.first());
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        writer.writeEntityReference(QStringLiteral("#13"));
        writer.writeCharacters(pieces.at(i));
    }
}

void writeList(const QVariant &value, QXmlStreamWriter &writer, const QString &element)
{
    writer.writeStartElement(element);
    writer.writeAttribute(TypeName, QLatin1String(value.typeName()));
    const bool wrapped = value.metaType() == QMetaType::fromType<QVariantList>();
    const QVariantList items = value.toList();
    for (const QVariant &item : items) {
        if (wrapped)
            writer.writeStartElement(ElementName);
        writeXML(item, writer, QString());
        if (wrapped)
            writer.writeEndElement();
    }
    writer.writeEndElement();
}

void writeScalar(const QVariant &value, QXmlStreamWriter &writer, const QString &element)
{
    if (!value.canConvert<QString>()) {
        qDebug().noquote().nospace() << "BOMTemplate::writeXML unkown variant type: " << value.typeName();
        return;
    }
    writer.writeEmptyElement(element);
    writer.writeAttribute(TypeName, QLatin1String(value.typeName()));
    writer.writeAttribute(ValueName, value.toString());
}

QVariant scalarFrom(const QString &text, const QString &typeName)
{
    QVariant value(text);
    const QMetaType type = QMetaType::fromName(typeName.toLatin1());
    if (!type.isValid() || !value.canConvert(type))
        return {};
    if (type == QMetaType::fromType<int>())
        return clampedInt(value); // the conversion below wraps a number that is too large
    value.convert(type);
    return value;
}

bool fail(QXmlStreamReader &reader, const QString &problem)
{
    if (!reader.hasError())
        reader.raiseError(problem);
    return false;
}

bool failText(QXmlStreamReader &reader, const char *line)
{
    const QString token = reader.tokenString();
    qDebug().noquote().nospace() << line << token;
    return fail(reader, Texts::tr("text expected, found %1").arg(token));
}

// Skips the rest of an element. The reader stands after its start tag, perhaps on a tag inside it, and ends
// on its end tag.
void leaveElement(QXmlStreamReader &reader)
{
    if (reader.isEndElement())
        return;
    if (reader.isStartElement())
        reader.skipCurrentElement();
    reader.skipCurrentElement();
}

// Reads the text after a start tag up to the next tag, skipping comments. False when neither text nor the end
// tag follows.
bool readText(QXmlStreamReader &reader, QString &text)
{
    reader.readNext();
    const bool found = reader.isCharacters() || reader.isEndElement();
    while (found && (reader.isCharacters() || reader.isComment())) {
        if (reader.isCharacters())
            text += reader.text();
        reader.readNext();
    }
    return found;
}

/// Reads one element with everything in it. Each function starts on a start tag.
class MapReader final
{
public:
    explicit MapReader(QXmlStreamReader &reader)
        : m_reader(reader)
    {
    }

    // Ends on the matching end tag. Elements inside a scalar count as entries of the same map.
    bool readMap(QVariantMap &map, int nesting)
    {
        if (nesting > MaximumXmlNesting)
            return fail(m_reader, Texts::tr("elements are nested too deeply"));
        int depth = 0;
        while (!m_reader.atEnd()) {
            if (m_reader.isStartElement()) {
                ++depth;
                if (!readEntry(map, nesting, depth == 1))
                    return false;
                continue;
            }
            if (m_reader.isEndElement() && --depth < 1)
                return true;
            m_reader.readNext();
        }
        return false;
    }

private:
    // Ends on the tag or text that readMap() looks at next.
    bool readEntry(QVariantMap &map, int nesting, bool enclosing)
    {
        const QString key = m_reader.name().toString();
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QString type = attributes.hasAttribute(TypeName) ? attributes.value(TypeName).toString()
                                                               : QStringLiteral("QString");
        if (type == QLatin1String("QVariantMap") && !enclosing)
            return readNestedMap(map[key], nesting);
        if (type == QLatin1String("QVariantList"))
            return readVariantList(map[key], nesting);
        if (type == QLatin1String("QStringList"))
            return readStringList(map[key]);
        if (type == QLatin1String("QString") || enclosing)
            return readString(map[key], enclosing);
        map.insert(key, scalarFrom(attributes.value(ValueName).toString(), type));
        m_reader.readNext();
        return true;
    }

    bool readNestedMap(QVariant &value, int nesting)
    {
        QVariantMap nested;
        if (!readMap(nested, nesting + 1))
            return false;
        value = nested;
        return true;
    }

    // The enclosing element holds entries and need not have white space before the first.
    bool readString(QVariant &value, bool enclosing)
    {
        QString text;
        if (!readText(m_reader, text) && !enclosing)
            return failText(m_reader, "BOMTemplate::readXML QXmlStreamReader::Characters expected got ");
        value = text;
        return true;
    }

    bool readVariantList(QVariant &value, int nesting)
    {
        QVariantList items;
        while (m_reader.readNextStartElement()) {
            if (m_reader.name() != ElementName) {
                m_reader.skipCurrentElement();
                continue;
            }
            QVariantMap item;
            if (!readMap(item, nesting + 1))
                return false;
            items.append(item);
        }
        value = items;
        return !m_reader.hasError();
    }

    // One item that is no text makes the whole list null.
    bool readStringList(QVariant &value)
    {
        QStringList items;
        bool valid = true;
        while (m_reader.readNextStartElement()) {
            if (m_reader.name() != ElementName || !valid) {
                m_reader.skipCurrentElement();
                continue;
            }
            valid = readListString(items);
            leaveElement(m_reader);
        }
        value = valid ? QVariant(items) : QVariant();
        return !m_reader.hasError();
    }

    bool readListString(QStringList &items)
    {
        QString text;
        if (!readText(m_reader, text)) {
            qDebug().noquote().nospace() << "BOMTemplate::readXML QXmlStreamReader::Characters expected, got "
                                         << m_reader.tokenString();
            return false;
        }
        items.append(text);
        return true;
    }

    QXmlStreamReader &m_reader;
};
} // namespace

void writeXML(const QVariant &value, QXmlStreamWriter &writer, const QString &name)
{
    const QString element = name.isEmpty() ? QString(ElementName) : name;
    switch (value.metaType().id()) {
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            writeXML(entry.value(), writer, entry.key());
        break;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        writeList(value, writer, element);
        break;
    case QMetaType::QString:
        writer.writeStartElement(element);
        writer.writeAttribute(TypeName, QStringLiteral("QString"));
        writeText(writer, value.toString());
        writer.writeEndElement();
        break;
    default:
        writeScalar(value, writer, element);
    }
}

bool readXML(QXmlStreamReader &reader, QVariantMap &map)
{
    return MapReader(reader).readMap(map, 1);
}
