// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// The names of the assembly services that are described by files, in alphabetical order: those that come
/// with the program and the user's own, see userServicesFolder().
[[nodiscard]] QStringList serviceNames();

/// The file that describes a service, the user's one before the program's; letter case does not count. Empty
/// for an unknown name.
[[nodiscard]] QString serviceFile(const QString &name);

/// The content of such a file. Nothing, with "FILE: reason" in `problem`, when it cannot be read.
[[nodiscard]] std::optional<QByteArray> serviceText(const QString &path, QString *problem);
