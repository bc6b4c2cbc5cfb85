// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnmodule.h"

#include <QLibrary>
#include <QString>
#include <QStringList>

/// The library of a module, loaded at run time, with at most one instance of the module.
class ModuleLibrary final
{
public:
    ModuleLibrary() = default;
    ModuleLibrary(const ModuleLibrary &) = delete;
    ModuleLibrary &operator=(const ModuleLibrary &) = delete;
    /// Deletes the instance and unloads the library.
    ~ModuleLibrary();

    /// Where the module "BOM" is looked for: beside the program, then in the library folders next to it.
    [[nodiscard]] static QStringList candidates();

    /// Loads the library and makes the instance for the process, which must outlive it. On failure error()
    /// says why.
    [[nodiscard]] bool load(const QString &path, APPLNPROCESS *process);
    /// The same with the first of the candidates that exists.
    [[nodiscard]] bool loadFirst(APPLNPROCESS *process);
    [[nodiscard]] const QString &error() const { return m_error; }

    /// Null before load() and after unload().
    [[nodiscard]] APPLNMODULE *module() const { return m_module; }

    /// Nothing that the library made may be left but the instance.
    void unload();

private:
    QLibrary m_library;
    DELETEMODULEINSTANCE m_delete = nullptr;
    APPLNMODULE *m_module = nullptr;
    QString m_error;
};
