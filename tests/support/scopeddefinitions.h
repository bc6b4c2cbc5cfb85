// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdefsfile.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// A definitions file with these lines, in force while it lives.
class ScopedDefinitions final
{
public:
    explicit ScopedDefinitions(const QByteArray &lines)
    {
        QFile file(m_folder.filePath(QStringLiteral("PROPDEFS.INI")));
        if (file.open(QIODevice::WriteOnly)) {
            file.write("[PROPDEFS]\n" + lines + '\n');
        }
        setpropdefsfile(file.fileName());
    }
    ScopedDefinitions(const ScopedDefinitions &) = delete;
    ScopedDefinitions &operator=(const ScopedDefinitions &) = delete;
    ~ScopedDefinitions() { setpropdefsfile(QString()); }

private:
    QTemporaryDir m_folder;
};
