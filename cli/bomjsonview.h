// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "views/bomview.h"

#include <QByteArray>

class JsonWriter;

/// The bill of materials as JSON, for programs.
class BOMJsonView final : public BOMView
{
    Q_OBJECT

public:
    explicit BOMJsonView(QWidget *parent = nullptr);

    /// The whole document in UTF-8; empty without a database.
    [[nodiscard]] QByteArray json();

public Q_SLOTS:
    /// Does nothing: the document is made when it is asked for.
    void handleBOMDataUpdate() override;

private:
    void writeCategory(JsonWriter &json, const QString &category) const;
    void writeLine(JsonWriter &json, BomLine line) const;
};
