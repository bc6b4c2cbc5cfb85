// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdefsfile.h"
#include "support/testfiles.h"

#include <QByteArray>
#include <QTemporaryDir>

/// A definitions file with these lines, in force while it lives.
class ScopedDefinitions final
{
public:
    explicit ScopedDefinitions(const QByteArray &lines)
    {
        const QString path = m_folder.filePath(QStringLiteral("PROPDEFS.INI"));
        setpropdefsfile(writeFile(path, "[PROPDEFS]\n" + lines + '\n'));
    }
    ScopedDefinitions(const ScopedDefinitions &) = delete;
    ScopedDefinitions &operator=(const ScopedDefinitions &) = delete;
    ~ScopedDefinitions() { setpropdefsfile(QString()); }

private:
    QTemporaryDir m_folder;
};
