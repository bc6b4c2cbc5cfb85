// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/templatelisting.h"

#include "cli/console.h"
#include "templates/bomtemplate.h"
#include "templates/templatepaths.h"

#include <QDir>

namespace {

QString quoted(const QString &text)
{
    return u'"' + printable(text) + u'"';
}

QString line(const QString &label, const QString &text)
{
    return label + QStringLiteral(": ") + text + u'\n';
}

QString yesNo(bool isSet)
{
    return isSet ? QStringLiteral("yes") : QStringLiteral("no");
}

QString columnText(const BOMField &field)
{
    QStringList notes;
    if (!field.prefix.isEmpty()) {
        notes << QStringLiteral("prefix ") + quoted(field.prefix);
    }
    if (!field.suffix.isEmpty()) {
        notes << QStringLiteral("suffix ") + quoted(field.suffix);
    }
    if (field.applyToEmpty) {
        notes << QStringLiteral("on empty values too");
    }
    if (field.generateTotals) {
        notes << QStringLiteral("totals with ") +
                     counted(field.precision, QStringLiteral("decimal"), QStringLiteral("decimals"));
    }
    if (field.enableLinks) {
        notes << QStringLiteral("links");
    }
    if (field.fieldWidth > 0) {
        notes << QStringLiteral("at most ") +
                     counted(field.fieldWidth, QStringLiteral("character"), QStringLiteral("characters"));
    }
    notes.prepend(printable(field.propertyName));
    return notes.join(QStringLiteral(", "));
}

QString categoryText(const BOMCategory &category)
{
    return category.isMiscCategory ? QStringLiteral("all other parts")
                                   : printable(category.references.join(QStringLiteral(", ")));
}

QString htmlText(const BOMTemplate &settings)
{
    QString text =
        line(QStringLiteral("Style sheet"),
             settings.css() == defaultStyleSheet() ? QStringLiteral("default") : QStringLiteral("its own"));
    const std::pair<QString, QString> fragments[] = {
        {QStringLiteral("Document header"), settings.documentHeader()},
        {QStringLiteral("Document footer"), settings.documentFooter()},
        {QStringLiteral("Page header"), settings.pageHeader()},
        {QStringLiteral("Page footer"), settings.pageFooter()}};
    for (const auto &[label, fragment] : fragments) {
        if (!fragment.isEmpty()) {
            text += line(label, printable(fragment));
        }
    }
    return text;
}

QString optionsText(const BOMTemplate &settings)
{
    return line(QStringLiteral("References"), settings.groupReferences()
                                                  ? QStringLiteral("shortened (R1-R7)")
                                                  : QStringLiteral("individual (R1,R2...)")) +
           line(QStringLiteral("Suppress empty categories"), yesNo(settings.suppressEmptyCategories())) +
           line(QStringLiteral("Case sensitive part grouping"), yesNo(settings.caseSensitiveGrouping())) +
           line(QStringLiteral("Append notes"), yesNo(settings.appendNotes())) +
           line(QStringLiteral("Manual table column widths"), yesNo(settings.manualPrettyLayout())) +
           line(QStringLiteral("Always quote references (CSV only)"), yesNo(settings.alwaysQuoteRefs())) +
           line(QStringLiteral("Exclude value field (data outputs)"), yesNo(settings.excludeValueField()));
}

QString placeText(const BOMTemplate &settings)
{
    const QString path = settings.filePath();
    if (isShippedTemplateFile(path)) {
        return QStringLiteral("comes with the program");
    }
    return QFile::exists(path) ? printable(QDir::toNativeSeparators(path)) : QStringLiteral("none yet");
}

} // namespace

QString templateListing(const BOMTemplate &settings)
{
    QString text = line(QStringLiteral("Template"), printable(settings.name())) +
                   line(QStringLiteral("File"), placeText(settings)) + QStringLiteral("Columns:\n");
    for (const BOMField &field : settings.fields().fields()) {
        text += QStringLiteral("  ") + line(printable(field.fieldName), columnText(field));
    }
    text += QStringLiteral("Categories:\n");
    for (const BOMCategory &category : settings.categories()) {
        text += QStringLiteral("  ") + line(printable(category.heading), categoryText(category));
    }
    return text + optionsText(settings) + htmlText(settings);
}
