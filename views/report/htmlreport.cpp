// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/htmlreport.h"

#include "core/part.h"
#include "host/framework/hostui.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/links.h"
#include "templates/bomtemplate.h"
#include "views/report/browserhead.h"
#include "views/report/report.h"
#include "views/report/templatemarkup.h"
#include "views/report/textwidths.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int widestColumn = 1000;
constexpr int tabWidth = 8;

const QString cellEnd = QStringLiteral("</p></td>");

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
    html += headerRow(QStringLiteral("Design Title"), design.title);
    html += headerRow(QStringLiteral("Author"), design.author);
    html += headerRow(QStringLiteral("Document Number"), design.documentNumber);
    html += headerRow(QStringLiteral("Revision"), design.revision);
    if (!design.variant.isEmpty()) {
        html += headerRow(QStringLiteral("Assembly Variant"), design.variant);
    }
    html += headerRow(QStringLiteral("Design Created"), design.created);
    html += headerRow(QStringLiteral("Design Last Modified"), design.modified);
    html += headerRow(QStringLiteral("Total Parts In Design"), Report::text(report.partCount()));
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
                          : QStringLiteral("\n<h3 class='NotesTitle'>") + htmlText(QStringLiteral("Notes")) +
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

/// For quantity, references and each column the attribute that names the class of its cells; empty where the
/// template has no layout for reading.
QStringList cellClasses(const Report &report)
{
    const bool isForReading = report.settings().layoutForReading();
    const QString number = isForReading ? QStringLiteral(" class='number'") : QString();
    QStringList classes{number, isForReading ? QStringLiteral(" class='references'") : QString()};
    for (const ReportColumn &column : report.columns()) {
        classes << (column.hasNumbers() ? number : QString());
    }
    return classes;
}

QStringList headingTexts(const Report &report)
{
    return QStringList{QStringLiteral("Quantity"), QStringLiteral("References")} + report.columnNames();
}

/// How many characters of the small font stand beside each other on the template's paper.
int charactersOfPaper(const BOMTemplate &settings)
{
    constexpr double character = 5;
    const QPageLayout layout = pageLayout(StyleSheet(settings.css()));
    return int(layout.paintRect(QPageLayout::Point).width() / character);
}

/// In percent, by what the texts need: documents that share out the room by themselves give long texts that
/// of all others.
QList<int> readableWidths(const Report &report)
{
    // Browsers and our pages break texts behind these.
    ColumnNeeds needs(u" -", TextMeasure::Print);
    needs.add(headingTexts(report));
    for (const QString &category : report.categories()) {
        const ReportLines listed = report.lines(category, true);
        for (const BomLine line : listed.lines) {
            QStringList texts{Report::text(Report::quantity(line)), report.references(line)};
            for (const ReportColumn &column : report.columns()) {
                texts << report.text(*line.front(), column);
            }
            needs.add(texts);
        }
        needs.add(QStringList{QString(), QString()} + report.texts(report.subTotals(category)));
    }
    // Totals are set in a larger, bold font.
    QStringList totals = report.texts(report.grandTotals());
    for (QString &total : totals) {
        total += QString(total.size() / 3, u'0');
    }
    needs.add(QStringList{QString(), QString()} + totals);
    // With the room for capitals in bold.
    constexpr int padding = 3;
    QList<ColumnNeed> wanted = needs.needs();
    const int room = charactersOfPaper(report.settings()) - padding * int(wanted.size());
    // Longer words are broken, so that the others have their room.
    const int longestWord = std::max(32, room * 3 / 10);
    for (ColumnNeed &need : wanted) {
        need.piece = std::min(need.piece, longestWord);
    }
    QList<int> widths = fittedWidths(wanted, room);
    int whole = 0;
    for (int &width : widths) {
        width += padding;
        whole += width;
    }
    int left = 100;
    for (int &width : widths) {
        width = std::max(1, width * 100 / whole);
        left -= width;
    }
    // A narrow column loses most by a percent that is not whole.
    std::vector<int *> narrowFirst;
    for (int &width : widths) {
        narrowFirst.push_back(&width);
    }
    std::stable_sort(narrowFirst.begin(), narrowFirst.end(),
                     [](const int *a, const int *b) { return *a < *b; });
    for (int *width : narrowFirst) {
        *width += left > 0 ? 1 : 0;
        left -= left > 0 ? 1 : 0;
    }
    widths[1] = std::max(1, widths[1] + left);
    return widths;
}

QString headingRow(const Report &report)
{
    const QStringList headings = headingTexts(report);
    const BOMTemplate &settings = report.settings();
    const QList<int> widths = settings.layoutForReading() && !settings.manualPrettyLayout()
                                  ? readableWidths(report)
                                  : manualWidths(report);
    const QStringList classes = cellClasses(report);
    QString cells;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        const QString style = i < widths.size() ? QStringLiteral(" style='width:") +
                                                      QString::number(widths[i]) + QStringLiteral("%'")
                                                : QString();
        cells += QStringLiteral("<th") + classes.at(i) + style + QStringLiteral("><p class='fieldHeading'>") +
                 htmlText(headings[i]) + QStringLiteral("</p></th>");
    }
    return QStringLiteral("<tr>") + cells + QStringLiteral("</tr>");
}

/// The start tags of cells of a row, whose paragraphs are of that class.
QStringList cellStarts(const QStringList &cellClasses, QLatin1String paragraphClass)
{
    QStringList starts;
    for (const QString &cellClass : cellClasses) {
        starts << QStringLiteral("<td") + cellClass + QStringLiteral("><p class='") + paragraphClass +
                      QStringLiteral("'>");
    }
    return starts;
}

/// What people would miss in silence.
QString emptyColumnsText(const QStringList &columns)
{
    return columns.isEmpty() ? QString()
                             : QStringLiteral("<p class='emptyColumns'>") +
                                   htmlText(emptyColumnsSentence(columns)) + QStringLiteral("</p>\n");
}

QString cellText(const Report &report, const Part &part, const ReportColumn &column)
{
    const QString text = htmlText(truncatedToWidth(report.text(part, column), column.field));
    return htmlLink(text, report.link(part, column));
}

/// Appends the table of all categories to a document.
class CategoriesTable final
{
public:
    CategoriesTable(const Report &report, HtmlUse use, QString &html)
        : m_report(report)
        , m_html(html)
        , m_isForReading(report.settings().layoutForReading())
        , m_hasOneHead(m_isForReading && use == HtmlUse::Browser)
        , m_columnCount(QString::number(report.columns().size() + 2))
        , m_headingRow(headingRow(report))
        , m_classes(cellClasses(report))
    {
    }

    void append();

private:
    void appendCategory(const QString &category);
    void appendLines(const QString &category);
    [[nodiscard]] QStringList subTotals(const QString &category) const;
    void appendSubTotals(const QStringList &totals);
    void appendTotals();
    void appendTotalCells(const QStringList &totals, QLatin1String paragraphClass);
    [[nodiscard]] QString references(BomLine line) const;

    const Report &m_report;
    QString &m_html;
    bool m_isForReading;
    /// Whether the headings stand once above all categories: browsers repeat one head on every page.
    bool m_hasOneHead;
    QString m_columnCount;
    QString m_headingRow;
    QStringList m_classes;
};

void CategoriesTable::append()
{
    m_html += QStringLiteral("\n<table class='categoriesTable'>\n");
    if (m_hasOneHead) {
        m_html += QStringLiteral("<thead>") + m_headingRow + QStringLiteral("</thead>\n");
    }
    for (const QString &category : m_report.categories()) {
        appendCategory(category);
    }
    appendTotals();
    m_html += QStringLiteral("</table>\n<p></p>\n\n");
}

void CategoriesTable::appendCategory(const QString &category)
{
    const QString count = Report::text(m_report.partCount(category));
    const QString heading = QStringLiteral("%1 %2").arg(count, htmlText(category));
    m_html += QStringLiteral("<tbody>\n<tr><th colspan='") + m_columnCount +
              QStringLiteral("'><p class='sectionTitle' >") + heading + QStringLiteral("</p></th></tr>\n");
    m_html += m_hasOneHead ? QString() : m_headingRow;
    appendLines(category);
    appendSubTotals(subTotals(category));
    m_html += QStringLiteral("</tbody>\n");
}

void CategoriesTable::appendLines(const QString &category)
{
    const std::array<QStringList, 2> starts{cellStarts(m_classes, QLatin1String("oddfield")),
                                            cellStarts(m_classes, QLatin1String("evenfield"))};
    const ReportLines listed = m_report.lines(category, true);
    size_t number = 0;
    for (const BomLine line : listed.lines) {
        const QStringList &start = starts[number++ % 2];
        m_html += QStringLiteral("<tr>") + start[0] + Report::text(Report::quantity(line)) + cellEnd +
                  start[1] + references(line) + cellEnd;
        qsizetype cell = 2;
        for (const ReportColumn &column : m_report.columns()) {
            m_html += start[cell++];
            m_html += cellText(m_report, *line.front(), column);
            m_html += cellEnd;
        }
        m_html += QStringLiteral("</tr>\n");
    }
}

/// For reading, a total of nothing is no 0.
QStringList CategoriesTable::subTotals(const QString &category) const
{
    QStringList totals = m_report.texts(m_report.subTotals(category));
    for (qsizetype i = 0; m_isForReading && i < totals.size(); ++i) {
        if (!m_report.isFilled(category, m_report.columns()[size_t(i)])) {
            totals[i].clear();
        }
    }
    return totals;
}

void CategoriesTable::appendSubTotals(const QStringList &totals)
{
    if (m_isForReading && totals.join(QString()).isEmpty()) {
        return;
    }
    m_html += QStringLiteral("<tr><td colspan='2'><p class='subtotal'>") +
              htmlText(QStringLiteral("Sub-totals:")) + cellEnd;
    appendTotalCells(totals, QLatin1String("subtotal"));
    m_html += QStringLiteral("</tr>\n");
}

void CategoriesTable::appendTotals()
{
    const QStringList totals = m_report.texts(m_report.grandTotals());
    if (m_isForReading && totals.join(QString()).isEmpty()) {
        return;
    }
    m_html += QStringLiteral("<tbody>\n<tr><td colspan=\"") + m_columnCount +
              QStringLiteral("\"><p class='horizLine'>&nbsp; </p></td></tr>\n<tr><td><p class='total'>") +
              htmlText(QStringLiteral("Totals:")) + cellEnd + QStringLiteral("<td><p class='total'>") +
              cellEnd;
    appendTotalCells(totals, QLatin1String("total"));
    m_html += QStringLiteral("</tr>\n</tbody>\n");
}

/// One empty cell when there are no columns.
void CategoriesTable::appendTotalCells(const QStringList &totals, QLatin1String paragraphClass)
{
    QStringList classes = m_classes.mid(2);
    if (classes.isEmpty()) {
        classes << QString();
    }
    const QStringList starts = cellStarts(classes, paragraphClass);
    for (qsizetype i = 0; i < starts.size(); ++i) {
        m_html += starts[i] + htmlText(totals.value(i)) + cellEnd;
    }
}

QString CategoriesTable::references(BomLine line) const
{
    const QString references = m_report.references(line);
    // What people copy has no characters that they do not see.
    return m_isForReading ? htmlText(references).replace(u',', QLatin1String(", "))
                          : htmlReferences(references);
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

QString htmlDocumentStart(const QString &title, const QString &css, const QString &moreOfHead)
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
           QStringLiteral("\n\t         </style>\t") + moreOfHead +
           QStringLiteral("      </head>\n\t   <body>\n");
}

QString htmlDocumentEnd()
{
    return QStringLiteral("</body>\n</html>");
}

QString htmlReport(const Report &whole, HtmlUse use)
{
    const Report report = whole.forReading();
    const BOMTemplate &settings = report.settings();
    const HostUi &ui = HostUi::current();
    const QString title = htmlText(QStringLiteral("Bill Of Materials for ") + report.design().title);
    const bool isForBrowsers = settings.layoutForReading() && use == HtmlUse::Browser;
    QString html = htmlDocumentStart(title, styleElementText(settings.css()),
                                     isForBrowsers ? browserHead(report) : QString());
    const TemplateMarkup markup = templateMarkup(settings);
    html += markup.documentHeader;
    html += QStringLiteral("\n<h1 class='mainTitle'>") + title + QStringLiteral("</h1>");
    html += headerTable(report);
    html += notesSection(report.notes());
    CategoriesTable(report, use, html).append();
    html += emptyColumnsText(report.emptyColumns());
    html += markup.documentFooter;
    html += QStringLiteral("\n<p class='timestamp'>") +
            htmlText(ui.locale().toString(ui.now(), QLocale::LongFormat)) + QStringLiteral("</p>\n");
    html += htmlDocumentEnd();
    return html;
}
