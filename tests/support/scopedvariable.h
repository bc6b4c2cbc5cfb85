// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Gives a variable of the environment another value while it lives.
class ScopedVariable final
{
public:
    ScopedVariable(const char *name, const QByteArray &value)
        : m_name(name)
        , m_isSet(qEnvironmentVariableIsSet(name))
        , m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;
    ~ScopedVariable() { m_isSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }

private:
    const char *m_name;
    bool m_isSet;
    QByteArray m_before;
};
