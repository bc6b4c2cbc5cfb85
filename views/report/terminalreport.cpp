// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/terminalreport.h"

#include "core/part.h"
#include "views/report/asciireport.h"
#include "views/report/report.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>
#include <vector>

namespace {

constexpr int gap = 2;
constexpr int narrowestColumn = 6;
constexpr qsizetype referenceColumn = 1;
constexpr int readableReferences = 20;

/// Blocks of characters that terminals show twice as wide as others (East Asian width W and F).
constexpr std::array<std::pair<char32_t, char32_t>, 9> wideBlocks{{{0x1100, 0x115F},
                                                                   {0x2E80, 0x303E},
                                                                   {0x3041, 0xA4CF},
                                                                   {0xAC00, 0xD7A3},
                                                                   {0xF900, 0xFAFF},
                                                                   {0xFE30, 0xFE6F},
                                                                   {0xFF00, 0xFF60},
                                                                   {0xFFE0, 0xFFE6},
                                                                   {0x1F300, 0x3FFFD}}};

int widthOf(char32_t c)
{
    const auto category = QChar::category(c);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
        category == QChar::Other_Format) {
        return 0;
    }
    const bool isWide = std::any_of(wideBlocks.begin(), wideBlocks.end(),
                                    [c](const auto &block) { return c >= block.first && c <= block.second; });
    return isWide ? 2 : 1;
}

/// The character there, of one unit or two.
char32_t characterAt(QStringView text, qsizetype at)
{
    const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : char32_t(text[at].unicode());
}

qsizetype unitsOf(char32_t c)
{
    return QChar::requiresSurrogates(c) ? 2 : 1;
}

bool isBreak(char32_t c)
{
    return c == U' ' || c == U',' || c == U';' || c == U'/' || c == U'-' || c == U'_';
}

/// Where the first line of the text ends, which has room for `width` columns: behind the last blank or sign
/// that fits, else behind the last character, of which there is at least one.
qsizetype lineEnd(QStringView text, int width)
{
    qsizetype good = 0;
    int used = 0;
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = characterAt(text, at);
        used += widthOf(c);
        if (used > width && at > 0) {
            return c == U' ' || good == 0 ? at : good;
        }
        at += unitsOf(c);
        good = isBreak(c) ? at : good;
    }
    return text.size();
}

/// The lines of a category with their cells in full.
struct Section
{
    QString heading;
    std::vector<BomLine> lines;
    QList<QStringList> cells;
};

QList<Section> sectionsOf(const Report &report)
{
    QList<Section> sections;
    for (const QString &category : report.categories()) {
        Section section{inOneLine(category), {}, {}};
        const ReportLines listed = report.lines(category, true);
        for (const BomLine line : listed.lines) {
            QStringList cells{Report::text(Report::quantity(line)), inOneLine(report.references(line))};
            for (const ReportColumn &column : report.columns()) {
                cells << inOneLine(report.text(*line.front(), column));
            }
            section.lines.push_back(line);
            section.cells << cells;
        }
        sections << section;
    }
    return sections;
}

/// The longest piece of a text that is not broken; references are broken at their commas only.
int pieceWidth(const QString &text, bool isReferences)
{
    int longest = 0;
    int width = 0;
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = characterAt(text, at);
        at += unitsOf(c);
        width += widthOf(c);
        longest = std::max(longest, c == U' ' ? width - 1 : width);
        width = c == U',' || (!isReferences && isBreak(c)) ? 0 : width;
    }
    return longest;
}

QList<ColumnNeed> needsOf(const QStringList &headings, const QList<Section> &sections)
{
    QList<ColumnNeed> needs(headings.size());
    const auto add = [&needs](const QStringList &cells) {
        for (qsizetype i = 0; i < needs.size(); ++i) {
            const bool isReferences = i == referenceColumn;
            needs[i].text = std::max(needs[i].text, terminalWidth(cells.at(i)));
            needs[i].piece = std::max(needs[i].piece, pieceWidth(cells.at(i), isReferences));
        }
    };
    add(headings);
    for (const Section &section : sections) {
        std::for_each(section.cells.begin(), section.cells.end(), add);
    }
    // Broken at each comma, long lists would be as readable as a tape.
    ColumnNeed &references = needs[referenceColumn];
    references.piece = std::max(references.piece, std::min(references.text, readableReferences));
    return needs;
}

/// Cells beside each other, each in as many lines as it takes; nothing stands behind the last text.
QString rowText(const QList<QStringList> &cells, const QList<int> &widths)
{
    qsizetype height = 0;
    for (const QStringList &cell : cells) {
        height = std::max(height, cell.size());
    }
    QString text;
    for (qsizetype row = 0; row < height; ++row) {
        QString line;
        int used = 0;
        int begin = 0;
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const QString part = cells.at(i).value(row);
            if (!part.isEmpty()) {
                line += QString(std::max(0, begin - used), u' ') + part;
                used = std::max(used, begin) + terminalWidth(part);
            }
            begin += widths.at(i) + gap;
        }
        text += line + u'\n';
    }
    return text;
}

/// References are broken between references.
QStringList referenceLines(const Report &report, BomLine line, int width)
{
    QStringList lines =
        report.references(line, width, Report::UnlimitedWidth).split(u'\n', Qt::SkipEmptyParts);
    std::transform(lines.begin(), lines.end(), lines.begin(), inOneLine);
    return lines;
}

QString sectionText(const Report &report, const Section &section, const QList<int> &widths, bool isColoured)
{
    QString text = emphasized(section.heading, isColoured) + u'\n' +
                   QString(terminalWidth(section.heading), u'-') + u'\n';
    for (qsizetype row = 0; row < section.cells.size(); ++row) {
        QList<QStringList> cells;
        for (qsizetype i = 0; i < widths.size(); ++i) {
            cells << (i == referenceColumn ? referenceLines(report, section.lines[size_t(row)], widths.at(i))
                                           : wrappedText(section.cells.at(row).at(i), widths.at(i)));
        }
        text += rowText(cells, widths);
    }
    return text + u'\n';
}

} // namespace

QByteArray terminalReport(const Report &report, const TerminalLook &look)
{
    const QStringList headings = asciiHeadings(report);
    const QList<Section> sections = sectionsOf(report);
    const int room = look.width - gap * int(headings.size() - 1);
    const QList<int> widths = fittedWidths(needsOf(headings, sections), room);
    QList<QStringList> titles;
    QList<QStringList> strokes;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        titles << wrappedText(inOneLine(headings.at(i)), widths.at(i));
        strokes << QStringList(QString(std::min(widths.at(i), terminalWidth(headings.at(i))), u'-'));
    }
    QString text = emphasized(asciiTitle(), look.isColoured) + u'\n' + QString(asciiTitle().size(), u'=') +
                   u'\n' + asciiInformation(report.design()) +
                   emphasized(rowText(titles, widths).chopped(1), look.isColoured) + u'\n' +
                   rowText(strokes, widths);
    for (const Section &section : sections) {
        text += sectionText(report, section, widths, look.isColoured);
    }
    return text.toUtf8();
}

int terminalWidth(QStringView text)
{
    int width = 0;
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = characterAt(text, at);
        width += widthOf(c);
        at += unitsOf(c);
    }
    return width;
}

QList<int> fittedWidths(const QList<ColumnNeed> &needs, int room)
{
    const auto widthsFor = [&needs](int mostText, int mostPiece) {
        QList<int> widths;
        for (const ColumnNeed &need : needs) {
            widths << std::max(std::min(need.text, mostText), std::min(need.piece, mostPiece));
        }
        return widths;
    };
    const auto fits = [room](const QList<int> &widths) {
        return std::accumulate(widths.begin(), widths.end(), 0) <= room;
    };
    int widest = narrowestColumn;
    for (const ColumnNeed &need : needs) {
        widest = std::max(widest, need.text);
    }
    // First the room for words, then what is left for texts.
    int mostPiece = widest;
    while (mostPiece > narrowestColumn && !fits(widthsFor(narrowestColumn, mostPiece))) {
        --mostPiece;
    }
    int mostText = widest;
    while (mostText > narrowestColumn && !fits(widthsFor(mostText, mostPiece))) {
        --mostText;
    }
    // What the last step left over goes to the first of the columns that gave way.
    QList<int> widths = widthsFor(mostText, mostPiece);
    for (qsizetype i = 0; i < widths.size(); ++i) {
        QList<int> wider = widths;
        ++wider[i];
        widths = widths[i] < needs[i].text && fits(wider) ? wider : widths;
    }
    return widths;
}

QStringList wrappedText(const QString &text, int width)
{
    QStringList lines;
    QStringView rest = QStringView(text).trimmed();
    while (!rest.isEmpty()) {
        const qsizetype end = lineEnd(rest, width);
        lines << rest.first(end).trimmed().toString();
        rest = rest.sliced(end).trimmed();
    }
    return lines;
}

QString emphasized(const QString &text, bool isColoured)
{
    return isColoured ? QStringLiteral("\033[1m") + text + QStringLiteral("\033[0m") : text;
}
