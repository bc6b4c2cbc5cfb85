// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/templatemarkup.h"

#include "richtext/css/cssloads.h"
#include "richtext/xhtml/markupcleaner.h"
#include "richtext/xhtml/qtstylesheet.h"
#include "templates/bomtemplate.h"

#include <QCoreApplication>

namespace {

struct MarkupTexts
{
    Q_DECLARE_TR_FUNCTIONS(TemplateMarkup)
};

/// The first few, and how many there are.
QString listed(const QStringList &things)
{
    constexpr qsizetype most = 5;
    const QString first = things.mid(0, most).join(QStringLiteral(", "));
    return things.size() > most
               ? MarkupTexts::tr("%1 and %2 more").arg(first, QString::number(things.size() - most))
               : first;
}

QString notice(const QString &name, const CleanMarkup &markup)
{
    if (!markup.problem.isEmpty()) {
        return MarkupTexts::tr("the report is without the %1 of the template: %2")
            .arg(name, markup.problem.section(u'\n', 0, 0));
    }
    return markup.leftOut.isEmpty()
               ? QString()
               : MarkupTexts::tr(
                     "the %1 of the template is shown without what would run or fetch something: %2")
                     .arg(name, listed(markup.leftOut));
}

} // namespace

TemplateMarkup templateMarkup(const BOMTemplate &settings)
{
    TemplateMarkup result;
    const auto take = [&result](MarkupCleaner &cleaner, const QString &fragment, const QString &name) {
        const CleanMarkup cleaned = cleaner.clean(fragment);
        result.notices.append(notice(name, cleaned));
        return cleaned.xhtml;
    };
    MarkupCleaner document;
    result.documentHeader = take(document, settings.documentHeader(), MarkupTexts::tr("header"));
    result.documentFooter = take(document, settings.documentFooter(), MarkupTexts::tr("footer"));
    MarkupCleaner page(MarkupCleaner::ofPage);
    result.pageHeader = take(page, settings.pageHeader(), MarkupTexts::tr("page header"));
    result.pageFooter = take(page, settings.pageFooter(), MarkupTexts::tr("page footer"));
    if (css::withoutLoads(settings.css()) != settings.css()) {
        result.notices.append(
            MarkupTexts::tr("the style sheet of the template is used without what would fetch something"));
    }
    if (!QtStyleSheet::holds(StyleSheet(settings.css()))) {
        result.notices.append(MarkupTexts::tr(
            "the style sheet of the template is too long: windows and PDF files show its first rules only"));
    }
    result.notices.removeAll(QString());
    return result;
}
