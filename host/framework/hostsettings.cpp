// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostsettings.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace {

HostSettings *theSettings = nullptr;
/// How long a process waits for others that change a value; they take some milliseconds.
constexpr int patienceMilliseconds = 2000;

/// A string of its own: a literal lies in the library that it comes from, and the settings outlive that.
QString copied(const QString &text)
{
    return QString(text.constData(), text.size());
}

} // namespace

HostSettings &HostSettings::current()
{
    static MemoryHostSettings memory;
    return theSettings ? *theSettings : memory;
}

void HostSettings::install(HostSettings *settings)
{
    theSettings = settings;
}

void HostSettings::change(const QString &group, const QString &key,
                          const std::function<QString(const QString &)> &changed)
{
    setValue(group, key, changed(value(group, key).value_or(QString())));
}

std::optional<QString> MemoryHostSettings::value(const QString &group, const QString &key) const
{
    const auto entries = m_groups.constFind(group);
    if (entries == m_groups.cend() || !entries->contains(key)) {
        return std::nullopt;
    }
    return entries->value(key);
}

void MemoryHostSettings::setValue(const QString &group, const QString &key, const QString &value)
{
    m_groups[copied(group)].insert(copied(key), copied(value));
}

IniHostSettings::IniHostSettings(const QString &path)
    : m_settings(path, QSettings::IniFormat)
{
}

std::optional<QString> IniHostSettings::value(const QString &group, const QString &key) const
{
    const QString path = group + u'/' + key;
    return m_settings.contains(path) ? std::optional(m_settings.value(path).toString()) : std::nullopt;
}

void IniHostSettings::setValue(const QString &group, const QString &key, const QString &value)
{
    m_settings.setValue(group + u'/' + key, copied(value));
}

void IniHostSettings::change(const QString &group, const QString &key,
                             const std::function<QString(const QString &)> &changed)
{
    const QString path = m_settings.fileName();
    (void)QDir().mkpath(QFileInfo(path).path());
    // QSettings has a lock of its own, ".lock", while it writes. This one is held from the reading on.
    QLockFile lock(path + QStringLiteral(".change"));
    // Where none can be had the value is changed all the same.
    (void)lock.tryLock(patienceMilliseconds);
    reload();
    HostSettings::change(group, key, changed);
    m_settings.sync();
}
