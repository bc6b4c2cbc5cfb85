// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/assignmentbatch.h"
#include "core/pendingdesigns.h"
#include "host/netlist/cdbcore.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

#include <optional>

class BOMPartsDatabase;
class Part;
struct DefinitionProperty;

/// How assignments are written.
struct ApplyOptions
{
    /// The host is only asked what would be written; nothing else is written either.
    bool isDryRun = false;
};

/// What came of writing assignments.
struct ApplyResult
{
    /// To be shown, at most 80 characters and "..."; empty when nothing was pending.
    QString text;
    /// All that kept the assignments from being written, uncut. They are written when there is none.
    QList<CDBPROBLEM> problems;
    /// What stays pending although the others were written: it is in conflict, or its part cannot be reached.
    QList<PendingEdit> kept = {};

    bool operator==(const ApplyResult &) const = default;
};

/// What writing the assignments would do.
struct ApplyPreview
{
    QList<CDBCHANGE> changes;
    /// The files that would be replaced.
    QStringList files;
    /// Why nothing would be written.
    QList<CDBPROBLEM> problems;
};

/// Property values that people have set and that are not in the design yet: the pending edits. They are
/// written in one batch through the host's component database, which then reports the changed design as after
/// any other change.
///
/// An edit belongs to its part, not to the reference: when the database has loaded the design again it
/// follows the part, and is in conflict where the design no longer holds what the edit was made against. The
/// edits of a design wait while another one is open. Only apply(), retract(), clear() and restore() end an
/// edit.
class PropertyAssignments final : public QObject
{
    Q_OBJECT

public:
    /// New values by property name.
    using Values = AssignedValues;

    /// The value that takes a property away.
    [[nodiscard]] static QString removal() { return removalText(); }

    /// One action of the user, however many edits it changes: at the end of the outermost one the journal is
    /// written, and edited() and changed() are emitted, if anything changed.
    class Action final
    {
    public:
        explicit Action(PropertyAssignments *assignments);
        Action(const Action &) = delete;
        Action &operator=(const Action &) = delete;
        ~Action();

    private:
        PropertyAssignments *m_assignments;
    };

    /// The database must outlive the store.
    explicit PropertyAssignments(BOMPartsDatabase *database, QObject *parent = nullptr);
    ~PropertyAssignments() override;

    /// The folder in which the edits of each design are journalled, so that a crash loses none; made when the
    /// first edit is. Empty, as at first, keeps no journal.
    void setJournalFolder(const QString &folder);

    /// `value` is what people see, see storedValue(); an empty one takes the property away.
    void assign(const QString &reference, const QString &property, const QString &value);
    /// Ends an edit unwritten.
    void retract(const QString &reference, const QString &property);
    void retract(const PendingEdit &edit);
    /// Has an edit whose text changed in the design written by the next apply(), or not.
    void confirm(const PendingEdit &edit, bool isConfirmed);
    /// Ends all edits of the design that is open.
    void clear();
    /// Puts edits back as they were: those of `gone` end, those of `edits` are there again. Conflicts are
    /// worked out anew.
    void restore(const QList<PendingEdit> &gone, const QList<PendingEdit> &edits);

    /// Writes one stored value at once, or within the DesignWrite that is open.
    void assignNow(const QString &reference, const QString &property, const QString &value);

    [[nodiscard]] bool isEmpty() const { return size() == 0; }
    [[nodiscard]] qsizetype size() const;
    /// Those of the design that is open, by the references of their parts and the properties.
    [[nodiscard]] QList<PendingEdit> edits() const;
    /// By reference; edits whose part is gone are not among them.
    [[nodiscard]] QMap<QString, Values> pending() const;
    /// The edit of a part that is in the bill; null when there is none. Letter case of the property counts.
    /// Valid until the next change.
    [[nodiscard]] const PendingEdit *edit(const QString &reference, const QString &property) const;
    [[nodiscard]] bool hasEdits(const QString &reference) const;

    /// See PendingDesigns::unwritten().
    [[nodiscard]] QList<UnwrittenDesign> unwritten() const { return m_designs.unwritten(); }
    /// Why the edits are not in the journal as they are now; empty when they are.
    [[nodiscard]] const QString &journalError() const { return m_designs.journalError(); }

    /// How many edits of the open design an earlier run of the program left in the journal; they wait for
    /// takeUp().
    [[nodiscard]] qsizetype leftFromEarlier() const;
    /// What of them would be in conflict.
    [[nodiscard]] QList<PendingEdit> conflictsFromEarlier();
    /// Makes them pending again, where the user has not set another value since.
    void takeUpFromEarlier();

    /// Writes all edits that are not in conflict, or confirmed, placed parts by script, BOM-only parts into
    /// the definitions of their parents. All or nothing of these is written; what is not stays pending. While
    /// it writes, another call is refused. Once the files are written, the property of the links is defined
    /// in the property definitions, see bomLinksProperty().
    ApplyResult apply(const ApplyOptions &options);
    /// The same without options; gives the text to be shown.
    QString apply();
    /// The text of the last apply(), with what assignNow() reported since.
    [[nodiscard]] const QString &result() const { return m_result; }
    /// What apply() would do to the design now. Nothing where the host cannot tell.
    [[nodiscard]] std::optional<ApplyPreview> preview();

    /// Defines further BOM-only parts of a placed part and writes them at once, see
    /// BOMPartsDatabase::addBOMParts(). Gives why that failed, in which case nothing was made; empty when it
    /// is written.
    [[nodiscard]] QString addBOMParts(const QString &parentReference, int count, const QString &escapedPrefix,
                                      const QString &escapedValue);
    /// Takes a BOM-only part away and writes that at once. Edits of its siblings stay with them. Gives why
    /// that failed, in which case nothing was changed; empty when it is written.
    [[nodiscard]] QString removeBOMPart(const QString &parentReference, const QString &reference);

    /// Whether people may enter that text for a property: a property of two states takes them as shown or as
    /// stored (Yes or 1), a number must be one. Empty and removal() are always accepted.
    [[nodiscard]] bool accepts(const QString &property, const QString &displayText) const;
    /// The way back from what is shown to what the design holds; removal() stays as it is.
    [[nodiscard]] QString storedValue(const QString &property, const QString &displayText) const;

    /// The script that writes stored values of one reference.
    [[nodiscard]] static QString script(const QString &reference, const Values &values);
    /// Why a script cannot carry these texts; empty when it can.
    [[nodiscard]] static QString scriptProblem(const QString &reference, const QString &property,
                                               const QString &value);

Q_SIGNALS:
    /// What an action of the user changed, the edits as they were and as they are: each is in one list or in
    /// both. Not emitted for what apply() writes and restore() puts back.
    void edited(const QList<PendingEdit> &before, const QList<PendingEdit> &after);
    /// Edits came, went, or changed, their conflicts included.
    void changed();
    /// The edits that restore() could put back are of another state of the design: some were written, or
    /// another design was opened.
    void historyEnded();

private:
    /// What writing is about: the edits that can be written, as the host wants them, and the others.
    struct Selection
    {
        QMap<QString, Values> wanted;
        QList<PendingEdit> written;
        QList<PendingEdit> kept;
    };
    /// The edits of the design that the database holds now; they have followed their parts.
    PendingEdits &current();
    void follow();
    void put(const PendingEdit &edit);
    void remove(const EditKey &key);
    void endAction();

    [[nodiscard]] Selection selection();
    void write(AssignmentBatch *batch, const ApplyOptions &options);
    void runScripts(const AssignmentBatch &batch);
    void endWritten(const QList<PendingEdit> &written, const QList<EditMove> &moves);
    void move(const QList<EditMove> &moves);
    [[nodiscard]] QString writeDefinitions(const QString &parent, const QStringList &former,
                                           const QList<DefinitionProperty> &definitions);

    BOMPartsDatabase *m_database;
    PendingDesigns m_designs;
    int m_actions = 0;
    /// The action is none of the user's.
    bool m_isSilent = false;
    bool m_hasToldOfJournal = false;
    QString m_result;
    bool m_isApplying = false;
};
