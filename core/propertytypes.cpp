// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/propertytypes.h"

#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"

#include <QDebug>
#include <QLocale>
#include <QStringList>

namespace {

QString flagText(const QString &stored, QLatin1String set, QLatin1String unset)
{
    return stored == u'1' ? set : unset;
}

/// A decimal point may be stored as a comma, too.
QString decimalText(const QString &stored, const QString &decimalPoint)
{
    if (!stored.contains(u',') && (decimalPoint == u'.' || !stored.contains(u'.'))) {
        return stored;
    }
    QString shown = stored;
    shown.replace(u',', u'.');
    bool isNumber = false;
    (void)shown.toDouble(&isNumber);
    return isNumber ? shown.replace(u'.', decimalPoint) : stored;
}

} // namespace

void PropertyTypes::load()
{
    ++m_generation;
    m_definitions.clear();
    QStringList problems;
    if (!load_defaultdefs(&m_definitions, nullptr, &problems)) {
        qDebug().noquote() << "PropertyTypes::load" << problems.join(QLatin1String("; "));
    }
}

std::optional<PropType> PropertyTypes::type(const QString &name) const
{
    const PROPDEF *definition = m_definitions.find(name);
    return definition ? std::optional(definition->type) : std::nullopt;
}

QStringList PropertyTypes::keywords(const QString &name) const
{
    const PROPDEF *definition = m_definitions.find(name);
    return definition ? definition->getkwdprops() : QStringList();
}

bool PropertyTypes::isNumeric(const QString &name) const
{
    const auto found = type(name);
    return found == PropType::Int || found == PropType::Float;
}

bool hasTwoStates(PropType type)
{
    return type == PropType::YesNo || type == PropType::Boolean || type == PropType::HighLow ||
           type == PropType::TrueFalse;
}

DisplayConversion::DisplayConversion(std::optional<PropType> type)
    : m_type(type)
{
    if (m_type == PropType::Float) {
        m_decimalPoint = HostUi::current().locale().decimalPoint();
    }
}

QString DisplayConversion::operator()(const QString &stored) const
{
    if (!m_type || stored.isEmpty()) {
        return stored;
    }
    switch (*m_type) {
    case PropType::YesNo:
    case PropType::Boolean:
        return flagText(stored, QLatin1String("Yes"), QLatin1String("No"));
    case PropType::HighLow:
        return flagText(stored, QLatin1String("High"), QLatin1String("Low"));
    case PropType::TrueFalse:
        return flagText(stored, QLatin1String("True"), QLatin1String("False"));
    case PropType::Float:
        return decimalText(stored, m_decimalPoint);
    case PropType::String:
    case PropType::Text:
    case PropType::Int:
        break;
    }
    return stored;
}
