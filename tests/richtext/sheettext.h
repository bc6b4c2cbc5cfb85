// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testpaths.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QString>

[[nodiscard]] inline QString u(const char *text)
{
    return QString::fromUtf8(text);
}

[[nodiscard]] inline QString defaultSheet()
{
    QFile file(u(BOM_SOURCE_DIR "/resources/html/userstyle.css"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}
