// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvfile.h"

#include "designs/texts.h"
#include "files/regularfile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstring>

namespace designs {

namespace {

bool isHigh(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

std::string withoutDoubledQuotes(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        result += text[at];
        at += text[at] == '"' ? 1 : 0;
    }
    return result;
}

int lineBreaks(std::string_view text)
{
    int count = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n' || (text[at] == '\r' && !text.substr(at + 1).starts_with('\n'))) {
            ++count;
        }
    }
    return count;
}

class Parser
{
public:
    Parser(std::string_view bytes, const CsvDialect &dialect, const CsvLimits &limits)
        : m_bytes(bytes)
        , m_limits(limits)
        , m_delimiter(dialect.delimiter)
        , m_at(dialect.byteOrderMark ? utf8Mark.size() : 0)
    {
        for (const char c : {m_delimiter, '\n', '\r'}) {
            m_endsCell[static_cast<unsigned char>(c)] = true;
        }
    }

    bool run()
    {
        while (m_at < m_bytes.size()) {
            if (!takeRow()) {
                return false;
            }
        }
        return true;
    }

    std::vector<CsvRow> rows;
    std::vector<CsvCell> cells;
    Problem error;

private:
    bool fail(int line, const QString &text)
    {
        error = {{}, line, text};
        return false;
    }

    [[nodiscard]] bool at(char c) const { return m_at < m_bytes.size() && m_bytes[m_at] == c; }

    [[nodiscard]] bool atCellEnd() const
    {
        return m_at == m_bytes.size() || m_endsCell[static_cast<unsigned char>(m_bytes[m_at])];
    }

    void skipBlanks()
    {
        while (at(' ')) {
            ++m_at;
        }
    }

    bool takeRow()
    {
        CsvRow row{.begin = quint32(m_at), .line = quint32(m_line), .firstCell = quint32(cells.size())};
        do {
            m_at += row.cellCount > 0 ? 1 : 0;
            ++row.cellCount;
            if (!isWithinLimits(row) || !takeCell()) {
                return false;
            }
        } while (at(m_delimiter));
        row.end = quint32(m_at);
        rows.push_back(row);
        skipLineEnd();
        return true;
    }

    bool isWithinLimits(const CsvRow &row)
    {
        if (row.cellCount > m_limits.cellsPerRow) {
            return fail(int(row.line),
                        PartListTexts::tr("the row has more than %1 cells: is this a part list?")
                            .arg(m_limits.cellsPerRow));
        }
        if (rows.size() >= m_limits.rows || cells.size() >= m_limits.cells) {
            return fail(int(row.line),
                        PartListTexts::tr("the list is too long: at most %1 rows and %2 cells are read")
                            .arg(QString::number(m_limits.rows), QString::number(m_limits.cells)));
        }
        return true;
    }

    void skipLineEnd()
    {
        if (m_at < m_bytes.size()) {
            m_at += m_bytes.substr(m_at).starts_with("\r\n") ? 2 : 1;
            ++m_line;
        }
    }

    bool takeCell()
    {
        const std::size_t begin = m_at;
        skipBlanks();
        if (at('"')) {
            return takeQuoted();
        }
        while (!atCellEnd()) {
            ++m_at;
        }
        cells.push_back({.begin = quint32(begin), .size = quint32(m_at - begin)});
        return true;
    }

    bool takeQuoted()
    {
        CsvCell cell{.begin = quint32(m_at), .quoted = 1};
        const int firstLine = m_line;
        std::size_t close = m_bytes.find('"', m_at + 1);
        while (close != std::string_view::npos && m_bytes.substr(close + 1).starts_with('"')) {
            cell.doubled = 1;
            close = m_bytes.find('"', close + 2);
        }
        if (close == std::string_view::npos) {
            return fail(firstLine,
                        PartListTexts::tr("a quote begins here that is never closed: close it, or double "
                                          "a quote that belongs to the text"));
        }
        m_line += lineBreaks(m_bytes.substr(m_at, close - m_at));
        m_at = close + 1;
        cell.size = quint32(m_at - cell.begin);
        cells.push_back(cell);
        skipBlanks();
        return atCellEnd() ||
               fail(m_line, PartListTexts::tr("there is text behind a closing quote: double a quote that "
                                              "belongs to the text, or put the delimiter behind it"));
    }

    std::string_view m_bytes;
    const CsvLimits &m_limits;
    char m_delimiter;
    std::size_t m_at;
    int m_line = 1;
    std::array<bool, 256> m_endsCell{};
};

QString tooLarge(const CsvLimits &limits)
{
    return PartListTexts::tr("the file is larger than %1 MiB, the most that a part list may have")
        .arg(limits.fileBytes / (1024 * 1024));
}

} // namespace

std::optional<QByteArray> CsvFile::load(const QString &path, Problem *error, const CsvLimits &limits)
{
    const auto fail = [&](const QString &text) {
        *error = {path, 0, text};
        return std::nullopt;
    };
    const QFileInfo info(path);
    if (!info.exists()) {
        return fail(PartListTexts::tr("there is no such file"));
    }
    if (!info.isFile()) {
        return fail(PartListTexts::tr("this is no ordinary file"));
    }
    if (info.size() > limits.fileBytes) {
        return fail(tooLarge(limits));
    }
    QFile file(path);
    QString reason;
    if (!openRegularFile(&file, QIODevice::ReadOnly, &reason)) {
        return fail(PartListTexts::tr("the file cannot be opened: %1").arg(reason));
    }
    QByteArray bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError) {
        return fail(PartListTexts::tr("the file cannot be read: %1").arg(file.errorString()));
    }
    return bytes;
}

std::optional<CsvFile> CsvFile::parse(QByteArray bytes, Problem *error, const CsvLimits &limits)
{
    if (bytes.size() > limits.fileBytes) {
        *error = {{}, 0, tooLarge(limits)};
        return std::nullopt;
    }
    const std::string_view view(bytes.constData(), std::size_t(bytes.size()));
    const std::optional<CsvDialect> dialect = recogniseDialect(view, error);
    if (!dialect) {
        return std::nullopt;
    }
    Parser parser(view, *dialect, limits);
    if (!parser.run()) {
        *error = parser.error;
        return std::nullopt;
    }
    CsvFile file;
    file.m_bytes = std::move(bytes);
    file.m_dialect = *dialect;
    file.m_rows = std::move(parser.rows);
    file.m_cells = std::move(parser.cells);
    return file;
}

std::string_view CsvFile::content(const CsvCell &cell) const
{
    std::string_view text = raw(cell);
    if (cell.quoted) {
        return text.substr(1, text.size() - 2);
    }
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

std::string_view CsvFile::text(const CsvCell &cell, TextArena &arena) const
{
    const std::string_view found = content(cell);
    const bool recode =
        m_dialect.encoding == CsvDialect::Encoding::Windows1252 && std::ranges::any_of(found, isHigh);
    if (!recode && !cell.doubled) {
        return found;
    }
    const std::string plain = cell.doubled ? withoutDoubledQuotes(found) : std::string(found);
    return arena.copy(recode ? std::string_view(utf8FromWindows1252(plain)) : std::string_view(plain));
}

bool CsvFile::isBlank(const CsvRow &row) const
{
    return std::ranges::all_of(cells(row), [this](const CsvCell &cell) { return isBlank(cell); });
}

} // namespace designs
