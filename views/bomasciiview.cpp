// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomasciiview.h"

#include "core/bompartsdatabase.h"
#include "views/savereport.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int widestColumn = 1000;
constexpr int mostReferenceLines = 1000;
constexpr qsizetype referencesColumn = 1;

int clampedWidth(int width)
{
    return std::clamp(width, 0, widestColumn);
}

/// Line breaks and other control characters would tear the columns apart.
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

} // namespace

BOMAsciiView::BOMAsciiView(QWidget *parent)
    : BOMView(parent)
{
}

void BOMAsciiView::writeOutput()
{
    if (!isValid()) {
        return;
    }
    updateFields();
    saveReport(this,
               {tr("ASCII file to save"), database()->defaultOutputPath(QStringLiteral(".txt")),
                tr("ASCII fixed column width file (*.txt)")},
               [this] { return ascii(); });
}

QByteArray BOMAsciiView::ascii()
{
    if (!isValid()) {
        return {};
    }
    updateFields();
    QByteArray text = (titleBlock() + informationBlock()).toUtf8();
    removeValueField();
    const QList<int> widths = this->widths();
    appendHeadings(text, widths);
    for (const QString &category : database()->categoryNames()) {
        appendCategory(text, category, widths);
    }
    return text;
}

void BOMAsciiView::handleBOMDataUpdate() {}

QString BOMAsciiView::titleBlock() const
{
    return underlined(tr("Bill Of Materials"), u'=');
}

QString BOMAsciiView::informationBlock() const
{
    const BOMPartsDatabase &parts = *database();
    QList<std::pair<QString, QString>> entries{{tr("Design Title"), parts.designTitle()},
                                               {tr("Document Number"), parts.designDocumentNumber()},
                                               {tr("Revision"), parts.designRevision()}};
    if (const QString variant = parts.designVariant(); !variant.isEmpty()) {
        entries.append({tr("Assembly Variant"), variant});
    }
    entries.append({{tr("Author"), parts.designAuthor()},
                    {tr("Created"), parts.designCreated()},
                    {tr("Modified"), parts.designModified()}});
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

QList<int> BOMAsciiView::widths() const
{
    const BOMTemplate &settings = database()->currentTemplate();
    QList<int> widths{clampedWidth(settings.asciiQuantityWidth()), clampedWidth(settings.asciiRefWidth())};
    for (const ReportColumn &column : columns()) {
        widths.append(clampedWidth(column.field.asciiWidth));
    }
    return widths;
}

void BOMAsciiView::appendHeadings(QByteArray &text, const QList<int> &widths) const
{
    const QStringList headings = QStringList{tr("QTY"), tr("PART-REFS")} + fields().names();
    QStringList strokes;
    for (const QString &heading : headings) {
        strokes.append(QString(heading.size(), u'-'));
    }
    text += (lineOf(headings, widths) + lineOf(strokes, widths)).toUtf8();
}

void BOMAsciiView::appendCategory(QByteArray &text, const QString &category, const QList<int> &widths) const
{
    text += underlined(inOneLine(category), u'-').toUtf8();
    const QString indent(widths.front(), u' ');
    const int referencesWidth = widths.at(referencesColumn) - 1;
    visitRows(category, true, referencesWidth, mostReferenceLines, [&](const QStringList &row) {
        const QStringList references = row.at(referencesColumn).split(u'\n', Qt::SkipEmptyParts);
        QStringList cells = row;
        cells[referencesColumn] = references.value(0);
        QString lines = lineOf(cells, widths);
        for (const QString &more : references.mid(1)) {
            lines += indent + more + u'\n';
        }
        text += lines.toUtf8();
    });
    text += '\n';
}
