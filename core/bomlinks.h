// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <optional>

/// The property that holds the links of a part: NAME=URL items with commas between, URLs percent-encoded.
[[nodiscard]] QString bomLinksProperty();

/// The links by the name of the property that they belong to. Items without a name or "=" are passed over.
[[nodiscard]] QMap<QString, QString> readBOMLinks(const QString &text);

/// The same as text, in the order of the names; links without a URL are left out. Nothing when a name is
/// empty or holds "," or "=".
[[nodiscard]] std::optional<QString> bomLinksText(const QMap<QString, QString> &links);
