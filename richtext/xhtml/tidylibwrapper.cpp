// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tidylibwrapper.h"

#include "richtext/xhtml/xmltext.h"

#include <QCoreApplication>
#include <QList>
#include <QSet>
#include <QXmlStreamReader>

#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>

#include <algorithm>
#include <csetjmp>
#include <cstdlib>
#include <memory>
#include <optional>
#include <unordered_set>

namespace {

// The library descends into elements by recursion and takes time in proportion to size times depth.
constexpr int mostElements = 200'000;
constexpr int deepest = 100;
/// It compares each attribute of a tag with each.
constexpr int mostAttributeEnds = 400;
constexpr qsizetype longest = 32 * 1024 * 1024;

/// How much work a text is for a parser that descends into every element.
struct HtmlSize
{
    /// Start tags, comments and the text of scripts aside.
    int elements = 0;
    /// The deepest nesting when unclosed elements are taken as open to the end of what holds them.
    int depth = 0;
    /// Of one tag: the most places at which an attribute can begin or end.
    int attributeEnds = 0;
};

bool isNameStart(QChar unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

QString nameAt(QStringView html, qsizetype at)
{
    qsizetype end = at;
    while (end < html.size() && (isNameStart(html[end]) || html[end].isDigit())) {
        ++end;
    }
    return html.sliced(at, end - at).toString().toLower();
}

/// The place after the next `text`, or the end.
qsizetype after(QStringView html, QStringView text, qsizetype from)
{
    const qsizetype at = html.indexOf(text, from, Qt::CaseInsensitive);
    return at < 0 ? html.size() : at + text.size();
}

/// The place after a tag's end; values in quotes may hold ">".
qsizetype afterTag(QStringView html, qsizetype at)
{
    QChar quote;
    for (; at < html.size(); ++at) {
        const QChar unit = html[at];
        if (!quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if (unit == u'>') {
            return at + 1;
        } else if ((unit == u'"' || unit == u'\'') && html[at - 1] == u'=') {
            quote = unit;
        }
    }
    return at;
}

/// Rather too many than too few; what stands in quotes is no end.
int attributeEnds(QStringView tag)
{
    int count = 0;
    QChar quote;
    bool isValue = false;
    for (qsizetype at = 1; at < tag.size(); ++at) {
        const QChar unit = tag[at];
        if (!quote.isNull()) {
            quote = unit == quote ? QChar() : quote;
        } else if ((unit == u'"' || unit == u'\'') && tag[at - 1] == u'=') {
            quote = unit;
        } else if (unit == u'=') {
            isValue = true;
        } else if (unit.isSpace() || unit == u'"' || unit == u'\'' || (unit == u'/' && !isValue)) {
            isValue = false;
            ++count;
        }
    }
    return count;
}

/// Elements that never hold others, and those that end where the next of their kind begins.
bool staysOpen(const QString &name)
{
    static const QSet<QString> others{
        QStringLiteral("area"),  QStringLiteral("base"),  QStringLiteral("br"),    QStringLiteral("col"),
        QStringLiteral("hr"),    QStringLiteral("img"),   QStringLiteral("input"), QStringLiteral("link"),
        QStringLiteral("meta"),  QStringLiteral("param"), QStringLiteral("p"),     QStringLiteral("li"),
        QStringLiteral("dd"),    QStringLiteral("dt"),    QStringLiteral("td"),    QStringLiteral("th"),
        QStringLiteral("tr"),    QStringLiteral("tbody"), QStringLiteral("thead"), QStringLiteral("tfoot"),
        QStringLiteral("option")};
    return !others.contains(name);
}

/// Counts tags without building anything, so that hostile input costs no more than a look at each character.
class SizeCounter final
{
public:
    explicit SizeCounter(QStringView html)
        : m_html(html)
    {
    }

    HtmlSize run()
    {
        qsizetype at = 0;
        while ((at = m_html.indexOf(u'<', at)) >= 0) {
            at = tagAt(at);
        }
        return m_size;
    }

private:
    qsizetype tagAt(qsizetype at)
    {
        if (m_html.sliced(at).startsWith(u"<!--")) {
            return after(m_html, u"-->", at);
        }
        const bool ends = at + 1 < m_html.size() && m_html[at + 1] == u'/';
        const qsizetype nameStart = at + (ends ? 2 : 1);
        if (nameStart >= m_html.size() || !isNameStart(m_html[nameStart])) {
            return at + 1;
        }
        const QString name = nameAt(m_html, nameStart);
        const qsizetype next = afterTag(m_html, nameStart + name.size());
        m_size.attributeEnds = std::max(m_size.attributeEnds, attributeEnds(m_html.sliced(at, next - at)));
        if (ends) {
            close(name);
            return next;
        }
        ++m_size.elements;
        if (name == QLatin1String("script") || name == QLatin1String("style")) {
            return after(m_html, QString(QLatin1String("</") + name), next);
        }
        if (staysOpen(name) && m_html[next - 2] != u'/') {
            m_open.append(name);
            m_size.depth = std::max(m_size.depth, int(m_open.size()));
        }
        return next;
    }

    void close(const QString &name)
    {
        const qsizetype at = m_open.lastIndexOf(name);
        if (at >= 0) {
            m_open.resize(at);
        }
    }

    QStringView m_html;
    QList<QString> m_open;
    HtmlSize m_size;
};

QString text(const char *source)
{
    return QCoreApplication::translate("TidyLibWrapper", source);
}

struct Buffer : TidyBuffer
{
    Buffer() { tidyBufInit(this); }
    Buffer(const Buffer &) = delete;
    Buffer &operator=(const Buffer &) = delete;
    ~Buffer() { tidyBufFree(this); }

    [[nodiscard]] QString toString() const
    {
        return QString::fromUtf8(reinterpret_cast<const char *>(bp), qsizetype(size));
    }
};

struct Release
{
    void operator()(const _TidyDoc *document) const { tidyRelease(document); }
};
using TidyOwner = std::unique_ptr<const _TidyDoc, Release>;

void setOptions(TidyDoc document, int mode)
{
    for (const TidyOptionId option : {TidyXhtmlOut, TidyNumEntities, TidyQuiet, TidyKeepTabs}) {
        tidyOptSetBool(document, option, yes);
    }
    // What the author wrote stays: empty paragraphs carry classes, anchors have a meaning of their own.
    for (const TidyOptionId option : {TidyMark, TidyShowWarnings, TidyShowInfo, TidyDropEmptyElems,
                                      TidyDropEmptyParas, TidyJoinClasses, TidyFixUri, TidyFixBackslash}) {
        tidyOptSetBool(document, option, no);
    }
    for (const TidyOptionId option : {TidyMergeDivs, TidyMergeSpans, TidyMergeEmphasis}) {
        tidyOptSetValue(document, option, "no");
    }
    tidyOptSetInt(document, TidyWrapLen, 0);
    tidyOptSetInt(document, TidyBodyOnly, mode == TidyLibWrapper::Fragment ? TidyYesState : TidyNoState);
    tidyOptSetValue(document, TidyNewline, "LF");
    tidySetCharEncoding(document, "utf8");
}

/// Why a text must not be given to the library; empty when it may.
QString sizeError(const QString &html)
{
    if (html.size() > longest) {
        return text("The HTML text is too long.");
    }
    const HtmlSize size = SizeCounter(html).run();
    if (size.depth > deepest) {
        return text("The HTML elements are nested too deeply.");
    }
    if (size.attributeEnds > mostAttributeEnds) {
        return text("An HTML element has too many attributes.");
    }
    return size.elements > mostElements ? text("The HTML text has too many elements.") : QString();
}

/// The XML error in what was made; empty when it is well-formed.
QString xmlError(const QString &xhtml, int mode)
{
    QXmlStreamReader reader;
    reader.setNamespaceProcessing(false);
    const bool isFragment = mode == TidyLibWrapper::Fragment;
    reader.addData(isFragment ? QLatin1String("<body>") + xhtml + QLatin1String("</body>") : xhtml);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError() ? reader.errorString() : QString();
}

/// The memory of one document, which goes with it even where the document cannot be released.
class Memory final : public TidyAllocator
{
public:
    Memory()
        : TidyAllocator{&functions}
    {
    }
    Memory(const Memory &) = delete;
    Memory &operator=(const Memory &) = delete;
    ~Memory()
    {
        for (void *block : m_blocks) {
            std::free(block);
        }
    }

private:
    static void *TIDY_CALL take(TidyAllocator *self, size_t size) { return resize(self, nullptr, size); }
    static void *TIDY_CALL resize(TidyAllocator *self, void *block, size_t size)
    {
        auto &blocks = static_cast<Memory *>(self)->m_blocks;
        blocks.erase(block);
        void *resized = std::realloc(block, std::max<size_t>(size, 1));
        if (resized == nullptr) {
            qFatal("There is not enough memory.");
        }
        blocks.insert(resized);
        return resized;
    }
    static void TIDY_CALL giveBack(TidyAllocator *self, void *block)
    {
        static_cast<Memory *>(self)->m_blocks.erase(block);
        std::free(block);
    }
    static void TIDY_CALL panic(TidyAllocator *, ctmbstr message) { qFatal("%s", message); }

    static constexpr TidyAllocatorVtbl functions{&take, &resize, &giveBack, &panic};

    std::unordered_set<void *> m_blocks;
};

/// Ends the reading of a text about which the library has no end of reports: it goes round in circles on
/// some, such as a definition list between the rows of a table, and takes more memory each time.
class ReportLimit
{
public:
    explicit ReportLimit(TidyDoc document)
        : m_document(document)
    {
        tidySetAppData(document, this);
        tidySetReportFilter(document, &ReportLimit::count);
    }

    /// What tidyParseString() gives; nothing when the limit was met. The document cannot be used then, not
    /// even be released.
    [[nodiscard]] std::optional<int> parse(const char *html)
    {
        if (setjmp(m_away) != 0) {
            return std::nullopt;
        }
        m_isReading = true;
        const int result = tidyParseString(m_document, html);
        m_isReading = false;
        return result;
    }

private:
    /// The library has no other way out of its reading; between here and parse() there is nothing but C. What
    /// it reports on a document that was read has an end, and parse() is over then.
    static Bool TIDY_CALL count(TidyDoc document, TidyReportLevel, uint, uint, ctmbstr)
    {
        constexpr int mostReports = 20'000;
        auto *self = static_cast<ReportLimit *>(tidyGetAppData(document));
        if (self->m_isReading && ++self->m_reports > mostReports) {
            std::longjmp(self->m_away, 1);
        }
        return yes;
    }

    TidyDoc m_document;
    bool m_isReading = false;
    int m_reports = 0;
    std::jmp_buf m_away;
};

} // namespace

QString TidyLibWrapper::tidyHtml(const QString &html, int mode)
{
    m_errorString = sizeError(html);
    if (!m_errorString.isEmpty()) {
        return {};
    }
    Buffer output;
    Buffer errors;
    Memory memory;
    TidyOwner document(tidyCreateWithAllocator(&memory));
    const TidyDoc tidy = document.get();
    tidySetErrorBuffer(tidy, &errors);
    setOptions(tidy, mode);

    const QByteArray bytes = xmlText(html).toUtf8();
    ReportLimit limit(tidy);
    const std::optional<int> parsed = limit.parse(bytes.constData());
    if (!parsed) {
        (void)document.release();
        m_errorString = text("The HTML text cannot be read.");
        return {};
    }
    int result = *parsed;
    if (result >= 0) {
        result = tidyCleanAndRepair(tidy);
    }
    if (result >= 0) {
        result = tidySaveBuffer(tidy, &output);
    }
    m_errorString = errors.toString().trimmed();
    if ((result < 0 || tidyErrorCount(tidy) > 0) && m_errorString.isEmpty()) {
        m_errorString = text("The HTML text cannot be read.");
    }
    // Numeric entities can bring in what the text itself did not hold.
    QString xhtml = xmlText(output.toString());
    if (m_errorString.isEmpty()) {
        m_errorString = xmlError(xhtml, mode);
    }
    if (!m_errorString.isEmpty()) {
        return {};
    }
    while (mode == Fragment && xhtml.endsWith(u'\n')) {
        xhtml.chop(1);
    }
    return xhtml;
}
