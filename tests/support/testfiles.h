// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <gtest/gtest.h>

/// Writes a file in place, with the folders that it needs. The test fails when that fails. Gives the path.
inline QString writeFile(const QString &path, QByteArrayView content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) &&
                file.write(content.data(), content.size()) == content.size() && file.flush())
        << qPrintable(path) << ": " << qPrintable(file.errorString());
    return path;
}

/// What the file holds, "no file" when it cannot be opened: for files that may rightly be missing.
[[nodiscard]] inline QByteArray contentIfAny(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/// What the file holds. The test fails when it cannot be opened.
[[nodiscard]] inline QByteArray readFile(const QString &path)
{
    EXPECT_TRUE(QFileInfo(path).isReadable()) << qPrintable(path);
    return contentIfAny(path);
}
