// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QByteArray>
#include <QString>

/// The bill of materials as comma-separated text.
class BOMCsvView final : public BOMView
{
    Q_OBJECT

public:
    /// `full`: a row per part without quantity, else a row per line.
    BOMCsvView(QWidget *parent, bool full);

    /// Asks for a file, writes it and opens it. The user is told when that fails.
    void writeOutput();

    /// Writes a named file. On failure the old file stays, and `reason` takes the cause.
    [[nodiscard]] bool writeFile(const QString &path, QString *reason);

    /// The whole text in UTF-8; empty without a database.
    [[nodiscard]] QByteArray csv();

public Q_SLOTS:
    /// Does nothing: the text is made when it is asked for.
    void handleBOMDataUpdate() override;

private:
    bool m_full = false;
};
