// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/partlistplanner.h"
#include "designs/csv/messagetext.h"
#include "designs/csv/partlist.h"
#include "designs/utf8.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace designs {

namespace {

bool equalIgnoringCase(std::string_view text, std::string_view other)
{
    return fromUtf8(text).compare(fromUtf8(other), Qt::CaseInsensitive) == 0;
}

template<std::size_t Count>
bool isOneOf(std::string_view text, const std::array<std::string_view, Count> &words)
{
    return std::ranges::any_of(words,
                               [text](std::string_view word) { return equalIgnoringCase(text, word); });
}

constexpr std::array<std::string_view, 3> yesWords = {"1", "yes", "true"};
constexpr std::array<std::string_view, 4> noWords = {"", "0", "no", "false"};
constexpr std::array<std::string_view, 2> yesNoNames = {"DNP", "BOMSKIP"};

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Why a text cannot stand in the file at all.
std::optional<QString> uncarried(std::string_view text, const CsvDialect &dialect)
{
    if (text.find('\0') != std::string_view::npos ||
        !QByteArrayView(text.data(), qsizetype(text.size())).isValidUtf8()) {
        return QStringLiteral("the text ") + inMessage(text) + QStringLiteral(" is no valid text");
    }
    if (dialect.encoding == CsvDialect::Encoding::Windows1252 && !windows1252FromUtf8(text)) {
        return QStringLiteral("the text ") + inMessage(text) +
               QStringLiteral(
                   " has characters that the file, which is in Windows-1252, cannot hold: save the "
                   "file in UTF-8 first");
    }
    return std::nullopt;
}

/// Why a heading cannot be added.
std::optional<QString> unusableHeading(std::string_view name, const PartListColumns &columns,
                                       const CsvDialect &dialect)
{
    const bool isMissing =
        (isValueHeading(name) && !columns.value) || (isFootprintHeading(name) && !columns.footprint);
    const QString quoted = inMessage(name);
    if (name.empty() || isBlank(name.substr(0, 1)) || isBlank(name.substr(name.size() - 1))) {
        return QStringLiteral("the name ") + quoted + QStringLiteral(" is empty or has blanks around it");
    }
    if (name.find_first_of("\r\n") != std::string_view::npos) {
        return QStringLiteral("the name ") + quoted + QStringLiteral(" has a line break in it");
    }
    if (isRoleHeading(name) && !isMissing) {
        return QStringLiteral("the list has no column ") + quoted +
               QStringLiteral(", and one cannot be added under this name, which has a meaning of its own");
    }
    return uncarried(name, dialect);
}

} // namespace

std::optional<std::size_t> PartList::columnOf(std::string_view name) const
{
    const auto of = [this](std::string_view known) -> std::optional<std::size_t> {
        const auto at = std::ranges::find(m_columns.names, known);
        return at != m_columns.names.end() && !known.empty()
                   ? std::optional(std::size_t(at - m_columns.names.begin()))
                   : std::nullopt;
    };
    if (m_columns.quantity && equalIgnoringCase(name, m_columns.names[*m_columns.quantity])) {
        return m_columns.quantity;
    }
    for (const NameId id : m_names.candidates(name)) {
        if (const auto column = of(m_names.name(id))) {
            return column;
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> PartList::cellText(std::size_t component, std::size_t column) const
{
    const Component &part = m_components[component];
    if (column == m_columns.value) {
        return part.value;
    }
    if (column >= m_columns.names.size()) {
        return std::nullopt;
    }
    const auto found = std::ranges::find_if(part.properties, [&](const Property &property) {
        return m_names.name(property.name) == m_columns.names[column];
    });
    return found != part.properties.end() ? std::optional(found->value) : std::nullopt;
}

std::string PartList::storedText(std::string_view name, std::string_view text)
{
    return equalIgnoringCase(name, "BOMSKIP") && isOneOf(text, noWords) ? std::string() : std::string(text);
}

std::optional<QString> PartList::checkEdit(const Edit &edit) const
{
    const std::optional<std::size_t> column = columnOf(edit.name);
    if (column == m_columns.reference) {
        return QStringLiteral("the reference of a part cannot be changed");
    }
    if (column && column == m_columns.quantity) {
        return QStringLiteral("the quantity cannot be changed: it follows from the references");
    }
    const std::string_view text = edit.value ? std::string_view(*edit.value) : std::string_view();
    if (!column && !text.empty()) {
        if (const auto why = unusableHeading(edit.name, m_columns, m_dialect)) {
            return why;
        }
    }
    const std::string_view name = column ? std::string_view(m_columns.names[*column]) : edit.name;
    if (isOneOf(name, yesNoNames) && !isOneOf(text, yesWords) && !isOneOf(text, noWords)) {
        return inMessage(name) + QStringLiteral(" can be Yes or No, but not ") + inMessage(text);
    }
    if (!text.empty() && isBlank(text) && isMarkerHeading(name)) {
        return inMessage(name) + QStringLiteral(" cannot hold blanks alone: they would be read as nothing");
    }
    return uncarried(text, m_dialect);
}

EditPlan PartList::planEdits(std::span<const Edit> edits) const
{
    EditPlan plan;
    for (std::size_t edit = 0; edit < edits.size(); ++edit) {
        const bool exists = edits[edit].component < m_components.size();
        if (const auto why = exists ? checkEdit(edits[edit]) : QStringLiteral("there is no such part")) {
            const int line = exists ? int(m_components[edits[edit].component].line) : 0;
            plan.problems.push_back({edit, {m_info.file, line, *why}});
        }
    }
    if (!plan.problems.empty()) {
        return plan;
    }
    Problem problem;
    std::optional<QByteArray> bytes = CsvFile::load(m_info.file, &problem);
    if (bytes && fingerprintOf({bytes->constData(), std::size_t(bytes->size())}) != m_fingerprints.front()) {
        problem = {m_info.file, 0, QStringLiteral("was changed since it was read")};
        bytes.reset();
    }
    std::optional<CsvFile> file = bytes ? CsvFile::parse(std::move(*bytes), &problem) : std::nullopt;
    if (!file) {
        plan.problems.push_back({std::nullopt, {m_info.file, problem.line, problem.text}});
        return plan;
    }
    return PartListPlanner(*this, *file).run(edits);
}

} // namespace designs
