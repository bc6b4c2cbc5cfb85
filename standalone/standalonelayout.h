// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applndocument.h"

/// The board file beside the design, as the document that a modification is told about.
class StandaloneLayout final : public APPLNDOCUMENT
{
    Q_OBJECT

public:
    explicit StandaloneLayout(QString file)
        : m_file(std::move(file))
    {
    }

    /// Only FILENAME.
    [[nodiscard]] QString getinfo(const char *key) const override;
    [[nodiscard]] QByteArray getproperty(const char *) const override { return {}; }
    [[nodiscard]] char kindcode() const override { return 'b'; }
    [[nodiscard]] bool isdoctype(const char *type) const override;
    [[nodiscard]] QString readattachment(const char *) const override { return {}; }
    bool writeattachment(const char *name, const QString &text) override;
    [[nodiscard]] QString attachmenterror() const override;

private:
    QString m_file;
};
