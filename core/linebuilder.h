// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/groupedlines.h"
#include "core/hashindex.h"

#include <QByteArray>
#include <QByteArrayView>

#include <deque>
#include <vector>

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
    };

    void findValues();
    void findDrafts();
    void makeSingleDraft(quint32 part);
    void putIntoDraft(quint32 part);
    void readHostTexts(const Part &part);
    [[nodiscard]] bool isSameDraft(quint32 draft, quint32 part) const;
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
    /// The host texts of the grouping properties: of the part at hand, and of the first part of each draft.
    std::vector<QByteArrayView> m_texts;
    std::vector<QByteArrayView> m_draftTexts;
    /// Texts of parts that have none in the host.
    std::deque<QByteArray> m_ownTexts;
    quint32 m_lineCount = 0;
};
