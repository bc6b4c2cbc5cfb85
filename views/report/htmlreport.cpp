// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/htmlreport.h"

#include "core/part.h"
#include "host/framework/hostui.h"
#include "richtext/xhtml/links.h"
#include "templates/bomtemplate.h"
#include "views/report/report.h"
#include "views/report/templatemarkup.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr int widestColumn = 1000;
constexpr int tabWidth = 8;

const QString cellEnd = QStringLiteral("</p></td>");

QString tr(const char *text, const char *comment = nullptr)
{
    return QCoreApplication::translate("BOMHTMLView", text, comment);
}

QString headerRow(const QString &label, const QString &value)
{
    return QStringLiteral("<tr><td><p class='headerTitle'>") + htmlText(label) +
           QStringLiteral("</p></td><td><p class='headerValue'>") + htmlText(value) +
           QStringLiteral("</p></td></tr>\n");
}

QString headerTable(const Report &report)
{
    const ReportDesign design = report.design();
    QString html = QStringLiteral("\n<table class='headerTable'>\n<tbody>");
    html += headerRow(tr("Design Title"), design.title);
    html += headerRow(tr("Author"), design.author);
    html += headerRow(tr("Document Number"), design.documentNumber);
    html += headerRow(tr("Revision"), design.revision);
    if (!design.variant.isEmpty()) {
        html += headerRow(tr("Assembly Variant"), design.variant);
    }
    html += headerRow(tr("Design Created"), design.created);
    html += headerRow(tr("Design Last Modified"), design.modified);
    html += headerRow(tr("Total Parts In Design"), Report::text(report.partCount()));
    return html + QStringLiteral("</tbody></table><p></p>\n\n");
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

QString notesSection(const QString &notes)
{
    const QString html = notesHtml(notes);
    return html.isEmpty() ? QString()
                          : QStringLiteral("\n<h3 class='NotesTitle'>") + htmlText(tr("Notes")) +
                                QStringLiteral("</h3><p class='bomNotes'>") + html + QStringLiteral("</p>\n");
}

/// In percent, for the headings from the first one on; empty where the template leaves widths alone.
QList<int> manualWidths(const Report &report)
{
    const BOMTemplate &settings = report.settings();
    if (!settings.manualPrettyLayout()) {
        return {};
    }
    const auto clamped = [](int width) { return std::clamp(width, 0, widestColumn); };
    QList<int> widths{clamped(settings.prettyQuantityWidth()), clamped(settings.prettyRefWidth())};
    qint64 sum = widths[0] + widths[1];
    // A field without a width leaves its place to the next one.
    for (const ReportColumn &column : report.columns()) {
        const int width = clamped(column.field.manualWidth);
        sum += width;
        if (sum <= 100 && width > 0) {
            widths.append(width);
        }
    }
    return widths;
}

QString headingRow(const Report &report)
{
    const QStringList headings = QStringList{tr("Quantity"), tr("References")} + report.columnNames();
    const QList<int> widths = manualWidths(report);
    QString cells;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        const QString style = i < widths.size() ? QStringLiteral(" style='width:") +
                                                      QString::number(widths[i]) + QStringLiteral("%'")
                                                : QString();
        cells += QStringLiteral("<th") + style + QStringLiteral("><p class='fieldHeading'>") +
                 htmlText(headings[i]) + QStringLiteral("</p></th>");
    }
    return QStringLiteral("<tr>") + cells + QStringLiteral("</tr>");
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

QString cellText(const Report &report, const Part &part, const ReportColumn &column)
{
    const QString text = htmlText(truncatedToWidth(report.text(part, column), column.field));
    return htmlLink(text, report.link(part.reference(), column));
}

/// Appends the table of all categories to a document.
class CategoriesTable final
{
public:
    CategoriesTable(const Report &report, QString &html)
        : m_report(report)
        , m_html(html)
        , m_columnCount(QString::number(report.columns().size() + 2))
        , m_headingRow(headingRow(report))
    {
    }

    void append();

private:
    void appendCategory(const QString &category);
    void appendLines(const QString &category);
    void appendTotals();

    const Report &m_report;
    QString &m_html;
    QString m_columnCount;
    QString m_headingRow;
};

void CategoriesTable::append()
{
    m_html += QStringLiteral("\n<table class='categoriesTable'>\n");
    for (const QString &category : m_report.categories()) {
        appendCategory(category);
    }
    appendTotals();
    m_html += QStringLiteral("</table>\n<p></p>\n\n");
}

void CategoriesTable::appendCategory(const QString &category)
{
    const QString count = Report::text(m_report.partCount(category));
    const QString heading =
        tr("%1 %2", "BOM category headings in HTML output").arg(count, htmlText(category));
    m_html += QStringLiteral("<tbody>\n<tr><th colspan='") + m_columnCount +
              QStringLiteral("'><p class='sectionTitle' >") + heading + QStringLiteral("</p></th></tr>\n") +
              m_headingRow;
    appendLines(category);
    const QString start = cellStart(QLatin1String("subtotal"));
    m_html += QStringLiteral("<tr><td colspan='2'><p class='subtotal'>") + htmlText(tr("Sub-totals:")) +
              cellEnd + totalCells(m_report.texts(m_report.subTotals(category)), start) +
              QStringLiteral("</tr>\n</tbody>\n");
}

void CategoriesTable::appendLines(const QString &category)
{
    const std::array<QString, 2> starts{cellStart(QLatin1String("oddfield")),
                                        cellStart(QLatin1String("evenfield"))};
    const ReportLines listed = m_report.lines(category, true);
    size_t number = 0;
    for (const BomLine line : listed.lines) {
        const QString &start = starts[number++ % 2];
        m_html += QStringLiteral("<tr>") + start + Report::text(Report::quantity(line)) + cellEnd + start +
                  htmlReferences(m_report.references(line)) + cellEnd;
        for (const ReportColumn &column : m_report.columns()) {
            m_html += start;
            m_html += cellText(m_report, *line.front(), column);
            m_html += cellEnd;
        }
        m_html += QStringLiteral("</tr>\n");
    }
}

void CategoriesTable::appendTotals()
{
    m_html += QStringLiteral("<tbody>\n<tr><td colspan=\"") + m_columnCount +
              QStringLiteral("\"><p class='horizLine'>&nbsp; </p></td></tr>\n<tr>");
    const QString start = cellStart(QLatin1String("total"));
    m_html += start + htmlText(tr("Totals:")) + cellEnd + start + cellEnd +
              totalCells(m_report.texts(m_report.grandTotals()), start) + QStringLiteral("</tr>\n</tbody>\n");
}

} // namespace

QString htmlLink(const QString &text, const QString &link)
{
    return text.isEmpty() || !isOpenableLink(link)
               ? text
               : QStringLiteral("<a href=\"") + htmlText(link) + QStringLiteral("\">") + text +
                     QStringLiteral("</a>");
}

QString htmlReferences(const QString &references)
{
    // A soft hyphen and a space without width: long lists can wrap after any comma.
    return htmlText(references).replace(u',', QStringLiteral(",&shy;&#8203;"));
}

QString htmlDocumentStart(const QString &title, const QString &css)
{
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "   <!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
               "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\n"
               "      <html>\n"
               "\t      <head>\n"
               "\t         <meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />\n"
               "\t         <title>") +
           title + QStringLiteral("</title>\n\t         <style type=\"text/css\">\n") + css +
           QStringLiteral("\n\t         </style>\t      </head>\n\t   <body>\n");
}

QString htmlDocumentEnd()
{
    return QStringLiteral("</body>\n</html>");
}

QString htmlReport(const Report &report)
{
    const BOMTemplate &settings = report.settings();
    const HostUi &ui = HostUi::current();
    const QString title = htmlText(tr("Bill Of Materials for ") + report.design().title);
    QString html = htmlDocumentStart(title, styleElementText(settings.css()));
    const TemplateMarkup markup = templateMarkup(settings);
    html += markup.documentHeader;
    html += QStringLiteral("\n<h1 class='mainTitle'>") + title + QStringLiteral("</h1>");
    html += headerTable(report);
    html += notesSection(report.notes());
    CategoriesTable(report, html).append();
    html += markup.documentFooter;
    html += QStringLiteral("\n<p class='timestamp'>") +
            htmlText(ui.locale().toString(ui.now(), QLocale::LongFormat)) + QStringLiteral("</p>\n");
    html += htmlDocumentEnd();
    return html;
}
