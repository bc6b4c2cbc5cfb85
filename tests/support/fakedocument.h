// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applndocument.h"

#include <QHash>

/// A document with what a test puts into it.
class FakeDocument final : public APPLNDOCUMENT
{
public:
    QHash<QByteArray, QString> info;
    QHash<QByteArray, QByteArray> properties;
    QHash<QByteArray, QString> attachments;
    char kind = 's';
    QByteArray type = "DSN";
    /// Not empty: attachments cannot be written, and this is why.
    QString attachmentProblem;

    QString getinfo(const char *key) const override { return info.value(key); }
    QByteArray getproperty(const char *name) const override { return properties.value(name); }
    char kindcode() const override { return kind; }
    bool isdoctype(const char *asked) const override { return type == asked; }
    QString readattachment(const char *name) const override { return attachments.value(name); }
    ATTACHMENTWRITE writeattachment(const char *name, const QString &before, const QString &text) override
    {
        if (!attachmentProblem.isEmpty()) {
            return ATTACHMENTWRITE::Failed;
        }
        if (attachments.value(name) != before) {
            return ATTACHMENTWRITE::Changed;
        }
        attachments[name] = text;
        return ATTACHMENTWRITE::Written;
    }
    QString attachmenterror() const override { return attachmentProblem; }
};
