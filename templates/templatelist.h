// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomtemplate.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QSettings;

/// The stored templates under their names: the files of the template folders, the entries of the legacy
/// settings file that no file has replaced, and "Default", which is always listed. A name stands for the
/// template spelled exactly so, except where it says that case is ignored. Problems with files and entries
/// are shown through showTemplateMessage().
class TemplateList final
{
    Q_DECLARE_TR_FUNCTIONS(TemplateList)

public:
    /// Empty until read().
    TemplateList();
    ~TemplateList();
    TemplateList(const TemplateList &) = delete;
    TemplateList &operator=(const TemplateList &) = delete;

    /// Reads folders and legacy settings file anew.
    void read();
    /// Whether the folders have other files than they had then.
    [[nodiscard]] bool isStale() const;

    /// The user's own by name, "Default" in front unless it has a place of its own, then those that come with
    /// the system; new ones at the end.
    [[nodiscard]] const QStringList &names() const { return m_names; }
    /// Whether a template has the name, ignoring case.
    [[nodiscard]] bool contains(const QString &name) const { return !listedName(name).isEmpty(); }
    /// The list's spelling of a name: the exact one, else the first that differs only in case, else empty.
    [[nodiscard]] QString listedName(const QString &name) const;
    /// The stored settings; the defaults under that name when there are none. May point to the legacy
    /// settings file, which lives until the next read().
    [[nodiscard]] BOMTemplate stored(const QString &name) const;
    /// Whether the template is one that comes with the system.
    [[nodiscard]] bool isShipped(const QString &name) const;
    /// The translated name of the template that is always listed.
    [[nodiscard]] static QString defaultName();

    /// Takes settings under their name, in place of those that the name had. True when the name is new or
    /// changed between a shipped template and the user's own.
    [[nodiscard]] bool put(const BOMTemplate &settings);

    /// Deletes a template with its file, its old HTML file and its legacy entry; a template of the same name
    /// that it hid takes its place. False, with nothing changed, when its file cannot be deleted.
    [[nodiscard]] bool remove(const QString &name);

    /// What the template's file holds; of one without a file or with a file of an earlier version, what it
    /// would hold. Nothing, with the problem in `reason`, when it cannot be read.
    [[nodiscard]] std::optional<QByteArray> document(const QString &name, QString *reason) const;

private:
    void readFolders();
    void readLegacySettings();
    void arrangeNames();
    [[nodiscard]] bool deleteFile(const QString &path) const;
    void deleteHtmlFileOf(const QString &name) const;
    void removeLegacyEntry(const QString &name) const;

    /// Null when there is no such file.
    std::unique_ptr<QSettings> m_legacySettings;
    QMap<QString, BOMTemplate> m_templates;
    QStringList m_names;
    /// Each file with its time of change and size.
    QStringList m_filesRead;
};
