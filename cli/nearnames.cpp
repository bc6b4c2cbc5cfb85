// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/nearnames.h"

#include "cli/texts.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype mostNames = 3;
/// What is longer is no name that somebody typed; comparing takes the square of it.
constexpr qsizetype longestName = 200;

QString compared(const QString &name)
{
    QString text = name.trimmed().toCaseFolded();
    while (text.startsWith(u'-')) {
        text.remove(0, 1);
    }
    return text;
}

/// How many letters are added, missing, others or swapped with the next one; each row of the table depends on
/// the two before.
qsizetype distance(const QString &a, const QString &b)
{
    std::array<std::vector<qsizetype>, 3> rows;
    rows.fill(std::vector<qsizetype>(size_t(b.size()) + 1));
    auto &[older, before, row] = rows;
    for (size_t j = 0; j < row.size(); ++j) {
        row[j] = qsizetype(j);
    }
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(older, before);
        std::swap(before, row);
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = size_t(j);
            const bool isEqual = a[i - 1] == b[j - 1];
            row[at] = std::min({before[at] + 1, row[at - 1] + 1, before[at - 1] + (isEqual ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[at] = std::min(row[at], older[at - 2] + 1);
            }
        }
    }
    return row.back();
}

} // namespace

QStringList nearNames(const QString &typed, const QStringList &known)
{
    constexpr qsizetype mostLetters = 3;
    const QString wanted = compared(typed);
    if (wanted.size() > longestName) {
        return {};
    }
    const qsizetype most = std::min(wanted.size() / 3, mostLetters);
    std::vector<std::pair<qsizetype, QString>> found;
    for (const QString &name : known) {
        const QString other = compared(name);
        if (wanted.size() > 1 && other.startsWith(wanted)) {
            found.emplace_back(1, name);
        } else if (const qsizetype more = other.size() - wanted.size(); more <= most && -more <= most) {
            found.emplace_back(distance(wanted, other), name);
        }
    }
    std::erase_if(found, [most](const auto &name) { return name.first > std::max(most, qsizetype(1)); });
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QStringList names;
    for (const auto &[letters, name] : found) {
        if (names.size() < mostNames && letters == found.front().first) {
            names << name;
        }
    }
    return names;
}

QString didYouMean(const QString &typed, const QStringList &known)
{
    const QStringList names = nearNames(typed, known);
    return names.isEmpty() ? QString()
                           : CommandLine::tr("; did you mean \"%1\"?")
                                 .arg(names.join(CommandLine::tr("\" or \"", "between names")));
}
