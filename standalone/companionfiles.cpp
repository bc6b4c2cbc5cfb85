// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/companionfiles.h"

#include "standalone/loadeddesign.h"

#include <QFileInfo>

#include <utility>

namespace {

QString beside(const LoadedDesign &design, const QString &suffix)
{
    const QFileInfo file(design.design().info().file);
    if (file.suffix().compare(QLatin1String("kicad_sch"), Qt::CaseInsensitive) != 0) {
        return {};
    }
    return file.path() + u'/' + file.completeBaseName() + suffix;
}

} // namespace

QString boardFileOf(const LoadedDesign &design)
{
    return beside(design, QStringLiteral(".kicad_pcb"));
}

QString projectFileOf(const LoadedDesign &design)
{
    return beside(design, QStringLiteral(".kicad_pro"));
}

void FileLook::setFile(const QString &path)
{
    m_path = path;
    m_known = fingerprint();
}

bool FileLook::hasChanged()
{
    const auto before = std::exchange(m_known, fingerprint());
    return before != m_known;
}

std::optional<designs::FileFingerprint> FileLook::fingerprint() const
{
    return m_path.isEmpty() ? std::nullopt : designs::fingerprintOfFile(m_path);
}
