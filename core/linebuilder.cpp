// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/linebuilder.h"

#include "core/part.h"
#include "core/partstore.h"
#include "host/framework/hosttext.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

LineBuilder::LineBuilder(std::span<Part *const> parts, const PartStore &store, const GroupingRule &rule)
    : m_parts(parts)
    , m_store(store)
    , m_rule(rule)
{
}

GroupedLines LineBuilder::build()
{
    GroupedLines lines;
    findValues();
    findDrafts();
    numberLines(lines);
    fillLines(lines);
    return lines;
}

void LineBuilder::findValues()
{
    HashIndex index;
    m_valueOf.reserve(m_parts.size());
    for (quint32 i = 0; i < m_parts.size(); ++i) {
        const Part &part = *m_parts[i];
        // Equal texts have equal numbers; the others are equal only where letter case does not count.
        const bool byNumber = m_rule.caseRule == Qt::CaseSensitive;
        const quint64 hash =
            byNumber ? hashNumber(part.key().value) : hashText(part.value(), Qt::CaseInsensitive);
        quint32 value = index.find(hash, [&](quint32 known) {
            const Part &first = *m_parts[m_values[known].firstPart];
            return first.key().value == part.key().value ||
                   (!byNumber && first.value().compare(part.value(), Qt::CaseInsensitive) == 0);
        });
        if (value == HashIndex::None) {
            value = quint32(m_values.size());
            index.insert(hash, value);
            m_values.push_back({i, 0, {}});
        }
        ++m_values[value].count;
        m_valueOf.push_back(value);
    }
}

void LineBuilder::findDrafts()
{
    m_draftOf.reserve(m_parts.size());
    for (quint32 i = 0; i < m_parts.size(); ++i) {
        m_draftOf.push_back(m_values[m_valueOf[i]].count < 2 ? addDraft(i) : draftOf(i));
    }
}

quint32 LineBuilder::addDraft(quint32 part)
{
    const auto draft = quint32(m_drafts.size());
    m_drafts.push_back({part, m_valueOf[part], 0, 0, 0});
    m_values[m_valueOf[part]].drafts.push_back(draft);
    return draft;
}

quint32 LineBuilder::draftOf(quint32 part)
{
    describe(part);
    const quint64 hash = hashBytes(m_description.data(), m_description.size());
    quint32 draft = m_draftIndex.find(hash, [this](quint32 known) { return isDescribed(known); });
    if (draft == HashIndex::None) {
        draft = addDraft(part);
        m_drafts[draft].description = m_descriptions.size();
        m_drafts[draft].descriptionSize = quint32(m_description.size());
        m_descriptions += m_description;
        m_draftIndex.insert(hash, draft);
    }
    return draft;
}

void LineBuilder::describe(quint32 part)
{
    const Part &described = *m_parts[part];
    // A text of a BOM-only part is shown as it stands, one of a component may be converted.
    const bool isBOMPart = described.isBOMPart();
    const quint32 head[] = {m_valueOf[part], isBOMPart ? 1U : 0U, described.isNotFitted() ? 1U : 0U};
    m_description.assign(reinterpret_cast<const char *>(head), sizeof head);
    for (const PropertyQuery &property : m_rule.properties) {
        if (isBOMPart) {
            describe(toHostText(described.property(property)));
        } else {
            describe(property.hostText(described.component()));
        }
    }
}

void LineBuilder::describe(QByteArrayView text)
{
    const auto size = quint32(text.size());
    m_description.append(reinterpret_cast<const char *>(&size), sizeof size);
    m_description.append(text.data(), size);
}

bool LineBuilder::isDescribed(quint32 draft) const
{
    const Draft &known = m_drafts[draft];
    return std::string_view(m_descriptions).substr(known.description, known.descriptionSize) == m_description;
}

void LineBuilder::numberLines(GroupedLines &lines)
{
    std::vector<std::pair<BomString, quint32>> order;
    order.reserve(m_values.size());
    for (quint32 value = 0; value < m_values.size(); ++value) {
        order.emplace_back(BomString(m_parts[m_values[value].firstPart]->value(), m_rule.caseRule), value);
    }
    std::sort(order.begin(), order.end(),
              [](const auto &left, const auto &right) { return left.first < right.first; });
    lines.m_values.reserve(order.size());
    for (const auto &[text, value] : order) {
        lines.m_values.push_back({text, m_lineCount});
        numberLines(m_values[value]);
    }
}

void LineBuilder::numberLines(const ValueDraft &value)
{
    if (value.drafts.size() == 1) {
        m_drafts[value.drafts.front()].line = m_lineCount++;
        return;
    }
    struct Keyed
    {
        BomString key;
        const Part *part = nullptr;
        quint32 draft = 0;
    };
    std::vector<Keyed> order;
    order.reserve(value.drafts.size());
    for (const quint32 draft : value.drafts) {
        const Part &part = *m_parts[m_drafts[draft].firstPart];
        order.push_back({groupingKey(part, m_rule), &part, draft});
    }
    const auto isLess = [this](const Keyed &left, const Keyed &right) {
        return left.key == right.key ? compareTexts(*left.part, *right.part, m_rule) < 0
                                     : left.key < right.key;
    };
    std::sort(order.begin(), order.end(), isLess);
    for (size_t i = 0; i < order.size(); ++i) {
        m_lineCount += i == 0 || isLess(order[i - 1], order[i]) ? 1 : 0;
        m_drafts[order[i].draft].line = m_lineCount - 1;
    }
}

void LineBuilder::fillLines(GroupedLines &lines) const
{
    lines.m_starts.assign(m_lineCount + 1, 0);
    for (const quint32 draft : m_draftOf) {
        ++lines.m_starts[m_drafts[draft].line + 1];
    }
    std::partial_sum(lines.m_starts.begin(), lines.m_starts.end(), lines.m_starts.begin());
    std::vector<quint32> next(lines.m_starts.begin(), lines.m_starts.end() - 1);
    lines.m_parts.resize(m_parts.size());
    for (size_t i = 0; i < m_parts.size(); ++i) {
        lines.m_parts[next[m_drafts[m_draftOf[i]].line]++] = m_parts[i];
    }
    for (size_t line = 0; line < m_lineCount; ++line) {
        sortLine(std::span(lines.m_parts)
                     .subspan(lines.m_starts[line], lines.m_starts[line + 1] - lines.m_starts[line]));
    }
}

void LineBuilder::sortLine(std::span<Part *> line) const
{
    const auto isLess = [this](const Part *left, const Part *right) {
        return m_store.orderKey(*left) < m_store.orderKey(*right);
    };
    if (!std::is_sorted(line.begin(), line.end(), isLess)) {
        std::stable_sort(line.begin(), line.end(), isLess);
    }
}
