// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/hostsettings.h"

#include <QSettings>

/// Settings in an INI file, one section a group. The file is made when something is set for the first time.
class IniHostSettings final : public HostSettings
{
public:
    explicit IniHostSettings(const QString &path);

    [[nodiscard]] std::optional<QString> value(const QString &group, const QString &key) const override;
    void setValue(const QString &group, const QString &key, const QString &value) override;

private:
    QSettings m_settings;
};
