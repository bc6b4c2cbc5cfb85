// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonecdb.h"

#include "designs/utf8.h"
#include "standalone/adiscript.h"
#include "standalone/loadeddesign.h"
#include "standalone/texts.h"

#include <QStringList>

#include <algorithm>
#include <ostream>
#include <utility>

namespace {

/// The name under which the component has the property, or would; in one letter case where the design has no
/// such name.
std::string storedName(const designs::Design &design, const designs::Edit &edit)
{
    const designs::Component &component = design.components()[edit.component];
    const std::vector<designs::NameId> candidates = design.names().candidates(edit.name);
    if (candidates.empty()) {
        return designs::caseFolded(edit.name);
    }
    return std::string(
        design.names().name(design.storedName(component, candidates).value_or(candidates.front())));
}

const std::string &askedName(const designs::Edit &edit)
{
    return edit.askedName.empty() ? edit.name : edit.askedName;
}

/// Whether a definition of BOM-only parts would be stored in the letter case of a property that the design
/// has, in which it would define nothing.
bool losesDefinition(const designs::Design &design, const designs::Edit &edit)
{
    constexpr std::string_view start = "BOMPART";
    return edit.value && edit.name.starts_with(start) && !design.names().candidates(edit.name).empty() &&
           !storedName(design, edit).starts_with(start);
}

/// One line per problem, or "No Errors".
void report(std::span<const CDBPROBLEM> problems, std::ostream &stream)
{
    for (const CDBPROBLEM &problem : problems) {
        QString line = problem.message();
        line.replace(u'\n', u' ').replace(u'\r', u' ');
        stream << line.toStdString() << '\n';
    }
    if (problems.empty()) {
        stream << "No Errors\n";
    }
}

} // namespace

StandaloneCdb::StandaloneCdb()
{
    m_topLayout.setname("Top");
    m_bottomLayout.setname("Bottom");
    m_top.setlayout(&m_topLayout);
    m_bottom.setlayout(&m_bottomLayout);
}

void StandaloneCdb::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
    if (m_depth > 0 && !m_staged.empty()) {
        forget();
        fail(ScriptTexts::tr("the design was read again before all was written"));
    }
    m_board.reset();
}

const CDBPART *StandaloneCdb::getpart(quint64 identifier)
{
    const designs::Component *component = m_design ? m_design->component(identifier) : nullptr;
    if (!component) {
        return nullptr;
    }
    const designs::Design &board = m_board ? *m_board : m_design->design();
    switch (board.placement(component->reference)) {
    case designs::Side::Top:
        return &m_top;
    case designs::Side::Bottom:
        return &m_bottom;
    case designs::Side::NotPlaced:
        break;
    }
    return &m_notPlaced;
}

void StandaloneCdb::adi(std::istream &script, std::ostream &stream, int mode)
{
    const bool isBatch = m_depth == 0;
    if (isBatch) {
        beginbatch();
    }
    const auto known = std::size_t(m_problems.size());
    run(script, mode);
    if (isBatch) {
        (void)commitbatch();
    }
    report(std::span(std::as_const(m_problems)).subspan(known), stream);
}

void StandaloneCdb::run(std::istream &script, int mode)
{
    if (!m_design || mode != 0) {
        fail(m_design ? ScriptTexts::tr("scripts have no other mode than 0")
                      : ScriptTexts::tr("no design is open"));
        return;
    }
    const AdiScript read = readAdiScript(script);
    if (!read.error.isEmpty()) {
        m_problems.append(
            {designs::fromUtf8(read.reference), designs::fromUtf8(read.property), {}, 0, read.error});
    }
    for (const AdiAssignment &assignment : read.assignments) {
        stage(assignment);
    }
}

void StandaloneCdb::stage(const AdiAssignment &assignment)
{
    const std::vector<std::size_t> found = m_design->references().find(assignment.reference);
    if (found.empty()) {
        refuse(assignment, ScriptTexts::tr("the design has no part of this reference"));
        return;
    }
    if (found.size() > 1) {
        refuse(assignment, ScriptTexts::tr("several symbols have this reference: %1").arg(places(found)));
        return;
    }
    designs::Edit edit{found.front(), assignment.property, assignment.value};
    const QByteArray written = m_design->properties().writtenName(
        m_design->design().components()[found.front()], QByteArray::fromStdString(assignment.property));
    if (written != QByteArrayView(assignment.property)) {
        edit.name = written.toStdString();
        edit.askedName = assignment.property;
    }
    if (const auto reason = m_design->design().checkEdit(edit)) {
        const designs::Design &design = m_design->design();
        const designs::Component &component = design.components()[edit.component];
        m_problems.append({designs::fromUtf8(assignment.reference), designs::fromUtf8(assignment.property),
                           design.files().value(qsizetype(component.file)), design.lineOf(component),
                           *reason});
        return;
    }
    if (losesDefinition(m_design->design(), edit)) {
        refuse(assignment,
               ScriptTexts::tr(
                   "the design spells this name %1, which defines no BOM-only parts: rename it there first")
                   .arg(designs::fromUtf8(storedName(m_design->design(), edit))));
        return;
    }
    if (const designs::Edit *other = contradicted(edit)) {
        refuse(assignment, ScriptTexts::tr("another text is asked for under the name %1")
                               .arg(designs::fromUtf8(askedName(*other))));
        return;
    }
    m_staged.push_back(std::move(edit));
}

const designs::Edit *StandaloneCdb::contradicted(const designs::Edit &edit)
{
    const std::string key = std::to_string(edit.component) + ':' + storedName(m_design->design(), edit);
    const auto [last, isNew] = m_lastEdits.try_emplace(key, m_staged.size());
    const designs::Edit *before = isNew ? nullptr : &m_staged[last->second];
    if (before && askedName(*before) != askedName(edit) && before->value != edit.value) {
        return before;
    }
    last->second = m_staged.size();
    return nullptr;
}

QString StandaloneCdb::places(std::span<const std::size_t> components) const
{
    constexpr std::size_t mostNamed = 5;
    const designs::Design &design = m_design->design();
    QStringList named;
    for (const std::size_t index : components.first(std::min(components.size(), mostNamed))) {
        const designs::Component &component = design.components()[index];
        named << design.files().value(qsizetype(component.file)) + u':' +
                     QString::number(design.lineOf(component));
    }
    const QString list = named.join(QStringLiteral(", "));
    return components.size() > mostNamed
               ? ScriptTexts::tr("%1, and %2 more").arg(list, QString::number(components.size() - mostNamed))
               : list;
}

void StandaloneCdb::fail(const QString &reason)
{
    m_problems.append({{}, {}, {}, 0, reason});
}

void StandaloneCdb::refuse(const AdiAssignment &assignment, const QString &reason)
{
    m_problems.append(
        {designs::fromUtf8(assignment.reference), designs::fromUtf8(assignment.property), {}, 0, reason});
}

void StandaloneCdb::forget()
{
    m_staged.clear();
    m_lastEdits.clear();
}

void StandaloneCdb::beginbatch()
{
    if (m_depth++ == 0) {
        forget();
        m_problems.clear();
    }
}

bool StandaloneCdb::commitbatch()
{
    if (m_depth == 0 || --m_depth > 0) {
        return true;
    }
    const std::vector<designs::Edit> edits = std::exchange(m_staged, {});
    const std::vector<std::function<void()>> actions = std::exchange(m_afterBatch, {});
    forget();
    if (!m_problems.isEmpty() || edits.empty()) {
        return m_problems.isEmpty();
    }
    if (m_writer) {
        m_problems = m_writer(edits);
    } else {
        fail(ScriptTexts::tr("the design cannot be written"));
    }
    if (!m_problems.isEmpty()) {
        return false;
    }
    for (const std::function<void()> &action : actions) {
        action();
    }
    return true;
}

std::optional<CDBPREVIEW> StandaloneCdb::previewbatch()
{
    if (m_depth != 1 || !m_previewer) {
        dropbatch();
        return std::nullopt;
    }
    const std::vector<designs::Edit> edits = std::exchange(m_staged, {});
    dropbatch();
    return m_previewer(edits, &m_problems);
}

void StandaloneCdb::dropbatch()
{
    if (m_depth == 0) {
        return;
    }
    forget();
    m_afterBatch.clear();
    if (--m_depth > 0 && m_problems.isEmpty()) {
        fail(ScriptTexts::tr("a part of what was to be written was given up"));
    }
}

void StandaloneCdb::afterbatch(const std::function<void()> &action)
{
    if (m_depth > 0) {
        m_afterBatch.push_back(action);
    } else {
        action();
    }
}
