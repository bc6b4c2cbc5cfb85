// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/fieldnames.h"

#include "host/framework/oneof.h"

#include <algorithm>
#include <array>

namespace {

/// Longer names mean nothing: people do not type them, and each is compared with every pattern.
constexpr qsizetype longestName = 200;

/// In a plain name, the word for "number".
constexpr QChar numberSign = u'#';

bool isBlank(QChar c)
{
    return c.isSpace() || c == u'_';
}

bool isDigit(QStringView text, qsizetype at)
{
    return at >= 0 && at < text.size() && text[at].isDigit();
}

/// Whether "-" or "." says something: "V_-5" is not "V_5", "1.0" is not "10", "V-" is not "V".
bool isSign(QStringView text, qsizetype at)
{
    const bool isAtEdge = text[at] == u'-' && (at == 0 || at + 1 == text.size());
    return (text[at] == u'-' || text[at] == u'.') && (isAtEdge || isDigit(text, at + 1));
}

bool isLeftOut(QStringView text, qsizetype at)
{
    const QChar c = text[at];
    return isBlank(c) || c == QChar::ByteOrderMark || ((c == u'-' || c == u'.') && !isSign(text, at));
}

/// Past what is left out in a name. Two numbers with a blank between them stay two.
qsizetype skipLeftOut(QStringView text, qsizetype at, QString *plain)
{
    const bool isAfterDigit = !plain->isEmpty() && plain->back().isDigit();
    while (at < text.size() && isLeftOut(text, at)) {
        ++at;
    }
    if (isAfterDigit && isDigit(text, at)) {
        plain->append(u' ');
    }
    return at;
}

bool isNumberWord(QStringView word)
{
    static constexpr std::array<QLatin1String, 6> words{QLatin1String("no"),  QLatin1String("nr"),
                                                        QLatin1String("num"), QLatin1String("number"),
                                                        QLatin1String("pn"),  QLatin1String("p/n")};
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// "part" of "partno"; all of a word that does not end like that. MPN and SPN are words of their own.
QStringView withoutNumberWord(QStringView word)
{
    constexpr qsizetype shortestRest = 2;
    for (const qsizetype length : {6, 3, 2}) {
        if (word.size() >= length + shortestRest && isNumberWord(word.last(length))) {
            return word.chopped(length);
        }
    }
    return word;
}

void appendWord(QString *plain, QStringView word)
{
    const QStringView rest = isNumberWord(word) ? QStringView() : withoutNumberWord(word);
    plain->append(rest);
    if (rest.size() < word.size() && !plain->endsWith(numberSign)) {
        plain->append(numberSign);
    }
}

/// Whether a text is nothing but words for a part's number, at least one of which says so.
bool saysNumber(QStringView text)
{
    static constexpr std::array<QLatin1String, 4> deciding{QLatin1String("parts"), QLatin1String("part"),
                                                           QLatin1String("sku"), QLatin1String("#")};
    static constexpr std::array<QLatin1String, 9> others{
        QLatin1String("ordering"), QLatin1String("order"), QLatin1String("product"),
        QLatin1String("item"),     QLatin1String("stock"), QLatin1String("component"),
        QLatin1String("catalog"),  QLatin1String("code"),  QLatin1String("article")};
    bool isNumber = false;
    while (!text.isEmpty()) {
        const auto begins = [&text](QLatin1String word) { return text.startsWith(word); };
        const auto word = std::find_if(deciding.begin(), deciding.end(), begins);
        if (word != deciding.end()) {
            isNumber = true;
            text = text.sliced(word->size());
            continue;
        }
        const auto other = std::find_if(others.begin(), others.end(), begins);
        if (other == others.end()) {
            return false;
        }
        text = text.sliced(other->size());
    }
    return isNumber;
}

} // namespace

QString plainFieldName(const QString &name)
{
    const QString folded = name.toCaseFolded();
    const QString trimmed = folded.trimmed();
    const QStringView text(trimmed);
    QString plain;
    for (qsizetype at = 0; at < text.size();) {
        if (isLeftOut(text, at)) {
            at = skipLeftOut(text, at, &plain);
            continue;
        }
        if (text[at] == numberSign) {
            plain.append(plain.endsWith(numberSign) ? QString() : QString(numberSign));
            ++at;
            continue;
        }
        qsizetype end = at;
        while (end < text.size() && !isLeftOut(text, end) && text[end] != numberSign) {
            ++end;
        }
        appendWord(&plain, text.sliced(at, end - at));
        at = end;
    }
    // "No" and "PN" by themselves are names of different things.
    return plain == numberSign ? folded.trimmed() : plain;
}

bool FieldNames::isOwn(const QString &name)
{
    return isOneOf(name, {QLatin1String("VALUE"), QLatin1String("REFERENCE"), QLatin1String("PACKAGE"),
                          QLatin1String("FOOTPRINT"), QLatin1String("DNP"), QLatin1String("BOMSKIP"),
                          QLatin1String("BOMLINKS")}) ||
           name.startsWith(QLatin1String("BOMPART"), Qt::CaseInsensitive);
}

bool FieldNames::isExact(const QString &name)
{
    return isOwn(name) || isOneOf(name, {QLatin1String("CODE"), QLatin1String("COST")});
}

FieldSense FieldNames::senseOf(const QString &name) const
{
    const QString plain = plainFieldName(name);
    if (plain.isEmpty() || name.size() > longestName) {
        return {};
    }
    if (const auto sense = listed(plain)) {
        return *sense;
    }
    if (const auto sense = byWord(plain)) {
        return *sense;
    }
    // "MPN#" is MPN as long as nothing else is known of it.
    if (plain.endsWith(numberSign) && name.contains(numberSign)) {
        if (const auto sense = listed(plain.chopped(1)); sense && sense->meaning) {
            return *sense;
        }
    }
    return byPattern(name.toCaseFolded(), plain);
}

KnownName FieldNames::known(const QString &name) const
{
    return {plainFieldName(name), senseOf(name), isOwn(name), isExact(name)};
}

std::optional<std::size_t> FieldNames::rank(const KnownName &asked, const KnownName &other) const
{
    if (asked.isExact || other.isOwn) {
        return std::nullopt;
    }
    if (!asked.plain.isEmpty() && asked.plain == other.plain) {
        return 0;
    }
    return hasKnownMeaning(asked) && other.sense.meaning == asked.sense.meaning
               ? std::optional(other.sense.rank)
               : std::nullopt;
}

bool FieldNames::hasKnownMeaning(const KnownName &name) const
{
    return name.sense.meaning && m_meanings[*name.sense.meaning].use == FieldMeaning::Use::Read;
}

std::optional<FieldSense> FieldNames::listed(const QString &plain) const
{
    const auto found = m_names.constFind(plain);
    if (found == m_names.cend()) {
        return std::nullopt;
    }
    FieldSense sense;
    for (const Entry &entry : *found) {
        if (entry.isCertain) {
            return FieldSense{entry.meaning, {}, entry.rank};
        }
        sense.proposed.push_back(entry.meaning);
    }
    return sense;
}

std::optional<FieldSense> FieldNames::byWord(const QString &plain) const
{
    constexpr qsizetype shortestLastWord = 3;
    QString text = plain;
    text.removeIf([](QChar c) { return c == u'(' || c == u')' || c == u'/' || c == u':'; });
    for (const Pattern &word : m_words) {
        const qsizetype at = text.startsWith(word.text)             ? 0
                             : word.text.size() >= shortestLastWord ? text.indexOf(word.text)
                                                                    : -1;
        const QString rest = at < 0 ? QString() : text.first(at) + text.sliced(at + word.text.size());
        // A "Part Manufacturer" is a maker; behind "part" the word needs a number beside it.
        if (saysNumber(rest) &&
            (at == 0 || rest.contains(numberSign) || rest.contains(QLatin1String("sku")))) {
            return FieldSense{word.entry.meaning, {}, word.entry.rank};
        }
    }
    return std::nullopt;
}

/// Whether the text is what the pattern says, in which "*" stands for any text.
bool FieldNames::matches(const Pattern &pattern, QStringView text)
{
    const QString &first = pattern.pieces.first();
    const QString &last = pattern.pieces.last();
    if (!text.startsWith(first)) {
        return false;
    }
    qsizetype at = first.size();
    for (qsizetype piece = 1; piece + 1 < pattern.pieces.size(); ++piece) {
        at = text.indexOf(pattern.pieces.at(piece), at);
        if (at < 0) {
            return false;
        }
        at += pattern.pieces.at(piece).size();
    }
    return text.size() - at >= last.size() && text.endsWith(last);
}

/// Of the patterns the longest decides; of those that later tables have, the longest.
FieldSense FieldNames::byPattern(const QString &name, const QString &plain) const
{
    const auto isBetter = [](const Pattern &a, const Pattern &b) {
        return a.entry.table != b.entry.table ? a.entry.table > b.entry.table : a.text.size() > b.text.size();
    };
    const Pattern *best = nullptr;
    FieldSense sense;
    for (const Pattern &pattern : m_patterns) {
        const bool isSame = best && !isBetter(*best, pattern) && !isBetter(pattern, *best);
        const bool isCandidate = !best || isSame || isBetter(pattern, *best);
        if (!isCandidate || !(matches(pattern, name) || matches(pattern, plain))) {
            continue;
        }
        sense = isSame ? sense : FieldSense();
        best = &pattern;
        if (pattern.entry.isCertain) {
            sense.meaning = sense.meaning.value_or(pattern.entry.meaning);
            sense.rank = pattern.entry.rank;
        } else {
            sense.proposed.push_back(pattern.entry.meaning);
        }
    }
    return sense;
}
