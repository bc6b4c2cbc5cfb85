// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QByteArray>
#include <QString>

/// The bill of materials as text in columns of fixed widths, for printing and mail.
class BOMAsciiView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMAsciiView(QWidget *parent = nullptr);

    /// Asks for a file, writes it and hands it to the desktop. The user is told when it cannot be written;
    /// the old file then stays.
    void writeOutput();

    /// The whole text in UTF-8; empty without a database.
    [[nodiscard]] QByteArray ascii();

public Q_SLOTS:
    /// Does nothing: the text is made when it is asked for.
    void handleBOMDataUpdate() override;

private:
    [[nodiscard]] QString titleBlock() const;
    [[nodiscard]] QString informationBlock() const;
    /// Quantity, references, fields.
    [[nodiscard]] QList<int> widths() const;
    void appendHeadings(QByteArray &text, const QList<int> &widths) const;
    void appendCategory(QByteArray &text, const QString &category, const QList<int> &widths) const;
};
