// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonelayout.h"

#include <cstring>

QString StandaloneLayout::getinfo(const char *key) const
{
    return key && std::strcmp(key, "FILENAME") == 0 ? m_file : QString();
}

bool StandaloneLayout::isdoctype(const char *type) const
{
    return type && std::strcmp(type, "LYT") == 0;
}

bool StandaloneLayout::writeattachment(const char *, const QString &)
{
    return false;
}

QString StandaloneLayout::attachmenterror() const
{
    return m_file + QStringLiteral(": a board has no place for such a text");
}
