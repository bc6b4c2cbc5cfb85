// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testfiles.h"
#include "support/testpaths.h"

#include <QProcess>
#include <QTemporaryDir>

/// The first sheet of an .xlsx file as xlsxtext.py prints it.
inline QByteArray xlsxText(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    const QString file = writeFile(folder.filePath(QStringLiteral("file.xlsx")), bytes);
    QProcess process;
    process.start(QStringLiteral("python3"),
                  {QStringLiteral(BOM_SOURCE_DIR "/tests/report/xlsxtext.py"), file});
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0)
        << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}
