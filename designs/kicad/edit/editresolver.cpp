// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editresolver.h"

#include "designs/kicad/edit/writabletext.h"
#include "designs/kicad/mandatorynames.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <array>

namespace designs::kicad {

namespace {

/// Yes or no in the words of tables and files; nothing for any other text.
std::optional<bool> yesOrNo(std::string_view text)
{
    static constexpr std::array<std::string_view, 3> yes{"yes", "1", "true"};
    static constexpr std::array<std::string_view, 4> no{"no", "0", "false", ""};
    const auto isWord = [text](std::string_view word) { return sameAscii(text, word); };
    if (std::any_of(yes.begin(), yes.end(), isWord)) {
        return true;
    }
    return std::any_of(no.begin(), no.end(), isWord) ? std::optional(false) : std::nullopt;
}

const char *flagName(EditTarget target)
{
    return target == EditTarget::NotFitted ? "DNP" : "BOMSKIP";
}

/// Why a mark of a whole sheet, %1, cannot be taken from one part.
QString markedSheet(EditTarget target)
{
    return target == EditTarget::NotFitted
               ? KicadEditTexts::tr("the sheet %1 as a whole is marked \"do not populate\"; that can only be "
                                    "changed at the sheet, in KiCad")
               : KicadEditTexts::tr("the sheet %1 as a whole is marked \"not in the BOM\"; that can only be "
                                    "changed at the sheet, in KiCad");
}

/// The same of a rule area on the sheet %1.
QString markedRuleArea(EditTarget target)
{
    return target == EditTarget::NotFitted
               ? KicadEditTexts::tr("the symbol lies in a rule area on the sheet %1 that is marked \"do not "
                                    "populate\"; that can only be changed in KiCad")
               : KicadEditTexts::tr(
                     "the symbol lies in a rule area on the sheet %1 that is marked \"not in the "
                     "BOM\"; that can only be changed in KiCad");
}

/// Variants came with this version; older files do not know the word.
bool knowsVariants(const SheetFile &sheet, const InstanceRecord &record)
{
    return sheet.formatVersion >= version::variableEscape || !record.variants.empty();
}

} // namespace

EditResolver::EditResolver(const EditModel &model)
    : m_model(model)
{
}

ResolvedEdit EditResolver::resolve(const Edit &edit)
{
    ResolvedEdit resolved;
    resolved.component = edit.component;
    resolved.name = edit.name;
    if (edit.component >= m_model.components().size()) {
        resolved.refusal = KicadEditTexts::tr("the design has no such component");
        return resolved;
    }
    if (sameAscii(edit.name, flagName(EditTarget::NotFitted))) {
        resolved.target = EditTarget::NotFitted;
    } else if (sameAscii(edit.name, flagName(EditTarget::NotInBom))) {
        resolved.target = EditTarget::NotInBom;
    }
    if (resolved.target == EditTarget::Property) {
        resolveProperty(edit, &resolved);
    } else {
        resolveFlag(edit, &resolved);
    }
    if (resolved.refusal.isEmpty() && resolved.changes) {
        resolved.refusal = variantRefusal(resolved);
    }
    return resolved;
}

std::optional<std::string> EditResolver::readText(std::size_t component, NameId id) const
{
    const Component &part = m_model.components()[component];
    const std::string_view name = m_model.names().name(id);
    if (name == "Value") {
        return std::string(part.value);
    }
    if (name == "Reference") {
        return std::string(part.reference);
    }
    const auto text = part.stored(id);
    return text ? std::optional(std::string(*text)) : std::nullopt;
}

void EditResolver::findName(const std::string &name, ResolvedEdit *resolved)
{
    const auto candidates = m_model.names().candidates(name);
    if (const auto stored = m_model.storedName(resolved->component, candidates)) {
        resolved->name = m_model.names().name(*stored);
        resolved->before = readText(resolved->component, *stored);
        return;
    }
    if (!candidates.empty()) {
        resolved->name = m_model.names().name(candidates.front());
        return;
    }
    const SheetFile &sheet = m_model.sheetOf(m_model.places(resolved->component).front());
    const bool isDescription =
        sameAscii(name, "Description") && sheet.formatVersion >= version::descriptionField;
    const std::string spelled = isDescription ? "Description" : std::string(mandatoryName(name));
    const std::string folded = caseFolded(name);
    resolved->name = m_newNames.try_emplace(folded, spelled).first->second;
}

void EditResolver::resolveProperty(const Edit &edit, ResolvedEdit *resolved)
{
    findName(edit.name, resolved);
    if (resolved->name == "Reference") {
        resolved->refusal = KicadEditTexts::tr("references are given by KiCad and cannot be changed here");
        return;
    }
    if (resolved->name == "Value" && fromUtf8(edit.value.value_or(std::string())).trimmed().isEmpty()) {
        resolved->refusal = KicadEditTexts::tr("a part cannot be without a value");
        return;
    }
    resolved->wanted = edit.value;
    if (!edit.value) {
        resolved->refusal = resolved->before ? removalRefusal(resolved) : QString();
    } else if (!resolved->before) {
        resolved->refusal = nameRefusal(resolved->name);
    }
    resolved->changes = resolved->before != resolved->wanted || !allPlacesRead(*resolved);
    if (resolved->refusal.isEmpty() && resolved->changes && resolved->wanted) {
        resolved->refusal = textRefusal(resolved);
    }
}

/// Whether every symbol of the component says what is wanted.
bool EditResolver::allPlacesRead(const ResolvedEdit &resolved) const
{
    const auto places = m_model.places(resolved.component);
    return !resolved.wanted || std::all_of(places.begin(), places.end(), [&](const SymbolUse &place) {
        const auto name = m_model.nameIn(place, resolved.name);
        const auto text = name ? m_model.usedText(place, *name) : std::nullopt;
        return text && m_model.resolved(resolved.component, *text) == *resolved.wanted;
    });
}

QString EditResolver::textRefusal(ResolvedEdit *resolved) const
{
    WritableText writable = writableText(m_model, resolved->component, *resolved->wanted);
    resolved->written = std::move(writable.text);
    return writable.refusal;
}

bool EditResolver::isInBase(std::size_t component, std::string_view name) const
{
    const auto places = m_model.places(component);
    return std::any_of(places.begin(), places.end(), [&](const SymbolUse &place) {
        const auto own = m_model.nameIn(place, name);
        return own && m_model.ownText(place, *own);
    });
}

/// Why a property cannot be removed. One that every symbol must have is emptied instead.
QString EditResolver::removalRefusal(ResolvedEdit *resolved) const
{
    const auto places = m_model.places(resolved->component);
    const bool mandatory = std::any_of(places.begin(), places.end(), [&](const SymbolUse &place) {
        return isMandatory(resolved->name, m_model.sheetOf(place).formatVersion);
    });
    if (mandatory) {
        resolved->wanted = std::string();
        return {};
    }
    if (!m_model.variant().empty()) {
        return isInBase(resolved->component, resolved->name)
                   ? KicadEditTexts::tr(
                         "a variant can change a property, but not take it away; open the design "
                         "without the variant to remove it")
                   : QString();
    }
    for (const SymbolUse &place : places) {
        for (const InstanceRecord &record : m_model.symbolOf(place).instances) {
            for (const VariantRecord &variant : record.variants) {
                const bool has = std::any_of(variant.fields.begin(), variant.fields.end(), [&](auto &field) {
                    return m_model.names().name(field.name) == resolved->name;
                });
                if (has) {
                    return KicadEditTexts::tr(
                               "the variant \"%1\" has a text of its own for it; it must go from there first")
                        .arg(fromUtf8(variant.name));
                }
            }
        }
    }
    return {};
}

void EditResolver::resolveFlag(const Edit &edit, ResolvedEdit *resolved)
{
    const Component &part = m_model.components()[edit.component];
    const bool isFitting = resolved->target == EditTarget::NotFitted;
    resolved->name = flagName(resolved->target);
    const auto wanted = yesOrNo(edit.value.value_or(std::string()));
    if (!wanted) {
        resolved->refusal = KicadEditTexts::tr("%1 is yes or no; \"%2\" is neither")
                                .arg(QString::fromLatin1(flagName(resolved->target)), fromUtf8(*edit.value));
        return;
    }
    if ((isFitting ? part.notFitted : part.notInBom) != MarkedBy::Nothing) {
        resolved->before = "1";
    }
    for (const NameId id : m_model.names().candidates(resolved->name)) {
        if (const auto text = isFitting ? std::nullopt : part.stored(id)) {
            resolved->before = std::string(*text);
        }
    }
    resolved->changes = *wanted != resolved->before.has_value() || (*wanted && unitsDiffer(*resolved));
    resolved->wanted = *wanted ? std::optional(std::string("1")) : std::nullopt;
    if (resolved->changes && !*wanted) {
        resolved->refusal = outsideRefusal(*resolved);
    }
}

/// Whether some of the component's symbols have the flag and others do not.
bool EditResolver::unitsDiffer(const ResolvedEdit &resolved) const
{
    const auto places = m_model.places(resolved.component);
    const auto isMarked = [&](const SymbolUse &place) {
        const PlacedSymbol &symbol = m_model.symbolOf(place);
        return resolved.target == EditTarget::NotFitted ? symbol.dnp : !symbol.inBom;
    };
    return m_model.variant().empty() && std::any_of(places.begin(), places.end(), isMarked) &&
           !std::all_of(places.begin(), places.end(), isMarked);
}

QString EditResolver::outsideRefusal(const ResolvedEdit &resolved) const
{
    const bool isFitting = resolved.target == EditTarget::NotFitted;
    for (const SymbolUse &place : m_model.places(resolved.component)) {
        const PlacedSymbol &symbol = m_model.symbolOf(place);
        const auto mark = isFitting ? m_model.outerMarks().notFitted(place.use, symbol)
                                    : m_model.outerMarks().notInBom(place.use, symbol);
        if (mark.by == MarkedBy::Sheet) {
            return markedSheet(resolved.target).arg(m_model.sheetName(mark.sheet));
        }
        if (mark.by == MarkedBy::RuleArea) {
            return markedRuleArea(resolved.target).arg(m_model.sheetName(place.use));
        }
    }
    if (!isFitting && !m_model.variant().empty() && isInBase(resolved.component, resolved.name)) {
        return KicadEditTexts::tr(
            "the symbol has a property BOMSKIP, which a variant cannot take away; open the "
            "design without the variant to remove it");
    }
    return {};
}

/// A variant can only change properties that the symbol has, and only where the file has a record for this
/// use of its sheet.
QString EditResolver::variantRefusal(const ResolvedEdit &resolved) const
{
    if (m_model.variant().empty()) {
        return {};
    }
    for (const SymbolUse &place : m_model.places(resolved.component)) {
        const InstanceRecord *record = m_model.recordOf(place);
        if (!record || !knowsVariants(m_model.sheetOf(place), *record)) {
            return KicadEditTexts::tr(
                "the file holds no record for this use of its sheet that could take what a "
                "variant changes; save the design in KiCad 10 first");
        }
    }
    if (resolved.target == EditTarget::Property && !resolved.before) {
        return KicadEditTexts::tr("a variant can only change properties that the symbol has; open the design "
                                  "without the variant to add one");
    }
    return {};
}

} // namespace designs::kicad
