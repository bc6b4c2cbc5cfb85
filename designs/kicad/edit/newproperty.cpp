// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/newproperty.h"

#include "designs/kicad/edit/listlayout.h"
#include "designs/kicad/sheetfile.h"
#include "designs/splices.h"

#include <algorithm>
#include <array>

namespace designs::kicad {

namespace {

template<std::size_t count>
bool isOneOf(std::string_view word, const std::array<std::string_view, count> &words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string_view rawText(std::string_view bytes, const SexprAtom &atom)
{
    return bytes.substr(atom.begin, atom.end - atom.begin);
}

bool saysHidden(std::string_view bytes, const SexprNode &list)
{
    const SexprNode *hide = list.first("hide");
    const bool bare = std::any_of(list.atoms.begin(), list.atoms.end(), [&](const SexprAtom &atom) {
        return !atom.quoted && rawText(bytes, atom) == "hide";
    });
    return bare || (hide && (hide->atoms.empty() || firstText(bytes, *hide) == "yes"));
}

bool isHidden(std::string_view bytes, const SexprNode &property)
{
    const SexprNode *effects = property.first("effects");
    return saysHidden(bytes, property) || (effects && saysHidden(bytes, *effects));
}

/// The last hidden property that is not private, else the last that is not private, else the last.
const SexprNode *chooseSibling(std::string_view bytes, const SexprNode &symbol)
{
    const SexprNode *best = nullptr;
    int bestRank = -1;
    for (const SexprNode &list : symbol.lists) {
        if (list.keyword != "property" || list.atoms.empty()) {
            continue;
        }
        const bool open = !isPrivate(bytes, list);
        const int rank = open && isHidden(bytes, list) ? 2 : open ? 1 : 0;
        if (rank >= bestRank) {
            best = &list;
            bestRank = rank;
        }
    }
    return best;
}

/// Makes a copy of a sibling into the new property.
class SiblingCopy
{
public:
    SiblingCopy(std::string_view bytes, const SexprNode &symbol, const SexprNode &sibling)
        : m_bytes(bytes)
        , m_symbol(symbol)
        , m_sibling(sibling)
    {
    }

    std::optional<std::string> text(const NewProperty &property, int formatVersion)
    {
        nameAndValue(property);
        for (const SexprNode &list : m_sibling.lists) {
            adapt(list, property.id);
        }
        if (!isHidden(m_bytes, m_sibling)) {
            hide(formatVersion);
        }
        if (!sortSplices(&m_splices)) {
            return std::nullopt;
        }
        return splicedPart(m_bytes, m_sibling.gap, m_sibling.end, m_splices);
    }

private:
    void nameAndValue(const NewProperty &property)
    {
        const std::size_t name = isPrivate(m_bytes, m_sibling) ? 1 : 0;
        const SexprAtom &first = m_sibling.atoms.front();
        const SexprAtom &last = m_sibling.atoms[std::min(name + 1, m_sibling.atoms.size() - 1)];
        m_splices.push_back(
            {first.begin, last.end, quotedText(property.name) + ' ' + quotedText(property.value)});
    }

    void adapt(const SexprNode &list, int id)
    {
        if (list.keyword == "at") {
            place(list);
        } else if (list.keyword == "id" && !list.atoms.empty()) {
            m_splices.push_back({list.atoms.front().begin, list.atoms.front().end, std::to_string(id)});
        } else if (list.keyword == "effects") {
            adaptEffects(list);
        } else if (!isKept(list)) {
            drop(list);
        }
    }

    /// Marks of the sibling that a new property may have too.
    bool isKept(const SexprNode &list) const
    {
        const bool isMark = list.keyword == "show_name" || list.keyword == "do_not_autoplace";
        return isMark ? firstText(m_bytes, list) == "no"
                      : list.keyword == "hide" && isHidden(m_bytes, m_sibling);
    }

    void adaptEffects(const SexprNode &effects)
    {
        static constexpr std::array<std::string_view, 3> shape{"font", "justify", "hide"};
        for (const SexprNode &list : effects.lists) {
            if (!isOneOf(list.keyword, shape) || (list.keyword == "hide" && !isHidden(m_bytes, m_sibling))) {
                drop(list);
            }
        }
    }

    void drop(const SexprNode &list) { m_splices.push_back({list.gap, list.end, {}}); }

    /// The symbol's place, not turned.
    void place(const SexprNode &at)
    {
        const SexprNode *symbol = m_symbol.first("at");
        for (std::size_t i = 0; symbol && i < at.atoms.size(); ++i) {
            const bool turn = i > 1 || i >= symbol->atoms.size();
            m_splices.push_back({at.atoms[i].begin, at.atoms[i].end,
                                 turn ? std::string("0") : std::string(rawText(m_bytes, symbol->atoms[i]))});
        }
    }

    void hide(int formatVersion)
    {
        const SexprNode *showName = m_sibling.first("show_name");
        const SexprNode *effects = m_sibling.first("effects");
        const std::string word = formatVersion >= version::hideList ? "(hide yes)" : "hide";
        if (showName && firstText(m_bytes, *showName) == "no") {
            insert(showName->gap, gapOf(m_bytes, *showName), "(hide yes)");
        } else if (effects && !effects->lists.empty() && formatVersion >= version::hideList) {
            insert(effects->lists.back().end, gapOf(m_bytes, effects->lists.back()), word);
        } else if (effects) {
            const std::size_t at = effects->lists.empty() ? effects->begin + 8 : effects->lists.back().end;
            insert(at, " ", word);
        } else {
            insert(m_sibling.lists.empty() ? m_sibling.atoms.back().end : m_sibling.lists.back().end, " ",
                   "(effects (font (size 1.27 1.27)) " + word + ")");
        }
    }

    void insert(std::size_t at, std::string_view gap, std::string_view text)
    {
        m_splices.push_back({at, at, std::string(gap) + std::string(text)});
    }

    std::string_view m_bytes;
    const SexprNode &m_symbol;
    const SexprNode &m_sibling;
    std::vector<Splice> m_splices;
};

} // namespace

bool isPrivate(std::string_view bytes, const SexprNode &property)
{
    return property.atoms.size() > 1 && !property.atoms.front().quoted &&
           rawText(bytes, property.atoms.front()) == "private";
}

const SexprNode *lastProperty(const SexprNode &symbol)
{
    const SexprNode *last = nullptr;
    for (const SexprNode &list : symbol.lists) {
        if (last && (list.keyword == "pin" || list.keyword == "instances")) {
            break;
        }
        last = list.keyword == "property" && !list.atoms.empty() ? &list : last;
    }
    return last;
}

std::optional<std::string> newPropertyText(std::string_view bytes, const SexprNode &symbol,
                                           const NewProperty &property, int formatVersion)
{
    const SexprNode *sibling = chooseSibling(bytes, symbol);
    return sibling ? SiblingCopy(bytes, symbol, *sibling).text(property, formatVersion) : std::nullopt;
}

} // namespace designs::kicad
