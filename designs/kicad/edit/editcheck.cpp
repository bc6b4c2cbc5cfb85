// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editcheck.h"

#include "designs/kicad/outermarks.h"
#include "designs/kicad/sexprscanner.h"
#include "designs/kicad/sheetparser.h"
#include "designs/texts.h"

#include <algorithm>

namespace designs::kicad {

namespace {

/// Where a splice stands in one of the two texts.
struct Range
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The tokens of a list outside of given ranges.
class OutsideTokens
{
public:
    using Token = SexprScanner::Token;

    OutsideTokens(std::string_view text, Range list, std::vector<Range> skipped)
        : m_text(text.substr(list.begin, list.end - list.begin))
        , m_start(list.begin)
        , m_skipped(std::move(skipped))
        , m_scanner(m_text)
    {
    }

    Token next()
    {
        for (;;) {
            const Token token = m_scanner.next();
            m_depth += token == Token::Open ? 1 : token == Token::Close ? -1 : 0;
            const bool isEnd = token == Token::End || token == Token::Error;
            if (isEnd || !isSkipped(m_start + m_scanner.tokenOffset())) {
                return token;
            }
        }
    }

    [[nodiscard]] int depth() const { return m_depth; }
    [[nodiscard]] std::string_view bytes() const
    {
        return m_text.substr(m_scanner.tokenOffset(), m_scanner.offset() - m_scanner.tokenOffset());
    }

private:
    bool isSkipped(std::size_t offset)
    {
        while (m_at < m_skipped.size() && m_skipped[m_at].end <= offset) {
            ++m_at;
        }
        return m_at < m_skipped.size() && m_skipped[m_at].begin <= offset;
    }

    std::string_view m_text;
    std::size_t m_start;
    std::vector<Range> m_skipped;
    std::size_t m_at = 0;
    SexprScanner m_scanner;
    int m_depth = 0;
};

bool sameTokens(OutsideTokens *before, OutsideTokens *after)
{
    for (;;) {
        const auto token = before->next();
        if (after->next() != token || token == SexprScanner::Token::Error ||
            before->depth() != after->depth()) {
            return false;
        }
        if (token == SexprScanner::Token::End) {
            return before->depth() == 0;
        }
        // The scanner takes an opening and its keyword as one, the closing has one byte.
        if (before->bytes() != after->bytes()) {
            return false;
        }
    }
}

using Texts = std::map<std::string, std::string, std::less<>>;

Texts textsOf(std::span<const Property> properties, const PropertyNames &names)
{
    Texts texts;
    for (const Property &property : properties) {
        texts.insert_or_assign(std::string(names.name(property.name)), std::string(property.value));
    }
    return texts;
}

void apply(const std::vector<WantedText> &changes, Texts *texts)
{
    for (const WantedText &change : changes) {
        if (change.text) {
            texts->insert_or_assign(change.name, *change.text);
        } else {
            texts->erase(change.name);
        }
    }
}

/// The new text of one sheet beside the old one.
class SheetComparison
{
public:
    SheetComparison(const SheetFile &before, const PropertyNames &names, std::string_view variant,
                    const SheetFile &after, const PropertyNames &newNames)
        : m_before(before)
        , m_names(names)
        , m_variant(variant)
        , m_after(after)
        , m_newNames(newNames)
    {
    }

    bool isAsPlanned(const SheetRewrite &change) const
    {
        if (m_before.formatVersion != m_after.formatVersion || m_before.uuid != m_after.uuid ||
            m_before.symbols.size() != m_after.symbols.size() ||
            m_before.sheets.size() != m_after.sheets.size() ||
            m_before.instanceTable.size() != m_after.instanceTable.size()) {
            return false;
        }
        return std::all_of(change.symbols.begin(), change.symbols.end(),
                           [this](const auto &each) { return isSymbol(each.first, each.second); }) &&
               std::all_of(change.rows.begin(), change.rows.end(),
                           [this](const auto &each) { return isRow(each.first, each.second); });
    }

private:
    bool isSymbol(quint32 number, const SymbolRewrite &change) const
    {
        const PlacedSymbol &old = m_before.symbols[number];
        const PlacedSymbol &fresh = m_after.symbols[number];
        Texts wanted = textsOf(old.properties, m_names);
        wanted.emplace("Value", old.value);
        apply(change.properties, &wanted);
        Texts found = textsOf(fresh.properties, m_newNames);
        found.emplace("Value", fresh.value);
        return wanted == found && old.reference == fresh.reference && old.uuid == fresh.uuid &&
               old.libId == fresh.libId && old.unit == fresh.unit &&
               fresh.dnp == change.dnp.value_or(old.dnp) && fresh.inBom == change.inBom.value_or(old.inBom) &&
               old.instances.size() == fresh.instances.size() &&
               std::all_of(change.variants.begin(), change.variants.end(),
                           [&](const auto &each) { return isVariant(old, fresh, each.first, each.second); });
    }

    const VariantRecord *variantOf(const SheetFile &sheet, const PlacedSymbol &symbol,
                                   std::string_view path) const
    {
        const auto number = sheet.pathNumber(path);
        return number ? findVariant(findInstance(symbol.instances, *number), m_variant) : nullptr;
    }

    /// What a use of the symbol says in the variant; the symbol's own properties are the base.
    bool isVariant(const PlacedSymbol &old, const PlacedSymbol &fresh, std::string_view path,
                   const VariantRewrite &change) const
    {
        const VariantRecord none;
        const VariantRecord *was = variantOf(m_before, old, path);
        const VariantRecord *is = variantOf(m_after, fresh, path);
        was = was ? was : &none;
        is = is ? is : &none;
        Texts wanted = textsOf(was->fields, m_names);
        apply(change.fields, &wanted);
        Texts base = textsOf(old.properties, m_names);
        base.emplace("Value", old.value);
        for (const WantedText &field : change.fields) {
            const auto own = base.find(field.name);
            if (own != base.end() && field.text == own->second) {
                wanted.erase(field.name);
            }
        }
        const bool dnp = change.dnp.value_or(was->dnp.value_or(old.dnp));
        const bool inBom = change.inBom.value_or(was->inBom.value_or(old.inBom));
        return wanted == textsOf(is->fields, m_newNames) && is->dnp.value_or(fresh.dnp) == dnp &&
               is->inBom.value_or(fresh.inBom) == inBom;
    }

    bool isRow(quint32 number, const RowRewrite &change) const
    {
        const TableInstance &old = m_before.instanceTable[number];
        const TableInstance &fresh = m_after.instanceTable[number];
        return old.path == fresh.path && old.reference == fresh.reference && old.unit == fresh.unit &&
               fresh.value == (change.value ? std::string_view(*change.value) : old.value) &&
               fresh.footprint == (change.footprint ? std::string_view(*change.footprint) : old.footprint);
    }

    const SheetFile &m_before;
    const PropertyNames &m_names;
    std::string_view m_variant;
    const SheetFile &m_after;
    const PropertyNames &m_newNames;
};

QString differs()
{
    return KicadEditTexts::tr("more than what was asked for would change");
}

} // namespace

QString compareTexts(std::string_view before, std::string_view after, const std::vector<Splice> &splices,
                     const std::vector<ChangedList> &lists)
{
    std::size_t splice = 0;
    std::size_t atBefore = 0;
    std::size_t atAfter = 0;
    for (const ChangedList &list : lists) {
        const std::size_t between = list.begin - atBefore;
        if (before.substr(atBefore, between) != after.substr(atAfter, between)) {
            return differs();
        }
        const std::size_t start = atAfter + between;
        std::size_t shifted = start - list.begin;
        std::vector<Range> old;
        std::vector<Range> fresh;
        for (; splice < splices.size() && splices[splice].begin < list.end; ++splice) {
            const Splice &each = splices[splice];
            old.push_back({each.begin, each.end});
            fresh.push_back({each.begin + shifted, each.begin + shifted + each.text.size()});
            shifted += each.text.size() - (each.end - each.begin);
        }
        OutsideTokens left(before, {list.begin, list.end}, std::move(old));
        OutsideTokens right(after, {start, list.end + shifted}, std::move(fresh));
        if (!sameTokens(&left, &right)) {
            return differs();
        }
        atBefore = list.end;
        atAfter = list.end + shifted;
    }
    return splice == splices.size() && before.substr(atBefore) == after.substr(atAfter) ? QString()
                                                                                        : differs();
}

QString compareSheets(const SheetFile &before, const PropertyNames &names, const SheetRewrite &change,
                      std::string_view variant, std::string_view after)
{
    TextArena arena;
    PropertyNames newNames;
    SheetFile sheet;
    sheet.path = before.path;
    SheetParser parser(after, &sheet, &arena, &newNames);
    if (!parser.parse()) {
        return KicadEditTexts::tr("it could not be read any more: %1").arg(parser.problem().text);
    }
    const SheetComparison comparison(before, names, variant, sheet, newNames);
    return comparison.isAsPlanned(change) ? QString()
                                          : KicadEditTexts::tr("it would not read as what was asked for");
}

} // namespace designs::kicad
