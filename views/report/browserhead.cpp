// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/browserhead.h"

#include "richtext/css/cssvalue.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/xmltext.h"
#include "templates/bomtemplate.h"
#include "views/report/report.h"

#include <QMarginsF>
#include <QPageLayout>
#include <QRectF>

#include <algorithm>

namespace {

/// Browsers put the number of the page and the design into the margin below the text.
QString pageRules(const Report &report)
{
    const QPageLayout layout = pageLayout(StyleSheet(report.settings().css()));
    const QSizeF paper = layout.fullRect(QPageLayout::Point).size();
    const QMarginsF margins = layout.margins(QPageLayout::Point);
    constexpr double roomForFoot = 28;
    const double lengths[] = {margins.top(), margins.right(), std::max(margins.bottom(), roomForFoot),
                              margins.left()};
    QString margin;
    for (const double length : lengths) {
        margin += u' ' + css::inPoints(length);
    }
    return QStringLiteral("@page {\n    size: ") + css::inPoints(paper.width()) + u' ' +
           css::inPoints(paper.height()) + QStringLiteral(";\n    margin:") + margin +
           QStringLiteral(";\n    font: 8pt Arial, sans-serif;\n    @bottom-left { content: ") +
           cssString(subjectOf(report.design())) +
           QStringLiteral("; }\n"
                          "    @bottom-right { content: counter(page) \" / \" counter(pages); }\n}\n"
                          "@media print {\n    body { margin: 0; }\n}\n");
}

/// Numbers and words of headings are not torn where a window is narrower than the paper.
const QString numberRules = QStringLiteral(
    "table.categoriesTable td.number p { white-space: nowrap; }\n"
    "table.categoriesTable td.number p, table.categoriesTable th p.fieldHeading { overflow-wrap: normal; }\n"
    "@media screen and (max-width: 1000px) {\n    table.categoriesTable { table-layout: auto; }\n}\n");

QString narrowRules(const QStringList &headings)
{
    QString labels;
    for (qsizetype i = 0; i < headings.size(); ++i) {
        labels += QStringLiteral("    table.categoriesTable td:nth-child(") + QString::number(i + 1) +
                  QStringLiteral(")::before { content: ") + cssString(headings[i]) + QStringLiteral("; }\n");
    }
    return QStringLiteral(
               "@media screen and (max-width: 640px) {\n"
               "    body { margin: 4mm; overflow-wrap: anywhere; }\n"
               "    table.categoriesTable, table.categoriesTable tbody, table.categoriesTable tr,\n"
               "    table.categoriesTable th { display: block; }\n"
               "    table.categoriesTable thead { display: none; }\n"
               "    table.categoriesTable td { display: grid; grid-template-columns: 35% 1fr; }\n"
               "    table.categoriesTable td:has(> p:empty) { display: none; }\n"
               "    table.categoriesTable td.number p { text-align: left; }\n"
               "    table.categoriesTable td::before { color: #5a6675; font-size: 9pt; "
               "padding: 2pt 4pt; }\n") +
           labels +
           QStringLiteral(
               "    table.categoriesTable td:has(> p.horizLine) { display: block; }\n"
               "    table.categoriesTable td:has(> p.subtotal), table.categoriesTable td:has(> p.total) "
               "{ display: inline-block; }\n"
               "    table.categoriesTable td:has(> p.subtotal)::before, "
               "table.categoriesTable td:has(> p.total)::before, "
               "table.categoriesTable td:has(> p.horizLine)::before { content: none; }\n"
               "}\n");
}

} // namespace

QString browserHead(const Report &report)
{
    return QStringLiteral("<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\" />\n"
                          "\t         <style type=\"text/css\">\n") +
           numberRules + pageRules(report) + narrowRules(report.headings(true).mid(1)) +
           QStringLiteral("\t         </style>\n");
}

QString cssString(const QString &text)
{
    QString string(u'"');
    for (const char32_t c : xmlText(text).toUcs4()) {
        const bool isPlain = c > 0x9F || (c < 0x7F && QChar(char16_t(c)).isLetterOrNumber()) || c == U' ' ||
                             c == U'.' || c == U',' || c == U'-' || c == U'_';
        string += isPlain ? QString::fromUcs4(&c, 1) : u'\\' + QString::number(uint(c), 16) + u' ';
    }
    return string + u'"';
}
