// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/markuprewriter.h"

#include "richtext/xhtml/attributecleaner.h"
#include "richtext/xhtml/tablesize.h"
#include "richtext/xhtml/xhtmlelements.h"
#include "richtext/xhtml/xmltext.h"

#include <QCoreApplication>
#include <QList>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using xhtml::Content;
using xhtml::Element;

/// The entities of Latin 1 and the marks that people use; others make the fragment one to be mended.
class Entities final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &name) override
    {
        static const QHash<QString, QChar> characters = makeCharacters();
        return characters.contains(name) ? QString(characters.value(name)) : QString();
    }

private:
    static QHash<QString, QChar> makeCharacters()
    {
        constexpr char16_t first = 0xA0;
        const QStringList latin =
            QStringLiteral(
                "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg "
                "plusmn "
                "sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave "
                "Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc "
                "Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml "
                "Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc "
                "euml igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash "
                "ugrave uacute ucirc uuml yacute thorn yuml")
                .split(u' ');
        QHash<QString, QChar> characters{
            {QStringLiteral("ndash"), QChar(0x2013)}, {QStringLiteral("mdash"), QChar(0x2014)},
            {QStringLiteral("lsquo"), QChar(0x2018)}, {QStringLiteral("rsquo"), QChar(0x2019)},
            {QStringLiteral("ldquo"), QChar(0x201C)}, {QStringLiteral("rdquo"), QChar(0x201D)},
            {QStringLiteral("bull"), QChar(0x2022)},  {QStringLiteral("hellip"), QChar(0x2026)},
            {QStringLiteral("euro"), QChar(0x20AC)},  {QStringLiteral("trade"), QChar(0x2122)},
            {QStringLiteral("Omega"), QChar(0x03A9)}, {QStringLiteral("larr"), QChar(0x2190)},
            {QStringLiteral("rarr"), QChar(0x2192)},  {QStringLiteral("zwnj"), QChar(0x200C)},
        };
        for (qsizetype i = 0; i < latin.size(); ++i) {
            characters.insert(latin[i], QChar(char16_t(first + i)));
        }
        return characters;
    }
};

/// Text stands where an inline element may.
const Element &textElement()
{
    static const Element text{QStringLiteral("#text")};
    return text;
}

const Element &bodyElement()
{
    static const Element body{QStringLiteral("body"), xhtml::Level::Block, Content::All};
    return body;
}

// Reads the fragment as XML and writes it again tag by tag. What is written keeps to the document type: an
// element that may not stand where it is found loses its tags and leaves its contents; contents that a list
// or table may not hold get the parts around them that are missing; a list or table without any part is taken
// back.
class Rewriter final
{
    Q_DECLARE_TR_FUNCTIONS(Rewriter)

public:
    Rewriter(const QString &fragment, const QSet<QString> &ids, const MarkupLimits &limits)
        : m_limits(limits)
    {
        m_reader.setNamespaceProcessing(false);
        m_reader.setEntityResolver(&m_entities);
        m_reader.addData(QLatin1String("<body>"));
        m_reader.addData(fragment);
        m_reader.addData(QLatin1String("</body>"));
        m_result.ids = ids;
        m_result.xhtml.reserve(fragment.size());
    }

    RewrittenMarkup run()
    {
        m_reader.readNextStartElement();
        m_open.append({&bodyElement()});
        while (!m_reader.atEnd() && m_result.problem.isEmpty()) {
            readToken(m_reader.readNext());
        }
        if (m_result.problem.isEmpty() && m_reader.hasError()) {
            m_result.problem = m_reader.errorString();
        }
        return std::move(m_result);
    }

private:
    /// An element whose start tag was written.
    struct Open
    {
        const Element *element;
        /// Its start tag in the result.
        qsizetype start = 0;
        /// It was not in the fragment.
        bool isImplied = false;
        bool hasContent = false;
        /// Of a table: parts are gone again when they stay empty.
        bool hasRows = false;
        /// The last part of a table.
        QString lastPart = {};
        TableSize size = {};
    };

    void readToken(QXmlStreamReader::TokenType token)
    {
        // What stands inside of `hr` or `br` is written behind it.
        const bool isMisplaced = m_isInEmptyElement && token != QXmlStreamReader::EndElement;
        m_result.isChanged = m_result.isChanged || isMisplaced;
        m_isInEmptyElement = false;
        switch (token) {
        case QXmlStreamReader::StartElement:
            start();
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            writeText(m_reader.text());
            m_result.isChanged = m_result.isChanged || m_reader.isCDATA();
            break;
        case QXmlStreamReader::Comment:
            readComment(m_reader.text());
            break;
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            break;
        default:
            m_result.isChanged = true;
        }
    }

    /// Browsers end comments, and act on some, where XML does not.
    void readComment(QStringView text)
    {
        const bool isPlain = !text.contains(u'<') && !text.contains(u'>') && !text.contains(u'[');
        m_result.isChanged = m_result.isChanged || !isPlain;
    }

    void start()
    {
        const QString name = m_reader.qualifiedName().toString();
        if (isTooLarge()) {
            return;
        }
        if (xhtml::isLeftOut(name)) {
            leaveOut(name);
            m_reader.skipCurrentElement();
            return;
        }
        const Element *element = xhtml::element(xhtml::isSection(name) ? QStringLiteral("div") : name);
        m_result.isChanged = m_result.isChanged || element == nullptr || element->name != name;
        m_input.append(-1);
        QString attributes;
        if (element != nullptr && takeAttributes(*element, attributes) && makeRoomFor(*element)) {
            m_input.last() = m_open.size();
            open(*element, attributes);
        } else {
            m_result.isChanged = true;
        }
    }

    void end()
    {
        if (m_input.isEmpty()) {
            return;
        }
        const qsizetype opened = m_input.takeLast();
        while (opened >= 0 && m_open.size() > opened) {
            closeLast();
        }
    }

    bool isTooLarge()
    {
        if (++m_elements > m_limits.elements) {
            refuse(tr("The HTML text has too many elements."));
        } else if (m_input.size() >= MarkupLimits::depth) {
            refuse(tr("The HTML elements are nested too deeply."));
        }
        return m_result.isTooLarge;
    }

    void refuse(const QString &problem)
    {
        m_result.problem = problem;
        m_result.isTooLarge = true;
    }

    /// Counts what stands in one paragraph.
    void countText(qsizetype length)
    {
        m_text += length;
        m_paragraph += length;
        if (m_paragraph > m_limits.paragraph) {
            refuse(tr("The HTML text has a paragraph that is too long."));
        } else if (m_text > MarkupLimits::text) {
            refuse(tr("The HTML text is too long."));
        }
    }

    void leaveOut(const QString &what)
    {
        m_result.isChanged = true;
        if (!m_result.leftOut.contains(what)) {
            m_result.leftOut.append(what);
        }
    }

    /// False for an element that is nothing without what has to be left out.
    bool takeAttributes(const Element &element, QString &text)
    {
        CleanAttributes cleaned = cleanAttributes(element, m_reader.attributes(), m_result.ids);
        for (const QString &what : std::as_const(cleaned.leftOut)) {
            leaveOut(what);
        }
        m_result.isChanged = m_result.isChanged || cleaned.isChanged;
        text = cleaned.text;
        if (!cleaned.replacement.isEmpty()) {
            writeText(cleaned.replacement);
        }
        m_span = cleaned.span;
        return cleaned.isComplete;
    }

    [[nodiscard]] static bool accepts(const Open &outer, const Element &inner)
    {
        return xhtml::holds(*outer.element, inner) &&
               (outer.element->content != Content::TableParts || xhtml::follows(inner.name, outer.lastPart));
    }

    /// Ends implied parts that do not hold the element, or begins those that do. False when neither helps.
    bool makeRoomFor(const Element &inner)
    {
        for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
            if (accepts(m_open[i], inner)) {
                while (m_open.size() > i + 1) {
                    closeLast();
                }
                return true;
            }
            if (!m_open[i].isImplied) {
                break;
            }
        }
        QList<const Element *> parts;
        for (const Element *part = xhtml::impliedPart(*m_open.last().element); part != nullptr;
             part = xhtml::impliedPart(*part)) {
            parts.append(part);
            if (xhtml::holds(*part, inner)) {
                return openImplied(parts);
            }
        }
        return false;
    }

    bool openImplied(const QList<const Element *> &parts)
    {
        // Rows that stand in the table itself are its last part already.
        const bool isAfterRows = m_open.last().lastPart == QLatin1String("tr");
        for (const Element *part : parts) {
            if (!(isAfterRows && part->name == QLatin1String("tbody"))) {
                open(*part, {});
                m_open.last().isImplied = true;
            }
        }
        m_result.isChanged = true;
        return true;
    }

    void open(const Element &element, const QString &attributes)
    {
        Open &outer = m_open.last();
        if (outer.element->content == Content::TableParts) {
            outer.lastPart = element.name;
        }
        countTables(element);
        countLines(element);
        if (element.isEmpty()) {
            m_isInEmptyElement = true;
            outer.hasContent = true;
            m_result.xhtml += QStringLiteral("<") + element.name + attributes + QStringLiteral(" />");
            return;
        }
        m_open.append({&element, m_result.xhtml.size()});
        m_result.xhtml += QStringLiteral("<") + element.name + attributes + QStringLiteral(">");
    }

    void countTables(const Element &element)
    {
        if (element.content == Content::TableParts && ++m_tables > MarkupLimits::tableDepth) {
            refuse(tr("The HTML elements are nested too deeply."));
        }
        if (element.content == Content::Cells || element.name == QLatin1String("td") ||
            element.name == QLatin1String("th")) {
            countCell(element);
        }
    }

    [[nodiscard]] static bool isInText(const Element &element)
    {
        return element.level == xhtml::Level::Inline || element.level == xhtml::Level::Both;
    }

    /// A line that is broken by hand takes as much as one of text.
    void countLines(const Element &element)
    {
        constexpr int line = 20;
        if (isInText(element)) {
            countText(element.isEmpty() ? line : 1);
        } else {
            m_paragraph = 0;
        }
        if (element.name == QLatin1String("img") && ++m_images > MarkupLimits::images) {
            refuse(tr("The HTML text has too many images."));
        }
    }

    /// Cells that spans leave empty take as much as others.
    void countCell(const Element &element)
    {
        const auto table = std::find_if(m_open.rbegin(), m_open.rend(), [](const Open &open) {
            return open.element->content == Content::TableParts;
        });
        if (table == m_open.rend()) {
            return;
        }
        if (element.content == Content::Cells) {
            table->size.addRow();
        } else {
            table->size.addCell(m_span.columns, m_span.rows);
        }
        if (m_cells + table->size.cells() > m_limits.elements) {
            refuse(tr("The HTML text has too many elements."));
        }
    }

    void closeLast()
    {
        const Open last = m_open.takeLast();
        const bool isTable = last.element->content == Content::TableParts;
        m_paragraph = isInText(*last.element) ? m_paragraph : 0;
        if (isTable) {
            --m_tables;
            m_cells += last.size.cells();
        }
        const bool hasParts = isTable ? last.hasRows : last.hasContent;
        if (last.element->needsParts() && !hasParts) {
            m_result.xhtml.truncate(last.start);
            m_result.isChanged = true;
            return;
        }
        m_result.xhtml += QStringLiteral("</") + last.element->name + QStringLiteral(">");
        m_open.last().hasContent = true;
        m_open.last().hasRows = m_open.last().hasRows || xhtml::isBody(last.element->name);
    }

    void writeText(QStringView text)
    {
        countText(text.size());
        // A cell that is made for the text spans nothing.
        m_span = {};
        const bool isBlank = text.trimmed().isEmpty() && !text.contains(QChar(QChar::Nbsp));
        if (!isBlank && !xhtml::holds(*m_open.last().element, textElement()) && !makeRoomFor(textElement())) {
            m_result.isChanged = true;
            return;
        }
        if (isBlank && !xhtml::holds(*m_open.last().element, textElement())) {
            return;
        }
        m_result.xhtml +=
            escapedXmlText(text.toString()).replace(QChar(QChar::Nbsp), QLatin1String("&#160;"));
    }

    Entities m_entities;
    QXmlStreamReader m_reader;
    RewrittenMarkup m_result;
    QList<Open> m_open;
    /// For each open element of the fragment the place in m_open that it has, -1 when it is not written.
    QList<qsizetype> m_input;
    CellSpan m_span;
    /// The last token was the start of an element that holds nothing.
    bool m_isInEmptyElement = false;
    MarkupLimits m_limits;
    int m_elements = 0;
    int m_images = 0;
    int m_tables = 0;
    qint64 m_text = 0;
    qint64 m_paragraph = 0;
    qint64 m_cells = 0;
};

} // namespace

RewrittenMarkup rewriteMarkup(const QString &fragment, const QSet<QString> &ids, const MarkupLimits &limits)
{
    return Rewriter(fragment, ids, limits).run();
}
