// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/terminalreport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/asciireport.h"
#include "views/report/report.h"
#include "views/report/textwidths.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

constexpr int gap = 2;
constexpr qsizetype referenceColumn = 1;
constexpr qsizetype firstField = 2;

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

/// A column of text as it is written.
struct TextColumn
{
    int width = 0;
    /// Whether its texts end at its right edge.
    bool isNumeric = false;
};

/// Only a layout for reading has its numbers on the right.
QList<TextColumn> textColumns(const Report &report, const QList<int> &widths)
{
    const bool isForReading = report.settings().layoutForReading();
    QList<TextColumn> columns;
    for (const int width : widths) {
        const qsizetype field = columns.size() - firstField;
        const bool hasNumbers =
            field >= 0 ? report.columns()[size_t(field)].hasNumbers() : field == -firstField;
        columns.append({width, isForReading && hasNumbers});
    }
    return columns;
}

/// Cells beside each other, each in as many lines as it takes; nothing stands behind the last text.
QString rowText(const QList<QStringList> &cells, const QList<TextColumn> &columns)
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
            const TextColumn &column = columns.at(i);
            if (!part.isEmpty()) {
                const int width = terminalWidth(part);
                const int at = begin + (column.isNumeric ? std::max(0, column.width - width) : 0);
                line += QString(std::max(0, at - used), u' ') + part;
                used = std::max(used, at) + width;
            }
            begin += column.width + gap;
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

QString sectionText(const Report &report, const Section &section, const QList<TextColumn> &columns,
                    bool isColoured)
{
    QString text = emphasized(section.heading, isColoured) + u'\n' +
                   QString(terminalWidth(section.heading), u'-') + u'\n';
    for (qsizetype row = 0; row < section.cells.size(); ++row) {
        QList<QStringList> cells;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const int width = columns.at(i).width;
            cells << (i == referenceColumn ? referenceLines(report, section.lines[size_t(row)], width)
                                           : wrappedText(section.cells.at(row).at(i), width));
        }
        text += rowText(cells, columns);
    }
    return text + u'\n';
}

} // namespace

QByteArray textReport(const Report &report)
{
    if (!report.settings().layoutForReading()) {
        return asciiReport(report);
    }
    const Report listed = report.with([](const ReportColumn &column) { return column.field.asciiWidth > 0; });
    const QList<int> widths = asciiWidths(listed);
    return terminalReport(listed, {std::accumulate(widths.begin(), widths.end(), 0), false});
}

QByteArray terminalReport(const Report &whole, const TerminalLook &look)
{
    const Report report = whole.forReading();
    const QStringList headings = asciiHeadings(report);
    const QList<Section> sections = sectionsOf(report);
    ColumnNeeds needs(wordBreaks);
    needs.add(headings);
    for (const Section &section : sections) {
        for (const QStringList &cells : section.cells) {
            needs.add(cells);
        }
    }
    const int room = look.width - gap * int(headings.size() - 1);
    const QList<TextColumn> columns = textColumns(report, fittedWidths(needs.needs(), room));
    QList<QStringList> titles;
    QList<QStringList> strokes;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        const int width = columns.at(i).width;
        titles << wrappedText(inOneLine(headings.at(i)), width);
        strokes << QStringList(QString(std::min(width, terminalWidth(headings.at(i))), u'-'));
    }
    QString text = emphasized(asciiTitle(), look.isColoured) + u'\n' + QString(asciiTitle().size(), u'=') +
                   u'\n' + asciiInformation(report.design()) +
                   emphasized(rowText(titles, columns).chopped(1), look.isColoured) + u'\n' +
                   rowText(strokes, columns);
    for (const Section &section : sections) {
        text += sectionText(report, section, columns, look.isColoured);
    }
    if (!report.emptyColumns().isEmpty()) {
        const QString sentence = inOneLine(emptyColumnsSentence(report.emptyColumns()));
        text += wrappedText(sentence, look.width).join(u'\n') + u'\n';
    }
    return text.toUtf8();
}

QString emphasized(const QString &text, bool isColoured)
{
    return isColoured ? QStringLiteral("\033[1m") + text + QStringLiteral("\033[0m") : text;
}
