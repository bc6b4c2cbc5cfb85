// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The texts of a PDF file's pages, as pdftotext lays them out; one item saying why when it cannot be read.
inline QStringList pdfPages(const QString &path)
{
    QProcess process;
    process.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        return {process.errorString() + QString::fromUtf8(process.readAllStandardError())};
    }
    QStringList pages = QString::fromUtf8(process.readAllStandardOutput()).split(QChar(QChar::FormFeed));
    pages.removeLast();
    return pages;
}
