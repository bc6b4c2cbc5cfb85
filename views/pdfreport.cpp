// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/pdfreport.h"

#include "host/framework/applnprocess.h"
#include "richtext/css/pagegeometry.h"
#include "richtext/css/stylesheet.h"
#include "richtext/paper/pagepainter.h"
#include "richtext/paper/pdfoutput.h"
#include "templates/bomtemplate.h"
#include "views/report/htmlreport.h"
#include "views/report/report.h"
#include "views/report/templatemarkup.h"

#include <QPainter>

QByteArray pdfReport(const Report &report)
{
    const BOMTemplate &settings = report.settings();
    PagedText text;
    text.xhtml = htmlReport(report, HtmlUse::Pages);
    text.title = report.design().title;
    text.subject = subjectOf(report.design());
    const TemplateMarkup markup = templateMarkup(settings);
    text.header = markup.pageHeader;
    text.footer = markup.pageFooter;
    PdfOutput output(pageLayout(StyleSheet(settings.css())), text.title);
    PagePainter pages(text);
    QPainter painter(&output.device());
    pages.paint(painter, 1, pages.layOut(output.device()));
    appendProjectNotes(painter, settings);
    painter.end();
    return output.bytes();
}

void appendProjectNotes(QPainter &painter, const BOMTemplate &settings)
{
    APPLNPROCESS *process = getapplnprocess();
    if (!process || !painter.isActive() || !settings.appendNotes()) {
        return;
    }
    if (APPLNOBJECT *notes = process->currentobject("PROJNOTES", OBJECT_KIND_PROJECT_NOTES)) {
        notes->paint(painter, PAINT_MODE_APPEND);
    }
}
