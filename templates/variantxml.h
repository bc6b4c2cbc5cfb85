// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

class QXmlStreamReader;
class QXmlStreamWriter;

/// How deep maps and lists may stand inside each other; deeper documents are refused.
inline constexpr int MaximumXmlNesting = 32;

/// Writes a typed value. A map writes its entries in key order and no element of its own; a string is an
/// element with "Type" and text; a list has one "Element" per item; anything else that reads as a string has
/// "Type" and "Value". An empty `name` stands for "Element". A value that is no string at all gives a debug
/// line and no element. The caller asks the writer for errors.
void writeXML(const QVariant &value, QXmlStreamWriter &writer, const QString &name);

/// Reads the entries of the element that the reader stands on into `map` and leaves the reader on its end
/// tag. The element itself is stored too, as a text: the characters up to its first entry.
/// On failure, false: the reader then has an error that says what was wrong and where.
[[nodiscard]] bool readXML(QXmlStreamReader &reader, QVariantMap &map);
