// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/variantwriter.h"

#include "designs/kicad/edit/listlayout.h"

namespace designs::kicad {

VariantWriter::VariantWriter(std::string_view bytes, int formatVersion, std::string_view variant,
                             std::vector<Splice> *splices)
    : m_bytes(bytes)
    , m_version(formatVersion)
    , m_variant(variant)
    , m_splices(splices)
{
}

void VariantWriter::write(const SexprNode &path, const VariantRewrite &change, const Base &base)
{
    for (const SexprNode &list : path.lists) {
        const SexprNode *name = list.keyword == "variant" ? list.first("name") : nullptr;
        if (name && !m_node && firstText(m_bytes, *name) == m_variant) {
            m_node = &list;
        }
    }
    collect(change, base);
    const bool hasNew = !m_newFlags.empty() || !m_newFields.empty();
    // All that would stay is the list with the name: the variant goes as a whole.
    if (m_node && !hasNew && m_dropped > 0 && m_node->lists.size() == m_dropped + 1) {
        m_splices->push_back({m_node->gap, m_node->end, {}});
        return;
    }
    m_splices->insert(m_splices->end(), m_inside.begin(), m_inside.end());
    if (hasNew) {
        insertLists(path);
    }
}

void VariantWriter::collect(const VariantRewrite &change, const Base &base)
{
    if (change.dnp) {
        takeFlag("dnp", *change.dnp, base.dnp);
    }
    if (change.inBom) {
        takeFlag("in_bom", *change.inBom, base.inBom);
    }
    for (const WantedText &field : change.fields) {
        takeField(field, base);
    }
}

const SexprNode *VariantWriter::findField(std::string_view name) const
{
    const SexprNode *found = nullptr;
    for (std::size_t i = 0; m_node && i < m_node->lists.size(); ++i) {
        const SexprNode &list = m_node->lists[i];
        const SexprNode *own = list.keyword == "field" ? list.first("name") : nullptr;
        // Of several the last counts.
        found = own && firstText(m_bytes, *own) == name ? &list : found;
    }
    return found;
}

void VariantWriter::takeField(const WantedText &change, const Base &base)
{
    const std::string_view *inSymbol = base.property(change.name);
    const bool isBase = !change.text || (inSymbol && *inSymbol == *change.text);
    const SexprNode *field = findField(change.name);
    if (!field) {
        if (!isBase) {
            m_newFields.push_back(change);
        }
        return;
    }
    if (isBase) {
        for (const SexprNode &list : m_node->lists) {
            const SexprNode *own = list.keyword == "field" ? list.first("name") : nullptr;
            if (own && firstText(m_bytes, *own) == change.name) {
                drop(list);
            }
        }
        return;
    }
    const SexprNode *value = field->last("value");
    if (value && !value->atoms.empty()) {
        m_inside.push_back({value->atoms.front().begin, value->atoms.front().end, quotedText(*change.text)});
    } else if (value) {
        const std::size_t at = value->begin + std::string_view("(value").size();
        m_inside.push_back({at, at, ' ' + quotedText(*change.text)});
    } else {
        const std::size_t at = field->lists.back().end;
        m_inside.push_back(
            {at, at,
             std::string(gapOf(m_bytes, field->lists.back())) + "(value " + quotedText(*change.text) + ')'});
    }
}

void VariantWriter::takeFlag(std::string_view word, bool wanted, bool base)
{
    const SexprNode *flag = m_node ? m_node->last(word) : nullptr;
    const bool turned = word == "in_bom" && m_version < version::variantInBomCorrected;
    const bool written = turned ? !wanted : wanted;
    if (wanted == base) {
        for (std::size_t i = 0; flag && i < m_node->lists.size(); ++i) {
            if (m_node->lists[i].keyword == word) {
                drop(m_node->lists[i]);
            }
        }
    } else if (flag && !flag->atoms.empty()) {
        m_inside.push_back({flag->atoms.front().begin, flag->atoms.front().end, written ? "yes" : "no"});
    } else if (flag) {
        m_inside.push_back({flag->begin, flag->end, '(' + std::string(word) + (written ? " yes)" : " no)")});
    } else {
        m_newFlags.emplace_back(word, written);
    }
}

void VariantWriter::drop(const SexprNode &list)
{
    m_inside.push_back({list.gap, list.end, {}});
    ++m_dropped;
}

void VariantWriter::insertLists(const SexprNode &path)
{
    const bool isNew = !m_node;
    // An inner list of the variant, or the path's last one.
    const SexprNode &like = isNew ? path.lists.back() : m_node->lists.back();
    const ListLayout layout(m_bytes, isNew ? path : *m_node, like);
    const int level = isNew ? 1 : 0;
    std::string text;
    if (isNew) {
        text = layout.gap() + "(variant" + layout.gap(1) + "(name " + quotedText(m_variant) + ')';
    }
    for (const auto &[word, flag] : m_newFlags) {
        text += layout.gap(level) + '(' + word + (flag ? " yes)" : " no)");
    }
    for (const WantedText &field : m_newFields) {
        text +=
            layout.gap(level) + "(field" + layout.gap(level + 1) + "(name " + quotedText(field.name) + ')';
        text +=
            layout.gap(level + 1) + "(value " + quotedText(*field.text) + ')' + layout.closing(level) + ')';
    }
    text += isNew ? layout.closing(0) + ')' : std::string();
    m_splices->push_back({like.end, like.end, text});
}

} // namespace designs::kicad
