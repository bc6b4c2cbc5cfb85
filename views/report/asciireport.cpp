// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/asciireport.h"

#include "core/part.h"
#include "templates/bomtemplate.h"
#include "views/report/report.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int widestColumn = 1000;
constexpr int mostReferenceLines = 1000;

/// Filled up or cut to the width; a pair of surrogates is not cut in two.
void appendCell(QString &line, const QString &text, int width)
{
    QStringView kept = QStringView(text).left(width);
    if (kept.size() < text.size() && !kept.isEmpty() && kept.back().isHighSurrogate()) {
        kept.chop(1);
    }
    line += kept;
    line.resize(line.size() + width - kept.size(), u' ');
}

QString lineOf(const QStringList &cells, const QList<int> &widths)
{
    QString line;
    for (qsizetype i = 0; i < std::min(cells.size(), widths.size()); ++i) {
        appendCell(line, inOneLine(cells.at(i)), widths.at(i));
    }
    return line + u'\n';
}

QString underlined(const QString &text, QChar stroke)
{
    return text + u'\n' + QString(text.size(), stroke) + u'\n';
}

QString headingLines(const Report &report, const QList<int> &widths)
{
    const QStringList headings = asciiHeadings(report);
    QStringList strokes;
    for (const QString &heading : headings) {
        strokes.append(QString(heading.size(), u'-'));
    }
    return lineOf(headings, widths) + lineOf(strokes, widths);
}

/// A line of the bill; references that do not fit go on in lines of their own.
QString billLine(const Report &report, BomLine line, const QList<int> &widths)
{
    const QString wrapped = report.references(line, widths.at(1) - 1, mostReferenceLines);
    const QStringList references = wrapped.split(u'\n', Qt::SkipEmptyParts);
    QStringList cells{Report::text(Report::quantity(line)), references.value(0)};
    for (const ReportColumn &column : report.columns()) {
        cells << report.text(*line.front(), column);
    }
    QString text = lineOf(cells, widths);
    for (const QString &more : references.mid(1)) {
        text += QString(widths.front(), u' ') + more + u'\n';
    }
    return text;
}

} // namespace

QByteArray asciiReport(const Report &report)
{
    const QList<int> widths = asciiWidths(report);
    QByteArray text =
        (underlined(asciiTitle(), u'=') + asciiInformation(report.design()) + headingLines(report, widths))
            .toUtf8();
    for (const QString &category : report.categories()) {
        text += underlined(inOneLine(category), u'-').toUtf8();
        const ReportLines listed = report.lines(category, true);
        for (const BomLine line : listed.lines) {
            text += billLine(report, line, widths).toUtf8();
        }
        text += '\n';
    }
    return text;
}

QString asciiTitle()
{
    return QStringLiteral("Bill Of Materials");
}

QString asciiInformation(const ReportDesign &design)
{
    QList<std::pair<QString, QString>> entries{{QStringLiteral("Design Title"), design.title},
                                               {QStringLiteral("Document Number"), design.documentNumber},
                                               {QStringLiteral("Revision"), design.revision}};
    if (!design.variant.isEmpty()) {
        entries.append({QStringLiteral("Assembly Variant"), design.variant});
    }
    entries.append({{QStringLiteral("Author"), design.author},
                    {QStringLiteral("Created"), design.created},
                    {QStringLiteral("Modified"), design.modified}});
    qsizetype longest = 0;
    for (const auto &[label, value] : std::as_const(entries)) {
        longest = std::max(longest, label.size());
    }
    QString block;
    for (const auto &[label, value] : std::as_const(entries)) {
        block += label + u':' + QString(longest + 1 - label.size(), u' ') + inOneLine(value) + u'\n';
    }
    return block + u'\n';
}

QStringList asciiHeadings(const Report &report)
{
    return QStringList{QStringLiteral("QTY"), QStringLiteral("PART-REFS")} + report.columnNames();
}

QList<int> asciiWidths(const Report &report)
{
    const auto clamped = [](int width) { return std::clamp(width, 0, widestColumn); };
    QList<int> widths{clamped(report.settings().asciiQuantityWidth()),
                      clamped(report.settings().asciiRefWidth())};
    if (const qsizetype notFitted = report.partCount().notFitted; notFitted > 0) {
        widths.front() = std::max(widths.front(), int(Report::text({0, notFitted}).size()) + 1);
    }
    for (const ReportColumn &column : report.columns()) {
        widths.append(clamped(column.field.asciiWidth));
    }
    return widths;
}

QString inOneLine(const QString &text)
{
    const auto tears = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    if (std::none_of(text.begin(), text.end(), tears)) {
        return text;
    }
    QString line = text;
    std::replace_if(line.begin(), line.end(), tears, QChar(u' '));
    return line;
}
