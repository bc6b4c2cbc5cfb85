// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/blankingnumberbox.h"

/// Edits a whole number of 64 bits, or blank. A decimal that is whole, such as 1.0, becomes the whole number;
/// digits are not grouped.
class BlankingSpinBox : public BlankingNumberBox
{
    Q_OBJECT

public:
    using BlankingNumberBox::BlankingNumberBox;

    /// Nothing for blank, and for a stored text that is no such number.
    [[nodiscard]] std::optional<qint64> value() const;
    void setValue(qint64 value) { setText(QString::number(value)); }

protected:
    [[nodiscard]] std::optional<QString> numberOf(const QString &text) const override;
    [[nodiscard]] std::optional<QString> steppedNumber(const QString &number, int steps) const override;
};
