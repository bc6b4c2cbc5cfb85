// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applndialog.h"

#include <memory>

namespace Ui {
class NewTemplateDialog;
}

/// Asks for the name of a new template.
class NewTemplateDialog final : public APPLNDIALOG
{
    Q_OBJECT

public:
    explicit NewTemplateDialog(QWidget *parent = nullptr);
    ~NewTemplateDialog() override;

    /// As the user entered it.
    [[nodiscard]] QString name() const;

private:
    std::unique_ptr<Ui::NewTemplateDialog> m_ui;
};
