// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatestore.h"

#include "host/framework/hostsettings.h"
#include "templates/savetemplate.h"
#include "templates/templatepaths.h"
#include "templates/workingtemplate.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <utility>

// What the store holds; the commands that talk to the user stand in templatestore_commands.cpp.

namespace {

const QString settingsGroup = QStringLiteral("BOM");
const QString currentKey = QStringLiteral("CurrentTemplate");
const QString importedKey = QStringLiteral("BomScriptsImported");

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

} // namespace

TemplateStore::TemplateStore(WorkingTemplate *working, QObject *parent)
    : QObject(parent)
    , m_working(working)
{
}

TemplateStore::~TemplateStore() = default;

void TemplateStore::reload()
{
    m_currentName.clear();
    m_templates.clear();
    m_names.clear();
    readFolders();
    readLegacySettings();
    arrangeNames();
    setModified(false);
    Q_EMIT namesChanged();
    const QString remembered = HostSettings::current().value(settingsGroup, currentKey).value_or(QString());
    select(m_names.contains(remembered) ? remembered : m_names.constFirst());
}

void TemplateStore::readFolders()
{
    for (const TemplateFile &file : templateFiles()) {
        m_templates.insert(file.name, BOMTemplate(file.name, file.path));
        m_names.append(file.name);
    }
}

void TemplateStore::readLegacySettings()
{
    m_legacySettings = openLegacySettings();
    if (!m_legacySettings) {
        return;
    }
    // Ignoring case, because the file that such an entry gets at its next save would hide behind the other.
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

void TemplateStore::arrangeNames()
{
    std::sort(m_names.begin(), m_names.end());
    const auto isOwn = [this](const QString &name) { return !isShipped(name); };
    std::stable_partition(m_names.begin(), m_names.end(), isOwn);
    if (!m_names.contains(defaultName())) {
        m_names.prepend(defaultName());
    }
}

QString TemplateStore::listedName(const QString &name) const
{
    if (m_names.contains(name)) {
        return name;
    }
    const auto found = std::find_if(m_names.cbegin(), m_names.cend(), [&name](const QString &listed) {
        return listed.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == m_names.cend() ? QString() : *found;
}

BOMTemplate TemplateStore::storedTemplate(const QString &name) const
{
    if (const auto found = m_templates.constFind(name); found != m_templates.cend()) {
        return *found;
    }
    BOMTemplate settings;
    settings.setName(name);
    return settings;
}

bool TemplateStore::isShipped(const QString &name) const
{
    const auto found = m_templates.constFind(name);
    return found != m_templates.cend() && isShippedTemplateFile(found->filePath());
}

bool TemplateStore::canDelete(const QString &name) const
{
    return name.compare(defaultName(), Qt::CaseInsensitive) != 0 && !isShipped(name);
}

QString TemplateStore::defaultName()
{
    return tr("Default");
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
    list(storedTemplate(name));
    makeCurrent(name);
    return true;
}

void TemplateStore::list(const BOMTemplate &settings)
{
    const QString name = settings.name();
    const bool wasShipped = isShipped(name);
    m_templates.insert(name, settings);
    const bool isNew = !m_names.contains(name);
    if (isNew) {
        m_names.append(name);
    }
    if (isNew || wasShipped != isShipped(name)) {
        Q_EMIT namesChanged();
    }
}

void TemplateStore::makeCurrent(const QString &name)
{
    m_currentName = name;
    if (m_working) {
        m_working->takeTemplate(m_templates.value(name));
    }
    HostSettings::current().setValue(settingsGroup, currentKey, name);
    setModified(false);
    Q_EMIT currentChanged(name);
}

BOMTemplate TemplateStore::workingSettings(const QString &name) const
{
    const QString source = m_currentName.isEmpty() ? name : m_currentName;
    BOMTemplate settings = m_working ? m_working->workingTemplate() : storedTemplate(source);
    settings.setVersion(BOMTemplate::CurrentVersion);
    settings.setLegacySettings(storedTemplate(name).legacySettings());
    settings.setName(name);
    return settings;
}

bool TemplateStore::save(const QString &name)
{
    if (name.isEmpty()) {
        return false;
    }
    BOMTemplate settings = workingSettings(name);
    if (!saveTemplate(settings)) {
        return false;
    }
    list(settings);
    setModified(false);
    return true;
}

bool TemplateStore::createTemplate(const QString &enteredName)
{
    const QString name = enteredName.trimmed();
    if (!mayCreate(name) || !save(name)) {
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
    if (!mayCreate(added.name()) || !saveTemplate(added)) {
        return false;
    }
    list(added);
    return select(added.name());
}

bool TemplateStore::isLegacyImportPending()
{
    return !HostSettings::current().value(settingsGroup, importedKey);
}

void TemplateStore::setLegacyImportDone()
{
    HostSettings::current().setValue(settingsGroup, importedKey, QStringLiteral("true"));
}
