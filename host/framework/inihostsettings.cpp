// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/inihostsettings.h"

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
    m_settings.setValue(group + u'/' + key, value);
}
