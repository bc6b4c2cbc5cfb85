// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"
#include "templates/templatelist.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

class QWidget;

/// What holds the settings of the current template while they are edited: the parts database.
class WorkingTemplate
{
public:
    WorkingTemplate() = default;
    WorkingTemplate(const WorkingTemplate &) = delete;
    WorkingTemplate &operator=(const WorkingTemplate &) = delete;
    virtual ~WorkingTemplate() = default;

    /// The settings as they stand now, with unsaved changes. Name and file path are not used.
    [[nodiscard]] virtual BOMTemplate workingTemplate() const = 0;

    /// The store has selected this template: its settings replace the working ones. `announce` is to be
    /// called when they have, before anybody else hears of them: it tells those who show settings. What this
    /// does to the store's modified flag before `announce` does not count.
    virtual void takeTemplate(const BOMTemplate &settings, const std::function<void()> &announce) = 0;
};

/// The templates that the user can choose from, and which of them is current: the commands on a TemplateList.
/// Boxes and dialogs go through HostUi, problems with files through showTemplateMessage().
///
/// An operation that returns false has told the user why, or the user declined, and has changed nothing.
class TemplateStore final : public QObject
{
    Q_OBJECT

public:
    /// `working` gives and takes the working settings; it must outlive the store. Without one the stored
    /// settings are the working ones. The store is empty until reload().
    explicit TemplateStore(WorkingTemplate *working = nullptr, QObject *parent = nullptr);

    /// The window that boxes stand in front of; not owned, may be null.
    void setDialogParent(QWidget *parent) { m_dialogParent = parent; }

    /// Reads folders and legacy settings file anew and selects the remembered template, else the first one.
    /// Unsaved changes are dropped without a question.
    void reload();
    /// Reads what has changed in the folders since they were read. The current template stays current, with
    /// its new settings if there are no unsaved changes.
    void followFiles();

    /// The templates that there are.
    [[nodiscard]] const TemplateList &templates() const { return m_list; }
    /// False for "Default" in any case and for shipped templates: saving one of those makes the user's own
    /// copy, which then stands in its place.
    [[nodiscard]] bool canDelete(const QString &name) const;
    /// Why a new template cannot have the name; empty when it can.
    [[nodiscard]] QString creationProblem(const QString &name) const;

    /// Empty before the first selection.
    [[nodiscard]] QString currentName() const { return m_currentName; }
    /// Whether the working settings have changes that are not saved. Who edits them sets it.
    [[nodiscard]] bool isModified() const { return m_isModified; }
    void setModified(bool modified);

    /// Makes the template current and remembers it; an unknown name makes one with default settings, which
    /// has no file yet. Asks first what to do with unsaved changes. Nothing happens for an empty name. When
    /// the changes could not be saved, false: the old one stays current.
    /// The working settings of a template with an old HTML file have its header and footer, and are modified.
    /// That, and a file of a later version, is told once.
    bool select(const QString &name);

    /// Makes the stored settings of the current template the working ones again, as select() does.
    void discardChanges();

    /// Writes the working settings under a name, always into the primary folder. Asks before it replaces a
    /// file of a later version, or one that has been changed since it was read.
    bool save(const QString &name);
    bool saveCurrent() { return save(m_currentName); }

    /// Takes the name that the user entered, without the blanks around it, saves the working settings under
    /// it and makes it current. Refuses empty names, names that are taken (ignoring case), and names that
    /// cannot be file names.
    bool createTemplate(const QString &enteredName);

    /// Saves a finished template under its own name and selects it. Refuses like createTemplate().
    bool add(const BOMTemplate &settings);

    /// Asks, then removes the current template.
    bool deleteCurrent();
    /// Deletes a template with its file, its old HTML file and its legacy entry, without a question. When it
    /// was current its neighbour is selected. A template of the same name that it stood in front of comes
    /// back instead. Refuses what canDelete() refuses.
    bool remove(const QString &name);

    /// Asks, then puts "Default" back to the defaults and saves it.
    bool resetDefault();
    /// The same without a question.
    bool restoreDefault();

    /// Asks for a file, takes it into the primary folder and selects it. Refuses names that are taken
    /// (ignoring case) and files that are no templates.
    bool importTemplate();
    /// The same with a file that is known.
    bool importFile(const QString &path);

    /// Asks for a destination and copies the current template's file there, one of an earlier version in the
    /// present form. Says nothing when that fails.
    bool exportTemplate();

    /// Asks whether unsaved changes are to be saved. The caller does what was answered. `further` is said
    /// behind the question.
    [[nodiscard]] HostUi::SaveAnswer askToSave(bool withCancel, const QString &further = {}) const;

    /// Whether the import of legacy scripts was never offered to this user (settings key
    /// "BomScriptsImported").
    [[nodiscard]] static bool isLegacyImportPending();
    /// Records that it was.
    static void setLegacyImportDone();

Q_SIGNALS:
    /// The list has other names or another order, or a name stands for another file than before.
    void namesChanged();
    /// Also when a selection was abandoned, so that a list box can be put back.
    void currentChanged(const QString &name);
    void modifiedChanged(bool modified);
    /// A template that comes with the system was saved, and is the user's own from now on.
    void ownCopyMade(const QString &name);

private:
    void read(const QString &wanted);
    void put(const BOMTemplate &settings);
    /// Makes the settings the working ones, with the header of an old HTML file.
    void handOver(BOMTemplate settings, const std::function<void()> &announce);
    void tellUpgraded(const QString &name);
    [[nodiscard]] bool refuseToCreate(const QString &name) const;
    [[nodiscard]] bool mayReplace(const QString &name) const;
    [[nodiscard]] bool saveAndList(BOMTemplate settings);
    void makeCurrent(const QString &name);
    [[nodiscard]] BOMTemplate workingSettings(const QString &name) const;
    [[nodiscard]] bool refuseToDelete(const QString &name) const;
    [[nodiscard]] bool refuseToImport(const QString &text, const QString &detail) const;

    WorkingTemplate *m_working = nullptr;
    QWidget *m_dialogParent = nullptr;
    TemplateList m_list;
    QString m_currentName;
    bool m_isModified = false;
    /// The templates of which the user was told something when they were selected.
    QSet<QString> m_told;
};
