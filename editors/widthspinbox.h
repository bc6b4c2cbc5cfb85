// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSpinBox>

/// A spin box in a list that scrolls: the wheel turns it only while it has the focus. A typed number counts
/// when it is complete.
class WidthSpinBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit WidthSpinBox(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
