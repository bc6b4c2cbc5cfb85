// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/templatesettings.h"

#include "core/propertyquery.h"
#include "templates/bomtemplate.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

/// `wanted`, or with a number behind it when that name is taken.
template<typename IsTaken>
QString freeName(const QString &wanted, IsTaken isTaken)
{
    QString name = wanted;
    for (int number = 2; isTaken(name); ++number) {
        name = wanted + u' ' + QString::number(number);
    }
    return name;
}

bool hasField(const BOMFields &fields, const QString &property, Qt::CaseSensitivity rule)
{
    const QList<BOMField> list = fields.fields();
    return std::any_of(list.begin(), list.end(), [&](const BOMField &field) {
        return field.propertyName.compare(property, rule) == 0;
    });
}

void addValueField(BOMTemplate &settings)
{
    const BOMFields old = settings.fields();
    BOMField value;
    //: Stands in reports, which have one language on all machines: leave it as it is.
    value.fieldName = freeName(QCoreApplication::translate("BOMPartsDatabase", "Value"),
                               [&old](const QString &name) { return old.contains(name); });
    value.propertyName = valueProperty();
    BOMFields fields;
    fields.add(value);
    for (const BOMField &field : old.fields()) {
        fields.add(field);
    }
    settings.setFields(fields);
}

bool hasMiscCategory(const QList<BOMCategory> &categories)
{
    return std::any_of(categories.begin(), categories.end(),
                       [](const BOMCategory &category) { return category.isMiscCategory; });
}

void addMiscCategory(BOMTemplate &settings)
{
    QList<BOMCategory> categories = settings.categories();
    QSet<QString> headings;
    for (const BOMCategory &category : std::as_const(categories)) {
        headings.insert(category.heading);
    }
    BOMCategory misc;
    //: Stands in reports, which have one language on all machines: leave it as it is.
    misc.heading = freeName(QCoreApplication::translate("BOMPartsDatabase", "Miscellaneous"),
                            [&headings](const QString &name) { return headings.contains(name); });
    misc.references = QStringList{QStringLiteral("*")};
    misc.isMiscCategory = true;
    categories.append(misc);
    settings.setCategories(categories);
}

bool takeFieldWidths(const BOMFields &source, BOMTemplate *target)
{
    BOMFields fields = target->fields();
    for (BOMField field : fields.fields()) {
        if (source.contains(field.fieldName)) {
            const BOMField other = source.get(field.fieldName);
            field.manualWidth = other.manualWidth;
            field.asciiWidth = other.asciiWidth;
            fields.set(field);
        }
    }
    if (fields == target->fields()) {
        return false;
    }
    target->setFields(fields);
    return true;
}

/// False when the setting is the same in both.
template<typename Getter, typename Setter>
bool takeSetting(const BOMTemplate &source, BOMTemplate *target, Getter getter, Setter setter)
{
    if ((source.*getter)() == (target->*getter)()) {
        return false;
    }
    (target->*setter)((source.*getter)());
    return true;
}

} // namespace

QStringList repairTemplate(BOMTemplate &settings)
{
    QStringList repairs;
    if (!hasField(settings.fields(), valueProperty(), Qt::CaseSensitive)) {
        addValueField(settings);
        repairs << QCoreApplication::translate(
            "BOMPartsDatabase", "The template has no field for VALUE; one was added as the first column.");
    }
    if (!hasMiscCategory(settings.categories())) {
        addMiscCategory(settings);
        repairs << QCoreApplication::translate(
            "BOMPartsDatabase", "The template has no miscellaneous category; one was added as the last.");
    }
    return repairs;
}

BOMFields columnsOf(const BOMTemplate &settings, bool marksNotFitted)
{
    constexpr int columnWidth = 6;
    BOMFields columns = settings.fields();
    if (marksNotFitted && !hasField(columns, notFittedProperty(), Qt::CaseInsensitive)) {
        BOMField mark;
        mark.fieldName =
            freeName(notFittedProperty(), [&columns](const QString &name) { return columns.contains(name); });
        mark.propertyName = notFittedProperty();
        mark.asciiWidth = columnWidth;
        mark.manualWidth = columnWidth;
        columns.add(mark);
    }
    return columns;
}

void takeLook(const BOMTemplate &source, BOMTemplate *target)
{
    target->setCss(source.css());
    target->setDocumentHeader(source.documentHeader());
    target->setDocumentFooter(source.documentFooter());
    target->setHtmlTemplateFileName(source.htmlTemplateFileName());
}

bool takeLayout(const BOMTemplate &source, BOMTemplate *target)
{
    bool isChanged = takeFieldWidths(source.fields(), target);
    const auto take = [&](auto getter, auto setter) {
        isChanged = takeSetting(source, target, getter, setter) || isChanged;
    };
    take(&BOMTemplate::prettyQuantityWidth, &BOMTemplate::setPrettyQuantityWidth);
    take(&BOMTemplate::prettyRefWidth, &BOMTemplate::setPrettyRefWidth);
    take(&BOMTemplate::asciiQuantityWidth, &BOMTemplate::setAsciiQuantityWidth);
    take(&BOMTemplate::asciiRefWidth, &BOMTemplate::setAsciiRefWidth);
    take(&BOMTemplate::manualPrettyLayout, &BOMTemplate::setManualPrettyLayout);
    take(&BOMTemplate::alwaysQuoteRefs, &BOMTemplate::setAlwaysQuoteRefs);
    take(&BOMTemplate::excludeValueField, &BOMTemplate::setExcludeValueField);
    take(&BOMTemplate::caseSensitiveGrouping, &BOMTemplate::setCaseSensitiveGrouping);
    take(&BOMTemplate::layoutForReading, &BOMTemplate::setLayoutForReading);
    return isChanged;
}

bool takeOptions(const BOMTemplate &source, BOMTemplate *target)
{
    bool isChanged = false;
    const auto take = [&](auto getter, auto setter) {
        isChanged = takeSetting(source, target, getter, setter) || isChanged;
    };
    take(&BOMTemplate::suppressEmptyCategories, &BOMTemplate::setSuppressEmptyCategories);
    take(&BOMTemplate::groupReferences, &BOMTemplate::setGroupReferences);
    take(&BOMTemplate::fullTextOuputs, &BOMTemplate::setFullTextOuputs);
    take(&BOMTemplate::appendNotes, &BOMTemplate::setAppendNotes);
    return isChanged;
}
