// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/propertyassignments.h"

#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/designwrite.h"
#include "core/linksdefinition.h"
#include "core/resultstream.h"
#include "core/storedconversion.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"

#include <QScopedValueRollback>
#include <QStringList>

#include <algorithm>
#include <sstream>
#include <utility>

namespace {

constexpr qsizetype longestResult = 80;

/// What the host tells may be long, but no more of the result is shown.
void append(const QString &text, QString *result)
{
    if (result->size() <= longestResult) {
        result->append(text);
    }
}

QString joinedMessages(const QList<CDBPROBLEM> &problems)
{
    QStringList messages;
    for (const CDBPROBLEM &problem : problems) {
        messages << problem.message();
    }
    return messages.join(u'\n');
}

QString cutResult(const QString &text)
{
    return text.size() > longestResult ? text.left(longestResult) + QStringLiteral("...") : text;
}

QString busy()
{
    return PropertyAssignments::tr("The design is being written already");
}

void tellOfUnreadable(const QString &journal)
{
    HostUi::current().warning(
        nullptr, PropertyAssignments::tr("Pending Changes"),
        PropertyAssignments::tr(
            "Pending changes of an earlier run cannot be read: another version of the program "
            "may have made them. They are left as they are in\n%1\nOpen the design with that "
            "version to go on with them, or remove the file to do without them.")
            .arg(journal));
}

} // namespace

PropertyAssignments::Action::Action(PropertyAssignments *assignments)
    : m_assignments(assignments)
{
    ++m_assignments->m_actions;
}

PropertyAssignments::Action::~Action()
{
    if (--m_assignments->m_actions == 0) {
        m_assignments->endAction();
    }
}

PropertyAssignments::PropertyAssignments(BOMPartsDatabase *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
    , m_designs(database)
{
    connect(database, &BOMPartsDatabase::dataChanged, this, &PropertyAssignments::follow);
}

PropertyAssignments::~PropertyAssignments() = default;

void PropertyAssignments::setJournalFolder(const QString &folder)
{
    m_designs.setJournalFolder(folder);
}

void PropertyAssignments::follow()
{
    switch (m_designs.follow()) {
    case PendingDesigns::Followed::Design:
        if (const QString journal = m_designs.unreadableJournal(); !journal.isEmpty()) {
            // Not here: this may be in the middle of a reload.
            QMetaObject::invokeMethod(
                this, [journal] { tellOfUnreadable(journal); }, Qt::QueuedConnection);
        }
        Q_EMIT historyEnded();
        Q_EMIT changed();
        break;
    case PendingDesigns::Followed::Edits:
        Q_EMIT changed();
        break;
    case PendingDesigns::Followed::Nothing:
        break;
    }
}

PendingEdits &PropertyAssignments::current()
{
    follow();
    return *m_designs.current();
}

void PropertyAssignments::put(const PendingEdit &edit)
{
    m_designs.touch(EditKey::of(edit));
    m_designs.current()->insert(edit);
}

void PropertyAssignments::remove(const EditKey &key)
{
    m_designs.touch(key);
    m_designs.current()->remove(key);
}

void PropertyAssignments::endAction()
{
    const EditChanges changes = m_designs.current() ? m_designs.endChanges() : EditChanges();
    if (changes.isEmpty()) {
        return;
    }
    if (m_designs.journalError().isEmpty()) {
        m_hasToldOfJournal = false;
    } else if (!std::exchange(m_hasToldOfJournal, true)) {
        HostUi::current().warning(nullptr, tr("Pending Changes"),
                                  tr("Pending changes cannot be kept beside the program's settings. They "
                                     "will be lost if the program ends before they are applied: %1")
                                      .arg(m_designs.journalError()));
    }
    if (!m_isSilent) {
        Q_EMIT edited(changes.before, changes.after);
    }
    Q_EMIT changed();
}

void PropertyAssignments::assign(const QString &reference, const QString &property, const QString &value)
{
    const Action action(this);
    put(current().made(reference, property, value));
}

void PropertyAssignments::retract(const QString &reference, const QString &property)
{
    if (const PendingEdit *found = current().find(reference, property)) {
        retract(*found);
    }
}

void PropertyAssignments::retract(const PendingEdit &edit)
{
    const Action action(this);
    (void)current();
    remove(EditKey::of(edit));
}

void PropertyAssignments::confirm(const PendingEdit &edit, bool isConfirmed)
{
    const Action action(this);
    if (const PendingEdit *found = current().find(EditKey::of(edit))) {
        PendingEdit confirmed = *found;
        confirmed.isConfirmed = isConfirmed && found->conflict == EditConflict::ValueChanged;
        put(confirmed);
    }
}

void PropertyAssignments::clear()
{
    const Action action(this);
    for (const PendingEdit &edit : current().list()) {
        remove(EditKey::of(edit));
    }
}

void PropertyAssignments::restore(const QList<PendingEdit> &gone, const QList<PendingEdit> &edits)
{
    const QScopedValueRollback silent(m_isSilent, true);
    const Action action(this);
    PendingEdits &held = current();
    for (const PendingEdit &edit : gone) {
        remove(EditKey::of(edit));
    }
    for (const PendingEdit &edit : edits) {
        put(held.followed(edit));
    }
}

qsizetype PropertyAssignments::size() const
{
    return m_designs.current() ? m_designs.current()->size() : 0;
}

QList<PendingEdit> PropertyAssignments::edits() const
{
    return m_designs.current() ? m_designs.current()->list() : QList<PendingEdit>();
}

QMap<QString, PropertyAssignments::Values> PropertyAssignments::pending() const
{
    QMap<QString, Values> values;
    for (const PendingEdit &edit : edits()) {
        if (edit.conflict != EditConflict::PartGone) {
            values[edit.reference].insert(edit.property, edit.value);
        }
    }
    return values;
}

const PendingEdit *PropertyAssignments::edit(const QString &reference, const QString &property) const
{
    return m_designs.current() ? m_designs.current()->find(reference, property) : nullptr;
}

bool PropertyAssignments::hasEdits(const QString &reference) const
{
    return m_designs.current() && m_designs.current()->has(reference);
}

qsizetype PropertyAssignments::leftFromEarlier() const
{
    return m_designs.earlier().size();
}

QList<PendingEdit> PropertyAssignments::conflictsFromEarlier()
{
    QList<PendingEdit> conflicts;
    PendingEdits &held = current();
    for (const PendingEdit &edit : m_designs.earlier()) {
        PendingEdit now = held.followed(edit);
        if (now.conflict != EditConflict::None) {
            conflicts.append(std::move(now));
        }
    }
    return conflicts;
}

void PropertyAssignments::takeUpFromEarlier()
{
    const Action action(this);
    PendingEdits &held = current();
    for (const PendingEdit &edit : m_designs.earlier()) {
        if (!held.find(EditKey::of(edit))) {
            put(held.followed(edit));
        }
    }
    m_designs.clearEarlier();
}

void PropertyAssignments::assignNow(const QString &reference, const QString &property, const QString &value)
{
    if (!getcdb()) {
        append(tr("There is no component database"), &m_result);
        return;
    }
    DesignWrite write(m_database);
    const QString problem = assignmentProblem(reference, property, value);
    if (!problem.isEmpty()) {
        append(CDBPROBLEM{reference, property, {}, 0, problem}.message(), &m_result);
        return;
    }
    ResultStream output;
    std::istringstream text(toHostText(assignmentScript(reference, {{property, value}})).toStdString());
    getcdb()->adi(text, output, 0);
    const bool isWritten = write.commit();
    if (!output.saysNoErrors()) {
        append(output.text(), &m_result);
    } else if (!isWritten) {
        append(getcdb()->problems().value(0).message(), &m_result);
    }
}

QString PropertyAssignments::apply()
{
    return apply(ApplyOptions()).text;
}

PropertyAssignments::Selection PropertyAssignments::selection()
{
    Selection selected;
    for (const PendingEdit &edit : current().list()) {
        if (edit.canBeWritten()) {
            selected.wanted[edit.reference].insert(edit.property, edit.value);
            selected.written.append(edit);
        } else {
            selected.kept.append(edit);
        }
    }
    return selected;
}

ApplyResult PropertyAssignments::apply(const ApplyOptions &options)
{
    if (m_isApplying) {
        // A dialog of the host that is open meanwhile may lead back here.
        return {busy(), {{{}, {}, {}, 0, busy()}}};
    }
    m_result.clear();
    if (current().isEmpty()) {
        return {};
    }
    const QScopedValueRollback applying(m_isApplying, true);
    const Selection selected = selection();
    // What changes is told when all is done: parts that the batch changes, and the reload after it.
    const BOMPartsDatabase::BulkChange change(m_database);
    const std::vector<EditedPart> keptParts = current().definedParts(selected.kept);
    AssignmentBatch batch(m_database, selected.wanted);
    const QList<EditMove> moves = m_designs.current()->movesOf(keptParts);
    if (!getcdb()) {
        batch.refuse({}, {}, tr("There is no component database"));
    }
    if (batch.problems.isEmpty() && !selected.written.isEmpty()) {
        write(&batch, options);
    }
    const bool isWritten = batch.problems.isEmpty() && !options.isDryRun;
    if (isWritten) {
        endWritten(selected.written, moves);
    } else if (batch.hasBOMParts) {
        // The batch changed them to see what their definitions must say.
        m_database->reload();
    }
    if (m_result.isEmpty() && !batch.problems.isEmpty()) {
        m_result = joinedMessages(batch.problems);
    } else if (m_result.isEmpty()) {
        m_result = selected.written.isEmpty() ? tr("Nothing was applied, see the pending changes")
                                              : tr("Applied successfully");
    }
    m_result = cutResult(m_result);
    return {m_result, batch.problems, selected.kept};
}

void PropertyAssignments::write(AssignmentBatch *batch, const ApplyOptions &options)
{
    DesignWrite write(m_database);
    runScripts(*batch);
    if (!options.isDryRun) {
        write.whenWritten([writesLinks = batch->writesLinks] { defineLinksProperty(writesLinks); });
    }
    if (!write.commit()) {
        batch->problems = getcdb()->problems();
        if (batch->problems.isEmpty()) {
            batch->refuse({}, {}, tr("The component database did not say why nothing was written"));
        }
    }
}

void PropertyAssignments::runScripts(const AssignmentBatch &batch)
{
    for (auto it = batch.formerDefinitions.cbegin(); it != batch.formerDefinitions.cend(); ++it) {
        for (const QString &name : *it) {
            assignNow(it.key(), name, removal());
        }
    }
    ResultStream output;
    for (auto it = batch.stored.cbegin(); it != batch.stored.cend(); ++it) {
        std::istringstream text(toHostText(assignmentScript(it.key(), *it)).toStdString());
        getcdb()->adi(text, output, 0);
        if (!output.saysNoErrors() && m_result.size() <= longestResult) {
            append(output.text(), &m_result);
        }
        // Clears the state flags only: what was written stays and is looked at again.
        output.clear();
    }
}

void PropertyAssignments::endWritten(const QList<PendingEdit> &written, const QList<EditMove> &moves)
{
    const QScopedValueRollback silent(m_isSilent, true);
    const Action action(this);
    for (const PendingEdit &edit : written) {
        const PendingEdit *now = m_designs.current()->find(EditKey::of(edit));
        if (now && now->value != edit.value) {
            // Set anew while the design was written, against what is there now.
            PendingEdit later = *now;
            later.before = storedValue(edit.property, edit.value);
            put(later);
        } else {
            remove(EditKey::of(edit));
        }
    }
    move(moves);
    if (!written.isEmpty()) {
        Q_EMIT historyEnded();
    }
}

void PropertyAssignments::move(const QList<EditMove> &moves)
{
    QList<PendingEdit> moved;
    for (const auto &[key, identity] : moves) {
        const PendingEdit *found = m_designs.current()->find(key);
        if (found && key.part != identity) {
            moved.append(*found);
            moved.last().part = identity;
        }
    }
    for (const auto &[key, identity] : moves) {
        if (key.part != identity) {
            remove(key);
        }
    }
    for (const PendingEdit &edit : std::as_const(moved)) {
        put(edit);
    }
}

std::optional<ApplyPreview> PropertyAssignments::preview()
{
    if (m_isApplying || !getcdb()) {
        return std::nullopt;
    }
    const QScopedValueRollback applying(m_isApplying, true);
    const QScopedValueRollback result(m_result, QString());
    const Selection selected = selection();
    const BOMPartsDatabase::BulkChange change(m_database);
    const AssignmentBatch batch(m_database, selected.wanted);
    getcdb()->beginbatch();
    runScripts(batch);
    const auto host = getcdb()->previewbatch();
    const QList<CDBPROBLEM> problems = batch.problems + getcdb()->problems();
    if (batch.hasBOMParts) {
        m_database->reload();
    }
    return host ? std::optional(ApplyPreview{host->changes, host->files, problems}) : std::nullopt;
}

QString PropertyAssignments::addBOMParts(const QString &parentReference, int count,
                                         const QString &escapedPrefix, const QString &escapedValue)
{
    if (m_isApplying) {
        return busy();
    }
    const QScopedValueRollback applying(m_isApplying, true);
    (void)current();
    const BOMPartsDatabase::BulkChange change(m_database);
    const auto added = m_database->addBOMParts(parentReference, count, escapedPrefix, escapedValue);
    if (!added) {
        return tr("These BOM-only parts cannot be made: the part %1 cannot hold them").arg(parentReference);
    }
    return writeDefinitions(parentReference, {}, {*added});
}

QString PropertyAssignments::removeBOMPart(const QString &parentReference, const QString &reference)
{
    if (m_isApplying) {
        return busy();
    }
    const QScopedValueRollback applying(m_isApplying, true);
    PendingEdits &held = current();
    const QStringList former = m_database->bomOnlyParts().propertyNames(parentReference);
    const Part *part = m_database->part(reference);
    const QList<EditMove> moves = part ? held.movesBehind(held.identities().of(*part)) : QList<EditMove>();
    const BOMPartsDatabase::BulkChange change(m_database);
    const auto definitions = m_database->removeBOMPart(parentReference, reference)
                                 ? m_database->bomOnlyParts().rewritten(parentReference)
                                 : std::nullopt;
    if (!definitions) {
        return tr("The BOM-only part %1 of %2 cannot be removed").arg(reference, parentReference);
    }
    const QString problem = writeDefinitions(parentReference, former, *definitions);
    if (problem.isEmpty()) {
        const QScopedValueRollback silent(m_isSilent, true);
        const Action action(this);
        move(moves);
        Q_EMIT historyEnded();
    }
    return problem;
}

QString PropertyAssignments::writeDefinitions(const QString &parent, const QStringList &former,
                                              const QList<DefinitionProperty> &definitions)
{
    m_result.clear();
    bool isWritten = false;
    if (getcdb()) {
        DesignWrite write(m_database);
        for (const QString &name : former) {
            assignNow(parent, name, removal());
        }
        for (const DefinitionProperty &definition : definitions) {
            assignNow(parent, definition.name, definition.text);
        }
        isWritten = write.commit();
    }
    if (isWritten) {
        return {};
    }
    m_database->reload();
    const QString problems = getcdb() ? joinedMessages(getcdb()->problems()) : QString();
    if (!problems.isEmpty()) {
        return problems;
    }
    return m_result.isEmpty() ? tr("There is no component database") : m_result;
}

bool PropertyAssignments::accepts(const QString &property, const QString &displayText) const
{
    return displayText == removal() ||
           StoredConversion(m_database->propertyTypes().type(property)).accepts(displayText);
}

QString PropertyAssignments::storedValue(const QString &property, const QString &displayText) const
{
    return storedAssignment(m_database->propertyTypes(), property, displayText);
}

QString PropertyAssignments::script(const QString &reference, const Values &values)
{
    return assignmentScript(reference, values);
}

QString PropertyAssignments::scriptProblem(const QString &reference, const QString &property,
                                           const QString &value)
{
    return assignmentProblem(reference, property, value);
}
