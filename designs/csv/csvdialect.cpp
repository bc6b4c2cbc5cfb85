// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvdialect.h"

#include "designs/texts.h"
#include "designs/utf8.h"

#include <QByteArrayView>
#include <QList>

#include <algorithm>
#include <array>
#include <map>

namespace designs {

namespace {

constexpr std::string_view delimiters = ",;\t|";
constexpr std::size_t sampleSize = 64 * 1024;
constexpr int sampleRecords = 100;

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

int lineOf(std::string_view bytes, std::size_t position)
{
    int line = 1;
    for (std::size_t at = 0; at < position; ++at) {
        const bool first = bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n';
        line += isLineEnd(bytes[at]) && !first ? 1 : 0;
    }
    return line;
}

bool isValidUtf8(std::string_view text)
{
    return QByteArrayView(text.data(), qsizetype(text.size())).isValidUtf8();
}

/// The first line that is not UTF-8; a character never reaches over a line's end.
int firstBrokenLine(std::string_view bytes)
{
    std::size_t begin = 0;
    while (begin < bytes.size()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", begin), bytes.size());
        if (!isValidUtf8(bytes.substr(begin, end - begin))) {
            break;
        }
        begin = end + 1;
    }
    return lineOf(bytes, begin);
}

/// What the bytes from 0x80 to 0x9F mean in Windows-1252.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte for a character; zero when there is none.
char windows1252Byte(char32_t character)
{
    const auto *at = std::find(upperControls.begin(), upperControls.end(), character);
    if (at != upperControls.end()) {
        return char(0x80 + (at - upperControls.begin()));
    }
    const bool same = character < 0x80 || (character >= 0xA0 && character <= 0xFF);
    return same ? char(character) : '\0';
}

struct Signature
{
    std::string_view begin;
    const char *meaning;
};

using namespace std::string_view_literals;

constexpr std::array<Signature, 5> foreign = {{
    {"PK\x03\x04"sv,
     QT_TRANSLATE_NOOP("PartList",
                       "this is a spreadsheet or another packed file, no text: save it as CSV in UTF-8")},
    {"\xD0\xCF\x11\xE0"sv,
     QT_TRANSLATE_NOOP("PartList",
                       "this is an old spreadsheet or document, no text: save it as CSV in UTF-8")},
    {"%PDF-"sv,
     QT_TRANSLATE_NOOP("PartList", "this is a PDF document, no part list: export the list as CSV in UTF-8")},
    {"\xFF\xFE"sv,
     QT_TRANSLATE_NOOP("PartList", "the file is in UTF-16, which is not read: save it as CSV in UTF-8")},
    {"\xFE\xFF"sv,
     QT_TRANSLATE_NOOP("PartList", "the file is in UTF-16, which is not read: save it as CSV in UTF-8")},
}};

std::optional<Problem> foreignFile(std::string_view bytes)
{
    for (const Signature &signature : foreign) {
        if (bytes.starts_with(signature.begin)) {
            return Problem{{}, 0, PartListTexts::tr(signature.meaning)};
        }
    }
    if (const std::size_t zero = bytes.find('\0'); zero != std::string_view::npos) {
        return Problem{
            {},
            lineOf(bytes, zero),
            PartListTexts::tr("there is a zero byte, so this is no text file: export the part list as "
                              "CSV in UTF-8")};
    }
    return std::nullopt;
}

/// What one delimiter makes of the first records.
class Trial
{
public:
    Trial(std::string_view bytes, char delimiter)
        : m_delimiter(delimiter)
    {
        run(bytes);
    }

    /// How many records have the most frequent number of delimiters above none, and that number.
    [[nodiscard]] std::pair<int, int> score() const
    {
        std::pair<int, int> best{0, 0};
        for (const auto &[count, records] : m_records) {
            best = count > 0 ? std::max(best, {records, count}) : best;
        }
        return best;
    }

    [[nodiscard]] bool quotesAll() const { return m_filled > 0 && m_quoted == m_filled; }

private:
    void run(std::string_view bytes)
    {
        const std::string_view sample = bytes.substr(0, sampleSize);
        for (const char c : sample) {
            take(c);
            if (m_finished == sampleRecords) {
                return;
            }
        }
        if (sample.size() == bytes.size() || m_finished == 0) {
            endRecord();
        }
    }

    void take(char c)
    {
        if (m_inQuotes) {
            m_inQuotes = c != '"';
        } else if (c == m_delimiter) {
            ++m_count;
            startCell();
        } else if (isLineEnd(c)) {
            endRecord();
        } else if (c == '"' && (m_atCellStart || (m_cellQuoted && m_afterQuote))) {
            m_quoted += m_atCellStart ? 1 : 0;
            startText();
            m_inQuotes = true;
            m_cellQuoted = true;
        } else if (c != ' ') {
            startText();
        }
        m_afterQuote = c == '"' && !m_inQuotes;
    }

    void startText()
    {
        m_filled += m_atCellStart ? 1 : 0;
        m_atCellStart = false;
        m_blank = false;
    }

    void endRecord()
    {
        if (!m_blank || m_count > 0) {
            ++m_records[m_count];
            ++m_finished;
        }
        m_count = 0;
        m_blank = true;
        startCell();
    }

    void startCell()
    {
        m_atCellStart = true;
        m_cellQuoted = false;
    }

    char m_delimiter;
    std::map<int, int> m_records;
    int m_finished = 0;
    int m_count = 0;
    int m_filled = 0;
    int m_quoted = 0;
    bool m_blank = true;
    bool m_atCellStart = true;
    bool m_inQuotes = false;
    bool m_cellQuoted = false;
    bool m_afterQuote = false;
};

/// The delimiter that a first line "sep=;" names.
std::optional<char> declaredDelimiter(std::string_view text)
{
    if (text.size() < 5 || (text.size() > 5 && !isLineEnd(text[5]))) {
        return std::nullopt;
    }
    const bool declares = text.starts_with("sep=") || text.starts_with("SEP=") || text.starts_with("Sep=");
    return declares && delimiters.find(text[4]) != std::string_view::npos ? std::optional(text[4])
                                                                          : std::nullopt;
}

char likeliestDelimiter(std::string_view text)
{
    if (const std::optional<char> declared = declaredDelimiter(text)) {
        return *declared;
    }
    char best = delimiters.front();
    std::pair<int, int> bestScore{0, 0};
    for (const char delimiter : delimiters) {
        const std::pair<int, int> score = Trial(text, delimiter).score();
        if (score > bestScore) {
            best = delimiter;
            bestScore = score;
        }
    }
    return best;
}

CsvDialect::LineEnd firstLineEnd(std::string_view text)
{
    const std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos || text[at] == '\n') {
        return CsvDialect::LineEnd::Lf;
    }
    return text.substr(at).starts_with("\r\n") ? CsvDialect::LineEnd::CrLf : CsvDialect::LineEnd::Cr;
}

} // namespace

std::optional<CsvDialect> recogniseDialect(std::string_view bytes, Problem *error)
{
    if (const std::optional<Problem> problem = foreignFile(bytes)) {
        *error = *problem;
        return std::nullopt;
    }
    CsvDialect dialect;
    dialect.byteOrderMark = bytes.starts_with(utf8Mark);
    if (!isValidUtf8(bytes)) {
        if (dialect.byteOrderMark) {
            *error = {
                {},
                firstBrokenLine(bytes),
                PartListTexts::tr("the file says that it is UTF-8, but this line is not: save it anew as "
                                  "CSV in UTF-8")};
            return std::nullopt;
        }
        dialect.encoding = CsvDialect::Encoding::Windows1252;
    }
    const std::string_view text = dialect.byteOrderMark ? bytes.substr(utf8Mark.size()) : bytes;
    dialect.delimiter = likeliestDelimiter(text);
    dialect.lineEnd = firstLineEnd(text);
    dialect.quotesAll = Trial(text, dialect.delimiter).quotesAll();
    return dialect;
}

std::string utf8FromWindows1252(std::string_view text)
{
    std::string result;
    result.reserve(text.size() + text.size() / 4);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t code = byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80] : char16_t(byte);
        if (code < 0x80) {
            result += c;
        } else if (code < 0x800) {
            result += char(0xC0 | (code >> 6));
            result += char(0x80 | (code & 0x3F));
        } else {
            result += char(0xE0 | (code >> 12));
            result += char(0x80 | ((code >> 6) & 0x3F));
            result += char(0x80 | (code & 0x3F));
        }
    }
    return result;
}

std::optional<std::string> windows1252FromUtf8(std::string_view text)
{
    std::string result;
    const QList<uint> characters = fromUtf8(text).toUcs4();
    for (const uint character : characters) {
        const char byte = windows1252Byte(char32_t(character));
        if (byte == '\0') {
            return std::nullopt;
        }
        result += byte;
    }
    return result;
}

} // namespace designs
