// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/partlist.h"

#include "designs/csv/csvfile.h"
#include "designs/utf8.h"

#include <QRegularExpression>

#include <algorithm>

namespace designs {

namespace {

/// Walks the file byte by byte and collects the cells of one column.
class ColumnWalker
{
public:
    ColumnWalker(char delimiter, std::size_t column)
        : m_delimiter(delimiter)
        , m_column(column)
    {
    }

    template<class Visit>
    void walk(std::string_view bytes, const Visit &visit)
    {
        char before = 0;
        for (const char c : bytes) {
            const bool pairEnd = c == '\n' && before == '\r';
            if (m_quoted) {
                m_quoted = c != '"';
                collect(c, m_quoted);
            } else if (c == '\r' || (c == '\n' && !pairEnd)) {
                visit(m_row++, m_text);
                startRow();
            } else if (c == m_delimiter) {
                ++m_at;
                startCell();
            } else if (c == '"' && (m_atStart || (m_cellQuoted && before == '"'))) {
                collect(c, m_cellQuoted);
                m_quoted = true;
                m_cellQuoted = true;
                m_atStart = false;
            } else if (!pairEnd) {
                m_atStart = m_atStart && c == ' ';
                collect(c, true);
            }
            before = c;
        }
        visit(m_row, m_text);
    }

private:
    void collect(char c, bool wanted)
    {
        if (wanted && m_at == m_column) {
            m_text += c;
        }
    }

    void startRow()
    {
        m_text.clear();
        m_at = 0;
        startCell();
    }

    void startCell()
    {
        m_atStart = true;
        m_cellQuoted = false;
    }

    char m_delimiter;
    std::size_t m_column;
    std::size_t m_row = 0;
    std::size_t m_at = 0;
    bool m_atStart = true;
    bool m_quoted = false;
    bool m_cellQuoted = false;
    std::string m_text;
};

/// Counts the references of a cell by patterns: nothing is expanded.
class ReferenceCounter
{
public:
    explicit ReferenceCounter(const std::unordered_set<std::string> &names)
        : m_names(names)
    {
    }

    void count(QString cell, SymbolCount *symbols) const
    {
        cell.replace(m_blanks, QStringLiteral(" "));
        cell.replace(m_hyphens, QStringLiteral("-"));
        cell.replace(m_marks, QStringLiteral("~"));
        QString prefix;
        for (const QString &part : cell.split(m_separators, Qt::SkipEmptyParts)) {
            QString text = part.trimmed();
            text.replace(m_wordOrHyphen, QStringLiteral("~"));
            text.replace(m_spacedMark, QStringLiteral("~"));
            text.replace(m_and, QStringLiteral(" "));
            for (const QString &token : text.split(u' ', Qt::SkipEmptyParts)) {
                const qsizetype named = ofToken(token, &prefix);
                symbols->placed += named;
                symbols->power += token.startsWith(u'#') || prefix.startsWith(u'#') ? named : 0;
            }
        }
    }

private:
    [[nodiscard]] qsizetype ofToken(const QString &token, QString *prefix) const
    {
        if (m_names.contains(token.toStdString())) {
            prefix->clear();
            return 1;
        }
        if (const QRegularExpressionMatch range = m_range.match(token); range.hasMatch()) {
            *prefix = range.captured(1).isEmpty() ? *prefix : range.captured(1);
            return difference(range.captured(2), range.captured(3)) + 1;
        }
        return ofPieces(token, prefix);
    }

    [[nodiscard]] qsizetype ofPieces(const QString &token, QString *prefix) const
    {
        qsizetype sum = 0;
        QString common = *prefix;
        const QStringList pieces = token.split(u'/');
        for (const QString &piece : pieces) {
            const QRegularExpressionMatch match = m_piece.match(piece);
            const QString own = match.captured(1);
            const QString first = own.isEmpty() ? common : own;
            const QString last = match.captured(3);
            const bool fits = match.hasMatch() && !first.isEmpty() &&
                              (sum == 0 || own.isEmpty() || own == common) &&
                              (last.isEmpty() || last == first);
            if (!fits) {
                prefix->clear();
                return 1;
            }
            common = isName(match) ? QString() : first;
            sum += isName(match) ? 1 : numbersIn(match);
        }
        *prefix = common;
        return sum;
    }

    /// "J4-1" and "X1-02" are names, no ranges.
    static bool isName(const QRegularExpressionMatch &match)
    {
        const QString last = match.captured(4);
        const bool oddZeros = last.startsWith(u'0') && last.size() != match.captured(2).size();
        return !last.isEmpty() && match.captured(3).isEmpty() && (numbersIn(match) < 2 || oddZeros);
    }

    static qsizetype numbersIn(const QRegularExpressionMatch &match)
    {
        return match.hasCaptured(4) ? difference(match.captured(2), match.captured(4)) + 1 : 1;
    }

    /// At most a billion, so that no sum of them overflows; negative where the last is lower.
    static qsizetype difference(const QString &first, const QString &last)
    {
        const qulonglong from = numberOf(first);
        const qulonglong to = numberOf(last);
        return to < from ? -1 : qsizetype(qMin(to - from, qulonglong(1'000'000'000)));
    }

    /// The largest number for digits that are too many to count with.
    static qulonglong numberOf(const QString &digits)
    {
        bool isReadable = false;
        const qulonglong number = digits.toULongLong(&isReadable);
        return isReadable ? number : ~qulonglong(0);
    }

    const std::unordered_set<std::string> &m_names;
    const QRegularExpression m_blanks{QStringLiteral(R"([\t\x{00A0}\x{200B}\x{202F}\x{3000}\x{FEFF}])")};
    const QRegularExpression m_hyphens{QStringLiteral(R"([\x{2010}\x{2011}\x{FF0D}])")};
    const QRegularExpression m_marks{
        QStringLiteral(R"([:\x{2012}-\x{2015}\x{2212}\x{301C}\x{FF1A}\x{FF5E}]|\.\.|\x{FF0E}\x{FF0E})")};
    const QRegularExpression m_separators{
        QStringLiteral(R"([,;\r\n\x{0085}\x{2028}\x{2029}\x{3001}\x{FF0C}\x{FF1B}])")};
    const QRegularExpression m_wordOrHyphen{
        QStringLiteral(R"((?<=[^ ]) +(?:to|thru) +(?=[^ ])|(?<=[^ ]) +-|(?<=[^ ])- +)"),
        QRegularExpression::CaseInsensitiveOption};
    const QRegularExpression m_spacedMark{QStringLiteral(" *~ *")};
    const QRegularExpression m_and{QStringLiteral(R"((?<=.) *[&+\x{FF06}\x{FF0B}] *)")};
    /// Two ends with a mark that cannot belong to a name, or of the same prefix.
    const QRegularExpression m_range{QStringLiteral(
        R"(\A(?|(.*?)([0-9]++)~.*?([0-9]+)|(.*?[^0-9])([0-9]++)(?:-|(?i:to|thru))\1([0-9]+))\z)")};
    /// Prefix and number, perhaps a dash and the same again.
    const QRegularExpression m_piece{
        QStringLiteral(R"(\A((?=[^-./]*(?:[A-Za-z]|[^\x00-\x7F]))[^-./]*[^-./0-9])?([0-9]++))"
                       R"((?:-((?=[^-./]*(?:[A-Za-z]|[^\x00-\x7F]))[^-./]*[^-./0-9])?([0-9]++))?\z)")};
};

} // namespace

std::optional<std::size_t> PartList::columnOf(std::string_view name, std::size_t component) const
{
    const auto of = [this](std::string_view known) -> std::optional<std::size_t> {
        const auto at = std::ranges::find(m_columns.names, known);
        return at != m_columns.names.end() && !known.empty()
                   ? std::optional(std::size_t(at - m_columns.names.begin()))
                   : std::nullopt;
    };
    if (m_columns.quantity && equalIgnoringCase(name, m_columns.names[*m_columns.quantity])) {
        return m_columns.quantity;
    }
    std::vector<NameId> names = m_names.candidates(name);
    if (const auto stored = storedName(m_components[component], names)) {
        names.insert(names.begin(), *stored);
    }
    for (const NameId id : names) {
        if (const auto column = of(m_names.name(id))) {
            return column;
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> PartList::cellText(std::size_t component, std::size_t column) const
{
    const Component &part = m_components[component];
    if (column == m_columns.value) {
        return part.value;
    }
    if (column >= m_columns.names.size()) {
        return std::nullopt;
    }
    const auto found = std::ranges::find_if(part.properties, [&](const Property &property) {
        return m_names.name(property.name) == m_columns.names[column];
    });
    return found != part.properties.end() ? std::optional(found->value) : std::nullopt;
}

ReferenceCell::IsName PartList::isName() const
{
    if (m_hyphenatedNames.empty()) {
        return {};
    }
    return [this](std::string_view text) { return m_hyphenatedNames.contains(std::string(text)); };
}

SymbolCount PartList::recount(Problem *error) const
{
    SymbolCount count;
    const std::optional<QByteArray> bytes = CsvFile::load(m_info.file, error);
    if (!bytes) {
        return count;
    }
    std::string_view text(bytes->constData(), std::size_t(bytes->size()));
    text.remove_prefix(m_dialect.byteOrderMark && text.starts_with(utf8Mark) ? utf8Mark.size() : 0);
    const bool recode = m_dialect.encoding == CsvDialect::Encoding::Windows1252;
    const ReferenceCounter counter(m_hyphenatedNames);
    ColumnWalker(m_dialect.delimiter, m_columns.reference)
        .walk(text, [&](std::size_t row, const std::string &cell) {
            const bool isPassedOver = std::ranges::binary_search(m_passedOver, row);
            if (row > m_columns.headingRow && !cell.empty() && !isPassedOver) {
                counter.count(QString::fromStdString(recode ? utf8FromWindows1252(cell) : cell), &count);
            }
        });
    return count;
}

} // namespace designs
