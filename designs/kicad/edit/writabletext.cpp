// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/writabletext.h"

#include "designs/kicad/braceescapes.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <algorithm>
#include <array>

namespace designs::kicad {

namespace {

/// Whether KiCad replaces a variable that this reader leaves as it stands, because a bill of materials has no
/// use for it. KiCad replaces "${}" by nothing.
bool isOnlyKnownToKiCad(const QString &name)
{
    static constexpr std::array<QLatin1String, 6> known{QLatin1String("OP"),
                                                        QLatin1String("CURRENT_DATE"),
                                                        QLatin1String("EXCLUDE_FROM_SIM"),
                                                        QLatin1String("INTERSHEETREFS"),
                                                        QLatin1String("EXCLUDE_FROM_BOARD"),
                                                        QLatin1String("SYMBOL_DESCRIPTION")};
    return name.isEmpty() || name.contains(u'(') ||
           std::any_of(known.begin(), known.end(),
                       [&name](QLatin1String each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

/// Whether KiCad would see a variable that the reader leaves as it stands, or, from version 10 on, an escape
/// for one in a file of an older version.
bool holdsStrangeVariable(std::string_view text)
{
    constexpr std::size_t longestName = 200;
    for (std::size_t at = text.find("${"); at != std::string_view::npos; at = text.find("${", at + 2)) {
        const std::string_view rest = text.substr(at + 2, longestName);
        const std::size_t end = rest.find('}');
        const std::string_view name = rest.substr(0, end);
        const bool isEscape = at > 0 && text[at - 1] == '\\';
        if (end == std::string_view::npos || isEscape ||
            isOnlyKnownToKiCad(QString::fromUtf8(name.data(), qsizetype(name.size())))) {
            return true;
        }
    }
    return false;
}

/// A backslash before each variable.
std::string withEscapedVariables(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text.substr(i).starts_with("${") ? "\\" : "";
        result += text[i];
    }
    return result;
}

bool readsBack(const EditModel &model, std::size_t component, std::string_view written,
               std::string_view wanted)
{
    if (model.resolved(component, written) != wanted) {
        return false;
    }
    const auto places = model.places(component);
    return !model.variant().empty() || std::all_of(places.begin(), places.end(), [&](const SymbolUse &place) {
        const auto sharers = model.sharers(place);
        return std::all_of(sharers.begin(), sharers.end(),
                           [&](quint32 other) { return model.resolved(other, written) == wanted; });
    });
}

int oldestVersion(const EditModel &model, std::size_t component)
{
    int oldest = model.sheetOf(model.places(component).front()).formatVersion;
    for (const SymbolUse &place : model.places(component)) {
        oldest = std::min(oldest, model.sheetOf(place).formatVersion);
    }
    return oldest;
}

QString plainRefusal(std::string_view text)
{
    if (text.find('\0') != std::string_view::npos) {
        return KicadEditTexts::tr("the text holds a NUL character");
    }
    if (!isUtf8(text)) {
        return KicadEditTexts::tr("the text is not UTF-8");
    }
    if (text.find("@{") != std::string_view::npos) {
        return KicadEditTexts::tr("the text holds \"@{\", which KiCad would calculate");
    }
    if (mayHaveBraceEscape(text) && resolveBraceEscapes(text) != text) {
        return KicadEditTexts::tr("the text holds a name in braces, like {slash}, that KiCad reads as one "
                                  "character");
    }
    return {};
}

WritableText writableVariable(const EditModel &model, std::size_t component, std::string_view text,
                              int oldest)
{
    if (!holdsStrangeVariable(text) && readsBack(model, component, text, text)) {
        return {std::string(text), {}};
    }
    const std::string escaped = withEscapedVariables(text);
    if (oldest >= version::variableEscape && readsBack(model, component, escaped, text)) {
        return {escaped, {}};
    }
    return {
        {},
        KicadEditTexts::tr("KiCad would replace a variable, \"${...}\", in the text by what it stands for")};
}

} // namespace

WritableText writableText(const EditModel &model, std::size_t component, std::string_view text)
{
    const int oldest = oldestVersion(model, component);
    QString refusal = plainRefusal(text);
    if (refusal.isEmpty() && text == "~" && oldest < version::tildeIsText) {
        refusal = KicadEditTexts::tr("a single \"~\" reads as an empty text in this version of the format");
    }
    if (!refusal.isEmpty()) {
        return {{}, refusal};
    }
    return text.find("${") == std::string_view::npos ? WritableText{std::string(text), {}}
                                                     : writableVariable(model, component, text, oldest);
}

QString nameRefusal(std::string_view name)
{
    if (name.empty() || name.find_first_not_of(" \t") == std::string_view::npos) {
        return KicadEditTexts::tr("a property needs a name");
    }
    if (std::any_of(name.begin(), name.end(), [](char c) { return (c & 0xE0) == 0 || c == 0x7F; })) {
        return KicadEditTexts::tr(
            "a property's name cannot hold line breaks, tabs or other control characters");
    }
    if (name.front() == ' ' || name.back() == ' ') {
        return KicadEditTexts::tr("a property's name cannot begin or end with a blank");
    }
    QString refusal = plainRefusal(name);
    if (refusal.isEmpty() && name.find("${") != std::string_view::npos) {
        refusal = KicadEditTexts::tr("a property's name cannot hold a variable");
    }
    return refusal;
}

} // namespace designs::kicad
