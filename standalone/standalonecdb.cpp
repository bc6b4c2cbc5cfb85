// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonecdb.h"

#include "standalone/adiscript.h"
#include "standalone/loadeddesign.h"

#include <QStringList>

#include <ostream>
#include <utility>

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
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
    m_references.reset();
    m_design = std::move(design);
    if (m_depth > 0 && !m_staged.empty()) {
        m_staged.clear();
        m_problems.append(
            {{}, {}, {}, 0, QStringLiteral("the design was read again before all was written")});
    }
}

const CDBPART *StandaloneCdb::getpart(quint64 identifier)
{
    const designs::Component *component = m_design ? m_design->component(identifier) : nullptr;
    if (!component) {
        return nullptr;
    }
    switch (m_design->design().placement(component->reference)) {
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
    if (m_depth == 0) {
        beginbatch();
        std::ostream none(nullptr);
        adi(script, none, mode);
        (void)commitbatch();
        report(m_problems, stream);
        return;
    }
    const qsizetype known = m_problems.size();
    if (!m_design || mode != 0) {
        m_problems.append({{},
                           {},
                           {},
                           0,
                           m_design ? QStringLiteral("scripts have no other mode than 0")
                                    : QStringLiteral("no design is open")});
    } else if (const AdiScript read = readAdiScript(script); !read.error.isEmpty()) {
        m_problems.append({{}, {}, {}, 0, read.error});
    } else {
        for (const AdiAssignment &assignment : read.assignments) {
            stage(assignment);
        }
    }
    report(std::span(std::as_const(m_problems)).subspan(std::size_t(known)), stream);
}

void StandaloneCdb::stage(const AdiAssignment &assignment)
{
    const std::vector<std::size_t> found = references().find(assignment.reference);
    if (found.empty()) {
        refuse(assignment, QStringLiteral("the design has no part of this reference"));
        return;
    }
    if (found.size() > 1) {
        refuse(assignment, QStringLiteral("several symbols have this reference: ") + places(found));
        return;
    }
    designs::Edit edit{found.front(), assignment.property, assignment.value};
    if (const auto reason = m_design->design().checkEdit(edit)) {
        const designs::Design &design = m_design->design();
        const designs::Component &component = design.components()[edit.component];
        m_problems.append({text(assignment.reference), text(assignment.property),
                           design.files().value(qsizetype(component.file)), design.lineOf(component),
                           *reason});
        return;
    }
    m_staged.push_back(std::move(edit));
}

const ReferenceIndex &StandaloneCdb::references()
{
    if (!m_references) {
        m_references.emplace(m_design->design());
    }
    return *m_references;
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
    if (components.size() > mostNamed) {
        named << QStringLiteral("and %1 more").arg(components.size() - mostNamed);
    }
    return named.join(QStringLiteral(", "));
}

void StandaloneCdb::refuse(const AdiAssignment &assignment, const QString &reason)
{
    m_problems.append({text(assignment.reference), text(assignment.property), {}, 0, reason});
}

void StandaloneCdb::beginbatch()
{
    if (m_depth++ == 0) {
        m_staged.clear();
        m_problems.clear();
    }
}

bool StandaloneCdb::commitbatch()
{
    if (m_depth == 0 || --m_depth > 0) {
        return true;
    }
    const std::vector<designs::Edit> edits = std::exchange(m_staged, {});
    if (m_problems.isEmpty() && !edits.empty()) {
        m_problems = m_writer
                         ? m_writer(edits)
                         : QList<CDBPROBLEM>{{{}, {}, {}, 0, QStringLiteral("the design cannot be written")}};
    }
    return m_problems.isEmpty();
}
