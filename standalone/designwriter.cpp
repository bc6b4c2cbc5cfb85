// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designwriter.h"

#include "designs/design.h"
#include "designs/transaction/designfiles.h"
#include "designs/utf8.h"

namespace {

std::optional<QString> text(const std::optional<std::string> &utf8)
{
    return utf8 ? std::optional(designs::fromUtf8(*utf8)) : std::nullopt;
}

QString reference(const designs::Design &design, std::size_t component)
{
    return designs::fromUtf8(design.components()[component].reference);
}

QList<CDBPROBLEM> problemsOf(const designs::Design &design, std::span<const designs::Edit> edits,
                             std::span<const designs::EditProblem> problems)
{
    QList<CDBPROBLEM> found;
    for (const designs::EditProblem &problem : problems) {
        const designs::Edit *edit = problem.edit ? &edits[*problem.edit] : nullptr;
        found.append({edit ? reference(design, edit->component) : QString(),
                      edit ? designs::fromUtf8(edit->name) : QString(), problem.problem.file,
                      problem.problem.line, problem.problem.text});
    }
    return found;
}

QList<CDBPROBLEM> problemsOf(std::span<const designs::Problem> problems)
{
    QList<CDBPROBLEM> found;
    for (const designs::Problem &problem : problems) {
        found.append({{}, {}, problem.file, problem.line, problem.text});
    }
    return found;
}

PropertyChange changeOf(const designs::Design &design, std::span<const designs::Edit> edits,
                        const designs::Change &planned)
{
    PropertyChange change{reference(design, edits[planned.edit].component),
                          designs::fromUtf8(planned.name),
                          text(planned.before),
                          text(planned.after),
                          planned.file,
                          planned.line,
                          {}};
    for (const std::size_t component : planned.alsoChanges) {
        change.alsoChanges << reference(design, component);
    }
    return change;
}

} // namespace

void DesignWriter::clear()
{
    m_changes.clear();
    m_writtenFiles.clear();
    m_fileCount = 0;
    m_notices.clear();
}

QList<CDBPROBLEM> DesignWriter::write(const designs::Design &design, std::span<const designs::Edit> edits)
{
    clear();
    const designs::EditPlan plan = design.planEdits(edits);
    if (!plan.problems.empty()) {
        return problemsOf(design, edits, plan.problems);
    }
    if (!plan.files.empty()) {
        designs::DesignFiles files(design.info().file);
        const auto problems = m_isDryRun ? files.check(plan.files)
                                         : files.write(plan.files, m_keepsBackups ? designs::Backups::Keep
                                                                                  : designs::Backups::None);
        if (!files.replaced() && !problems.empty()) {
            return problemsOf(problems);
        }
        for (const designs::Problem &problem : problems) {
            m_notices << problem.message();
        }
    }
    for (const designs::Change &planned : plan.changes) {
        m_changes.append(changeOf(design, edits, planned));
    }
    m_fileCount = qsizetype(plan.files.size());
    for (const designs::FileReplacement &file : plan.files) {
        if (!m_isDryRun) {
            m_writtenFiles << file.path;
        }
    }
    return {};
}
