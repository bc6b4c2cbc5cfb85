// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatemessages.h"

#include <QDebug>

namespace {
TemplateMessageHandler &installed()
{
    static TemplateMessageHandler handler;
    return handler;
}
} // namespace

void setTemplateMessageHandler(TemplateMessageHandler handler)
{
    installed() = std::move(handler);
}

void showTemplateMessage(const TemplateMessage &message)
{
    if (installed()) {
        installed()(message);
        return;
    }
    qWarning().noquote().nospace() << message.title << ": " << message.text << " (" << message.detail << ')';
}
