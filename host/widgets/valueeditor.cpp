// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/valueeditor.h"

void ValueEditor::setText(const QString &text)
{
    m_held = text;
    showText(text);
    selectText();
}

bool ValueEditor::enterText(const QString &text)
{
    const std::optional<QString> value = text == m_held ? text : valueOf(text);
    if (value) {
        showText(*value);
    }
    return value.has_value();
}

std::optional<QString> ValueEditor::acceptedText() const
{
    const QString shown = shownText();
    return shown == m_held ? shown : typedValueOf(shown);
}
