// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"

#include "core/reference.h"
#include "core/referenceformat.h"

// What the database answers about categories and lines; loading and changing stands in bompartsdatabase.cpp.

namespace {

QStringList sortedReferences(BomLine parts)
{
    QStringList references = referencesOf(parts);
    sortReferences(references);
    return references;
}

} // namespace

QString BOMPartsDatabase::categoryOf(const QString &reference) const
{
    return headingOfPrefix(categoryPrefix(reference));
}

QStringList BOMPartsDatabase::categoryNames() const
{
    QStringList names = m_categoryOrder;
    if (m_template.suppressEmptyCategories()) {
        names.removeIf([this](const QString &heading) { return partCount(heading) == 0; });
    }
    return names;
}

int BOMPartsDatabase::partCount(const QString &category) const
{
    const CategoryGroups *groups = this->category(category);
    return groups ? int(groups->parts().size()) : 0;
}

int BOMPartsDatabase::lineCount(const QString &category) const
{
    const GroupedLines *lines = categoryLines(category);
    return lines ? int(lines->lineCount()) : 0;
}

QStringList BOMPartsDatabase::categoryValues(const QString &category) const
{
    QStringList values;
    if (const GroupedLines *lines = categoryLines(category)) {
        values.reserve(qsizetype(lines->valueCount()));
        for (size_t i = 0; i < lines->valueCount(); ++i) {
            values.append(lines->value(i));
        }
    }
    return values;
}

QStringList BOMPartsDatabase::categoryReferences(const QString &category) const
{
    const CategoryGroups *groups = this->category(category);
    return groups ? sortedReferences(groups->parts()) : QStringList();
}

QStringList BOMPartsDatabase::valueReferences(const QString &category, const QString &value) const
{
    const GroupedLines *lines = categoryLines(category);
    const size_t index = lines ? lines->indexOf(BomString(value, caseRule())) : 0;
    if (!lines || index == lines->valueCount()) {
        return {};
    }
    return sortedReferences(lines->lineRange(lines->firstLine(index), lines->endLine(index)));
}

QList<QStringList> BOMPartsDatabase::groupLines(const QString &category, const QString &value) const
{
    QList<QStringList> result;
    const GroupedLines *lines = categoryLines(category);
    const size_t index = lines ? lines->indexOf(BomString(value, caseRule())) : 0;
    if (!lines || index == lines->valueCount()) {
        return result;
    }
    for (size_t line = lines->firstLine(index); line < lines->endLine(index); ++line) {
        result.append(referencesOf(lines->line(line)));
    }
    return result;
}

QStringList BOMPartsDatabase::formattedLines(const QString &category, const QString &value, int width,
                                             int lines) const
{
    QStringList texts;
    for (const QStringList &line : groupLines(category, value)) {
        texts.append(formatReferences(line, width, lines));
    }
    return texts;
}

QList<QPair<QString, int>> BOMPartsDatabase::lineSummaries(const QString &category) const
{
    QList<QPair<QString, int>> summaries;
    if (const GroupedLines *lines = categoryLines(category)) {
        summaries.reserve(qsizetype(lines->lineCount()));
        for (size_t i = 0; i < lines->lineCount(); ++i) {
            const BomLine line = lines->line(i);
            summaries.append({line.front()->reference(), int(line.size())});
        }
    }
    return summaries;
}

QString BOMPartsDatabase::groupingKey(const QString &reference) const
{
    const GroupingRule rule = groupingRule();
    if (const Part *found = part(reference)) {
        return ::groupingKey(*found, rule);
    }
    return QString(qsizetype(rule.properties.size()), u',');
}

QString BOMPartsDatabase::formatReferences(const QStringList &references, int width, int lines) const
{
    return ::formatReferences(references, {m_template.groupReferences(), width, lines});
}

QString BOMPartsDatabase::formatReferences(BomLine line, int width, int lines) const
{
    QList<QStringView> references;
    references.reserve(qsizetype(line.size()));
    for (const Part *part : line) {
        references.append(part->reference());
    }
    return formatSortedReferences(references, {m_template.groupReferences(), width, lines});
}

const GroupedLines *BOMPartsDatabase::categoryLines(const QString &category) const
{
    const CategoryGroups *groups = this->category(category);
    return groups ? &groups->lines() : nullptr;
}

ReportLines BOMPartsDatabase::reportLines(const QString &category, bool grouped) const
{
    const GroupedLines *lines = categoryLines(category);
    return lines ? makeReportLines(*lines, m_parts, grouped) : ReportLines();
}

QList<ReplacedLine> BOMPartsDatabase::replacedLines(bool grouped) const
{
    QList<ReplacedLine> all;
    for (const QString &heading : categoryNames()) {
        for (ReplacedLine line : reportLines(heading, grouped).replaced) {
            line.category = heading;
            all.append(line);
        }
    }
    return all;
}
