// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatestore.h"

#include "host/framework/hostsettings.h"
#include "host/framework/reportfile.h"
#include "templates/oldhtmltemplate.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString settingsGroup = QStringLiteral("BOM");
const QString currentKey = QStringLiteral("CurrentTemplate");
const QString importedKey = QStringLiteral("BomScriptsImported");

/// Adds the suffix that a user leaves away, unless that would replace a file unasked.
QString withSuffix(const QString &path)
{
    const QString completed = path + QStringLiteral(".bomt");
    return QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(completed) ? completed : path;
}

/// Whether a file holds a template with other settings than these. False when it holds none.
bool isOtherThan(const BOMTemplate &known, const QString &path)
{
    QString problem;
    const auto now = QFileInfo::exists(path) ? BOMTemplate::fromFile(path, &problem) : std::nullopt;
    return now && now->toVariantMap() != known.toVariantMap();
}

} // namespace

TemplateStore::TemplateStore(WorkingTemplate *working, QObject *parent)
    : QObject(parent)
    , m_working(working)
{
}

void TemplateStore::reload()
{
    read(HostSettings::current().value(settingsGroup, currentKey).value_or(QString()));
}

void TemplateStore::followFiles()
{
    if (m_currentName.isEmpty() || !m_list.isStale()) {
        return;
    }
    const BOMTemplate known = m_list.stored(m_currentName);
    const QString own = templateFilePath(m_currentName);
    if (!m_isModified && isOtherThan(known, QFileInfo::exists(own) ? own : known.filePath())) {
        // Not the remembered one: other windows remember what was chosen there.
        const QString name = m_currentName; // read() clears it
        read(name);
        return;
    }
    m_list.read();
    // What was worked on since it was read is compared with its file when it is saved.
    (void)m_list.put(known);
    Q_EMIT namesChanged();
}

void TemplateStore::read(const QString &wanted)
{
    m_currentName.clear();
    m_list.read();
    setModified(false);
    Q_EMIT namesChanged();
    const QStringList &names = m_list.names();
    select(names.contains(wanted) ? wanted : names.constFirst());
}

bool TemplateStore::canDelete(const QString &name) const
{
    return name.compare(TemplateList::defaultName(), Qt::CaseInsensitive) != 0 && !m_list.isShipped(name);
}

void TemplateStore::setModified(bool modified)
{
    if (m_isModified != modified) {
        m_isModified = modified;
        Q_EMIT modifiedChanged(modified);
    }
}

bool TemplateStore::select(const QString &name)
{
    if (name.isEmpty()) {
        return true;
    }
    const bool hasChanges = !m_currentName.isEmpty() && m_isModified;
    if (hasChanges && askToSave(false) == HostUi::SaveAnswer::Save && !saveCurrent()) {
        Q_EMIT currentChanged(m_currentName);
        return false;
    }
    put(m_list.stored(name));
    makeCurrent(name);
    return true;
}

void TemplateStore::discardChanges()
{
    if (!m_currentName.isEmpty()) {
        makeCurrent(m_currentName);
    }
}

HostUi::SaveAnswer TemplateStore::askToSave(bool withCancel, const QString &further) const
{
    const QString text = tr("Do you want to save the changes you made to the BOM template?");
    return HostUi::current().saveQuestion(m_dialogParent, tr("Unsaved BOM Template Changes"),
                                          further.isEmpty() ? text : text + QStringLiteral("\n\n") + further,
                                          withCancel);
}

void TemplateStore::put(const BOMTemplate &settings)
{
    if (m_list.put(settings)) {
        Q_EMIT namesChanged();
    }
}

void TemplateStore::makeCurrent(const QString &name)
{
    m_currentName = name;
    HostSettings::current().setValue(settingsGroup, currentKey, name);
    const auto announce = [this, name] { Q_EMIT currentChanged(name); };
    if (m_working) {
        handOver(m_list.stored(name), announce);
    } else {
        setModified(false);
        announce();
    }
}

void TemplateStore::handOver(BOMTemplate settings, const std::function<void()> &announce)
{
    const QString name = settings.name();
    const bool isUpgraded = upgradeTemplate(settings);
    settings.setLegacySettings(nullptr); // it does not outlive a reload
    m_working->takeTemplate(settings, [this, isUpgraded, &announce] {
        setModified(isUpgraded);
        announce();
    });
    const bool isTold = m_told.contains(name);
    if (isUpgraded && !isTold) {
        tellUpgraded(name);
    }
    if (settings.isOfLaterVersion() && !isTold) {
        m_told.insert(name);
        showTemplateMessage(settings.laterVersionMessage());
    }
}

void TemplateStore::tellUpgraded(const QString &name)
{
    m_told.insert(name);
    showTemplateUpgraded(m_dialogParent, name);
}

BOMTemplate TemplateStore::workingSettings(const QString &name) const
{
    const QString source = m_currentName.isEmpty() ? name : m_currentName;
    BOMTemplate settings = m_working ? m_working->workingTemplate() : m_list.stored(source);
    settings.setVersion(BOMTemplate::CurrentVersion);
    settings.setLegacySettings(m_list.stored(name).legacySettings());
    settings.setName(name);
    return settings;
}

bool TemplateStore::saveAndList(BOMTemplate settings)
{
    // When the folder cannot be made, saving fails and says so.
    QDir().mkpath(primaryTemplateFolder());
    if (!settings.save()) {
        return false;
    }
    put(settings);
    return true;
}

bool TemplateStore::save(const QString &name)
{
    const bool wasShipped = m_list.isShipped(name);
    if (name.isEmpty() || !mayReplace(name) || !saveAndList(workingSettings(name))) {
        return false;
    }
    setModified(false);
    if (wasShipped) {
        Q_EMIT ownCopyMade(name);
    }
    return true;
}

bool TemplateStore::mayReplace(const QString &name) const
{
    const BOMTemplate stored = m_list.stored(name);
    if (stored.isOfLaterVersion()) {
        const QString question =
            tr("Saving the BOM template '%1' replaces a file of a later version of this program "
               "and loses what this version does not know.  Save it nevertheless?");
        return HostUi::current().question(m_dialogParent, stored.laterVersionMessage().title,
                                          question.arg(name), false);
    }
    const QString target = templateFilePath(name);
    const bool isLost = stored.filePath() == target ? isOtherThan(stored, target) : QFileInfo::exists(target);
    return !isLost ||
           HostUi::current().question(
               m_dialogParent, tr("BOM Template Changed"),
               tr("The BOM template '%1' was changed in another window or by another program since it was "
                  "read.  Replace it with what this window has?")
                   .arg(name),
               false);
}

QString TemplateStore::creationProblem(const QString &name) const
{
    if (name.trimmed().isEmpty() || m_list.contains(name)) {
        return tr("The name must not be blank or used already");
    }
    if (!isTemplateFileName(name)) {
        return tr("The name must be one that a file can have, without / and \\");
    }
    // Another window may have made one since the folders were read.
    return QFileInfo(templateFilePath(name)).isFile() ? tr("The name must not be blank or used already")
                                                      : QString();
}

bool TemplateStore::refuseToCreate(const QString &name) const
{
    const QString problem = creationProblem(name);
    if (!problem.isEmpty()) {
        HostUi::current().information(m_dialogParent, tr("Could not create template"), problem);
    }
    return !problem.isEmpty();
}

bool TemplateStore::createTemplate(const QString &enteredName)
{
    const QString name = enteredName.trimmed();
    if (refuseToCreate(name) || !save(name)) {
        return false;
    }
    makeCurrent(name);
    return true;
}

bool TemplateStore::add(const BOMTemplate &settings)
{
    BOMTemplate added = settings;
    added.setVersion(BOMTemplate::CurrentVersion);
    added.setLegacySettings(nullptr);
    added.setName(settings.name());
    const bool isUpgraded = upgradeTemplate(added);
    if (refuseToCreate(added.name()) || !saveAndList(added)) {
        return false;
    }
    if (isUpgraded) {
        tellUpgraded(added.name());
    }
    return select(added.name());
}

bool TemplateStore::refuseToDelete(const QString &name) const
{
    if (canDelete(name)) {
        return false;
    }
    const QString problem = m_list.isShipped(name)
                                ? tr("Cannot delete a template that comes with the program")
                                : tr("Cannot delete default template");
    HostUi::current().information(m_dialogParent, tr("Template Deletion"), problem);
    return true;
}

bool TemplateStore::deleteCurrent()
{
    if (m_currentName.isEmpty() || refuseToDelete(m_currentName)) {
        return false;
    }
    const QString question = tr("Delete the template '%1'?").arg(m_currentName);
    return HostUi::current().question(m_dialogParent, tr("Template Deletion"), question, false) &&
           remove(m_currentName);
}

bool TemplateStore::remove(const QString &name)
{
    const QStringList &names = m_list.names();
    const qsizetype place = names.indexOf(name);
    if (place < 0 || refuseToDelete(name) || !m_list.remove(name)) {
        return false;
    }
    const bool wasCurrent = name == m_currentName;
    const bool isReplaced = m_list.contains(name);
    if (wasCurrent) {
        m_currentName.clear();
        setModified(false);
    }
    Q_EMIT namesChanged();
    if (wasCurrent) {
        select(names.at(isReplaced ? place : std::max<qsizetype>(place - 1, 0)));
    }
    return true;
}

bool TemplateStore::resetDefault()
{
    return HostUi::current().question(m_dialogParent, tr("Template Reset"), tr("Reset the default template?"),
                                      false) &&
           restoreDefault();
}

bool TemplateStore::restoreDefault()
{
    const QString name = TemplateList::defaultName();
    BOMTemplate settings = m_list.stored(name);
    settings.setDefaults();
    settings.setName(name);
    if (!mayReplace(name) || !saveAndList(settings)) {
        return false;
    }
    if (m_currentName == name) {
        setModified(false);
        select(name);
    }
    return true;
}

bool TemplateStore::importTemplate()
{
    const QString path = HostUi::current().openFileName(
        m_dialogParent, tr("Import BOM Template"), primaryTemplateFolder(), tr("BOM Templates (*.bomt)"));
    return !path.isEmpty() && importFile(path);
}

bool TemplateStore::refuseToImport(const QString &text, const QString &detail) const
{
    showTemplateMessage({tr("BOM Template Import Failed"), text, detail});
    return false;
}

bool TemplateStore::importFile(const QString &path)
{
    const QString name = QFileInfo(path).completeBaseName();
    const QString target = templateFilePath(name);
    if (m_list.contains(name) || QFileInfo::exists(target)) {
        HostUi::current().warning(m_dialogParent, tr("BOM Template Import Failed"),
                                  tr("A BOM template with the name '%1' already exists.").arg(name));
        return false;
    }
    QString problem;
    auto settings = BOMTemplate::fromFile(path, &problem);
    if (!settings) {
        return refuseToImport(tr("The BOM template '%1' could not be loaded.").arg(path), problem);
    }
    const bool isUpgraded = upgradeTemplate(*settings);
    if (settings->isOfLaterVersion()) {
        showTemplateMessage(settings->laterVersionMessage());
    }
    QDir().mkpath(primaryTemplateFolder());
    if (!BOMTemplateFile(target).writeXmlFile(settings->toVariantMap(), &problem)) {
        return refuseToImport(tr("Could not import the template to '%1'.").arg(target), problem);
    }
    BOMTemplate imported(name, target);
    imported.setHtmlTemplateFileName(settings->htmlTemplateFileName());
    put(imported);
    if (isUpgraded) {
        tellUpgraded(name);
    }
    return select(name);
}

bool TemplateStore::exportTemplate()
{
    const QString path = HostUi::current().saveFileName(
        m_dialogParent, tr("Export BOM Template"), primaryTemplateFolder(), tr("BOM Templates (*.bomt)"));
    QString reason;
    const auto content = path.isEmpty() ? std::nullopt : m_list.document(m_currentName, &reason);
    return content && writeReportFile(withSuffix(path), *content, &reason) == ReportFileResult::Written;
}

bool TemplateStore::isLegacyImportPending()
{
    return !HostSettings::current().value(settingsGroup, importedKey);
}

void TemplateStore::setLegacyImportDone()
{
    HostSettings::current().setValue(settingsGroup, importedKey, QStringLiteral("true"));
}
