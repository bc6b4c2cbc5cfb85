// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// The moment that the environment variable SOURCE_DATE_EPOCH sets as the clock of reproducible output, in
/// UTC. Nothing when it is not set or is no number of seconds.
[[nodiscard]] std::optional<QDateTime> sourceDateEpoch();

/// The folder that holds the user's files for an application such as "BOM". It need not exist.
[[nodiscard]] QString userDataFolder(const QString &application);

/// The folder of the user's BOM templates. It need not exist.
[[nodiscard]] QString userTemplatesFolder();

/// The file that remembers the window's settings. It need not exist.
[[nodiscard]] QString userSettingsFile();

/// The user's property definitions, PROPDEFS.INI in the configuration folder. It need not exist.
[[nodiscard]] QString userDefinitionsFile();

/// The folder of the user's descriptions of assembly services, see serviceFile(). It need not exist.
[[nodiscard]] QString userServicesFolder();

/// The user's table of property names that mean the same, see loadFieldNames(). It need not exist.
[[nodiscard]] QString userFieldTable();
