// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/textwidths.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

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
    if (c >= U' ' && c <= U'~') {
        return 1;
    }
    const auto category = QChar::category(c);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing ||
        category == QChar::Other_Format) {
        return 0;
    }
    const bool isWide = std::any_of(wideBlocks.begin(), wideBlocks.end(),
                                    [c](const auto &block) { return c >= block.first && c <= block.second; });
    return isWide ? 2 : 1;
}

/// The widths of the characters from the blank to the tilde, in thousandths of the font's size; a digit has
/// 556. From the metrics of Helvetica ("Core 14 AFM files", Adobe), which Arial and Liberation Sans share.
constexpr std::array<short, 95> printedWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int digitWidth = 556;

/// In thousandths of the font's size.
int printedWidthOf(char32_t c)
{
    return c >= U' ' && c <= U'~' ? printedWidths[c - U' '] : widthOf(c) * digitWidth;
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

bool isBreak(char32_t c, QStringView breaks = wordBreaks)
{
    return c < 0x80 && breaks.contains(QChar(char16_t(c)));
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

/// What a text needs that is broken behind these characters only.
ColumnNeed needOf(const QString &text, QStringView breaks, TextMeasure measure)
{
    const bool isPrint = measure == TextMeasure::Print;
    ColumnNeed need;
    int width = 0;
    for (qsizetype at = 0; at < text.size();) {
        const char32_t c = characterAt(text, at);
        at += unitsOf(c);
        const int own = isPrint ? printedWidthOf(c) : widthOf(c);
        need.text += own;
        width += own;
        // A blank at the end of a line needs no room.
        need.piece = std::max(need.piece, c == U' ' ? width - own : width);
        width = isBreak(c, breaks) ? 0 : width;
    }
    const auto inDigits = [isPrint](int sum) { return isPrint ? (sum + digitWidth - 1) / digitWidth : sum; };
    return {inDigits(need.text), inDigits(need.piece)};
}

} // namespace

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

void ColumnNeeds::add(const QStringList &row)
{
    m_needs.resize(std::max(m_needs.size(), row.size()));
    for (qsizetype i = 0; i < row.size(); ++i) {
        const ColumnNeed need = needOf(row.at(i), i == referenceColumn ? u"," : m_breaks, m_measure);
        m_needs[i].text = std::max(m_needs[i].text, need.text);
        m_needs[i].piece = std::max(m_needs[i].piece, need.piece);
    }
}

QList<ColumnNeed> ColumnNeeds::needs() const
{
    QList<ColumnNeed> needs = m_needs;
    if (needs.size() > referenceColumn) {
        // Broken at each comma, long lists would be as readable as a tape.
        ColumnNeed &references = needs[referenceColumn];
        references.piece = std::max(references.piece, std::min(references.text, readableReferences));
    }
    return needs;
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
    // No column gets more than all of the room, however long its texts are.
    widest = std::min(widest, std::max(room, narrowestColumn));
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
