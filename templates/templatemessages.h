// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// Something the user is to be told about a template.
struct TemplateMessage
{
    QString title;
    QString text;
    /// The cause for logs and the command line: file, line where there is one, what is wrong.
    QString detail;
};

using TemplateMessageHandler = std::function<void(const TemplateMessage &)>;

/// Sets who shows the messages: the desktop program a warning box while its main window exists, the command
/// line a line on standard error. Without a handler a message is a qWarning line.
void setTemplateMessageHandler(TemplateMessageHandler handler);

void showTemplateMessage(const TemplateMessage &message);
