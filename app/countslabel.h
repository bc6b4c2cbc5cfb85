// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>

/// Texts in a row, separated by commas. Where there is no room for all, the last ones are left out as a
/// whole and dots stand for them.
class CountsLabel final : public QWidget
{
public:
    explicit CountsLabel(QWidget *parent = nullptr);

    void setTexts(const QStringList &texts);
    [[nodiscard]] QString text() const { return m_texts.join(QStringLiteral(", ")); }
    /// What there is room for.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QSize sizeOf(const QString &text) const;

    QStringList m_texts;
};
