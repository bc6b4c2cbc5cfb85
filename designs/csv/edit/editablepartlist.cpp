// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/edit/editablepartlist.h"

#include "designs/csv/edit/partlistplanner.h"
#include "designs/csv/partlistreader.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>

namespace designs {

namespace {

template<std::size_t Count>
bool isOneOf(std::string_view text, const std::array<std::string_view, Count> &words)
{
    return std::ranges::any_of(words,
                               [text](std::string_view word) { return equalIgnoringCase(text, word); });
}

constexpr std::array<std::string_view, 3> yesWords = {"1", "yes", "true"};
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
        return PartListTexts::tr("the text %1 is no valid text").arg(quotedForMessage(text));
    }
    if (dialect.encoding == CsvDialect::Encoding::Windows1252 && !windows1252FromUtf8(text)) {
        return PartListTexts::
            tr("the text %1 has characters that the file, which is in Windows-1252, cannot hold: save the "
               "file in UTF-8 first")
                .arg(quotedForMessage(text));
    }
    return std::nullopt;
}

/// Why a heading cannot be added.
std::optional<QString> unusableHeading(std::string_view name, const PartListColumns &columns,
                                       const CsvDialect &dialect)
{
    const bool isMissing =
        (isValueHeading(name) && !columns.value) || (isFootprintHeading(name) && !columns.footprint);
    const QString quoted = quotedForMessage(name);
    if (name.empty() || isBlank(name.substr(0, 1)) || isBlank(name.substr(name.size() - 1))) {
        return PartListTexts::tr("the name %1 is empty or has blanks around it").arg(quoted);
    }
    if (name.find_first_of("\r\n") != std::string_view::npos) {
        return PartListTexts::tr("the name %1 has a line break in it").arg(quoted);
    }
    if (isRoleHeading(name) && !isMissing) {
        return PartListTexts::tr("the list has no column %1, and one cannot be added under this name, which "
                                 "has a meaning of its own")
            .arg(quoted);
    }
    return uncarried(name, dialect);
}

} // namespace

std::optional<QString> EditablePartList::checkEdit(const Edit &edit) const
{
    const std::optional<std::size_t> column = columnOf(edit.name, edit.component);
    if (column == columns().reference) {
        return PartListTexts::tr("the reference of a part cannot be changed");
    }
    if (column && column == columns().quantity) {
        return PartListTexts::tr("the quantity cannot be changed: it follows from the references");
    }
    const std::string_view text = edit.value ? std::string_view(*edit.value) : std::string_view();
    if (!column && !text.empty()) {
        if (const auto why = unusableHeading(edit.name, columns(), dialect())) {
            return why;
        }
    }
    const std::string_view name = column ? std::string_view(columns().names[*column]) : edit.name;
    if (isOneOf(name, yesNoNames) && !isOneOf(text, yesWords) && !PartListPlanner::saysNo(text)) {
        return PartListTexts::tr("%1 can be Yes or No, but not %2")
            .arg(quotedForMessage(name), quotedForMessage(text));
    }
    if (!text.empty() && isBlank(text) && isMarkerHeading(name)) {
        return PartListTexts::tr("%1 cannot hold blanks alone: they would be read as nothing")
            .arg(quotedForMessage(name));
    }
    return uncarried(text, dialect());
}

EditPlan EditablePartList::planEdits(std::span<const Edit> edits) const
{
    EditPlan plan;
    for (std::size_t edit = 0; edit < edits.size(); ++edit) {
        const bool exists = edits[edit].component < m_components.size();
        if (const auto why = exists ? checkEdit(edits[edit]) : PartListTexts::tr("there is no such part")) {
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
        problem = {m_info.file, 0, PartListTexts::tr("was changed since it was read")};
        bytes.reset();
    }
    std::optional<CsvFile> file = bytes ? CsvFile::parse(std::move(*bytes), &problem) : std::nullopt;
    if (!file) {
        plan.problems.push_back({std::nullopt, {m_info.file, problem.line, problem.text}});
        return plan;
    }
    return PartListPlanner(*this, *file).run(edits);
}

ReadResult readEditablePartList(const QString &path, const ReadOptions &options)
{
    return readPartList(path, options, {}, std::make_unique<EditablePartList>());
}

} // namespace designs
