// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatelist.h"

#include "files/regularfile.h"
#include "templates/oldhtmltemplate.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace {

/// Null when there is no such file: opening one must not make it.
std::unique_ptr<QSettings> openLegacySettings()
{
    const QString path = legacyTemplatesFile();
    if (!QFileInfo(path).isFile()) {
        return nullptr;
    }
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->beginGroup(QStringLiteral("Templates"));
    return settings;
}

std::optional<QByteArray> contentOf(const QString &path, QString *reason)
{
    return contentOfRegularFile(path, BOMTemplateFile::MaximumSize, reason);
}

QStringList filesNow()
{
    QStringList files;
    for (const TemplateFile &file : templateFiles()) {
        const QFileInfo info(file.path);
        files << file.path + u'|' + info.lastModified().toString(Qt::ISODateWithMs) + u'|' +
                     QString::number(info.size());
    }
    return files;
}

} // namespace

TemplateList::TemplateList() = default;

TemplateList::~TemplateList() = default;

void TemplateList::read()
{
    m_templates.clear();
    m_names.clear();
    readFolders();
    readLegacySettings();
    arrangeNames();
}

bool TemplateList::isStale() const
{
    return m_filesRead != filesNow();
}

void TemplateList::readFolders()
{
    m_filesRead = filesNow();
    for (const TemplateFile &file : templateFiles()) {
        m_templates.insert(file.name, BOMTemplate(file.name, file.path));
        m_names.append(file.name);
    }
}

void TemplateList::readLegacySettings()
{
    m_legacySettings = openLegacySettings();
    if (!m_legacySettings) {
        return;
    }
    // An entry whose name differs from a file's only in case is left out as well: the file that it gets at
    // its next save would be hidden by the other.
    QStringList keys = m_legacySettings->allKeys();
    keys.removeIf([this](const QString &key) {
        const QString name = listedName(key);
        return !name.isEmpty() && !isShipped(name);
    });
    for (const QString &key : std::as_const(keys)) {
        const QString hidden = listedName(key);
        m_templates.remove(hidden);
        m_names.removeAll(hidden);
        m_templates.insert(key, BOMTemplate(key, m_legacySettings.get()));
        m_names.append(key);
    }
}

void TemplateList::arrangeNames()
{
    std::sort(m_names.begin(), m_names.end());
    const auto isOwn = [this](const QString &name) { return !isShipped(name); };
    std::stable_partition(m_names.begin(), m_names.end(), isOwn);
    if (!m_names.contains(defaultName())) {
        m_names.prepend(defaultName());
    }
}

QString TemplateList::listedName(const QString &name) const
{
    if (m_names.contains(name)) {
        return name;
    }
    const auto found = std::find_if(m_names.cbegin(), m_names.cend(), [&name](const QString &listed) {
        return listed.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == m_names.cend() ? QString() : *found;
}

BOMTemplate TemplateList::stored(const QString &name) const
{
    if (const auto found = m_templates.constFind(name); found != m_templates.cend()) {
        return *found;
    }
    BOMTemplate settings;
    settings.setName(name);
    return settings;
}

bool TemplateList::isShipped(const QString &name) const
{
    const auto found = m_templates.constFind(name);
    return found != m_templates.cend() && isShippedTemplateFile(found->filePath());
}

QString TemplateList::defaultName()
{
    //: A name in settings, options and scripts: leave it as it is.
    return tr("Default");
}

bool TemplateList::put(const BOMTemplate &settings)
{
    const QString name = settings.name();
    const bool wasShipped = isShipped(name);
    m_templates.insert(name, settings);
    const bool isNew = !m_names.contains(name);
    if (isNew) {
        m_names.append(name);
    }
    return isNew || wasShipped != isShipped(name);
}

bool TemplateList::remove(const QString &name)
{
    if (!deleteFile(stored(name).filePath())) {
        return false;
    }
    deleteHtmlFileOf(name);
    removeLegacyEntry(name);
    const qsizetype place = m_names.indexOf(name);
    m_templates.remove(name);
    m_names.removeAt(place);
    for (const TemplateFile &file : templateFiles()) {
        if (file.name.compare(name, Qt::CaseInsensitive) == 0) {
            m_templates.insert(file.name, BOMTemplate(file.name, file.path));
            m_names.insert(place, file.name);
        }
    }
    return true;
}

bool TemplateList::deleteFile(const QString &path) const
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

void TemplateList::deleteHtmlFileOf(const QString &name) const
{
    // A template comes from anywhere: the file that it names is deleted only when it is an HTML file of the
    // primary folder and no other template uses it.
    const QFileInfo html(stored(name).htmlTemplateFileName());
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

void TemplateList::removeLegacyEntry(const QString &name) const
{
    // Removing the empty key would remove every entry of the group.
    if (m_legacySettings && !name.isEmpty()) {
        m_legacySettings->remove(name);
        m_legacySettings->sync();
        if (m_legacySettings->status() != QSettings::NoError) {
            const QString file = m_legacySettings->fileName();
            showTemplateMessage({tr("Template Deletion"),
                                 tr("The old settings file '%1' still holds the template.").arg(file),
                                 file + QStringLiteral(": ") + tr("cannot be written")});
        }
    }
}

std::optional<QByteArray> TemplateList::document(const QString &name, QString *reason) const
{
    BOMTemplate settings = stored(name);
    // The HTML file of an old template stays behind, and what a file of an old version lacks may have another
    // meaning one day.
    const bool isOld = upgradeTemplate(settings) || settings.isOfEarlierVersion();
    return QFileInfo::exists(settings.filePath()) && !isOld
               ? contentOf(settings.filePath(), reason)
               : BOMTemplateFile(settings.filePath()).document(settings.toVariantMap(), reason);
}
