// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testfiles.h"
#include "support/testpaths.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QDir>
#include <QList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
    QString write(const QString &fileName, QByteArrayView content) const
    {
        return writeFile(path(fileName), content);
    }
    /// A file of tests/data/templates.
    [[nodiscard]] static QString data(const char *fileName)
    {
        return QStringLiteral(BOM_SOURCE_DIR "/tests/data/templates/") + QLatin1String(fileName);
    }

    QTemporaryDir m_folder;
    QList<TemplateMessage> m_messages;
};
