// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

#include <optional>

/// Reads numbers as people and files write them: in the user's format, else with a decimal point. Marks
/// between thousands are refused in both, because "1.234" would be two numbers.
class NumberReader final
{
public:
    explicit NumberReader(const QLocale &locale);

    /// Nothing for a text that is no finite number.
    [[nodiscard]] std::optional<double> read(const QString &text) const;

private:
    QLocale m_locale;
};
