// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplate.h"

#include "templates/clampedint.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <limits>
#include <type_traits>

namespace {
/// A member under its key, and the first document version that has it.
template<typename T>
struct Entry
{
    QLatin1String key;
    T BOMTemplateRecord::*member;
    qint32 since;
};

using Record = BOMTemplateRecord;
constexpr qint32 Always = std::numeric_limits<qint32>::min();

constexpr Entry<bool> BoolEntries[] = {
    {QLatin1String("suppressEmptyCategories"), &Record::suppressEmptyCategories, Always},
    {QLatin1String("groupReferences"), &Record::groupReferences, Always},
    {QLatin1String("fullTextOuputs"), &Record::fullTextOuputs, Always},
    {QLatin1String("AppendNotes"), &Record::AppendNotes, Always},
    {QLatin1String("ManualPrettyLayout"), &Record::ManualPrettyLayout, 3},
    {QLatin1String("AlwaysQuoteRefs"), &Record::AlwaysQuoteRefs, 4},
    {QLatin1String("ExcludeValueField"), &Record::ExcludeValueField, 4},
    {QLatin1String("CaseSensitiveGrouping"), &Record::CaseSensitiveGrouping, 5},
};

constexpr Entry<int> IntEntries[] = {
    {QLatin1String("AsciiQuantityWidth"), &Record::AsciiQuantityWidth, 3},
    {QLatin1String("AsciiRefWidth"), &Record::AsciiRefWidth, 3},
    {QLatin1String("PrettyQuantityWidth"), &Record::PrettyQuantityWidth, 3},
    {QLatin1String("PrettyRefWidth"), &Record::PrettyRefWidth, 3},
};

constexpr Entry<QString> TextEntries[] = {
    {QLatin1String("CSS"), &Record::CSS, Always},
    {QLatin1String("DocumentHeader"), &Record::DocumentHeader, Always},
    {QLatin1String("DocumentFooter"), &Record::DocumentFooter, Always},
    {QLatin1String("PageHeader"), &Record::PageHeader, Always},
    {QLatin1String("PageFooter"), &Record::PageFooter, Always},
};

/// In files that set it only: other templates keep the form that every program with such files knows.
const QString layoutForReadingKey = QStringLiteral("LayoutForReading");

template<typename T, std::size_t count>
void write(const Entry<T> (&entries)[count], const Record &record, QVariantMap &map)
{
    for (const Entry<T> &entry : entries)
        map.insert(entry.key, QVariant::fromValue(record.*entry.member));
}

template<typename T>
T valueOf(const QVariant &value)
{
    if constexpr (std::is_same_v<T, int>) {
        return clampedInt(value);
    } else {
        return value.value<T>();
    }
}

template<typename T, std::size_t count>
void read(const Entry<T> (&entries)[count], const QVariantMap &map, Record &record)
{
    for (const Entry<T> &entry : entries) {
        if (record.version >= entry.since)
            record.*entry.member = valueOf<T>(map.value(entry.key));
    }
}

template<typename List>
QVariantList toVariantList(const List &items)
{
    QVariantList list;
    for (const auto &item : items)
        list.append(item.toVariantMap());
    return list;
}

QList<BOMCategory> categoriesFrom(const QVariantList &list)
{
    QList<BOMCategory> categories;
    for (const QVariant &item : list)
        categories.append(BOMCategory::fromVariantMap(item.toMap()));
    return categories;
}

BOMFields fieldsFrom(const QVariantList &list)
{
    BOMFields fields;
    for (const QVariant &item : list)
        fields.add(BOMField::fromVariantMap(item.toMap()));
    return fields;
}

QString inPrimaryFolder(const QString &fileName)
{
    return fileName.isEmpty() ? QString() : QDir(primaryTemplateFolder()).absoluteFilePath(fileName);
}
} // namespace

BOMTemplate::BOMTemplate()
{
    setDefaults();
}

BOMTemplate::BOMTemplate(const QString &name, const QString &filePath)
{
    setDefaults();
    m_record.name = name;
    m_record.filePath = filePath;
    load();
}

BOMTemplate::BOMTemplate(const QString &name, QSettings *legacySettings)
{
    setDefaults();
    m_record.legacySettings = legacySettings;
    m_record.version = 1;
    setName(name);
    load();
}

std::optional<BOMTemplate> BOMTemplate::fromFile(const QString &filePath, QString *problem)
{
    const auto document = BOMTemplateFile(filePath).readXmlFile(problem);
    if (!document)
        return std::nullopt;
    BOMTemplate settings;
    settings.take(*document);
    settings.m_record.name = QFileInfo(filePath).completeBaseName();
    settings.m_record.filePath = filePath;
    return settings;
}

void BOMTemplate::setDefaults()
{
    Record defaults;
    defaults.fields.setDefaults();
    defaults.categories = BOMCategory::defaults();
    defaults.CSS = defaultStyleSheet();
    defaults.name = m_record.name;
    defaults.filePath = m_record.filePath;
    defaults.legacySettings = m_record.legacySettings;
    m_record = std::move(defaults);
}

void BOMTemplate::setName(const QString &name)
{
    m_record.name = name;
    m_record.filePath = templateFilePath(name);
}

bool BOMTemplate::load()
{
    if (m_record.version == 0)
        return true;
    if (m_record.version != 1)
        return loadFromFile();
    loadFromLegacySettings();
    return true;
}

bool BOMTemplate::loadFromFile()
{
    QString problem;
    if (const auto document = BOMTemplateFile(m_record.filePath).readXmlFile(&problem)) {
        take(*document);
        return true;
    }
    const QString text = tr("The BOM template '%1' could not be loaded.  Default settings loaded.");
    showTemplateMessage({tr("BOM Template Load Failed"), text.arg(m_record.filePath), problem});
    setDefaults();
    return false;
}

void BOMTemplate::take(const BOMTemplateDocument &document)
{
    m_record.version = document.version;
    m_record.fileVersion = document.version;
    fromVariantMap(document.map);
}

void BOMTemplate::loadFromLegacySettings()
{
    const QString fallback = QStringLiteral("Default");
    const QSettings *settings = m_record.legacySettings;
    const bool hasEntry = settings && !m_record.name.isEmpty() && settings->contains(m_record.name);
    if (hasEntry) {
        fromVariantMap(settings->value(m_record.name).toMap());
    } else if (settings && settings->contains(fallback)) {
        fromVariantMap(settings->value(fallback).toMap());
    } else {
        setDefaults();
    }
    m_record.CSS = defaultStyleSheet(); // such entries have no style sheet
    // A template without an entry of its own gets its file now, unless there is one already.
    if (!hasEntry && !QFileInfo::exists(m_record.filePath))
        save();
}

bool BOMTemplate::save()
{
    if (m_record.version != CurrentVersion) {
        qDebug().noquote().nospace()
            << "BOM template error. An attempt to save a BOM template that is an old "
               "version was made. Version:"
            << m_record.version << " Requires: " << CurrentVersion;
        return false;
    }
    QString problem;
    if (!BOMTemplateFile(m_record.filePath).writeXmlFile(toVariantMap(), &problem)) {
        const QString text = tr("The BOM template '%1' was not saved.  An unknown error occurred.");
        showTemplateMessage({tr("BOM Template Save Failed"), text.arg(m_record.name), problem});
        return false;
    }
    m_record.fileVersion = CurrentVersion;
    // Removing the empty key would remove every entry of the group.
    if (m_record.legacySettings && !m_record.name.isEmpty())
        m_record.legacySettings->remove(m_record.name);
    return true;
}

TemplateMessage BOMTemplate::laterVersionMessage() const
{
    const QString text = tr("The BOM template '%1' was written by a later version of this program.  "
                            "Settings that this version does not know are left out.");
    const QString detail = tr("has the format version %1, which is later than %2: settings that this version "
                              "does not know are left out");
    return {tr("BOM Template of a Later Version"), text.arg(m_record.name),
            m_record.filePath + QLatin1String(": ") +
                detail.arg(QString::number(m_record.fileVersion), QString::number(CurrentVersion))};
}

QVariantMap BOMTemplate::toVariantMap() const
{
    QVariantMap map;
    write(BoolEntries, m_record, map);
    write(IntEntries, m_record, map);
    write(TextEntries, m_record, map);
    if (m_record.LayoutForReading)
        map.insert(layoutForReadingKey, true);
    map.insert(QStringLiteral("categories"), toVariantList(m_record.categories));
    map.insert(QStringLiteral("fields"), toVariantList(m_record.fields.fields()));
    return map;
}

void BOMTemplate::fromVariantMap(const QVariantMap &map)
{
    read(BoolEntries, map, m_record);
    read(IntEntries, map, m_record);
    read(TextEntries, map, m_record);
    m_record.LayoutForReading = map.value(layoutForReadingKey).toBool();
    m_record.categories = categoriesFrom(map.value(QStringLiteral("categories")).toList());
    m_record.fields = fieldsFrom(map.value(QStringLiteral("fields")).toList());
    m_record.htmlTemplateFileName =
        inPrimaryFolder(map.value(QStringLiteral("htmlTemplateFileName")).toString());
    m_record.version = CurrentVersion;
}
