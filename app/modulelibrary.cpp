// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/modulelibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

struct ModuleTexts
{
    Q_DECLARE_TR_FUNCTIONS(ModuleLibrary)
};

} // namespace

ModuleLibrary::~ModuleLibrary()
{
    unload();
}

QStringList ModuleLibrary::candidates()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    QStringList paths;
    for (const QString &folder :
         {QStringLiteral("."), QStringLiteral("../lib/bom"), QStringLiteral("../lib")}) {
        paths << QDir::cleanPath(programs.filePath(folder + QStringLiteral("/libbom.so")));
    }
    return paths;
}

bool ModuleLibrary::load(const QString &path, APPLNPROCESS *process)
{
    unload();
    if (!QFileInfo::exists(path)) {
        // QLibrary tries further names for a missing file, and its error message would name those.
        m_error = path + QStringLiteral(": ") + ModuleTexts::tr("there is no such file");
        return false;
    }
    m_library.setFileName(QFileInfo(path).absoluteFilePath());
    if (!m_library.load()) {
        m_error = m_library.errorString();
        return false;
    }
    const auto create = reinterpret_cast<CREATEMODULEINSTANCE>(m_library.resolve(MODULE_CREATE));
    m_delete = reinterpret_cast<DELETEMODULEINSTANCE>(m_library.resolve(MODULE_DELETE));
    m_module = create && m_delete ? create(process) : nullptr;
    if (!m_module) {
        m_error = path + QStringLiteral(": ") +
                  (create && m_delete ? ModuleTexts::tr("the module cannot be started")
                                      : ModuleTexts::tr("this is no module"));
        unload();
        return false;
    }
    return true;
}

bool ModuleLibrary::loadFirst(APPLNPROCESS *process)
{
    const QStringList paths = candidates();
    const auto found = std::find_if(paths.cbegin(), paths.cend(),
                                    [](const QString &path) { return QFileInfo::exists(path); });
    if (found == paths.cend()) {
        m_error = ModuleTexts::tr("the module is in none of these places: %1")
                      .arg(paths.join(QStringLiteral(", ")));
        return false;
    }
    return load(*found, process);
}

void ModuleLibrary::unload()
{
    if (APPLNMODULE *module = std::exchange(m_module, nullptr)) {
        m_delete(module);
    }
    m_delete = nullptr;
    if (m_library.isLoaded()) {
        m_library.unload();
    }
}
