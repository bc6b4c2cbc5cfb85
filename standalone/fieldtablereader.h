// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "standalone/fieldnames.h"

#include <QSet>

/// Reads one table into the names.
class FieldTableReader final
{
public:
    FieldTableReader(FieldNames *names, const QString &file);

    void read(const QByteArray &text);
    /// What is wrong, "FILE:LINE: text" each.
    [[nodiscard]] QStringList problems() const;

private:
    void readLine(QStringView line);
    void readHeading(QStringView line);
    void readName(QStringView line);
    void addName(const QString &name, bool isCertain);
    void addWord(const QString &name);
    void addPattern(const QString &name, bool isCertain);
    void takeOver(const QString &plain);
    void fail(const QString &text);

    FieldNames *m_names;
    QString m_file;
    std::size_t m_table;
    int m_line = 0;
    std::optional<std::size_t> m_meaning;
    /// The heading cannot be read; its names are passed over with it.
    bool m_isPassedOver = false;
    /// The plain names that this table has.
    QSet<QString> m_met;
    /// Names that mean nothing, with their lines.
    QHash<QString, int> m_removed;
    std::size_t m_entries = 0;
    std::size_t m_patterns = 0;
    qsizetype m_count = 0;
    QStringList m_problems;
};
