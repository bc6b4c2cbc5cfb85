// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text with U+FFFD in place of what XML 1.0 lacks: control characters other than tab, line feed and
/// carriage return, surrogates without their other half, U+FFFE and U+FFFF. Clean text is not copied.
[[nodiscard]] QString xmlText(const QString &text);

/// Escaped for the content of an element or an attribute in double quotes, and cleaned as by xmlText(). Text
/// that needs neither is not copied.
[[nodiscard]] QString escapedXmlText(const QString &text);

/// ` name="value"`, escaped; nothing for an empty value.
[[nodiscard]] QString xmlAttribute(const QString &name, const QString &value);

/// A style sheet for the content of a style element, cleaned as by xmlText(). It means the same to readers of
/// XML and of HTML, and cannot end the element: its markup characters become escapes of CSS. It fetches
/// nothing, see css::withoutLoads(). A sheet without such things is not copied.
[[nodiscard]] QString styleElementText(const QString &css);
