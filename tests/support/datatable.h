// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testfiles.h"
#include "support/testpaths.h"

#include <QByteArrayList>

#include <array>
#include <map>
#include <string>
#include <vector>

/// The text with its escapes resolved: \n, \r, \t, \s for a blank, \\ and \xNN for any byte.
inline std::string unescapedField(const QByteArray &field)
{
    static const std::map<char, char> meanings = {
        {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'s', ' '}, {'\\', '\\'}};
    std::string text;
    for (qsizetype at = 0; at < field.size(); ++at) {
        if (field[at] != '\\') {
            text += field[at];
        } else if (const auto meaning = meanings.find(field.at(++at)); meaning != meanings.end()) {
            text += meaning->second;
        } else {
            EXPECT_EQ(field.at(at), 'x') << field.constData();
            text += char(field.mid(at + 1, 2).toInt(nullptr, 16));
            at += 2;
        }
    }
    return text;
}

/// The rows of a table of tests/data: one a line, its fields between bars, without the blanks around them.
/// Lines that begin with "# " are comments.
template<std::size_t Columns>
std::vector<std::array<std::string, Columns>> dataTable(const char *name)
{
    std::vector<std::array<std::string, Columns>> rows;
    const QByteArray text = readFile(QStringLiteral(BOM_SOURCE_DIR "/tests/data/") + QLatin1String(name));
    for (const QByteArray &line : text.split('\n')) {
        const QByteArrayList fields = line.split('|');
        if (line.isEmpty() || line.startsWith("# ")) {
            continue;
        }
        EXPECT_EQ(std::size_t(fields.size()), Columns) << name << ": " << line.constData();
        rows.emplace_back();
        for (std::size_t column = 0; column < Columns; ++column) {
            rows.back()[column] = unescapedField(fields.value(qsizetype(column)).trimmed());
        }
    }
    EXPECT_FALSE(rows.empty()) << name;
    return rows;
}
