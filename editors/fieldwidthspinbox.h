// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSpinBox>

/// A limit in characters, where 0 is none.
class FieldWidthSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit FieldWidthSpinBox(QWidget *parent = nullptr);

    /// The limit of a record. One outside of the range stays what it is as long as nobody changes it.
    void setLimit(int limit);
    [[nodiscard]] int limit() const;

protected:
    [[nodiscard]] int valueFromText(const QString &text) const override;
    QValidator::State validate(QString &input, int &position) const override;
    void fixup(QString &input) const override;

private:
    [[nodiscard]] QString withoutUnit(const QString &text) const;

    int m_limit = 0;
    int m_shown = 0;
};
