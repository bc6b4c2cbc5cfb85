// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/tidylibwrapper.h"

#include "richtext/xhtml/markupsize.h"
#include "richtext/xhtml/xmltext.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>

#include <memory>

namespace {

// The library descends into elements by recursion and takes time in proportion to size times depth.
constexpr int mostElements = 20'000;
constexpr int deepest = 200;
constexpr qsizetype longest = 32 * 1024 * 1024;

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

QString tooMuch(const QString &html)
{
    if (html.size() > longest) {
        return text("The HTML text is too long.");
    }
    const MarkupSize size = markupSize(html);
    if (size.depth > deepest) {
        return text("The HTML elements are nested too deeply.");
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

} // namespace

QString TidyLibWrapper::tidyHtml(const QString &html, int mode)
{
    m_errorString = tooMuch(html);
    if (!m_errorString.isEmpty()) {
        return {};
    }
    Buffer output;
    Buffer errors;
    const TidyOwner document(tidyCreate());
    const TidyDoc tidy = document.get();
    tidySetErrorBuffer(tidy, &errors);
    setOptions(tidy, mode);

    int result = tidyParseString(tidy, xmlText(html).toUtf8().constData());
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
