// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostsettings.h"

namespace {
HostSettings *theSettings = nullptr;
}

HostSettings &HostSettings::current()
{
    static MemoryHostSettings memory;
    return theSettings ? *theSettings : memory;
}

void HostSettings::install(HostSettings *settings)
{
    theSettings = settings;
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
    m_groups[group].insert(key, value);
}
