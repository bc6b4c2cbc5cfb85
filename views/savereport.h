// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QWidget;

/// What the user is asked when a report is to be saved.
struct SaveRequest
{
    QString caption;
    /// The proposed file.
    QString path;
    QString filter;
};

/// Asks for a file, writes what `content` makes and hands the file to the desktop. The user is told when it
/// cannot be written; the old file then stays. Returns the file, empty when none was written.
QString saveReport(QWidget *parent, const SaveRequest &request, const std::function<QByteArray()> &content);
