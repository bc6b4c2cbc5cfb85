// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomcategories.h"

#include "core/part.h"
#include "core/partstore.h"
#include "core/reference.h"
#include "core/referenceformat.h"
#include "templates/bomtemplate.h"

#include <QCoreApplication>
#include <QSet>

namespace {

QStringList sortedReferences(BomLine parts)
{
    QStringList references = referencesOf(parts);
    sortReferences(references);
    return references;
}

} // namespace

BOMCategories::BOMCategories(const BOMTemplate *settings, const PartStore *parts, const PropertyTypes *types)
    : m_settings(settings)
    , m_parts(parts)
    , m_grouping(settings, parts, types)
    //: Stands in reports, which have one language on all machines: leave it as it is.
    , m_miscName(QCoreApplication::translate("BOMPartsDatabase", "Miscellaneous"))
{
}

void BOMCategories::rebuild()
{
    clear();
    m_groups.clear();
    m_headingOfPrefix.clear();
    m_blocked.clear();
    m_order.clear();
    const QList<BOMCategory> &categories = m_settings->categories();
    for (const BOMCategory &category : categories) {
        if (category.isMiscCategory) {
            m_miscName = category.heading;
        }
    }
    miscGroups();
    QSet<QString> headings;
    for (const BOMCategory &category : categories) {
        if (!headings.contains(category.heading)) {
            headings.insert(category.heading);
            m_order.append(category.heading);
        }
        addCategory(category);
    }
    for (Part *held : m_parts->parts()) {
        add(*held);
    }
}

void BOMCategories::clear()
{
    for (auto &[heading, groups] : m_groups) {
        groups.clear();
    }
    m_groupsOfPrefix.clear();
}

void BOMCategories::regroup()
{
    for (auto &[heading, groups] : m_groups) {
        groups.regroup();
    }
}

void BOMCategories::addCategory(const BOMCategory &category)
{
    if (category.isMiscCategory) {
        return;
    }
    if (m_groups.contains(category.heading)) {
        m_blocked.append({category.heading, {}, {}});
        return;
    }
    for (const QString &prefix : category.references) {
        if (m_headingOfPrefix.contains(prefix)) {
            m_blocked.append({category.heading, prefix, m_headingOfPrefix.value(prefix)});
            return;
        }
    }
    m_groups.try_emplace(category.heading, &m_grouping);
    for (const QString &prefix : category.references) {
        m_headingOfPrefix.insert(prefix, category.heading);
    }
}

CategoryGroups &BOMCategories::miscGroups()
{
    return m_groups.try_emplace(m_miscName, &m_grouping).first->second;
}

const CategoryGroups *BOMCategories::groups(const QString &heading) const
{
    const auto found = m_groups.find(heading);
    return found == m_groups.end() ? nullptr : &found->second;
}

CategoryGroups &BOMCategories::groupsOf(const Part &part)
{
    const auto number = part.key().prefix;
    if (number < m_groupsOfPrefix.size() && m_groupsOfPrefix[number]) {
        return *m_groupsOfPrefix[number];
    }
    // References with one prefix also agree up to their first digit: R1 and R2, U1A2 and U1A3.
    const auto found = m_groups.find(headingOfPrefix(categoryPrefix(part.reference())));
    CategoryGroups &groups = found == m_groups.end() ? miscGroups() : found->second;
    m_groupsOfPrefix.resize(m_parts->prefixes().size());
    m_groupsOfPrefix[number] = &groups;
    return groups;
}

QString BOMCategories::headingOfPrefix(QStringView prefix) const
{
    return m_headingOfPrefix.value(prefix.toString(), m_miscName);
}

QString BOMCategories::categoryOf(const QString &reference) const
{
    return headingOfPrefix(categoryPrefix(reference));
}

QStringList BOMCategories::names() const
{
    QStringList names = m_order;
    if (m_settings->suppressEmptyCategories()) {
        names.removeIf([this](const QString &heading) { return partCount(heading) == 0; });
    }
    return names;
}

int BOMCategories::partCount(const QString &category) const
{
    const CategoryGroups *found = groups(category);
    return found ? int(found->parts().size()) : 0;
}

int BOMCategories::lineCount(const QString &category) const
{
    const GroupedLines *lines = groupedLines(category);
    return lines ? int(lines->lineCount()) : 0;
}

QStringList BOMCategories::values(const QString &category) const
{
    QStringList values;
    if (const GroupedLines *lines = groupedLines(category)) {
        values.reserve(qsizetype(lines->valueCount()));
        for (size_t i = 0; i < lines->valueCount(); ++i) {
            values.append(lines->value(i));
        }
    }
    return values;
}

QStringList BOMCategories::references(const QString &category) const
{
    const CategoryGroups *found = groups(category);
    return found ? sortedReferences(found->parts()) : QStringList();
}

QStringList BOMCategories::references(const QString &category, const QString &value) const
{
    const ValueLines found = valueLines(category, value);
    return found.lines ? sortedReferences(found.lines->lineRange(found.first, found.end)) : QStringList();
}

QList<QStringList> BOMCategories::lines(const QString &category, const QString &value) const
{
    QList<QStringList> result;
    const ValueLines found = valueLines(category, value);
    for (size_t line = found.first; line < found.end; ++line) {
        result.append(referencesOf(found.lines->line(line)));
    }
    return result;
}

BOMCategories::ValueLines BOMCategories::valueLines(const QString &category, const QString &value) const
{
    const GroupedLines *lines = groupedLines(category);
    const size_t index = lines ? lines->indexOf(BomString(value, m_grouping.caseRule())) : 0;
    if (!lines || index == lines->valueCount()) {
        return {};
    }
    return {lines, lines->firstLine(index), lines->endLine(index)};
}

QList<QPair<QString, int>> BOMCategories::lineSummaries(const QString &category) const
{
    QList<QPair<QString, int>> summaries;
    if (const GroupedLines *lines = groupedLines(category)) {
        summaries.reserve(qsizetype(lines->lineCount()));
        for (size_t i = 0; i < lines->lineCount(); ++i) {
            const BomLine line = lines->line(i);
            summaries.append({line.front()->reference(), int(line.size())});
        }
    }
    return summaries;
}

QString BOMCategories::groupingKey(const QString &reference) const
{
    const GroupingRule rule = m_grouping.rule();
    if (const Part *found = m_parts->find(reference)) {
        return ::groupingKey(*found, rule);
    }
    return QString(qsizetype(rule.properties.size()), u',');
}

QString BOMCategories::formatReferences(const QStringList &references, int width, int lines) const
{
    return ::formatReferences(references, {m_settings->groupReferences(), width, lines});
}

QString BOMCategories::formatReferences(BomLine line, int width, int lines) const
{
    QList<QStringView> references;
    references.reserve(qsizetype(line.size()));
    for (const Part *part : line) {
        references.append(part->reference());
    }
    return formatSortedReferences(references, {m_settings->groupReferences(), width, lines});
}

const GroupedLines *BOMCategories::groupedLines(const QString &category) const
{
    const CategoryGroups *found = groups(category);
    return found ? &found->lines() : nullptr;
}

ReportLines BOMCategories::reportLines(const QString &category, bool grouped) const
{
    const GroupedLines *lines = groupedLines(category);
    return lines ? makeReportLines(*lines, *m_parts, grouped) : ReportLines();
}

QList<ReplacedLine> BOMCategories::replacedLines(bool grouped) const
{
    QList<ReplacedLine> all;
    for (const QString &heading : names()) {
        for (ReplacedLine line : reportLines(heading, grouped).replaced) {
            line.category = heading;
            all.append(line);
        }
    }
    return all;
}
