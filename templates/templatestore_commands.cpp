// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatestore.h"

#include "host/framework/reportfile.h"
#include "templates/bomtemplatefile.h"
#include "templates/savetemplate.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

// The commands that talk to the user; what the store holds stands in templatestore.cpp.

namespace {

std::optional<QByteArray> contentOf(const QString &path, QString *reason)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return std::nullopt;
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        *reason = file.errorString();
        return std::nullopt;
    }
    return content;
}

std::optional<QByteArray> newDocument(const BOMTemplate &settings, QString *reason)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    BOMTemplateFile file(settings.filePath());
    file.setVersion(BOMTemplate::CurrentVersion);
    if (!file.writeDocument(buffer, settings.toVariantMap())) {
        *reason = file.errorString();
        return std::nullopt;
    }
    return buffer.data();
}

/// What a user who leaves the suffix away means, unless that would replace a file unasked.
QString withSuffix(const QString &path)
{
    const QString completed = path + QStringLiteral(".bomt");
    return QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(completed) ? completed : path;
}

} // namespace

HostUi::SaveAnswer TemplateStore::askToSave(bool withCancel) const
{
    return HostUi::current().saveQuestion(m_dialogParent, tr("Unsaved BOM Template Changes"),
                                          tr("Do you want to save the changes you made to the BOM template?"),
                                          withCancel);
}

bool TemplateStore::mayCreate(const QString &name) const
{
    QString problem;
    if (name.trimmed().isEmpty() || contains(name)) {
        problem = tr("The name must not be blank or used already");
    } else if (!isTemplateFileName(name)) {
        problem = tr("The name must be one that a file can have");
    }
    if (!problem.isEmpty()) {
        HostUi::current().information(m_dialogParent, tr("Could not create template"), problem);
    }
    return problem.isEmpty();
}

bool TemplateStore::refuseToDelete(const QString &name) const
{
    if (canDelete(name)) {
        return false;
    }
    const QString problem = isShipped(name) ? tr("Cannot delete a template that comes with the program")
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
    const qsizetype place = m_names.indexOf(name);
    if (place < 0 || refuseToDelete(name) || !deleteFile(storedTemplate(name).filePath())) {
        return false;
    }
    deleteHtmlFileOf(name);
    removeLegacyEntry(name);
    m_templates.remove(name);
    m_names.removeAt(place);
    for (const TemplateFile &file : templateFiles()) {
        if (file.name.compare(name, Qt::CaseInsensitive) == 0) {
            m_templates.insert(file.name, BOMTemplate(file.name, file.path));
            m_names.insert(place, file.name);
        }
    }
    const bool wasCurrent = name == m_currentName;
    const bool isReplaced = contains(name);
    if (wasCurrent) {
        m_currentName.clear();
        setModified(false);
    }
    Q_EMIT namesChanged();
    if (wasCurrent) {
        select(isReplaced ? m_names.at(place) : m_names.at(std::max<qsizetype>(place - 1, 0)));
    }
    return true;
}

bool TemplateStore::deleteFile(const QString &path) const
{
    QFile file(path);
    if (path.isEmpty() || !file.exists() || file.remove()) {
        return true;
    }
    const QString text = tr("The template file '%1' could not be deleted.");
    showTemplateMessage(
        {tr("Template Deletion"), text.arg(path), path + QStringLiteral(": ") + file.errorString()});
    return false;
}

void TemplateStore::deleteHtmlFileOf(const QString &name) const
{
    // A template comes from anywhere; it must not get at files that are none of its own.
    const QFileInfo html(storedTemplate(name).htmlTemplateFileName());
    const bool isOwn = html.absolutePath() == primaryTemplateFolder() &&
                       html.suffix().startsWith(QLatin1String("htm"), Qt::CaseInsensitive);
    const bool isShared =
        std::any_of(m_templates.cbegin(), m_templates.cend(), [&html, &name](const BOMTemplate &settings) {
            return settings.name() != name && settings.htmlTemplateFileName() == html.filePath();
        });
    if (isOwn && !isShared) {
        (void)deleteFile(html.filePath());
    }
}

void TemplateStore::removeLegacyEntry(const QString &name) const
{
    // Removing the empty key would remove every entry of the group.
    if (m_legacySettings && !name.isEmpty()) {
        m_legacySettings->remove(name);
    }
}

bool TemplateStore::resetDefault()
{
    return HostUi::current().question(m_dialogParent, tr("Template Reset"), tr("Reset the default template?"),
                                      false) &&
           restoreDefault();
}

bool TemplateStore::restoreDefault()
{
    const QString name = defaultName();
    BOMTemplate settings = storedTemplate(name);
    settings.setDefaults();
    settings.setName(name);
    if (!saveTemplate(settings)) {
        return false;
    }
    list(settings);
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
    if (contains(name) || QFileInfo::exists(target)) {
        HostUi::current().warning(m_dialogParent, tr("BOM Template Import Failed"),
                                  tr("A BOM template with the name '%1' already exists.").arg(name));
        return false;
    }
    BOMTemplateFile source(path);
    QVariantMap map;
    if (!source.readXmlFile(map)) {
        return refuseToImport(tr("The BOM template '%1' could not be loaded.").arg(path),
                              source.errorString());
    }
    BOMTemplate settings;
    settings.setVersion(source.version());
    settings.fromVariantMap(map);
    settings.setName(name);
    QDir().mkpath(primaryTemplateFolder());
    BOMTemplateFile copy(target);
    copy.setVersion(BOMTemplate::CurrentVersion);
    if (!copy.writeXmlFile(settings.toVariantMap())) {
        return refuseToImport(tr("Could not import the template to '%1'.").arg(target), copy.errorString());
    }
    list(settings);
    return select(name);
}

bool TemplateStore::exportTemplate()
{
    const QString path = HostUi::current().saveFileName(
        m_dialogParent, tr("Export BOM Template"), primaryTemplateFolder(), tr("BOM Templates (*.bomt)"));
    QString reason;
    const auto content = path.isEmpty() ? std::nullopt : document(m_currentName, &reason);
    return content && writeReportFile(withSuffix(path), *content, &reason) == ReportFileResult::Written;
}

std::optional<QByteArray> TemplateStore::document(const QString &name, QString *reason) const
{
    const BOMTemplate settings = storedTemplate(name);
    return QFileInfo::exists(settings.filePath()) ? contentOf(settings.filePath(), reason)
                                                  : newDocument(settings, reason);
}
