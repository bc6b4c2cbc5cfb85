// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A reference or field value as a key: texts that differ only in letter case are one key unless the rule,
/// which the parts database gives it from the template, is case-sensitive.
class BomString : public QString
{
public:
    BomString() = default;
    explicit BomString(const QString &text, Qt::CaseSensitivity caseRule = Qt::CaseSensitive)
        : QString(text)
        , m_caseRule(caseRule)
    {
    }
    BomString(const BomString &) = default;
    BomString(BomString &&) = default;
    BomString &operator=(const BomString &) = default;
    BomString &operator=(BomString &&) = default;
    virtual ~BomString();

    [[nodiscard]] Qt::CaseSensitivity caseRule() const { return m_caseRule; }

    /// Negative, 0 or positive, under the rule of the left text.
    [[nodiscard]] int order(const QString &other) const { return compare(other, m_caseRule); }

    friend bool operator<(const BomString &left, const BomString &right) { return left.order(right) < 0; }
    friend bool operator>(const BomString &left, const BomString &right) { return right < left; }
    friend bool operator<=(const BomString &left, const BomString &right) { return !(right < left); }
    friend bool operator>=(const BomString &left, const BomString &right) { return !(left < right); }
    friend bool operator==(const BomString &left, const BomString &right) { return left.order(right) == 0; }
    friend bool operator!=(const BomString &left, const BomString &right) { return left.order(right) != 0; }

private:
    Qt::CaseSensitivity m_caseRule = Qt::CaseSensitive;
};
