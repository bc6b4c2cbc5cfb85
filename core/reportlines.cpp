// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/reportlines.h"

#include "core/part.h"
#include "core/partstore.h"

#include <algorithm>

namespace {

struct Entry
{
    quint64 key = 0;
    BomLine line;
};

std::vector<Entry> sortedEntries(const GroupedLines &lines, const PartStore &store, bool grouped)
{
    const BomLine parts = lines.lineCount() == 0 ? BomLine() : lines.lineRange(0, lines.lineCount());
    const size_t count = grouped ? lines.lineCount() : parts.size();
    std::vector<Entry> entries;
    entries.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        const BomLine line = grouped ? lines.line(i) : parts.subspan(i, 1);
        entries.push_back({store.orderKey(*line.front()), line});
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry &left, const Entry &right) { return left.key < right.key; });
    return entries;
}

} // namespace

ReportLines makeReportLines(const GroupedLines &lines, const PartStore &store, bool grouped)
{
    ReportLines report;
    const std::vector<Entry> entries = sortedEntries(lines, store, grouped);
    report.lines.reserve(entries.size());
    for (size_t i = 0; i < entries.size(); ++i) {
        size_t last = i;
        while (last + 1 < entries.size() && entries[last + 1].key == entries[i].key) {
            ++last;
        }
        const BomLine kept = entries[last].line;
        for (; i < last; ++i) {
            report.replaced.append({QString(), referencesOf(entries[i].line), kept.front()->reference()});
        }
        report.lines.push_back(kept);
    }
    return report;
}

QStringList referencesOf(BomLine line)
{
    QStringList references;
    references.reserve(qsizetype(line.size()));
    for (const Part *part : line) {
        references.append(part->reference());
    }
    return references;
}
