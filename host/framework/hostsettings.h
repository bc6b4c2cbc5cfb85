// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSettings>
#include <QString>

#include <functional>
#include <optional>

/// What the program remembers between runs: texts under a key in a group. A desktop program installs settings
/// that are kept (IniHostSettings); before that they are forgotten with the process, which is what tests and
/// the command line want.
class HostSettings
{
public:
    HostSettings() = default;
    HostSettings(const HostSettings &) = delete;
    HostSettings &operator=(const HostSettings &) = delete;
    virtual ~HostSettings() = default;

    /// Nothing for a key that was never set.
    [[nodiscard]] virtual std::optional<QString> value(const QString &group, const QString &key) const = 0;
    /// Keeps copies: the caller's strings may be literals of a library that is unloaded before the settings
    /// end.
    virtual void setValue(const QString &group, const QString &key, const QString &value) = 0;
    /// Reads what other processes have set since.
    virtual void reload() {}
    /// Sets what `changed` makes of the present value, empty for none. No other process that changes a value
    /// comes in between.
    virtual void change(const QString &group, const QString &key,
                        const std::function<QString(const QString &)> &changed);

    /// The installed ones, else ones in memory.
    [[nodiscard]] static HostSettings &current();

    /// Installs `settings`, which stay owned by the caller; null goes back to the ones in memory.
    static void install(HostSettings *settings);
};

/// Settings that live as long as the object.
class MemoryHostSettings final : public HostSettings
{
public:
    [[nodiscard]] std::optional<QString> value(const QString &group, const QString &key) const override;
    void setValue(const QString &group, const QString &key, const QString &value) override;

private:
    QHash<QString, QHash<QString, QString>> m_groups;
};

/// Settings in an INI file, one section a group. The file is made when something is set for the first time.
class IniHostSettings final : public HostSettings
{
public:
    explicit IniHostSettings(const QString &path);

    [[nodiscard]] std::optional<QString> value(const QString &group, const QString &key) const override;
    void setValue(const QString &group, const QString &key, const QString &value) override;
    void reload() override { m_settings.sync(); }
    void change(const QString &group, const QString &key,
                const std::function<QString(const QString &)> &changed) override;

private:
    QSettings m_settings;
};
