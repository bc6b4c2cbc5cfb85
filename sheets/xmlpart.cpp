// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "sheets/xmlpart.h"
#include "sheets/texts.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int deepest = 100;
/// Looking for a name costs as much as there are.
constexpr qsizetype mostAttributes = 200;
constexpr qsizetype mostNamespaces = 200;
/// Of one tag or text, in bytes: the reader keeps it as a whole.
constexpr qint64 longestToken = 256 * 1024;

} // namespace

/// Passes a part on, as long as the reader finds the end of tags and texts in it.
class XmlPart::Meter final : public QIODevice
{
public:
    explicit Meter(std::unique_ptr<QIODevice> source)
        : m_source(std::move(source))
    {
        (void)open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    void beginToken() { m_sinceToken = 0; }
    [[nodiscard]] bool isExceeded() const { return m_sinceToken > longestToken; }
    [[nodiscard]] QString sourceProblem() const { return m_isBroken ? m_source->errorString() : QString(); }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return isExceeded() || m_source->atEnd(); }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        if (isExceeded()) {
            return -1;
        }
        const qint64 got = m_source->read(data, most);
        m_isBroken = m_isBroken || got < 0;
        m_sinceToken += std::max<qint64>(got, 0);
        return got;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::unique_ptr<QIODevice> m_source;
    qint64 m_sinceToken = 0;
    bool m_isBroken = false;
};

XmlPart::XmlPart(std::unique_ptr<QIODevice> device)
    : m_device(std::make_unique<Meter>(std::move(device)))
    , m_reader(m_device.get())
{
}

XmlPart::~XmlPart() = default;

QXmlStreamReader::TokenType XmlPart::refuse(const QString &problem)
{
    if (m_problem.isEmpty()) {
        m_problem = problem;
    }
    return QXmlStreamReader::NoToken;
}

QXmlStreamReader::TokenType XmlPart::refuseLongText()
{
    return refuse(SpreadsheetTexts::tr("a text has more than %1 characters").arg(MostCharacters));
}

bool XmlPart::isModest() const
{
    return m_depth <= deepest && m_attributes.size() <= mostAttributes && m_namespaces <= mostNamespaces;
}

QXmlStreamReader::TokenType XmlPart::next()
{
    if (!m_problem.isEmpty() || m_reader.atEnd()) {
        return QXmlStreamReader::NoToken;
    }
    m_device->beginToken();
    const QXmlStreamReader::TokenType token = m_reader.readNext();
    switch (token) {
    case QXmlStreamReader::StartElement:
        ++m_depth;
        m_attributes = m_reader.attributes();
        m_namespaces += m_reader.namespaceDeclarations().size();
        return isModest() ? token
                          : refuse(SpreadsheetTexts::tr("the file is built in a way that no spreadsheet is"));
    case QXmlStreamReader::EndElement:
        --m_depth;
        return token;
    case QXmlStreamReader::DTD:
    case QXmlStreamReader::EntityReference:
        return refuse(SpreadsheetTexts::tr("the file declares entities, which no spreadsheet does"));
    case QXmlStreamReader::Invalid:
        if (m_device->isExceeded()) {
            return refuse(
                SpreadsheetTexts::tr("a text or an element has more than %1 bytes").arg(longestToken));
        }
        return refuse(!m_device->sourceProblem().isEmpty()
                          ? m_device->sourceProblem()
                          : SpreadsheetTexts::tr("the file is damaged: %1").arg(m_reader.errorString()));
    case QXmlStreamReader::EndDocument:
        // The checksum of a part shows only when all of it was read.
        return m_device->sourceProblem().isEmpty() ? QXmlStreamReader::NoToken
                                                   : refuse(m_device->sourceProblem());
    default:
        return token;
    }
}

bool XmlPart::nextChild()
{
    for (auto token = next(); token != QXmlStreamReader::NoToken; token = next()) {
        if (token == QXmlStreamReader::StartElement) {
            return true;
        }
        if (token == QXmlStreamReader::EndElement) {
            return false;
        }
        // Where texts mean nothing there are none but line breaks.
    }
    return false;
}

void XmlPart::skip()
{
    for (int inside = 1; inside > 0;) {
        const auto token = next();
        if (token == QXmlStreamReader::NoToken) {
            return;
        }
        inside += token == QXmlStreamReader::StartElement ? 1
                  : token == QXmlStreamReader::EndElement ? -1
                                                          : 0;
    }
}

QString XmlPart::attribute(QLatin1String name, QLatin1String space) const
{
    for (const QXmlStreamAttribute &attribute : m_attributes) {
        if (attribute.name() == name && (space.isEmpty() || attribute.namespaceUri().contains(space))) {
            const QStringView value = attribute.value();
            return value.isNull() ? QStringLiteral("") : value.toString();
        }
    }
    return {};
}

QString XmlPart::content()
{
    QString content;
    for (int inside = 1; inside > 0;) {
        const auto token = next();
        if (token == QXmlStreamReader::NoToken) {
            break;
        }
        if (token == QXmlStreamReader::Characters) {
            content += m_reader.text();
        }
        if (content.size() > MostCharacters) {
            refuseLongText();
            break;
        }
        inside += token == QXmlStreamReader::StartElement ? 1
                  : token == QXmlStreamReader::EndElement ? -1
                                                          : 0;
    }
    return content;
}
