// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/fieldtablereader.h"
#include "standalone/texts.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr std::size_t mostNames = 10'000;
/// Every name of a design that no table lists is compared with all of these.
constexpr std::size_t mostPatterns = 200;
constexpr qsizetype mostMeanings = 500;
constexpr qsizetype mostProblems = 10;
constexpr qsizetype shownLength = 60;

QString quoted(QStringView text)
{
    return TableTexts::tr("\"%1\"").arg(text.left(shownLength));
}

std::optional<FieldMeaning::Use> useOf(const QString &words)
{
    if (words.isEmpty()) {
        return FieldMeaning::Use::Read;
    }
    if (words == QLatin1String("listed only")) {
        return FieldMeaning::Use::Listed;
    }
    return words == QLatin1String("ignored") ? std::optional(FieldMeaning::Use::Ignored) : std::nullopt;
}

} // namespace

QStringList FieldNames::add(const QByteArray &text, const QString &file)
{
    FieldTableReader reader(this, file);
    reader.read(text);
    return reader.problems();
}

FieldTableReader::FieldTableReader(FieldNames *names, const QString &file)
    : m_names(names)
    , m_file(file)
    , m_table(names->m_tables++)
{
}

void FieldTableReader::read(const QByteArray &text)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder(text);
    if (decoder.hasError() || decoded.contains(QChar::Null)) {
        fail(TableTexts::tr("is no UTF-8 text; nothing of it is read"));
        return;
    }
    for (const QStringView line : QStringView(decoded).split(u'\n')) {
        ++m_line;
        readLine(line.trimmed());
    }
    std::stable_sort(m_names->m_words.begin(), m_names->m_words.end(),
                     [](const auto &a, const auto &b) { return a.text.size() > b.text.size(); });
    m_line = 0;
    if (m_met.isEmpty() && m_patterns == 0 && m_problems.isEmpty()) {
        fail(TableTexts::tr("has no names of properties"));
    }
}

QStringList FieldTableReader::problems() const
{
    QStringList told = m_problems;
    if (m_count > told.size()) {
        told << m_file + QStringLiteral(": ") +
                    TableTexts::tr("%1 more lines are passed over").arg(m_count - told.size());
    }
    return told;
}

void FieldTableReader::readLine(QStringView line)
{
    if (line.startsWith(u'[')) {
        readHeading(line);
    } else if (!line.isEmpty() && !line.startsWith(u'#') && !m_isPassedOver) {
        readName(line);
    }
}

void FieldTableReader::readHeading(QStringView line)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^\[\s*([A-Za-z0-9-]{1,40})\s*(?:,\s*([a-z ]*?)\s*)?\]\s*(.*)$)"));
    const auto match = form.match(line);
    const auto use = useOf(match.captured(2));
    m_isPassedOver = !match.hasMatch() || !use;
    if (m_isPassedOver) {
        fail(TableTexts::tr("%1 is no heading such as [mpn] or [mpn] maker's part number; it is passed over "
                            "with its names")
                 .arg(quoted(line)));
        return;
    }
    const QString key = match.captured(1).toLower();
    auto &meanings = m_names->m_meanings;
    const auto known = std::find_if(meanings.begin(), meanings.end(),
                                    [&key](const FieldMeaning &meaning) { return meaning.key == key; });
    m_meaning = std::size_t(known - meanings.begin());
    if (known == meanings.end()) {
        m_isPassedOver = qsizetype(meanings.size()) >= mostMeanings;
        if (m_isPassedOver) {
            fail(TableTexts::tr("there are more than %1 meanings").arg(mostMeanings));
            return;
        }
        meanings.push_back({key, key, *use});
    }
    FieldMeaning &meaning = meanings[*m_meaning];
    if (!match.captured(3).isEmpty()) {
        meaning.title = match.captured(3);
    }
    // A table that only adds names need not say again how they are used.
    if (match.hasCaptured(2)) {
        meaning.use = *use;
    }
}

void FieldTableReader::readName(QStringView line)
{
    const QChar sign = line.front();
    const bool isMarked = (sign == u'?' || sign == u'@' || sign == u'-') && line.size() > 1;
    QStringView name = isMarked ? line.sliced(1).trimmed() : line;
    const bool isQuoted = name.size() > 2 && name.front() == u'"' && name.back() == u'"';
    name = isQuoted ? name.sliced(1, name.size() - 2) : name;
    const QString plain = plainFieldName(name.toString());
    if (!m_meaning && !(isMarked && sign == u'-')) {
        fail(TableTexts::tr("%1 stands below no heading such as [mpn]; it is passed over").arg(quoted(name)));
    } else if (plain.count(u'*') == plain.size()) {
        fail(TableTexts::tr("%1 is no name of a property; it is passed over").arg(quoted(name)));
    } else if (++m_entries > mostNames) {
        fail(TableTexts::tr("a table has at most %1 names; this one is passed over").arg(mostNames));
    } else if (isMarked && sign == u'-') {
        takeOver(plain);
        m_names->m_names.insert(plain, {});
        m_removed.insert(plain, m_line);
    } else if (isMarked && sign == u'@') {
        addWord(plain);
    } else if (name.contains(u'*') && !isQuoted) {
        addPattern(name.toString().toCaseFolded(), sign != u'?');
    } else {
        addName(name.toString(), !isMarked);
    }
}

/// What earlier tables say of a name counts no more.
void FieldTableReader::takeOver(const QString &plain)
{
    if (!m_met.contains(plain)) {
        m_met.insert(plain);
        m_names->m_names.remove(plain);
    }
}

void FieldTableReader::addName(const QString &name, bool isCertain)
{
    const bool isRead = m_names->m_meanings[*m_meaning].use == FieldMeaning::Use::Read;
    if (isCertain && isRead && FieldNames::isOwn(name)) {
        fail(TableTexts::tr("%1 is always read by its own name; it is passed over").arg(quoted(name)));
        return;
    }
    const QString plain = plainFieldName(name);
    takeOver(plain);
    auto &entries = m_names->m_names[plain];
    const auto other = std::find_if(entries.cbegin(), entries.cend(), [&](const FieldNames::Entry &entry) {
        return isCertain && entry.isCertain && entry.meaning != *m_meaning;
    });
    if (other != entries.cend() || m_removed.contains(plain)) {
        const int line = other != entries.cend() ? other->line : m_removed.value(plain);
        const QString where =
            other != entries.cend() ? m_names->m_meanings[other->meaning].key : QStringLiteral("\"-\"");
        fail(TableTexts::tr("%1 stands under %2 already (line %3); it is passed over")
                 .arg(quoted(name), where, QString::number(line)));
        return;
    }
    // Names of later tables are better than those of earlier ones.
    constexpr std::size_t ranksOfATable = 1'000'000;
    constexpr std::size_t mostTables = 100;
    const std::size_t rank = (mostTables - std::min(m_table, mostTables)) * ranksOfATable + m_entries;
    entries.push_back({*m_meaning, isCertain, m_table, m_line, rank});
}

void FieldTableReader::addWord(const QString &name)
{
    if (++m_patterns > mostPatterns) {
        fail(TableTexts::tr("a table has at most %1 names with \"@\" or \"*\"").arg(mostPatterns));
        return;
    }
    std::erase_if(m_names->m_words, [&](const FieldNames::Pattern &word) {
        return word.text == name && word.entry.table != m_table;
    });
    constexpr std::size_t behindNames = 1'000'000'000;
    m_names->m_words.push_back({name, {*m_meaning, true, m_table, m_line, behindNames}});
}

void FieldTableReader::addPattern(const QString &name, bool isCertain)
{
    if (++m_patterns > mostPatterns) {
        fail(TableTexts::tr("a table has at most %1 names with \"@\" or \"*\"").arg(mostPatterns));
        return;
    }
    constexpr std::size_t behindWords = 2'000'000'000;
    m_names->m_patterns.push_back(
        {name, {*m_meaning, isCertain, m_table, m_line, behindWords}, name.split(u'*')});
}

void FieldTableReader::fail(const QString &text)
{
    if (++m_count <= mostProblems) {
        m_problems << m_file + (m_line > 0 ? u':' + QString::number(m_line) : QString()) +
                          QStringLiteral(": ") + text;
    }
}
