// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/blankingnumberbox.h"

/// Edits a decimal number, or blank, with as many decimals as were typed. Beside the user's decimal point "."
/// is taken, and an exponent; digits are not grouped. A step is one of the last decimal: 0.00047 becomes
/// 0.00048.
class BlankingDoubleSpinBox : public BlankingNumberBox
{
    Q_OBJECT

public:
    using BlankingNumberBox::BlankingNumberBox;

    /// Nothing for blank, and for a stored text that is no number.
    [[nodiscard]] std::optional<double> value() const;
    /// Shows it with as many decimals as tell it from every other.
    void setValue(double value);

protected:
    [[nodiscard]] std::optional<QString> numberOf(const QString &text) const override;
    [[nodiscard]] std::optional<QString> steppedNumber(const QString &number, int steps) const override;
};
