// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Writes JSON text in the order in which it is told, without building the document first. Keys and texts are
/// escaped; layout is the caller's.
class JsonWriter final
{
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    void key(QStringView name);
    void text(QStringView value);
    void number(qint64 value);
    /// A key with its text.
    void entry(QStringView name, QStringView value);
    /// A key with a list of objects, each on a new line; `write` gives the entries of one.
    template<typename Items, typename Write>
    void objects(QStringView name, const Items &items, Write write)
    {
        key(name);
        beginArray();
        for (const auto &item : items) {
            newLine();
            beginObject();
            write(item);
            endObject();
        }
        endArray();
    }
    /// Begins a new line before what comes next.
    void newLine() { m_wantsLine = true; }

    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    void separate();
    void open(char bracket);
    void close(char bracket);
    void append(QStringView text);
    void appendEscaped(char c);

    QByteArray m_bytes;
    bool m_needsComma = false;
    bool m_wantsLine = false;
};
