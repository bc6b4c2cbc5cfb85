// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostui.h"
#include "templates/bomtemplate.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

class QSettings;
class QWidget;
class WorkingTemplate;

/// The templates that the user can choose from: the files of the template folders (templatePaths()), entries
/// of the legacy settings file that no file has replaced yet, and "Default", which is always there. One of
/// them is current. Boxes and dialogs go through HostUi, what a file did wrong through showTemplateMessage().
/// A name stands for the template spelled exactly so, except where it says that case is ignored.
///
/// An operation that returns false has told the user why, or the user declined, and has changed nothing.
class TemplateStore final : public QObject
{
    Q_OBJECT

public:
    /// `working` gives and takes the working settings; it must outlive the store. Without one the stored
    /// settings are the working ones. The store is empty until reload().
    explicit TemplateStore(WorkingTemplate *working = nullptr, QObject *parent = nullptr);
    ~TemplateStore() override;

    /// The window that boxes stand in front of; not owned, may be null.
    void setDialogParent(QWidget *parent) { m_dialogParent = parent; }

    /// Reads folders and legacy settings file anew and selects the remembered template, else the first one.
    /// Unsaved changes are dropped without a question.
    void reload();

    /// In the order of the list: the user's own by name, "Default" in front unless it has a place of its own,
    /// then those that come with the system; new ones at the end.
    [[nodiscard]] QStringList names() const { return m_names; }
    /// Whether the list holds the name, ignoring case.
    [[nodiscard]] bool contains(const QString &name) const { return !listedName(name).isEmpty(); }
    /// The list's spelling of a name: the exact one, else the first that differs only in case, else empty.
    [[nodiscard]] QString listedName(const QString &name) const;
    /// The stored settings, without unsaved changes; the defaults under that name when there are none. May
    /// point to the legacy settings file, which lives as long as the store and until the next reload().
    [[nodiscard]] BOMTemplate storedTemplate(const QString &name) const;
    /// Whether the template is the one that comes with the system. It cannot be deleted, and saving it makes
    /// the user's own copy, which then stands in its place.
    [[nodiscard]] bool isShipped(const QString &name) const;
    /// False for "Default" in any case and for shipped templates.
    [[nodiscard]] bool canDelete(const QString &name) const;
    /// The translated name of the template that is always there.
    [[nodiscard]] static QString defaultName();

    /// Empty before the first selection.
    [[nodiscard]] QString currentName() const { return m_currentName; }
    /// Whether the working settings have changes that are not saved. Who edits them sets it.
    [[nodiscard]] bool isModified() const { return m_isModified; }
    void setModified(bool modified);

    /// Makes the template current and remembers it; an unknown name makes one with default settings, which
    /// has no file yet. Asks first what to do with unsaved changes. Nothing happens for an empty name. When
    /// the changes could not be saved, false: the old one stays current.
    bool select(const QString &name);

    /// Writes the working settings under a name, always into the primary folder.
    bool save(const QString &name);
    bool saveCurrent() { return save(m_currentName); }

    /// Takes the name that the user entered, without the blanks around it, saves the working settings under
    /// it and makes it current. Refuses empty names, names that are taken (ignoring case), and names that
    /// cannot be file names.
    bool createTemplate(const QString &enteredName);

    /// Saves a finished template under its own name and selects it. Refuses like createTemplate().
    bool add(const BOMTemplate &settings);

    /// Whether a new template could have the name; says why not.
    [[nodiscard]] bool mayCreate(const QString &name) const;

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

    /// Asks for a destination and copies the current template's file there. Says nothing when that fails.
    bool exportTemplate();
    /// What the template's file holds; of one without a file, what it would hold. Nothing, with the problem
    /// in `reason`, when it cannot be read.
    [[nodiscard]] std::optional<QByteArray> document(const QString &name, QString *reason) const;

    /// Asks whether unsaved changes are to be saved. The caller does what was answered.
    [[nodiscard]] HostUi::SaveAnswer askToSave(bool withCancel) const;

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

private:
    void readFolders();
    void readLegacySettings();
    void arrangeNames();
    void list(const BOMTemplate &settings);
    void makeCurrent(const QString &name);
    [[nodiscard]] BOMTemplate workingSettings(const QString &name) const;
    [[nodiscard]] bool refuseToDelete(const QString &name) const;
    [[nodiscard]] bool deleteFile(const QString &path) const;
    void deleteHtmlFileOf(const QString &name) const;
    void removeLegacyEntry(const QString &name) const;
    [[nodiscard]] bool refuseToImport(const QString &text, const QString &detail) const;

    WorkingTemplate *m_working = nullptr;
    QWidget *m_dialogParent = nullptr;
    std::unique_ptr<QSettings> m_legacySettings;
    QMap<QString, BOMTemplate> m_templates;
    QStringList m_names;
    QString m_currentName;
    bool m_isModified = false;
};
