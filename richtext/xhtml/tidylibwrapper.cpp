// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tidylibwrapper.h"

#include "richtext/xhtml/htmlsize.h"
#include "richtext/xhtml/xmltext.h"

#include <QCoreApplication>
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

constexpr int mostElements = 200'000;
constexpr qsizetype longest = 32 * 1024 * 1024;

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
        return QCoreApplication::translate("TidyLibWrapper", "The HTML text is too long.");
    }
    const HtmlSize size = htmlSize(html);
    if (size.depth > HtmlSize::deepest) {
        return QCoreApplication::translate("TidyLibWrapper", "The HTML elements are nested too deeply.");
    }
    if (size.attributeEnds > HtmlSize::mostAttributeEnds) {
        return HtmlSize::tooManyAttributes();
    }
    return size.elements > mostElements
               ? QCoreApplication::translate("TidyLibWrapper", "The HTML text has too many elements.")
               : QString();
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
        m_errorString = QCoreApplication::translate("TidyLibWrapper", "The HTML text cannot be read.");
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
        m_errorString = QCoreApplication::translate("TidyLibWrapper", "The HTML text cannot be read.");
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
