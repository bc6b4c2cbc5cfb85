// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"
#include "core/hashindex.h"

#include <QByteArrayView>

#include <string>
#include <vector>

class PartStore;

/// Groups the parts of one category. Parts are first put into drafts by hash, on host text, so that most
/// texts are never made; only drafts of one value are then compared by their grouping keys, ordered and
/// joined.
class LineBuilder final
{
public:
    LineBuilder(std::span<Part *const> parts, const PartStore &store, const GroupingRule &rule);

    [[nodiscard]] GroupedLines build();

private:
    struct ValueDraft
    {
        quint32 firstPart = 0;
        quint32 count = 0;
        std::vector<quint32> drafts;
    };
    struct Draft
    {
        quint32 firstPart = 0;
        quint32 value = 0;
        quint32 line = 0;
        /// Where its description stands; there is none where the value has one part only.
        quint32 descriptionSize = 0;
        size_t description = 0;
    };

    void findValues();
    void findDrafts();
    [[nodiscard]] quint32 addDraft(quint32 part);
    [[nodiscard]] quint32 draftOf(quint32 part);
    void describe(quint32 part);
    void describe(QByteArrayView text);
    [[nodiscard]] bool isDescribed(quint32 draft) const;
    void numberLines(GroupedLines &lines);
    void numberLines(const ValueDraft &value);
    void fillLines(GroupedLines &lines) const;
    void sortLine(std::span<Part *> line) const;

    const std::span<Part *const> m_parts;
    const PartStore &m_store;
    const GroupingRule &m_rule;

    std::vector<ValueDraft> m_values;
    std::vector<Draft> m_drafts;
    /// Per part, the number of its value and of its draft.
    std::vector<quint32> m_valueOf;
    std::vector<quint32> m_draftOf;
    HashIndex m_draftIndex;
    /// Value and host texts of the grouping properties of the part at hand, and those of the first parts of
    /// all drafts: parts with equal descriptions have equal keys.
    std::string m_description;
    std::string m_descriptions;
    quint32 m_lineCount = 0;
};
