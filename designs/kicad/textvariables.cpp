// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/textvariables.h"

#include "designs/utf8.h"

#include <QFileInfo>

namespace designs::kicad {

namespace {

bool same(const QString &name, QLatin1String other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
}

std::string_view libraryPart(std::string_view id)
{
    const std::size_t colon = id.find(':');
    return colon == std::string_view::npos ? std::string_view() : id.substr(0, colon);
}

std::string_view namePart(std::string_view id)
{
    const std::size_t colon = id.find(':');
    return colon == std::string_view::npos ? id : id.substr(colon + 1);
}

/// Units are lettered A to Z, then AA as in spreadsheets.
std::string unitLetters(int unit)
{
    std::string letters;
    for (; unit > 0; unit = (unit - 1) / 26) {
        letters.insert(letters.begin(), char('A' + (unit - 1) % 26));
    }
    return letters;
}

/// For each "{" the offset of the "}" that closes it, npos where none does.
std::vector<std::size_t> closingBraces(std::string_view text)
{
    std::vector<std::size_t> closing(text.size(), std::string_view::npos);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '{') {
            open.push_back(i);
        } else if (text[i] == '}' && !open.empty()) {
            closing[open.back()] = i;
            open.pop_back();
        }
    }
    return closing;
}

} // namespace

TextVariables::TextVariables(const Hierarchy &hierarchy, const ProjectFile &project,
                             const PropertyNames &names, QString variant)
    : m_hierarchy(hierarchy)
    , m_project(project)
    , m_names(names)
    , m_variant(std::move(variant))
{
}

TextVariables::Context TextVariables::contextOf(const Component &component) const
{
    const SymbolUse &place = (*m_symbols)[component.origin];
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[place.use].file];
    return {&component, &file.symbols[place.symbol], place.use, place.unit};
}

void TextVariables::resolve(std::vector<Component> *components, const std::vector<SymbolUse> &symbols,
                            TextArena *arena)
{
    m_components = components;
    m_symbols = &symbols;
    const auto hasVariables = [&](const Component &component) {
        for (quint32 unit = 0; unit < component.units; ++unit) {
            const SymbolUse &place = symbols[component.origin + unit];
            const auto &file = m_hierarchy.files()[m_hierarchy.uses()[place.use].file];
            if (file.symbols[place.symbol].hasVariables) {
                return true;
            }
        }
        // A value from version 6's table of instances is not among the symbol's texts.
        return component.value.find("${") != std::string_view::npos;
    };
    m_budget = workPerDesign + workPerComponent * components->size();
    std::vector<std::pair<Component *, Component>> resolved;
    for (Component &component : *components) {
        if (!hasVariables(component)) {
            continue;
        }
        const Context context = contextOf(component);
        Component copy = component;
        copy.value = arena->copy(std::string_view(expand(component.value, context, 0)));
        std::vector<Property> properties(component.properties.begin(), component.properties.end());
        for (Property &property : properties) {
            property.value = arena->copy(std::string_view(expand(property.value, context, 0)));
        }
        copy.properties = arena->copy(std::span<const Property>(properties));
        resolved.emplace_back(&component, copy);
    }
    // Replaced only at the end, because variables that name other components read their unresolved texts.
    for (const auto &[component, copy] : resolved) {
        *component = copy;
    }
}

void TextVariables::setComponents(const std::vector<Component> &components,
                                  const std::vector<SymbolUse> &symbols)
{
    m_components = &components;
    m_symbols = &symbols;
}

std::string TextVariables::textOf(const Component &component, std::string_view text) const
{
    m_budget = workPerDesign;
    m_ranOut = false;
    return expand(text, contextOf(component), 0);
}

std::string TextVariables::titleText(std::string_view text) const
{
    return expand(text, Context(), 0);
}

/// Variables may stand in the name of a variable ("${A${B}}") and in what one stands for, so both are
/// expanded in turn. Files come from anywhere: variables that name each other in a circle are cut off by the
/// depth, and ones that each name several others, which grow like a power of the depth, by the length and by
/// the budget of work for the whole design. What is cut off stays as it stands in the file, and leftSome()
/// says so.
std::string TextVariables::expand(std::string_view text, const Context &context, int depth) const
{
    if (text.find("${") == std::string_view::npos) {
        return std::string(text);
    }
    const std::vector<std::size_t> closing = closingBraces(text);
    const quint32 file = m_hierarchy.uses()[context.component ? context.use : 0].file;
    const bool knowsEscape = m_hierarchy.files()[file].formatVersion >= version::variableEscape;
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escaped = knowsEscape && text[i] == '\\' && text.substr(i + 1).starts_with("${");
        const std::size_t open = escaped ? i + 2 : i + 1;
        const bool variableStart = escaped || text.substr(i).starts_with("${");
        const std::size_t close = variableStart ? closing[open] : std::string_view::npos;
        if (close == std::string_view::npos) {
            result += text[i];
            continue;
        }
        const std::string_view whole = text.substr(open - 1, close - open + 2);
        std::string inner(text.substr(open + 1, close - open - 1));
        Answer answer;
        const bool withinLimits = depth < maximumDepth && result.size() < maximumLength;
        m_leftSome |= !escaped && !withinLimits;
        if (!escaped && withinLimits && spend(whole.size())) {
            if (inner.find("${") != std::string::npos) {
                inner = expand(inner, context, depth + 1);
            }
            answer = variable(inner, context, depth + 1);
        }
        result += answer ? *answer : std::string(whole);
        i = close;
    }
    return result;
}

/// Takes work out of the budget; false for good once it does not suffice, so that which variables are
/// resolved does not depend on how large the next one happens to be.
bool TextVariables::spend(std::size_t work) const
{
    work += workPerVariable;
    m_ranOut = m_ranOut || work > m_budget;
    m_budget -= m_ranOut ? 0 : work;
    return !m_ranOut;
}

TextVariables::Answer TextVariables::variable(std::string_view name, const Context &context, int depth) const
{
    if (!spend(context.component ? workPerProperty * context.component->properties.size() : 0)) {
        return std::nullopt;
    }
    const QString key = fromUtf8(name);
    Answer answer;
    if (context.component) {
        answer = ofComponent(key, context, depth);
        answer = answer ? answer : ofSymbol(key, context);
        answer = answer ? answer : ofSheets(key, context, depth);
    }
    answer = answer ? answer : ofTitleBlock(key, context, depth);
    answer = answer ? answer : ofProject(key, context, depth);
    return answer || !m_components ? answer : ofOtherPart(name, depth);
}

TextVariables::Answer TextVariables::ofComponent(const QString &name, const Context &context, int depth) const
{
    const Component &component = *context.component;
    if (same(name, QLatin1String("REFERENCE")) || same(name, QLatin1String("SHORT_REFERENCE"))) {
        return std::string(component.reference);
    }
    if (same(name, QLatin1String("VALUE"))) {
        return expand(component.value, context, depth);
    }
    for (const Property &property : component.properties) {
        if (fromUtf8(m_names.name(property.name)).compare(name, Qt::CaseInsensitive) == 0) {
            return expand(property.value, context, depth);
        }
    }
    return std::nullopt;
}

TextVariables::Answer TextVariables::ofSymbol(const QString &name, const Context &context) const
{
    const Component &component = *context.component;
    const SheetFile &file = m_hierarchy.files()[m_hierarchy.uses()[context.use].file];
    const LibrarySymbol *library = file.librarySymbol(*context.symbol);
    const auto footprint = [&]() -> std::string_view {
        for (const Property &property : component.properties) {
            if (m_names.name(property.name) == "Footprint") {
                return property.value;
            }
        }
        return {};
    };
    const QString key = name.toUpper();
    if (key == QLatin1String("FOOTPRINT_LIBRARY")) {
        return std::string(libraryPart(footprint()));
    }
    if (key == QLatin1String("FOOTPRINT_NAME")) {
        return std::string(namePart(footprint()));
    }
    if (key == QLatin1String("SYMBOL_LIBRARY")) {
        return std::string(libraryPart(context.symbol->libId));
    }
    if (key == QLatin1String("SYMBOL_NAME")) {
        return std::string(namePart(context.symbol->libId));
    }
    if (key == QLatin1String("SYMBOL_DESCRIPTION") && library) {
        return std::string(library->description);
    }
    if (key == QLatin1String("SYMBOL_KEYWORDS") && library) {
        return std::string(library->keywords);
    }
    if (key == QLatin1String("UNIT")) {
        return unitLetters(context.unit);
    }
    if (key == QLatin1String("DNP")) {
        return std::string(component.notFitted == MarkedBy::Nothing ? "" : "DNP");
    }
    if (key == QLatin1String("EXCLUDE_FROM_BOM")) {
        return std::string(component.notInBom == MarkedBy::Nothing ? "" : "Excluded from BOM");
    }
    return std::nullopt;
}

QString TextVariables::pageOf(quint32 use) const
{
    const InstanceRecord *instance = m_hierarchy.uses()[use].instance;
    return instance && !instance->page.empty() ? fromUtf8(instance->page) : QString::number(use + 1);
}

TextVariables::Answer TextVariables::ofSheets(const QString &name, const Context &context, int depth) const
{
    const HierarchyUse *use = &m_hierarchy.uses()[context.use];
    const SheetFile &root = m_hierarchy.files()[m_hierarchy.uses()[m_hierarchy.rootOf(context.use)].file];
    if (same(name, QLatin1String("SHEETNAME"))) {
        return use->symbol ? std::string(use->symbol->name) : std::string();
    }
    if (same(name, QLatin1String("SHEETFILE"))) {
        return QFileInfo(m_hierarchy.files()[use->file].path).fileName().toStdString();
    }
    if (same(name, QLatin1String("FILENAME"))) {
        return QFileInfo(root.path).fileName().toStdString();
    }
    if (same(name, QLatin1String("SHEETPATH"))) {
        return use->namePath.toStdString() + (use->symbol ? "/" : "");
    }
    if (name == QLatin1String("#")) {
        return pageOf(context.use).toStdString();
    }
    if (name == QLatin1String("##")) {
        return std::to_string(m_hierarchy.uses().size());
    }
    for (; use->symbol; use = &m_hierarchy.uses()[use->parent]) {
        for (const Property &property : use->symbol->properties) {
            if (fromUtf8(m_names.name(property.name)).compare(name, Qt::CaseInsensitive) == 0) {
                return expand(property.value, context, depth);
            }
        }
    }
    return std::nullopt;
}

TextVariables::Answer TextVariables::ofTitleBlock(const QString &name, const Context &context,
                                                  int depth) const
{
    const quint32 file = m_hierarchy.uses()[context.component ? context.use : 0].file;
    const TitleBlock &title = m_hierarchy.files()[file].title;
    std::optional<std::string_view> text;
    if (name == QLatin1String("TITLE")) {
        text = title.title;
    } else if (name == QLatin1String("ISSUE_DATE")) {
        text = title.date;
    } else if (name == QLatin1String("REVISION")) {
        text = title.revision;
    } else if (name == QLatin1String("COMPANY")) {
        text = title.company;
    } else if (name.size() == 8 && name.startsWith(QLatin1String("COMMENT")) && name.at(7) >= u'1' &&
               name.at(7) <= u'9') {
        text = title.comments[name.at(7).digitValue() - 1];
    }
    return text ? Answer(expand(*text, context, depth)) : std::nullopt;
}

TextVariables::Answer TextVariables::ofProject(const QString &name, const Context &context, int depth) const
{
    if (name == QLatin1String("PROJECTNAME")) {
        return QFileInfo(m_project.path).completeBaseName().toStdString();
    }
    if (name == QLatin1String("VARIANT") && !m_variant.isEmpty()) {
        return m_variant.toStdString();
    }
    const auto found = m_project.textVariables.constFind(name);
    return found == m_project.textVariables.constEnd() ? std::nullopt
                                                       : Answer(expand(found->toStdString(), context, depth));
}

TextVariables::Answer TextVariables::ofOtherPart(std::string_view name, int depth) const
{
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view part = name.substr(0, colon);
    if (m_byReference.empty()) {
        for (quint32 i = 0; i < m_components->size(); ++i) {
            const Component &component = (*m_components)[i];
            m_byReference.emplace(component.reference, i);
            m_byReference.emplace(contextOf(component).symbol->uuid, i);
        }
    }
    const auto found = m_byReference.find(part);
    if (found == m_byReference.end()) {
        return std::nullopt;
    }
    const Context context = contextOf((*m_components)[found->second]);
    const QString field = fromUtf8(name.substr(colon + 1));
    const Answer answer = ofComponent(field, context, depth);
    return answer ? answer : ofSymbol(field, context);
}

} // namespace designs::kicad
