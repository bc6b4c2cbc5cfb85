// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/edit/editplanner.h"

#include "designs/texts.h"
#include "designs/threads.h"
#include "designs/utf8.h"

#include <QSet>

#include <algorithm>
#include <unordered_map>

namespace designs::kicad {

namespace {

/// References that a message names before it only counts.
constexpr std::size_t namedReferences = 12;

/// The names between the braces of the variables in a text, without a reference before a colon.
QStringList variableNames(std::string_view text)
{
    constexpr std::size_t longestName = 200;
    QStringList names;
    for (std::size_t at = text.find("${"); at != std::string_view::npos; at = text.find("${", at + 2)) {
        const std::string_view rest = text.substr(at + 2, longestName);
        const QString name = fromUtf8(rest.substr(0, rest.find('}')));
        names << name.mid(name.indexOf(u':') + 1).toCaseFolded();
    }
    return names;
}

} // namespace

EditPlanner::EditPlanner(const EditModel &model, int threads)
    : m_model(model)
    , m_threads(threads)
    , m_resolver(model)
    , m_rewrites(model)
{
}

EditPlan EditPlanner::plan(std::span<const Edit> edits)
{
    resolveAll(edits);
    refuseCrossing();
    refuseConflicts();
    if (m_plan.problems.empty()) {
        for (const auto &[number, edit] : m_edits) {
            if (edit.changes) {
                m_plan.changes.push_back(m_rewrites.add(number, edit, m_plan.changes.size()));
            }
        }
        buildFiles();
    }
    std::stable_sort(m_plan.problems.begin(), m_plan.problems.end(),
                     [](const EditProblem &a, const EditProblem &b) { return a.edit < b.edit; });
    if (!m_plan.problems.empty()) {
        m_plan.files.clear();
    }
    return std::move(m_plan);
}

QString EditPlanner::referenceOf(std::size_t component) const
{
    return fromUtf8(m_model.components()[component].reference);
}

void EditPlanner::refuse(std::size_t edit, const QString &why)
{
    const ResolvedEdit &asked = m_edits.at(edit);
    if (asked.component >= m_model.components().size()) {
        m_plan.problems.push_back({edit, {m_model.hierarchy().files().front().path, 0, why}});
        return;
    }
    m_plan.problems.push_back({edit,
                               {m_model.sheetOf(m_model.places(asked.component).front()).path,
                                m_model.lineOf(asked.component), why}});
}

/// Of several edits of one property of one component the last counts.
void EditPlanner::resolveAll(std::span<const Edit> edits)
{
    std::unordered_map<std::string, std::size_t> last;
    for (std::size_t number = 0; number < edits.size(); ++number) {
        ResolvedEdit edit = m_resolver.resolve(edits[number]);
        const std::string key = std::to_string(edit.component) + ' ' + edit.name;
        const auto [known, isNew] = last.try_emplace(key, number);
        if (!isNew) {
            m_edits.erase(known->second);
            known->second = number;
        }
        m_edits.emplace_hint(m_edits.end(), number, std::move(edit));
    }
    for (const auto &[number, edit] : m_edits) {
        if (!edit.refusal.isEmpty()) {
            refuse(number, edit.refusal);
        }
    }
}

/// Refuses texts with variables for properties that the same batch changes: it is not defined whether such a
/// variable means the text before or after.
void EditPlanner::refuseCrossing()
{
    QSet<QString> changed;
    for (const auto &[number, edit] : m_edits) {
        changed.insert(fromUtf8(edit.name).toCaseFolded());
    }
    for (const auto &[number, edit] : m_edits) {
        for (const QString &name : variableNames(edit.changes ? edit.written : std::string())) {
            if (changed.contains(name)) {
                refuse(number,
                       KicadEditTexts::tr("the text holds a variable for a property that is changed with "
                                          "it; change one after the other"));
                break;
            }
        }
    }
}

/// What an edit changes that other components may share.
std::vector<std::string> EditPlanner::sharedKeys(const ResolvedEdit &edit) const
{
    std::vector<std::string> keys;
    if (!m_model.variant().empty() || edit.component >= m_model.components().size()) {
        return keys;
    }
    for (const SymbolUse &place : m_model.places(edit.component)) {
        if (m_model.sharers(place).size() > 1) {
            const auto own = edit.target == EditTarget::Property ? m_model.nameIn(place, edit.name)
                                                                 : std::optional<std::string_view>();
            keys.push_back(std::to_string(m_model.fileOf(place)) + ' ' + std::to_string(place.symbol) + ' ' +
                           std::string(own.value_or(edit.name)));
        }
    }
    return keys;
}

void EditPlanner::refuseConflicts()
{
    struct Group
    {
        std::vector<std::size_t> edits;
        bool differs = false;
        QString references;
    };
    std::unordered_map<std::string, Group> groups;
    for (const auto &[number, edit] : m_edits) {
        for (const std::string &key : sharedKeys(edit)) {
            Group &group = groups[key];
            group.differs |= !group.edits.empty() && m_edits.at(group.edits.front()).wanted != edit.wanted;
            if (group.edits.size() < namedReferences) {
                group.references += group.edits.empty() ? QString() : QStringLiteral(", ");
                group.references += referenceOf(edit.component);
            }
            group.edits.push_back(number);
        }
    }
    for (const auto &[number, edit] : m_edits) {
        for (const std::string &key : sharedKeys(edit)) {
            const Group &group = groups.at(key);
            if (group.differs) {
                const std::size_t more = group.edits.size() - std::min(group.edits.size(), namedReferences);
                refuse(
                    number,
                    KicadEditTexts::tr(
                        "drawn by one symbol of a sheet that is used several times, and asked to differ: %1")
                        .arg(more ? KicadEditTexts::tr("%1 and %2 more")
                                        .arg(group.references, QString::number(more))
                                  : group.references));
                break;
            }
        }
    }
}

int EditPlanner::threadsForFiles() const
{
    std::vector<qint64> sizes;
    for (const auto &[number, rewrite] : m_rewrites.sheets()) {
        sizes.push_back(qint64(m_model.hierarchy().files()[number].fingerprint.size));
    }
    return m_threads > 0 ? m_threads : designs::threadsForFiles(sizes);
}

/// Sheets do not depend on each other: each thread works on one, and what comes of them is put together in
/// their order.
void EditPlanner::buildFiles()
{
    std::vector<const std::pair<const quint32, SheetRewrite> *> sheets;
    for (const auto &sheet : m_rewrites.sheets()) {
        sheets.push_back(&sheet);
    }
    const int threads = threadsForFiles();
    std::vector<Workplace> workplaces(static_cast<std::size_t>(threads));
    std::vector<RewrittenSheet> results(sheets.size());
    forEachInThreads(sheets.size(), threads, [&](std::size_t item, int thread) {
        const auto &[number, rewrite] = *sheets[item];
        results[item] = rewritten(number, rewrite, &workplaces[std::size_t(thread)]);
    });
    for (RewrittenSheet &result : results) {
        if (result.problem) {
            m_plan.problems.push_back(std::move(*result.problem));
        } else if (result.file) {
            m_plan.files.push_back(std::move(*result.file));
        }
    }
}

RewrittenSheet EditPlanner::rewritten(quint32 number, const SheetRewrite &rewrite, Workplace *workplace)
{
    const SheetFile &sheet = m_model.hierarchy().files()[number];
    FileBuffer &bytes = workplace->before;
    Problem problem;
    if (!bytes.read(sheet.path, "(kicad_sch", &problem)) {
        return {std::nullopt, EditProblem{std::nullopt, problem}};
    }
    if (bytes.fingerprint() != sheet.fingerprint) {
        problem = {sheet.path, 0, KicadEditTexts::tr("was changed since it was read; read the design again")};
        return {std::nullopt, EditProblem{std::nullopt, problem}};
    }
    return SheetRewriter(bytes.text(), sheet, m_model.names(), m_model.variant(), m_plan.changes,
                         &workplace->after)
        .run(rewrite);
}

} // namespace designs::kicad
