// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/markupcleaner.h"

#include "richtext/xhtml/htmlsize.h"
#include "richtext/xhtml/markuprewriter.h"
#include "richtext/xhtml/tagscanner.h"
#include "richtext/xhtml/tidylibwrapper.h"
#include "richtext/xhtml/xhtmlelements.h"
#include "richtext/xhtml/xmltext.h"

namespace {

bool isKnown(const QString &name)
{
    return xhtml::element(name) != nullptr || xhtml::isLeftOut(name) || xhtml::isSection(name);
}

/// Without the tags that HTML does not have, such as those of office programs: HTML Tidy would give up at
/// them. Elements that go with what they hold are named in `leftOut`: HTML Tidy moves some of them out of the
/// body.
QString withoutUnknownTags(const QString &fragment, QStringList &leftOut)
{
    QString result;
    TagScanner tags(fragment);
    while (const auto tag = tags.next()) {
        const QString name = tag->name.toString().toLower();
        if (xhtml::isLeftOut(name) && !leftOut.contains(name)) {
            leftOut.append(name);
        }
        result += tag->textBefore;
        if (isKnown(name)) {
            result += tag->text;
        }
    }
    result += tags.rest();
    return result;
}

/// `<p/>` is an empty paragraph in XHTML, and one without an end to browsers that read the page as HTML.
bool hasShortTags(const QString &fragment)
{
    TagScanner tags(fragment);
    while (const auto tag = tags.next()) {
        const xhtml::Element *element = xhtml::element(tag->name.toString());
        if (tag->text.endsWith(u"/>") && element != nullptr && !element->isEmpty()) {
            return true;
        }
    }
    return false;
}

CleanMarkup mended(const QString &fragment, QSet<QString> &ids, const MarkupLimits &limits)
{
    CleanMarkup result;
    TidyLibWrapper tidy;
    const QString known = withoutUnknownTags(fragment, result.leftOut);
    const QString xhtml = tidy.tidyHtml(known, TidyLibWrapper::Fragment);
    result.problem = tidy.errorString();
    if (!result.problem.isEmpty()) {
        return result;
    }
    const RewrittenMarkup written = rewriteMarkup(xhtml, ids, limits);
    result.problem = written.problem;
    if (result.problem.isEmpty()) {
        result.xhtml = written.xhtml;
        for (const QString &what : written.leftOut) {
            if (!result.leftOut.contains(what)) {
                result.leftOut.append(what);
            }
        }
        ids = written.ids;
    }
    return result;
}

} // namespace

CleanMarkup MarkupCleaner::clean(const QString &fragment)
{
    const QString text = xmlText(fragment);
    if (htmlSize(text).attributeEnds > HtmlSize::mostAttributeEnds) {
        return {{}, HtmlSize::tooManyAttributes(), {}};
    }
    const RewrittenMarkup asItIs = rewriteMarkup(text, m_ids, m_limits);
    if (asItIs.isTooLarge) {
        return {{}, asItIs.problem, {}};
    }
    if (asItIs.problem.isEmpty() && !asItIs.isChanged && !hasShortTags(text)) {
        m_ids = asItIs.ids;
        return {text, {}, {}};
    }
    return mended(text, m_ids, m_limits);
}
