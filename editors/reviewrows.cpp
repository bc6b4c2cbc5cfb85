// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/reviewrows.h"

#include "core/bomonlyparts.h"
#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "core/storedconversion.h"

#include <QFileInfo>
#include <QHash>
#include <QMultiHash>
#include <QSet>

#include <algorithm>
#include <set>

namespace {

/// References and names of properties, the latter in any letter case.
using Key = std::pair<QString, QString>;

Key keyOf(const QString &reference, const QString &property)
{
    return {reference, property.toUpper()};
}

QString shown(const QString &stored, const QString &property, const BOMPartsDatabase *database)
{
    return DisplayConversion(database->propertyTypes().type(property))(stored);
}

bool isDefinition(const QString &property)
{
    return property.startsWith(bomPartPropertyStart(), Qt::CaseInsensitive);
}

QString counted(qsizetype count, const QString &one, const QString &many)
{
    return count == 1 ? one : many.arg(count);
}

QString fileNames(const QStringList &files)
{
    constexpr qsizetype mostNamed = 4;
    QStringList names;
    for (const QString &file : files.first(std::min(files.size(), mostNamed))) {
        names << QFileInfo(file).fileName();
    }
    if (files.size() > mostNamed) {
        names << QStringLiteral("...");
    }
    return QStringLiteral(" (") + names.join(QStringLiteral(", ")) + u')';
}

} // namespace

QString conflictText(const PendingEdit &edit, const BOMPartsDatabase *database)
{
    switch (edit.conflict) {
    case EditConflict::None:
        break;
    case EditConflict::ValueChanged:
        return edit.present.isEmpty() ? PendingChanges::tr("Taken away in the design meanwhile")
                                      : PendingChanges::tr("Changed in the design meanwhile, now \"%1\"")
                                            .arg(shown(edit.present, edit.property, database));
    case EditConflict::PartLeftOut:
        return PendingChanges::tr("The part is left out of the bill at present");
    case EditConflict::PartGone:
        return PendingChanges::tr("The design has no such part any more");
    }
    return {};
}

QString ReviewRow::place() const
{
    if (file.isEmpty()) {
        return definition;
    }
    const QString name = QFileInfo(file).fileName();
    const QString position = line > 0 ? name + u':' + QString::number(line) : name;
    return definition.isEmpty() ? position : definition + QStringLiteral(", ") + position;
}

QString ReviewRow::stateText(const BOMPartsDatabase *database) const
{
    switch (state) {
    case ReviewState::Fits:
        return edit.conflict == EditConflict::None ? PendingChanges::tr("Fits")
                                                   : conflictText(edit, database);
    case ReviewState::IsThere:
        return PendingChanges::tr("The design has this value already");
    case ReviewState::Refused:
        return PendingChanges::tr("Refused: %1").arg(reasons.join(QStringLiteral("; ")));
    case ReviewState::TextChanged:
    case ReviewState::PartLeftOut:
    case ReviewState::PartGone:
        break;
    }
    return conflictText(edit, database);
}

/// Finds the changes and problems that belong to each edit.
class PendingChanges::Builder
{
public:
    Builder(const std::optional<ApplyPreview> &preview, const BOMPartsDatabase *database);

    [[nodiscard]] ReviewRow row(const PendingEdit &edit);
    /// Those that no row has.
    [[nodiscard]] QStringList otherProblems() const;

private:
    void addDefinition(const QString &parent, ReviewRow *row);
    void addReasons(const QList<const CDBPROBLEM *> &problems, ReviewRow *row);
    [[nodiscard]] const CDBCHANGE *changeOf(const PendingEdit &edit) const;
    [[nodiscard]] ReviewState stateOf(const ReviewRow &row) const;
    [[nodiscard]] QString stored(const PendingEdit &edit) const;

    const std::optional<ApplyPreview> &m_preview;
    const BOMPartsDatabase *m_database;
    QMultiHash<QString, const CDBCHANGE *> m_ofReference;
    QHash<Key, const CDBCHANGE *> m_changes;
    QMultiHash<Key, const CDBPROBLEM *> m_problems;
    /// Of the properties of a placed part that define BOM-only parts: those behind an edited one move.
    QHash<QString, QList<const CDBCHANGE *>> m_definitions;
    QMultiHash<QString, const CDBPROBLEM *> m_definitionProblems;
    QSet<const CDBPROBLEM *> m_told;
};

PendingChanges::Builder::Builder(const std::optional<ApplyPreview> &preview, const BOMPartsDatabase *database)
    : m_preview(preview)
    , m_database(database)
{
    if (!preview) {
        return;
    }
    for (const CDBCHANGE &change : preview->changes) {
        m_ofReference.insert(change.reference, &change);
        m_changes.insert(keyOf(change.reference, change.askedName.isEmpty() ? change.name : change.askedName),
                         &change);
        if (isDefinition(change.name)) {
            m_definitions[change.reference].append(&change);
        }
    }
    for (const CDBPROBLEM &problem : preview->problems) {
        m_problems.insert(keyOf(problem.reference, problem.property), &problem);
        if (isDefinition(problem.property)) {
            m_definitionProblems.insert(problem.reference, &problem);
        }
    }
}

ReviewRow PendingChanges::Builder::row(const PendingEdit &edit)
{
    ReviewRow row;
    row.edit = edit;
    row.before = shown(edit.before, edit.property, m_database);
    if (m_preview && edit.canBeWritten()) {
        addReasons(m_problems.values(keyOf(edit.reference, edit.property)), &row);
        const Part *part = m_database->part(edit.reference);
        if (part && part->isBOMPart()) {
            addDefinition(static_cast<const BOMPart *>(part)->parentReference(), &row);
        } else if (const CDBCHANGE *change = changeOf(edit)) {
            row.file = change->file;
            row.line = change->line;
            row.alsoChanges = change->alsoChanges;
        }
    }
    row.state = stateOf(row);
    return row;
}

void PendingChanges::Builder::addDefinition(const QString &parent, ReviewRow *row)
{
    addReasons(m_definitionProblems.values(parent), row);
    QStringList names;
    for (const CDBCHANGE *change : m_definitions.value(parent)) {
        names << change->name;
        if (row->file.isEmpty()) {
            row->file = change->file;
            row->line = change->line;
            row->alsoChanges = change->alsoChanges;
        }
    }
    if (!names.isEmpty()) {
        names.sort();
        row->definition = tr("%1 of %2").arg(names.join(QStringLiteral(", ")), parent);
    }
}

void PendingChanges::Builder::addReasons(const QList<const CDBPROBLEM *> &problems, ReviewRow *row)
{
    for (const CDBPROBLEM *problem : problems) {
        row->reasons << problem->reason;
        m_told.insert(problem);
    }
}

/// The host may store a property under a name of its own, such as "Footprint" for PACKAGE.
const CDBCHANGE *PendingChanges::Builder::changeOf(const PendingEdit &edit) const
{
    if (const CDBCHANGE *change = m_changes.value(keyOf(edit.reference, edit.property))) {
        return change;
    }
    const QString after = stored(edit);
    for (const CDBCHANGE *change : m_ofReference.values(edit.reference)) {
        if (change->after.value_or(QString()) == after &&
            change->before.value_or(QString()) == edit.present) {
            return change;
        }
    }
    return nullptr;
}

ReviewState PendingChanges::Builder::stateOf(const ReviewRow &row) const
{
    if (!row.reasons.isEmpty()) {
        return ReviewState::Refused;
    }
    switch (row.edit.conflict) {
    case EditConflict::PartLeftOut:
        return ReviewState::PartLeftOut;
    case EditConflict::PartGone:
        return ReviewState::PartGone;
    case EditConflict::None:
    case EditConflict::ValueChanged:
        break;
    }
    if (row.edit.present == stored(row.edit)) {
        return ReviewState::IsThere;
    }
    return row.edit.canBeWritten() ? ReviewState::Fits : ReviewState::TextChanged;
}

QString PendingChanges::Builder::stored(const PendingEdit &edit) const
{
    return edit.value == PropertyAssignments::removal()
               ? QString()
               : StoredConversion(m_database->propertyTypes().type(edit.property))(edit.value);
}

QStringList PendingChanges::Builder::otherProblems() const
{
    QStringList texts;
    for (const CDBPROBLEM &problem : m_preview ? m_preview->problems : QList<CDBPROBLEM>()) {
        if (!m_told.contains(&problem)) {
            texts << problem.message();
        }
    }
    return texts;
}

PendingChanges::PendingChanges(const QList<PendingEdit> &edits, const std::optional<ApplyPreview> &preview,
                               const BOMPartsDatabase *database)
{
    Builder builder(preview, database);
    m_rows.reserve(edits.size());
    for (const PendingEdit &edit : edits) {
        m_rows << builder.row(edit);
    }
    m_generalProblems = builder.otherProblems();
    m_files = preview ? preview->files : QStringList();
}

bool PendingChanges::canBeApplied() const
{
    const auto isRefused = [](const ReviewRow &row) { return row.state == ReviewState::Refused; };
    const auto canBeWritten = [](const ReviewRow &row) { return row.edit.canBeWritten(); };
    return m_generalProblems.isEmpty() && std::ranges::none_of(m_rows, isRefused) &&
           std::ranges::any_of(m_rows, canBeWritten);
}

QString PendingChanges::summary() const
{
    if (m_rows.isEmpty()) {
        return tr("Nothing is pending.");
    }
    std::set<PartIdentity> parts;
    qsizetype conflicts = 0;
    qsizetype refused = 0;
    for (const ReviewRow &row : m_rows) {
        parts.insert(row.edit.part);
        conflicts += row.edit.canBeWritten() ? 0 : 1;
        refused += row.state == ReviewState::Refused ? 1 : 0;
    }
    QString text = counted(m_rows.size(), tr("1 edit"), tr("%1 edits")) + u' ' +
                   counted(qsizetype(parts.size()), tr("of 1 part"), tr("of %1 parts"));
    if (!m_files.isEmpty()) {
        text += u' ' + counted(m_files.size(), tr("in 1 file"), tr("in %1 files")) + fileNames(m_files);
    }
    if (conflicts > 0) {
        text += tr("; %1 in conflict").arg(conflicts);
    }
    if (refused > 0) {
        text += tr("; %1 refused").arg(refused);
    }
    return text;
}
