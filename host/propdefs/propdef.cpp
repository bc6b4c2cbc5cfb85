// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/propdefs/propdef.h"

bool DIDX::add(const PROPDEF &definition)
{
    const QString key = definition.name.toCaseFolded();
    if (m_index.contains(key)) {
        return false;
    }
    m_index.insert(key, m_definitions.size());
    m_definitions.append(definition);
    return true;
}

const PROPDEF *DIDX::find(const QString &name) const
{
    const auto found = m_index.constFind(name.toCaseFolded());
    return found == m_index.constEnd() ? nullptr : &m_definitions.at(*found);
}

void DIDX::clear()
{
    m_definitions.clear();
    m_index.clear();
}

QString propTypeKeyword(PropType type)
{
    switch (type) {
    case PropType::YesNo:
        return QStringLiteral("YESNO");
    case PropType::HighLow:
        return QStringLiteral("HIGHLOW");
    case PropType::TrueFalse:
        return QStringLiteral("TRUEFALSE");
    case PropType::String:
        return QStringLiteral("STRING");
    case PropType::Int:
        return QStringLiteral("INT");
    case PropType::Float:
        return QStringLiteral("FLOAT");
    case PropType::Boolean:
    case PropType::Text:
        break;
    }
    return {};
}
