// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/columntitle.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Words that have vowels and are abbreviations nevertheless.
const char *const abbreviations[] = {"ID",  "URL", "SKU", "IPN", "EAN", "ESR",
                                     "AVL", "AEC", "RS",  "TME", "OEM"};

bool hasVowel(const QString &word)
{
    return std::any_of(word.begin(), word.end(), [](QChar c) { return QStringView(u"AEIOUY").contains(c); });
}

bool isAbbreviation(const QString &word)
{
    return !hasVowel(word) ||
           std::any_of(std::begin(abbreviations), std::end(abbreviations),
                       [&word](const char *known) { return word == QLatin1String(known); });
}

} // namespace

QString columnTitle(const QString &propertyName)
{
    QString name = propertyName;
    // The point of a pseudo-property such as .Placed.
    if (name.startsWith(u'.')) {
        name.remove(0, 1);
    }
    QStringList words = name.replace(u'_', u' ').simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty()) {
        return propertyName;
    }
    const bool isUpperCase = propertyName == propertyName.toUpper();
    for (QString &word : words) {
        if (isUpperCase && !isAbbreviation(word)) {
            word = word.toLower();
        }
    }
    words.first()[0] = words.first()[0].toUpper();
    return words.join(u' ');
}
