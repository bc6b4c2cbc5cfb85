// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/partsledger.h"

#include "host/framework/hosttext.h"
#include "standalone/loadeddesign.h"

#include <QHash>

#include <algorithm>
#include <unordered_map>

namespace {

using designs::Component;
using designs::MarkedBy;

bool holdsVariable(const Component &component)
{
    const auto isVariable = [](std::string_view text) {
        const std::size_t start = text.find("${");
        return start != std::string_view::npos && text.find('}', start) != std::string_view::npos;
    };
    return isVariable(component.value) ||
           std::any_of(component.properties.begin(), component.properties.end(),
                       [&](const designs::Property &property) { return isVariable(property.value); });
}

bool isSkippedByMark(const LoadedDesign &design, const Component &component)
{
    return component.notInBom != MarkedBy::Nothing || design.properties().hasStoredSkip(component);
}

} // namespace

QString RepeatedReference::message() const
{
    constexpr qsizetype mostPlaces = 5;
    QStringList others = places.mid(1, mostPlaces);
    if (places.size() > mostPlaces + 1) {
        others.append(QStringLiteral("..."));
    }
    const QString count = QString::number(places.size());
    QString text = places.value(0) + QStringLiteral(": ");
    text += reference.isEmpty() ? count + QStringLiteral(" symbols have no reference")
                                : reference + QStringLiteral(" occurs ") + count + QStringLiteral(" times");
    text += QStringLiteral(", also at ") + others.join(QStringLiteral(", "));
    if (listed == places.size()) {
        return text;
    }
    return text + QStringLiteral("; ") + (listed == 0 ? QStringLiteral("none") : QString::number(listed)) +
           (listed > 1 ? QStringLiteral(" of them are in the bill")
                       : QStringLiteral(" of them is in the bill"));
}

bool isNotAnnotated(QStringView reference)
{
    return reference.trimmed().isEmpty() || reference.endsWith(u'?');
}

PartsLedger::PartsLedger(const LoadedDesign &design)
    : m_design(design)
{
}

qsizetype PartsLedger::components() const
{
    return qsizetype(m_design.components().size());
}

QString PartsLedger::reference(qsizetype index) const
{
    return fromHostText(at(index).reference);
}

bool PartsLedger::isListed(qsizetype index) const
{
    return !isSkippedByMark(m_design, at(index)) && !m_design.properties().isLeftOutByChoice(at(index));
}

bool PartsLedger::isFitted(qsizetype index) const
{
    return at(index).notFitted == MarkedBy::Nothing;
}

QString PartsLedger::skipReason(qsizetype index) const
{
    const Component &component = at(index);
    if (m_design.properties().hasStoredSkip(component)) {
        return QStringLiteral("property BOMSKIP");
    }
    switch (component.notInBom) {
    case MarkedBy::Sheet:
        return QStringLiteral("excluded on sheet ") + sheetPath(component.notInBomSheet);
    case MarkedBy::RuleArea:
        return QStringLiteral("excluded by the rule area around it");
    case MarkedBy::Symbol:
    case MarkedBy::Property:
        return QStringLiteral("excluded from the BOM on the symbol");
    case MarkedBy::Nothing:
        break;
    }
    if (!m_design.properties().isLeftOutByChoice(component)) {
        return {};
    }
    return isFitted(index) ? QStringLiteral("fitted") : notFittedText(component);
}

qsizetype PartsLedger::leftOutByChoice() const
{
    qsizetype count = 0;
    for (const Component &component : m_design.design().components()) {
        if (m_design.properties().isLeftOutByChoice(component) && !isSkippedByMark(m_design, component)) {
            ++count;
        }
    }
    return count;
}

qsizetype PartsLedger::listed() const
{
    qsizetype count = 0;
    for (qsizetype i = 0; i < components(); ++i) {
        count += isListed(i) ? 1 : 0;
    }
    return count;
}

qsizetype PartsLedger::notFitted() const
{
    const auto &components = m_design.design().components();
    return std::count_if(components.begin(), components.end(),
                         [](const Component &component) { return component.notFitted != MarkedBy::Nothing; });
}

qsizetype PartsLedger::excluded() const
{
    const auto &components = m_design.design().components();
    return std::count_if(components.begin(), components.end(),
                         [this](const Component &component) { return isSkippedByMark(m_design, component); });
}

qsizetype PartsLedger::excludedNotFitted() const
{
    const auto &components = m_design.design().components();
    return std::count_if(components.begin(), components.end(), [this](const Component &component) {
        return component.notFitted != MarkedBy::Nothing && isSkippedByMark(m_design, component);
    });
}

QStringList PartsLedger::listedNotFitted() const
{
    QStringList references;
    for (qsizetype i = 0; i < components(); ++i) {
        if (!isFitted(i) && isListed(i)) {
            references.append(reference(i));
        }
    }
    return references;
}

std::vector<SkippedParts> PartsLedger::skipped() const
{
    std::vector<SkippedParts> groups;
    QHash<QString, std::size_t> groupOfReason;
    for (qsizetype i = 0; i < components(); ++i) {
        if (isListed(i)) {
            continue;
        }
        const QString reason = skipReason(i);
        const auto known = groupOfReason.constFind(reason);
        const std::size_t group = known == groupOfReason.constEnd() ? groups.size() : *known;
        if (group == groups.size()) {
            groupOfReason.insert(reason, group);
            groups.push_back({reason, {}});
        }
        groups[group].references.append(reference(i));
    }
    return groups;
}

std::vector<RepeatedReference> PartsLedger::repeated() const
{
    std::unordered_map<std::string_view, quint32> count;
    count.reserve(m_design.components().size());
    for (const Component &component : m_design.design().components()) {
        ++count[component.reference];
    }
    std::vector<RepeatedReference> found;
    if (count.size() == m_design.components().size()) {
        return found;
    }
    std::unordered_map<std::string_view, std::size_t> entry;
    for (qsizetype i = 0; i < components(); ++i) {
        const Component &component = at(i);
        if (count[component.reference] < 2) {
            continue;
        }
        const auto [known, isNew] = entry.emplace(component.reference, found.size());
        if (isNew) {
            found.push_back({fromHostText(component.reference), {}, 0, 0});
        }
        found[known->second].places.append(place(component));
        found[known->second].listed += isListed(i) ? 1 : 0;
        found[known->second].excluded += isSkippedByMark(m_design, component) ? 1 : 0;
    }
    return found;
}

QStringList PartsLedger::notAnnotated() const
{
    QStringList found;
    for (qsizetype i = 0; i < components(); ++i) {
        const QString name = reference(i);
        if (isNotAnnotated(name)) {
            found.append(place(at(i)) + QStringLiteral(": ") +
                         (name.trimmed().isEmpty() ? QStringLiteral("a symbol has no reference")
                                                   : name + QStringLiteral(" is not annotated")));
        }
    }
    return found;
}

QStringList PartsLedger::withVariables() const
{
    QStringList references;
    for (qsizetype i = 0; i < components(); ++i) {
        if (holdsVariable(at(i)) && isListed(i)) {
            references.append(reference(i));
        }
    }
    return references;
}

const Component &PartsLedger::at(qsizetype index) const
{
    return m_design.design().components()[std::size_t(index)];
}

QString PartsLedger::notFittedText(const Component &component) const
{
    QString mark;
    switch (component.notFitted) {
    case MarkedBy::Sheet:
        mark = QStringLiteral("marked on sheet ") + sheetPath(component.notFittedSheet);
        break;
    case MarkedBy::RuleArea:
        mark = QStringLiteral("rule area around it");
        break;
    case MarkedBy::Property:
        mark = QStringLiteral("property");
        for (const designs::NameId id : m_design.design().names().candidates("DNP")) {
            if (const auto value = m_design.design().stored(component, id)) {
                mark += u' ' + fromHostText(m_design.design().names().name(id)) + u'=' + fromHostText(*value);
                break;
            }
        }
        break;
    case MarkedBy::Symbol:
    case MarkedBy::Nothing:
        mark = QStringLiteral("marked on the symbol");
        break;
    }
    return QStringLiteral("not fitted: ") + mark;
}

QString PartsLedger::sheetPath(quint32 sheet) const
{
    const auto &sheets = m_design.design().sheets();
    return sheet < sheets.size() ? sheets[sheet].path : QString();
}

QString PartsLedger::place(const Component &component) const
{
    const QString file = m_design.design().files().value(qsizetype(component.file));
    const int line = m_design.design().lineOf(component);
    const QString place = line > 0 ? file + u':' + QString::number(line) : file;
    const auto &sheets = m_design.design().sheets();
    const auto uses = std::count_if(sheets.begin(), sheets.end(), [&](const designs::SheetUse &sheet) {
        return sheet.file == component.file;
    });
    return uses > 1 ? place + QStringLiteral(" (sheet ") + sheetPath(component.sheet) + u')' : place;
}
