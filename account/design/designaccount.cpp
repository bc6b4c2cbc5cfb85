// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/designaccount.h"

#include "account/design/texts.h"
#include "host/framework/hosttext.h"
#include "standalone/loadeddesign.h"

#include <QHash>

#include <algorithm>
#include <bit>
#include <limits>
#include <unordered_map>
#include <unordered_set>

namespace {

using designs::Component;
using designs::MarkedBy;

bool isExcludedByMark(const LoadedDesign &design, const Component &component)
{
    return component.notInBom != MarkedBy::Nothing || design.properties().hasStoredSkip(component);
}

bool isListed(const LoadedDesign &design, const Component &component)
{
    return !isExcludedByMark(design, component) && !design.properties().isLeftOutByChoice(component);
}

QString sheetPath(const designs::Design &design, quint32 sheet)
{
    const auto &sheets = design.sheets();
    return sheet < sheets.size() ? sheets[sheet].path : QString();
}

/// "FILE:LINE", with the sheet where the file serves several.
QString placeOf(const designs::Design &design, const Component &component)
{
    const QString file = design.files().value(qsizetype(component.file));
    const int line = design.lineOf(component);
    const QString place = line > 0 ? file + u':' + QString::number(line) : file;
    const auto uses =
        std::count_if(design.sheets().begin(), design.sheets().end(),
                      [&](const designs::SheetUse &sheet) { return sheet.file == component.file; });
    return uses > 1 ? AccountTexts::tr("%1 (sheet %2)").arg(place, sheetPath(design, component.sheet))
                    : place;
}

/// The property that says that a component is not fitted, as stored: "dnp=yes".
QString storedDnp(const designs::Design &design, const Component &component)
{
    for (const designs::NameId id : design.names().candidates("DNP")) {
        if (const auto value = design.stored(component, id)) {
            return fromHostText(design.names().name(id)) + u'=' + fromHostText(*value);
        }
    }
    return {};
}

QString notFittedReason(const designs::Design &design, const Component &component)
{
    switch (component.notFitted) {
    case MarkedBy::Sheet:
        return AccountTexts::tr("not fitted: marked on sheet %1")
            .arg(sheetPath(design, component.notFittedSheet));
    case MarkedBy::RuleArea:
        return AccountTexts::tr("not fitted: rule area around it");
    case MarkedBy::Property: {
        const QString stored = storedDnp(design, component);
        return stored.isEmpty() ? AccountTexts::tr("not fitted: property")
                                : AccountTexts::tr("not fitted: property %1").arg(stored);
    }
    case MarkedBy::Symbol:
    case MarkedBy::Nothing:
        break;
    }
    return AccountTexts::tr("not fitted: marked on the symbol");
}

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

/// Fast, and true for every reference that isNotAnnotated() finds.
bool mayLackNumber(std::string_view reference)
{
    return reference.empty() || reference.back() == '?' || reference.front() <= ' ' ||
           reference.front() > '~';
}

/// References that occur more than once. Mostly there are none, so the table is made for finding that out: no
/// memory of its own for each entry.
std::unordered_set<std::string_view> repeatedReferencesOf(const std::vector<Component> &components)
{
    constexpr quint32 empty = std::numeric_limits<quint32>::max();
    std::unordered_set<std::string_view> repeated;
    std::vector<quint32> table(std::bit_ceil(2 * components.size() + 1), empty);
    for (quint32 i = 0; i < components.size(); ++i) {
        const std::string_view reference = components[i].reference;
        std::size_t at = std::hash<std::string_view>()(reference) & (table.size() - 1);
        while (table[at] != empty && components[table[at]].reference != reference) {
            at = (at + 1) & (table.size() - 1);
        }
        if (table[at] == empty) {
            table[at] = i;
        } else {
            repeated.insert(reference);
        }
    }
    return repeated;
}

/// Goes through the components once and enters each of them.
class ComponentCounter
{
public:
    explicit ComponentCounter(const LoadedDesign &design)
        : m_design(design)
    {
        m_account.choice = design.properties().dnpChoice();
        m_account.components = qsizetype(design.components().size());
        for (const Component &component : design.design().components()) {
            enter(component);
        }
        findRepeated();
    }

    [[nodiscard]] const ComponentAccount &account() const { return m_account; }

private:
    void enter(const Component &component)
    {
        const bool isFitted = component.notFitted == MarkedBy::Nothing;
        const bool isExcluded = isExcludedByMark(m_design, component);
        const bool isLeftOut = !isExcluded && m_design.properties().isLeftOutByChoice(component);
        m_account.notFitted += isFitted ? 0 : 1;
        m_account.excluded += isExcluded ? 1 : 0;
        m_account.excludedNotFitted += isExcluded && !isFitted ? 1 : 0;
        m_account.leftOutByChoice += isLeftOut ? 1 : 0;
        m_account.listed += isExcluded || isLeftOut ? 0 : 1;
        if (isLeftOut && definesBomParts(component)) {
            m_account.leftOutParents.append(fromHostText(component.reference));
        }
        if (!isExcluded && !isLeftOut && !isFitted) {
            m_account.listedNotFitted.append(fromHostText(component.reference));
        }
        if (mayLackNumber(component.reference)) {
            if (const QString reference = fromHostText(component.reference); isNotAnnotated(reference)) {
                m_account.notAnnotated.push_back({reference, placeOf(m_design.design(), component)});
            }
        }
    }

    [[nodiscard]] bool definesBomParts(const Component &component) const
    {
        return !m_design.properties().startingWith(component, m_definitionStart).empty();
    }

    void findRepeated()
    {
        const auto &components = m_design.design().components();
        const std::unordered_set<std::string_view> repeatedReferences = repeatedReferencesOf(components);
        if (repeatedReferences.empty()) {
            return;
        }
        std::unordered_map<std::string_view, std::size_t> entry;
        for (const Component &component : components) {
            if (!repeatedReferences.contains(component.reference)) {
                continue;
            }
            const auto [known, isNew] = entry.emplace(component.reference, m_account.repeated.size());
            if (isNew) {
                m_account.repeated.push_back({fromHostText(component.reference), {}, 0, 0});
            }
            RepeatedReference &repeated = m_account.repeated[known->second];
            repeated.places.append(placeOf(m_design.design(), component));
            repeated.listed += isListed(m_design, component) ? 1 : 0;
            repeated.excluded += isExcludedByMark(m_design, component) ? 1 : 0;
        }
    }

    const LoadedDesign &m_design;
    const PROPPREFIX m_definitionStart{"BOMPART"};
    ComponentAccount m_account;
};

} // namespace

QString RepeatedReference::message() const
{
    constexpr qsizetype mostPlaces = 5;
    QStringList others = places.mid(1, mostPlaces);
    if (places.size() > mostPlaces + 1) {
        others.append(QStringLiteral("..."));
    }
    const QString count = QString::number(places.size());
    const QString also = others.join(QStringLiteral(", "));
    const QString text = reference.isEmpty()
                             ? AccountTexts::tr("%1: %2 symbols have no reference, also at %3")
                                   .arg(places.value(0), count, also)
                             : AccountTexts::tr("%1: %4 occurs %2 times, also at %3")
                                   .arg(places.value(0), count, also, reference);
    if (listed == places.size()) {
        return text;
    }
    const QString inBill = listed == 0   ? AccountTexts::tr("none of them is in the bill")
                           : listed == 1 ? AccountTexts::tr("1 of them is in the bill")
                                         : AccountTexts::tr("%1 of them are in the bill").arg(listed);
    return text + QStringLiteral("; ") + inBill;
}

QString NotAnnotated::message() const
{
    return reference.trimmed().isEmpty() ? AccountTexts::tr("%1: a symbol has no reference").arg(place)
                                         : AccountTexts::tr("%1: %2 is not annotated").arg(place, reference);
}

SymbolAccount symbolAccountOf(const LoadedDesign &design)
{
    const designs::SymbolCount &read = design.design().symbols();
    SymbolAccount account{
        read.placed, read.power, read.mergedUnits, qsizetype(design.components().size()), {}};

    designs::Problem error;
    const designs::SymbolCount counted = design.design().recount(&error);
    if (!error.text.isEmpty()) {
        account.disagreements.append(error.message());
        return account;
    }
    const auto compare = [&account](const QString &text, qsizetype inFiles, qsizetype wereRead) {
        if (inFiles != wereRead) {
            account.disagreements.append(text.arg(QString::number(inFiles), QString::number(wereRead)));
        }
    };
    compare(AccountTexts::tr("the files hold %1 symbols, %2 were read"), counted.placed, read.placed);
    compare(AccountTexts::tr("the files hold %1 power symbols, %2 were read"), counted.power, read.power);
    const qsizetype accounted = account.power + account.mergedUnits + account.components;
    if (accounted != account.drawn) {
        account.disagreements.append(AccountTexts::tr("%1 symbols are drawn, %2 are accounted for")
                                         .arg(QString::number(account.drawn), QString::number(accounted)));
    }
    return account;
}

ComponentAccount componentAccountOf(const LoadedDesign &design)
{
    return ComponentCounter(design).account();
}

std::vector<SkippedComponents> skippedComponents(const LoadedDesign &design)
{
    std::vector<SkippedComponents> groups;
    QHash<QString, std::size_t> groupOfReason;
    for (const Component &component : design.design().components()) {
        const QString reason = skipReason(design, component);
        if (reason.isEmpty()) {
            continue;
        }
        const auto known = groupOfReason.constFind(reason);
        const std::size_t group = known == groupOfReason.constEnd() ? groups.size() : *known;
        if (group == groups.size()) {
            groupOfReason.insert(reason, group);
            groups.push_back({reason, {}});
        }
        groups[group].references.append(fromHostText(component.reference));
    }
    return groups;
}

QString skipReason(const LoadedDesign &design, const Component &component)
{
    if (design.properties().hasStoredSkip(component)) {
        return AccountTexts::tr("property BOMSKIP");
    }
    switch (component.notInBom) {
    case MarkedBy::Sheet:
        return AccountTexts::tr("excluded on sheet %1")
            .arg(sheetPath(design.design(), component.notInBomSheet));
    case MarkedBy::RuleArea:
        return AccountTexts::tr("excluded by the rule area around it");
    case MarkedBy::Symbol:
    case MarkedBy::Property:
        return AccountTexts::tr("excluded from the BOM on the symbol");
    case MarkedBy::Nothing:
        break;
    }
    if (!design.properties().isLeftOutByChoice(component)) {
        return {};
    }
    return component.notFitted == MarkedBy::Nothing ? AccountTexts::tr("fitted")
                                                    : notFittedReason(design.design(), component);
}

bool isNotAnnotated(QStringView reference)
{
    return reference.trimmed().isEmpty() || reference.endsWith(u'?');
}

QStringList withUnresolvedVariables(const LoadedDesign &design)
{
    QStringList references;
    for (const Component &component : design.design().components()) {
        if (holdsVariable(component) && isListed(design, component)) {
            references.append(fromHostText(component.reference));
        }
    }
    return references;
}
