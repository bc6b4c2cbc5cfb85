// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/storedconversion.h"

#include "core/pendingedit.h"
#include "core/propertytypes.h"
#include "host/framework/hostui.h"

#include <cmath>

namespace {

struct States
{
    QLatin1String upper;
    QLatin1String lower;
};

/// Nothing for a type that is not one of two states.
std::optional<States> statesOf(PropType type)
{
    switch (type) {
    case PropType::YesNo:
    case PropType::Boolean:
        return States{QLatin1String("Yes"), QLatin1String("No")};
    case PropType::HighLow:
        return States{QLatin1String("High"), QLatin1String("Low")};
    case PropType::TrueFalse:
        return States{QLatin1String("True"), QLatin1String("False")};
    case PropType::String:
    case PropType::Text:
    case PropType::Int:
    case PropType::Float:
        break;
    }
    return std::nullopt;
}

bool isOneOf(const QString &text, QLatin1String shown, QLatin1Char stored)
{
    return text.compare(shown, Qt::CaseInsensitive) == 0 || text == stored;
}

QString wholeNumber(QString text)
{
    return text.remove(u' ').remove(u'.').remove(u',');
}

} // namespace

StoredConversion::StoredConversion(std::optional<PropType> type)
    : m_type(type)
    , m_locale(HostUi::current().locale())
{
}

bool StoredConversion::accepts(const QString &shown) const
{
    if (!m_type || shown.isEmpty()) {
        return true;
    }
    if (const auto states = statesOf(*m_type)) {
        return isOneOf(shown, states->upper, QLatin1Char('1')) ||
               isOneOf(shown, states->lower, QLatin1Char('0'));
    }
    if (*m_type == PropType::Int) {
        return isWholeNumber(shown);
    }
    bool isNumber = true;
    if (*m_type == PropType::Float) {
        isNumber = std::isfinite((*this)(shown).toDouble(&isNumber)) && isNumber;
    }
    return isNumber;
}

bool StoredConversion::isWholeNumber(const QString &shown) const
{
    bool isNumber = false;
    const qint64 stored = (*this)(shown).toLongLong(&isNumber);
    if (!isNumber) {
        return false;
    }
    // The stored text is without points and commas: 1.5 must not become 15.
    QString text = shown;
    text.remove(u' ').replace(m_locale.negativeSign(), QStringLiteral("-"));
    bool isPlain = false;
    bool isGrouped = false;
    return (text.toLongLong(&isPlain) == stored && isPlain) ||
           (m_locale.toLongLong(text, &isGrouped) == stored && isGrouped);
}

QString StoredConversion::operator()(const QString &shown) const
{
    if (!m_type || shown.isEmpty()) {
        return shown;
    }
    if (const auto states = statesOf(*m_type)) {
        return isOneOf(shown, states->upper, QLatin1Char('1')) ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (*m_type != PropType::Int && *m_type != PropType::Float) {
        return shown;
    }
    // Swedish and others have a minus sign of their own, perhaps with a mark of direction.
    QString stored = shown;
    stored.replace(m_locale.negativeSign(), QStringLiteral("-"));
    if (*m_type == PropType::Int) {
        return wholeNumber(stored);
    }
    if (m_locale.decimalPoint() != u'.') {
        stored.replace(m_locale.decimalPoint(), QStringLiteral("."));
    }
    return stored;
}

QString storedAssignment(const PropertyTypes &types, const QString &property, const QString &shown)
{
    return shown == removalText() ? shown : StoredConversion(types.type(property))(shown);
}
