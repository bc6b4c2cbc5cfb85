// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>

/// Which command a key stands for. A key is a Qt::Key with its modifiers, as QKeyCombination::toCombined()
/// gives it.
class KEYTRANSLATOR final
{
public:
    /// 0 for a key that stands for none.
    [[nodiscard]] unsigned getcommand(int key) const { return m_commands.value(key); }
    void setcommand(int key, unsigned command) { m_commands.insert(key, command); }
    void clear() { m_commands.clear(); }

private:
    QHash<int, unsigned> m_commands;
};
