// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fitting/fittedtemplate.h"

#include "fitting/listedparts.h"
#include "fitting/madecolumns.h"
#include "fitting/prefixcategories.h"
#include "host/framework/oneof.h"
#include "standalone/loadeddesign.h"
#include "templates/templatelist.h"
#include "templates/templatemessages.h"
#include "templates/templatepaths.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

using designs::BomSettings;

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(FittedTemplate)
};

/// References and quantities, which every bill has, and KiCad's marks of parts.
bool isFixedColumn(const QString &name)
{
    return name.startsWith(QLatin1String("${")) ||
           isOneOf(name, {QLatin1String("Reference"), QLatin1String("References"),
                          QLatin1String("Designator"), QLatin1String("Quantity"), QLatin1String("Qty")});
}

/// Whether KiCad shows the column of its own accord.
bool isInitialColumn(const QString &name)
{
    return isFixedColumn(name) ||
           isOneOf(name, {QLatin1String("Value"), QLatin1String("Footprint"), QLatin1String("Datasheet"),
                          QLatin1String("Description"), QLatin1String("DNP")});
}

/// KiCad stores such settings for every project in which the table of symbol fields was open once.
bool areKicadsOwn(const BomSettings &settings)
{
    const bool hasInitialName =
        settings.name.isEmpty() ||
        isOneOf(settings.name,
                {QLatin1String("Default Editing"), QLatin1String("Grouped By Value"),
                 QLatin1String("Grouped By Value and Footprint"), QLatin1String("Attributes")});
    return hasInitialName &&
           std::all_of(settings.fields.begin(), settings.fields.end(), [](const BomSettings::Field &field) {
               return !field.isShown || isInitialColumn(field.name);
           });
}

QString propertyOf(const QString &field)
{
    if (field.compare(QLatin1String("Value"), Qt::CaseInsensitive) == 0) {
        return QStringLiteral("VALUE");
    }
    return field.compare(QLatin1String("Footprint"), Qt::CaseInsensitive) == 0 ? QStringLiteral("PACKAGE")
                                                                               : field;
}

/// A label in one line, without characters that cannot be seen.
QString readable(QString label)
{
    label.removeIf([](QChar c) { return !c.isPrint() && !c.isSpace() && !c.isSurrogate(); });
    return label.simplified();
}

void addColumn(const ListedParts &parts, const QString &name, const QString &label, BOMFields *columns)
{
    if (!isFixedColumn(name)) {
        columns->add(columnOf(parts, propertyOf(name),
                              freeTitle(*columns, readable(label.trimmed().isEmpty() ? name : label))));
    }
}

BOMFields projectColumns(const ListedParts &parts, const BomSettings &settings)
{
    BOMFields columns;
    for (const BomSettings::Field &field : settings.fields) {
        if (field.isShown) {
            addColumn(parts, field.name, field.label, &columns);
        }
    }
    return columns;
}

/// The look of the template for buyers, with other columns.
BOMTemplate settingsWith(const ListedParts &parts, const BOMFields &columns)
{
    const QString name = QStringLiteral("Purchasing");
    BOMTemplate settings(name, shippedTemplateFolder() + u'/' + name + QStringLiteral(".bomt"));
    settings.setName(fittedTemplateName());
    settings.setFilePath({});
    settings.setFields(columns);
    settings.setCategories(prefixCategories(parts.prefixes()));
    settings.setSuppressEmptyCategories(true);
    return settings;
}

/// With the value in front where it has no column: every bill needs one.
BOMFields withValue(const ListedParts &parts, const BOMFields &columns)
{
    const QList<BOMField> fields = columns.fields();
    const bool hasValue = std::any_of(fields.begin(), fields.end(), [](const BOMField &field) {
        return field.propertyName == QLatin1String("VALUE");
    });
    if (hasValue) {
        return columns;
    }
    BOMFields complete;
    complete.add(columnOf(parts, QStringLiteral("VALUE"), freeTitle(columns, QStringLiteral("Value"))));
    for (const BOMField &field : fields) {
        complete.add(field);
    }
    return complete;
}

QString namesOf(const BOMFields &columns)
{
    return columns.names().join(QStringLiteral(", "));
}

QStringList leftOutNotices(const MadeColumns &columns)
{
    return columns.leftOut.isEmpty() ? QStringList()
                                     : QStringList(Texts::tr("too many columns; without one are: %1")
                                                       .arg(columns.leftOut.join(QStringLiteral(", "))));
}

/// `preset` is its name, where the columns are not those that the project shows now.
QString projectReason(const std::optional<QString> &preset, const QString &columns)
{
    return preset ? Texts::tr("columns of the project's preset \"%1\": %2").arg(*preset, columns)
                  : Texts::tr("columns of the project's BOM settings: %1").arg(columns);
}

FittedTemplate projectTemplate(const ListedParts &parts, const BomSettings &settings,
                               const std::optional<QString> &preset)
{
    const BOMFields shown = withValue(parts, projectColumns(parts, settings));
    const QStringList &own = shown.names();
    const MadeColumns columns = withTellingColumns(parts, shown);
    const QStringList added = columns.fields.names().sliced(own.size());
    FittedTemplate fitted{settingsWith(parts, columns.fields), {}, leftOutNotices(columns)};
    fitted.reason = projectReason(preset, own.join(QStringLiteral(", ")));
    if (!added.isEmpty()) {
        fitted.reason = Texts::tr("%1; and %2, which tell parts apart")
                            .arg(fitted.reason, added.join(QStringLiteral(", ")));
    }
    if (!settings.filter.isEmpty()) {
        fitted.notices << Texts::tr("the filter \"%1\" of the project's BOM settings is not followed")
                              .arg(settings.filter);
    }
    return fitted;
}

/// The presets, and what the editor showed last, which has the name of the preset that it was made from.
QList<BomSettings> namedSettings(const LoadedDesign &design)
{
    QList<BomSettings> settings = design.design().projectBom().presets;
    settings.append(design.design().projectBom().current);
    return settings;
}

std::optional<FittedTemplate> templateFromFile(const QString &path, QString *problem)
{
    auto settings = BOMTemplate::fromFile(path, problem);
    if (!settings) {
        return std::nullopt;
    }
    FittedTemplate fitted{*settings, Texts::tr("template %1 beside the design").arg(path), {}};
    if (settings->isOfLaterVersion()) {
        const TemplateMessage message = settings->laterVersionMessage();
        fitted.notices << (message.detail.isEmpty() ? message.text : message.detail);
    }
    return fitted;
}

} // namespace

QString fittedTemplateName()
{
    return QStringLiteral("Fitted");
}

QString templateBeside(const LoadedDesign &design)
{
    const QFileInfo file(design.design().info().file);
    return file.path() + u'/' + file.completeBaseName() + QStringLiteral(".bomt");
}

std::optional<FittedTemplate> fittedTemplate(const LoadedDesign &design, QString *problem)
{
    if (const QString path = templateBeside(design); QFileInfo::exists(path)) {
        return templateFromFile(path, problem);
    }
    const designs::ProjectBom &bom = design.design().projectBom();
    const ListedParts parts(design);
    if (!areKicadsOwn(bom.current) && !projectColumns(parts, bom.current).isEmpty()) {
        FittedTemplate fitted = projectTemplate(parts, bom.current, std::nullopt);
        fitted.notices += bom.problems;
        return fitted;
    }
    if (design.properties().fields().names() == nullptr) {
        BOMTemplate settings;
        settings.setName(TemplateList::defaultName());
        return FittedTemplate{
            settings,
            Texts::tr("template %1, as names are taken as they are").arg(TemplateList::defaultName()),
            bom.problems};
    }
    const MadeColumns columns = madeColumns(parts);
    return FittedTemplate{settingsWith(parts, columns.fields),
                          Texts::tr("columns made for what the parts have: %1").arg(namesOf(columns.fields)),
                          bom.problems + leftOutNotices(columns)};
}

std::optional<FittedTemplate> presetTemplate(const LoadedDesign &design, const QString &preset)
{
    const QList<BomSettings> all = namedSettings(design);
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const auto found = std::find_if(all.begin(), all.end(), [&](const BomSettings &settings) {
            return !settings.fields.isEmpty() && settings.name.compare(preset, sensitivity) == 0;
        });
        if (found != all.end()) {
            return projectTemplate(ListedParts(design), *found, readable(found->name));
        }
    }
    return std::nullopt;
}

QStringList presetNames(const LoadedDesign &design)
{
    QStringList names;
    for (const BomSettings &settings : namedSettings(design)) {
        names << settings.name;
    }
    names.removeAll(QString());
    names.removeDuplicates();
    return names;
}

BOMFields withDecimalsOfParts(BOMFields fields, const LoadedDesign &design)
{
    for (BOMField field : fields.fields()) {
        if (field.generateTotals && field.precision > 0) {
            field.precision = std::max(field.precision, decimalsOf(design, field.propertyName));
            fields.set(field);
        }
    }
    return fields;
}

FittedTemplate columnTemplate(const LoadedDesign &design, const QStringList &properties,
                              const QStringList &labels)
{
    const ListedParts parts(design);
    BOMFields columns;
    for (qsizetype i = 0; i < properties.size(); ++i) {
        addColumn(parts, properties.at(i).trimmed(), labels.value(i).trimmed(), &columns);
    }
    const BOMFields complete = withValue(parts, columns);
    FittedTemplate fitted{settingsWith(parts, complete), Texts::tr("columns %1").arg(namesOf(columns)), {}};
    fitted.settings.setExcludeValueField(complete.size() > columns.size());
    return fitted;
}
