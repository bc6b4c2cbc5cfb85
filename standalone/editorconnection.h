// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

/// A connection to a program that listens on this machine, closed when it is destroyed. Nothing is read from
/// it.
class EditorConnection final
{
public:
    /// Connects to that port of 127.0.0.1; gives up after a tenth of a second.
    explicit EditorConnection(quint16 port);
    EditorConnection(const EditorConnection &) = delete;
    EditorConnection &operator=(const EditorConnection &) = delete;
    ~EditorConnection();

    [[nodiscard]] bool isOpen() const { return m_socket >= 0; }
    /// False when not all of it could be handed over at once.
    [[nodiscard]] bool send(QByteArrayView bytes);

private:
    void close();

    int m_socket = -1;
};
