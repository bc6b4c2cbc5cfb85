// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/xhtmlelements.h"

#include <QSet>

namespace xhtml {
namespace {

// Attributes: "name" of any value, "name#" a number, "name%" a span, "name=a|b" a choice, "name~" a name,
// "name@" a link, "name!" an image.
const char *const paragraphAlign = "align=left|center|right|justify";
const char *const cellAlign = "align=left|center|right|justify|char valign=top|middle|bottom|baseline";
const char *const common = "class title style dir=ltr|rtl lang~ xml:lang~";

struct Kind
{
    const char *names;
    Level level;
    Content content;
    const char *attributes = "";
    const char *moreAttributes = "";
};

const Kind kinds[]{
    {"p h1 h2 h3 h4 h5 h6", Level::Block, Content::Text, paragraphAlign},
    {"div", Level::Block, Content::All, paragraphAlign},
    {"center blockquote", Level::Block, Content::All},
    {"address", Level::Block, Content::TextAndParagraphs},
    {"pre", Level::Block, Content::PlainText, "width#"},
    {"hr", Level::Block, Content::Nothing, "align=left|center|right noshade=noshade size# width#"},
    {"ul", Level::Block, Content::Items, "type=disc|square|circle compact=compact"},
    {"ol", Level::Block, Content::Items, "type compact=compact start#"},
    {"dir menu", Level::Block, Content::Items, "compact=compact"},
    {"li", Level::Part, Content::All, "type value#"},
    {"dl", Level::Block, Content::Terms, "compact=compact"},
    {"dt", Level::Part, Content::Text},
    {"dd", Level::Part, Content::All},
    {"table", Level::Block, Content::TableParts,
     "align=left|center|right summary width# border# cellspacing# cellpadding# bgcolor "
     "rules=none|groups|rows|cols|all",
     "frame=void|above|below|hsides|lhs|rhs|vsides|box|border"},
    {"caption", Level::Part, Content::Text, "align=top|bottom|left|right"},
    {"colgroup", Level::Part, Content::Columns, "span% width#", cellAlign},
    {"col", Level::Part, Content::Nothing, "span% width#", cellAlign},
    {"thead tfoot tbody", Level::Part, Content::Rows, cellAlign},
    {"tr", Level::Part, Content::Cells, "bgcolor", cellAlign},
    {"td th", Level::Part, Content::All,
     "abbr axis scope=row|col|rowgroup|colgroup rowspan% colspan% nowrap=nowrap bgcolor width# height#",
     cellAlign},
    {"span tt i b u s strike big small em strong dfn code samp kbd var cite abbr acronym q sub sup",
     Level::Inline, Content::Text},
    {"bdo", Level::Inline, Content::Text},
    {"font", Level::Inline, Content::Text, "size color face"},
    {"a", Level::Inline, Content::TextWithoutLinks, "href@ name~ target~"},
    {"img", Level::Inline, Content::Nothing, "src! alt width# height# border# hspace# vspace#",
     "align=top|middle|bottom|left|right"},
    {"br", Level::Inline, Content::Nothing, "clear=left|all|right|none"},
    {"ins del", Level::Both, Content::All},
};

Attribute attributeOf(const QString &description, QString &name)
{
    static const QHash<QChar, Attribute::Type> types{{u'#', Attribute::Number},
                                                     {u'%', Attribute::Span},
                                                     {u'~', Attribute::Name},
                                                     {u'@', Attribute::Link},
                                                     {u'!', Attribute::Image}};
    const qsizetype equals = description.indexOf(u'=');
    if (equals >= 0) {
        name = description.left(equals);
        return {Attribute::Choice, description.mid(equals + 1).split(u'|')};
    }
    const Attribute::Type type = types.value(description.back(), Attribute::Any);
    name = type == Attribute::Any ? description : description.chopped(1);
    return {type};
}

void addAttributes(Element &element, const char *descriptions)
{
    for (const QString &description : QString::fromLatin1(descriptions).split(u' ', Qt::SkipEmptyParts)) {
        QString name;
        const Attribute attribute = attributeOf(description, name);
        element.attributes.insert(name, attribute);
    }
}

QHash<QString, Element> makeElements()
{
    QHash<QString, Element> elements;
    for (const Kind &kind : kinds) {
        for (const QString &name : QString::fromLatin1(kind.names).split(u' ')) {
            Element element{name, kind.level, kind.content};
            addAttributes(element, common);
            addAttributes(element, kind.attributes);
            addAttributes(element, kind.moreAttributes);
            element.attributes[QStringLiteral("style")] = {Attribute::Style};
            element.attributes.insert(QStringLiteral("id"), {Attribute::Id});
            elements.insert(name, element);
        }
    }
    for (const char *name : {"dir", "lang", "xml:lang"}) {
        elements[QStringLiteral("br")].attributes.remove(QLatin1String(name));
    }
    return elements;
}

QSet<QString> namesOf(const char *names)
{
    const QStringList list = QString::fromLatin1(names).split(u' ');
    return {list.begin(), list.end()};
}

constexpr int bodyRank = 5;

/// The order of the parts of a table.
int rank(const QString &name)
{
    static const QHash<QString, int> ranks{{QStringLiteral("caption"), 1},
                                           {QStringLiteral("col"), 2},
                                           {QStringLiteral("colgroup"), 2},
                                           {QStringLiteral("thead"), 3},
                                           {QStringLiteral("tfoot"), 4}};
    return ranks.value(name, bodyRank);
}

} // namespace

const Element *element(const QString &name)
{
    static const QHash<QString, Element> elements = makeElements();
    const auto found = elements.constFind(name);
    return found == elements.constEnd() ? nullptr : &*found;
}

bool isLeftOut(const QString &name)
{
    static const QSet<QString> names = namesOf(
        "script style iframe object applet embed frame frameset noframes head title meta link base param map "
        "area input select option optgroup textarea isindex audio video source track canvas svg math "
        "template "
        "bgsound keygen xml noembed plaintext");
    return names.contains(name);
}

bool isSection(const QString &name)
{
    static const QSet<QString> names = namesOf("section article aside header footer nav main figure "
                                               "figcaption details summary hgroup form fieldset");
    return names.contains(name);
}

bool holds(const Element &outer, const Element &inner)
{
    const bool isText = inner.level == Level::Inline || inner.level == Level::Both;
    static const QSet<QString> sized = namesOf("img big small sub sup font");
    const QString &name = inner.name;
    switch (outer.content) {
    case Content::Nothing:
        return false;
    case Content::Text:
        return isText;
    case Content::TextWithoutLinks:
        return isText && name != QLatin1String("a");
    case Content::PlainText:
        return isText && !sized.contains(name);
    case Content::TextAndParagraphs:
        return isText || name == QLatin1String("p");
    case Content::All:
        return isText || inner.level == Level::Block;
    case Content::Items:
        return name == QLatin1String("li");
    case Content::Terms:
        return name == QLatin1String("dt") || name == QLatin1String("dd");
    case Content::TableParts:
        return name == QLatin1String("tr") || inner.content == Content::Rows || rank(name) < bodyRank;
    case Content::Columns:
        return name == QLatin1String("col");
    case Content::Rows:
        return name == QLatin1String("tr");
    case Content::Cells:
        return name == QLatin1String("td") || name == QLatin1String("th");
    }
    return false;
}

bool follows(const QString &part, const QString &before)
{
    const bool mayRepeat = rank(part) == bodyRank || rank(part) == rank(QStringLiteral("col"));
    return before.isEmpty() || rank(part) > rank(before) || (mayRepeat && part == before);
}

bool isBody(const QString &part)
{
    return !part.isEmpty() && rank(part) == bodyRank;
}

const Element *impliedPart(const Element &outer)
{
    switch (outer.content) {
    case Content::Items:
        return element(QStringLiteral("li"));
    case Content::Terms:
        return element(QStringLiteral("dd"));
    case Content::TableParts:
        return element(QStringLiteral("tbody"));
    case Content::Rows:
        return element(QStringLiteral("tr"));
    case Content::Cells:
        return element(QStringLiteral("td"));
    default:
        return nullptr;
    }
}

} // namespace xhtml
