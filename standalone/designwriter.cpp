// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designwriter.h"

#include "designs/design.h"
#include "designs/transaction/designfiles.h"
#include "designs/utf8.h"

#include <QFile>

#include <functional>
#include <set>

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
        found.append(
            {edit ? reference(design, edit->component) : QString(),
             edit ? designs::fromUtf8(edit->askedName.empty() ? edit->name : edit->askedName) : QString(),
             problem.problem.file, problem.problem.line, problem.problem.text});
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

CDBCHANGE changeOf(const designs::Design &design, std::span<const designs::Edit> edits,
                   const designs::Change &planned)
{
    CDBCHANGE change{reference(design, edits[planned.edit].component),
                     designs::fromUtf8(planned.name),
                     text(planned.before),
                     text(planned.after),
                     planned.file,
                     planned.line,
                     {},
                     designs::fromUtf8(planned.variant),
                     designs::fromUtf8(edits[planned.edit].askedName)};
    for (const std::size_t component : planned.alsoChanges) {
        change.alsoChanges << reference(design, component);
    }
    return change;
}

/// Whether the files as they are now could be written.
bool canBeReplaced(const designs::Design &design)
{
    std::vector<designs::FileReplacement> same;
    for (const QString &path : design.files()) {
        const auto fingerprint = designs::fingerprintOfFile(path);
        if (!fingerprint) {
            return false;
        }
        // Only checked, not written: the content does not matter.
        same.push_back({path, *fingerprint, *fingerprint, {}});
    }
    return filesOf(design).check(same).empty();
}

/// Replaces the files of a plan, or in a dry run only checks whether they could be.
designs::TransactionResult replaceFiles(const designs::Design &design,
                                        std::span<const designs::FileReplacement> replacements,
                                        const WriteOptions &options)
{
    const designs::DesignFiles files = filesOf(design);
    if (options.isDryRun && !replacements.empty()) {
        return {{}, files.check(replacements), false, {}};
    }
    return files.replace(replacements,
                         options.keepsBackups ? designs::Backups::Keep : designs::Backups::None);
}

} // namespace

designs::DesignFiles filesOf(const designs::Design &design)
{
    return {design.info().file, design.files()};
}

WriteResult writeEdits(const designs::Design &design, std::span<const designs::Edit> edits,
                       const WriteOptions &options)
{
    WriteResult result;
    const designs::EditPlan plan = design.planEdits(edits);
    if (!plan.problems.empty()) {
        result.problems = problemsOf(design, edits, plan.problems);
        return result;
    }
    const designs::TransactionResult transaction = replaceFiles(design, plan.files, options);
    if (!transaction.problems.empty()) {
        result.problems = problemsOf(transaction.problems);
        result.isUndecided = transaction.isUndecided;
        return result;
    }
    result.notices = messagesOf(transaction.notices);
    for (const designs::Change &planned : plan.changes) {
        result.changes.append(changeOf(design, edits, planned));
    }
    for (const designs::FileReplacement &file : plan.files) {
        result.files << file.path;
    }
    return result;
}

CDBPREVIEW previewEdits(const designs::Design &design, std::span<const designs::Edit> edits,
                        QList<CDBPROBLEM> *problems)
{
    designs::EditPlan plan = design.planEdits(edits);
    *problems += problemsOf(design, edits, plan.problems);
    std::vector<designs::Edit> fitting(edits.begin(), edits.end());
    if (!plan.problems.empty()) {
        // A plan with a problem has no changes: leave out what is refused, the last ones first.
        std::set<std::size_t, std::greater<>> refused;
        for (const designs::EditProblem &problem : plan.problems) {
            if (problem.edit) {
                refused.insert(*problem.edit);
            }
        }
        for (const std::size_t index : refused) {
            fitting.erase(fitting.begin() + std::ptrdiff_t(index));
        }
        plan = design.planEdits(fitting);
    }
    if (!plan.files.empty() && plan.problems.empty()) {
        *problems += problemsOf(filesOf(design).check(plan.files));
    }
    CDBPREVIEW preview;
    for (const designs::Change &planned : plan.changes) {
        preview.changes.append(changeOf(design, fitting, planned));
    }
    for (const designs::FileReplacement &file : plan.files) {
        preview.files << file.path;
    }
    return preview;
}

UndoResult undoLastWrite(const designs::Design &design)
{
    const designs::TransactionResult undone = filesOf(design).undo();
    const bool isUnwritable = !undone.problems.empty() && (undone.isUndecided || !canBeReplaced(design));
    return {undone.replaced, messagesOf(undone.problems), messagesOf(undone.notices), isUnwritable};
}

QStringList messagesOf(std::span<const designs::Problem> problems)
{
    QStringList texts;
    for (const designs::Problem &problem : problems) {
        texts.append(problem.message());
    }
    return texts;
}
