// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomhtmlview.h"

#include "core/bompartsdatabase.h"
#include "host/framework/hostui.h"
#include "richtext/xhtml/tidylibwrapper.h"
#include "views/report/htmltext.h"
#include "views/report/reportlink.h"

#include <algorithm>
#include <array>

// The text of the document; what is done with it stands in bomhtmlview.cpp.

namespace {

constexpr int referencesColumn = 1;
constexpr int widestColumn = 1000;
constexpr int tabWidth = 8;

const QString cellEnd = QStringLiteral("</p></td>");

QString tableRow(const QString &cells)
{
    return QStringLiteral("<tr>") + cells + QStringLiteral("</tr>");
}

QString headerRow(const QString &label, const QString &value)
{
    return QStringLiteral("<tr><td><p class='headerTitle'>") + htmlText(label) +
           QStringLiteral("</p></td><td><p class='headerValue'>") + htmlText(value) +
           QStringLiteral("</p></td></tr>\n");
}

/// The cells of a row in one class, as they stand.
void appendCells(QString &html, const QStringList &cells, const QString &start)
{
    for (const QString &cell : cells) {
        html += start;
        html += cell;
        html += cellEnd;
    }
}

QString cellStart(QLatin1String className)
{
    return QStringLiteral("<td><p class='") + className + QStringLiteral("'>");
}

/// Totals in one class; one empty cell when there are none.
QString totalCells(const QStringList &totals, const QString &start)
{
    QStringList cells;
    for (const QString &total : totals) {
        cells.append(htmlText(total));
    }
    return start + cells.join(cellEnd + start) + cellEnd;
}

/// All of a run of blanks but the last become non-breaking ones.
QString withVisibleBlanks(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isFollowed = i + 1 < text.size() && text[i + 1].isSpace();
        if (text[i].isSpace() && isFollowed) {
            result += QStringLiteral("&nbsp;");
        } else {
            result += text[i];
        }
    }
    return result.simplified();
}

QString notesHtml(const QString &notes)
{
    const QStringList lines = notes.split(u'\n');
    QString html;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString line = htmlText(lines[i]);
        line.remove(u'\r');
        line.replace(u'\t', QString(tabWidth, u' '));
        html += line;
        if (i + 1 < lines.size()) {
            html += QStringLiteral("<br/>");
        }
    }
    return withVisibleBlanks(html);
}

QString notesSection(const QString &title, const QString &notes)
{
    const QString html = notesHtml(notes);
    return html.isEmpty() ? QString()
                          : QStringLiteral("\n<h3 class='NotesTitle'>") + htmlText(title) +
                                QStringLiteral("</h3><p class='bomNotes'>") + html + QStringLiteral("</p>\n");
}

} // namespace

QString BOMHTMLView::html()
{
    if (!isValid()) {
        return {};
    }
    upgradeTemplate();
    updateFields();
    const BOMTemplate &settings = database()->currentTemplate();
    const QString title = documentTitle();
    QString html = htmlDocumentStart(title, styleElementText(settings.css()));
    html += xmlText(settings.documentHeader());
    html += QStringLiteral("\n<h1 class='mainTitle'>") + title + QStringLiteral("</h1>");
    html += headerTable();
    html += notesSection(tr("Notes"), database()->notes());
    appendCategories(html);
    html += xmlText(settings.documentFooter());
    const HostUi &ui = HostUi::current();
    html += QStringLiteral("\n<p class='timestamp'>") +
            ::htmlText(ui.locale().toString(ui.now(), QLocale::LongFormat)) + QStringLiteral("</p>\n");
    html += QStringLiteral("</body>\n</html>");
    return html;
}

QList<QStringList> BOMHTMLView::categoryRows(const QString &category, bool grouped, int width,
                                             int lines) const
{
    QList<QStringList> rows = BOMView::categoryRows(category, grouped, width, lines);
    for (QStringList &row : rows) {
        row[referencesColumn] = referencesCell(row[referencesColumn]);
    }
    return rows;
}

QString BOMHTMLView::htmlText(const QString &text, bool allowMarkup)
{
    if (allowMarkup) {
        TidyLibWrapper tidy;
        QString tidied = tidy.tidyHtml(text, TidyLibWrapper::Fragment);
        if (tidy.errorString().isEmpty()) {
            return tidied;
        }
    }
    return ::htmlText(text);
}

QString BOMHTMLView::cellText(const Part &part, const ReportColumn &column, bool formatted) const
{
    QString text = BOMView::cellText(part, column, formatted);
    if (!formatted || !column.field.enableLinks || text.isEmpty()) {
        return text;
    }
    const QString link = database()->link(part.reference(), column.field.propertyName);
    if (!isOpenableLink(link)) {
        return text;
    }
    return QStringLiteral("<a href=\"") + ::htmlText(link) + QStringLiteral("\">") + text +
           QStringLiteral("</a>");
}

QString BOMHTMLView::formatCell(const QString &value, const ReportColumn &column) const
{
    return ::htmlText(truncated(BOMView::formatCell(value, column), column.field));
}

QString BOMHTMLView::documentTitle() const
{
    return ::htmlText(tr("Bill Of Materials for ") + database()->designTitle());
}

QString BOMHTMLView::headerTable() const
{
    const BOMPartsDatabase &parts = *database();
    QString html = QStringLiteral("\n<table class='headerTable'>\n<tbody>");
    html += headerRow(tr("Design Title"), parts.designTitle());
    html += headerRow(tr("Author"), parts.designAuthor());
    html += headerRow(tr("Document Number"), parts.designDocumentNumber());
    html += headerRow(tr("Revision"), parts.designRevision());
    if (const QString variant = parts.designVariant(); !variant.isEmpty()) {
        html += headerRow(tr("Assembly Variant"), variant);
    }
    html += headerRow(tr("Design Created"), parts.designCreated());
    html += headerRow(tr("Design Last Modified"), parts.designModified());
    html += headerRow(tr("Total Parts In Design"), QString::number(parts.parts().size()));
    return html + QStringLiteral("</tbody></table><p></p>\n\n");
}

QString BOMHTMLView::headingRow() const
{
    const QStringList headings = this->headings();
    const QList<int> widths = manualWidths();
    QString cells;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        const QString style = i < widths.size() ? QStringLiteral(" style='width:") +
                                                      QString::number(widths[i]) + QStringLiteral("%'")
                                                : QString();
        cells += QStringLiteral("<th") + style + QStringLiteral("><p class='fieldHeading'>") +
                 ::htmlText(headings[i]) + QStringLiteral("</p></th>");
    }
    return tableRow(cells);
}

QStringList BOMHTMLView::headings() const
{
    return QStringList{tr("Quantity"), tr("References")} + fields().names();
}

QList<int> BOMHTMLView::manualWidths() const
{
    const BOMTemplate &settings = database()->currentTemplate();
    if (!settings.manualPrettyLayout()) {
        return {};
    }
    const auto clamped = [](int width) { return std::clamp(width, 0, widestColumn); };
    QList<int> widths{clamped(settings.prettyQuantityWidth()), clamped(settings.prettyRefWidth())};
    qint64 sum = widths[0] + widths[1];
    // A field without a width leaves its place to the next one.
    for (const BOMField &field : database()->currentTemplate().fields().fields()) {
        const int width = clamped(field.manualWidth);
        sum += width;
        if (sum <= 100 && width > 0) {
            widths.append(width);
        }
    }
    return widths;
}

void BOMHTMLView::appendCategories(QString &html) const
{
    html += QStringLiteral("\n<table class='categoriesTable'>\n");
    const QString headingRow = this->headingRow();
    for (const QString &category : database()->categoryNames()) {
        appendCategory(html, category, headingRow);
    }
    appendTotals(html);
    html += QStringLiteral("</table>\n<p></p>\n\n");
}

void BOMHTMLView::appendCategory(QString &html, const QString &category, const QString &headingRow) const
{
    const QString count = QString::number(database()->partCount(category));
    const QString heading =
        tr("%1 %2", "BOM category headings in HTML output").arg(count, ::htmlText(category));
    html += QStringLiteral("<tbody>\n<tr><th colspan='") + QString::number(headings().size()) +
            QStringLiteral("'><p class='sectionTitle' >") + heading + QStringLiteral("</p></th></tr>\n") +
            headingRow;
    appendRows(html, category);
    html += QStringLiteral("<tr><td colspan='2'><p class='subtotal'>") + ::htmlText(tr("Sub-totals:")) +
            cellEnd + totalCells(categorySubTotals(category), cellStart(QLatin1String("subtotal"))) +
            QStringLiteral("</tr>\n</tbody>\n");
}

void BOMHTMLView::appendRows(QString &html, const QString &category) const
{
    const std::array<QString, 2> starts{cellStart(QLatin1String("oddfield")),
                                        cellStart(QLatin1String("evenfield"))};
    size_t number = 0;
    visitRows(category, true, UnlimitedWidth, 1, [&](const QStringList &row) {
        QStringList cells = row;
        cells[referencesColumn] = referencesCell(cells[referencesColumn]);
        html += QStringLiteral("<tr>");
        appendCells(html, cells, starts[number++ % 2]);
        html += QStringLiteral("</tr>\n");
    });
}

void BOMHTMLView::appendTotals(QString &html) const
{
    html += QStringLiteral("<tbody>\n<tr><td colspan=\"") + QString::number(headings().size()) +
            QStringLiteral("\"><p class='horizLine'>&nbsp; </p></td></tr>\n<tr>");
    const QString start = cellStart(QLatin1String("total"));
    html += start + ::htmlText(tr("Totals:")) + cellEnd + start + cellEnd + totalCells(grandTotals(), start) +
            QStringLiteral("</tr>\n</tbody>\n");
}

QString BOMHTMLView::referencesCell(const QString &references) const
{
    return ::htmlText(references).replace(u',', m_referenceSeparator);
}
