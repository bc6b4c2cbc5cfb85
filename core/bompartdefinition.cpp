// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartdefinition.h"

#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace {

/// Takes a definition apart into its fields.
class FieldSplitter
{
public:
    explicit FieldSplitter(QStringView text)
        : m_text(text)
        , m_hasSingleQuotes(text.contains(u",'"))
    {
    }

    [[nodiscard]] QStringList fields()
    {
        while (m_at < m_text.size()) {
            if (m_inside.isNull()) {
                readOutside();
            } else {
                readInside();
            }
        }
        if (m_inside.isNull()) {
            endPlainField();
        } else {
            endQuotedField();
        }
        return m_fields;
    }

private:
    [[nodiscard]] bool isEscapedQuote() const
    {
        return m_hasSingleQuotes && m_text[m_at] == u'\\' && m_at + 1 < m_text.size() &&
               m_text[m_at + 1] == u'\'';
    }

    void takeEscapedQuote()
    {
        m_field += u'\'';
        m_at += 2;
    }

    void readOutside()
    {
        const QChar character = m_text[m_at];
        if (isEscapedQuote()) {
            takeEscapedQuote();
            return;
        }
        ++m_at;
        if (character == u'"' || (character == u'\'' && m_hasSingleQuotes)) {
            endPlainField();
            m_inside = character;
        } else if (character == u',') {
            endPlainField();
        } else {
            m_field += character;
        }
    }

    void readInside()
    {
        if (isEscapedQuote()) {
            takeEscapedQuote();
            return;
        }
        const QChar character = m_text[m_at++];
        if (character == m_inside) {
            endQuotedField();
        } else {
            m_field += character;
        }
    }

    void endPlainField()
    {
        if (!m_field.isEmpty()) {
            m_fields.append(std::exchange(m_field, {}));
        }
    }

    void endQuotedField()
    {
        m_fields.append(std::exchange(m_field, {}));
        m_inside = {};
    }

    QStringView m_text;
    bool m_hasSingleQuotes;
    qsizetype m_at = 0;
    /// The quote that the piece began with, null outside.
    QChar m_inside;
    QString m_field;
    QStringList m_fields;
};

QStringView withoutName(const QString &text)
{
    static const QRegularExpression name(QStringLiteral("\\ABOMPART[0-9]+="));
    return QStringView(text).sliced(name.match(text).capturedLength());
}

void readCount(const QString &field, ReadDefinition *read)
{
    static const QRegularExpression number(QStringLiteral("\\A\\s*([0-9]+)\\s*\\z"));
    const QRegularExpressionMatch match = number.match(field);
    if (!match.hasMatch()) {
        read->fault = DefinitionFault::NoCount;
        return;
    }
    bool isNumber = false;
    const int count = match.captured(1).toInt(&isNumber);
    if (!isNumber || count > mostPartsOfADefinition) {
        read->fault = DefinitionFault::TooManyParts;
        return;
    }
    read->definition.count = count;
}

/// A text in single quotes. One that ends in a backslash, which would escape the closing quote, is written
/// without quotes, unless something in it would then be read as the end of the field.
std::optional<QString> writtenField(const QString &escaped)
{
    if (!escaped.endsWith(u'\\')) {
        return u'\'' + escaped + u'\'';
    }
    if (escaped.contains(u',') || escaped.contains(u'\'') || escaped.contains(u'"')) {
        return std::nullopt;
    }
    return escaped;
}

} // namespace

QString bomPartPropertyStart()
{
    return QStringLiteral("BOMPART");
}

ReadDefinition readBOMPartDefinition(const QString &text)
{
    constexpr qsizetype fixedFields = 3;
    ReadDefinition read;
    const QStringList fields = FieldSplitter(withoutName(text)).fields();
    if (fields.size() < fixedFields) {
        read.fault = DefinitionFault::TooFewFields;
        return read;
    }
    read.definition.prefix = fields.at(1).toUpper();
    read.definition.value = fields.at(2);
    for (const QString &field : fields.sliced(fixedFields)) {
        const qsizetype sign = field.indexOf(u'=');
        if (sign <= 0) {
            read.fault = DefinitionFault::NoAssignment;
            continue;
        }
        read.definition.properties.insert(field.left(sign).toUpper(), field.mid(sign + 1));
    }
    readCount(fields.first(), &read);
    return read;
}

QString escapedDefinitionText(QString text)
{
    return text.replace(u'\'', QStringLiteral("\\'"));
}

std::optional<QString> newBOMPartDefinition(int count, const QString &escapedPrefix,
                                            const QString &escapedValue)
{
    const auto value = writtenField(escapedValue);
    if (escapedPrefix.endsWith(u'\\') || !value) {
        return std::nullopt;
    }
    return u'\'' + QString::number(count) + QStringLiteral("','") + escapedPrefix + QStringLiteral("',") +
           *value;
}

std::optional<QString> changedBOMPartDefinition(const BOMPartDefinition &definition)
{
    QStringList fields{definition.prefix, definition.value};
    for (auto it = definition.properties.cbegin(); it != definition.properties.cend(); ++it) {
        fields.append(it.key() + u'=' + it.value());
    }
    QString text;
    for (const QString &field : std::as_const(fields)) {
        const auto written = writtenField(escapedDefinitionText(field));
        if (!written) {
            return std::nullopt;
        }
        text += u',' + *written;
    }
    return text;
}
