// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A templates folder of its own and the messages that were shown.
class TemplateFixture : public testing::Test
{
protected:
    TemplateFixture()
    {
        setTemplatePaths({m_folder.path()});
        setTemplateMessageHandler([this](const TemplateMessage &message) { m_messages.append(message); });
    }

    ~TemplateFixture() override
    {
        setTemplateMessageHandler({});
        setTemplatePaths({});
    }

    [[nodiscard]] QString path(const QString &fileName) const { return m_folder.filePath(fileName); }

    QString write(const QString &fileName, const QByteArray &content) const
    {
        QFile file(path(fileName));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    [[nodiscard]] static QByteArray read(const QString &filePath)
    {
        QFile file(filePath);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(filePath);
        return file.readAll();
    }

    QTemporaryDir m_folder;
    QList<TemplateMessage> m_messages;
};
