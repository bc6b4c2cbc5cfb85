// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/legacytemplate.h"

#include "host/propdefs/propdefsfile.h"
#include "templates/clampedint.h"
#include "templates/templatelist.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

/// Builds categories and fields from the lines of a script.
class ScriptConversion final
{
    Q_DECLARE_TR_FUNCTIONS(ScriptConversion)

public:
    void read(QStringView line)
    {
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0) {
            return;
        }
        const QStringView key = line.first(equals).trimmed();
        const auto is = [key](QLatin1String name) { return key.compare(name, Qt::CaseInsensitive) == 0; };
        const bool isTotal = is(QLatin1String("TOTAL"));
        if (isTotal || is(QLatin1String("FIELD"))) {
            addField(legacyScriptValues(line.sliced(equals + 1).toString()), isTotal);
        } else if (is(QLatin1String("CATEGORY"))) {
            addCategory(legacyScriptValues(line.sliced(equals + 1).toString()));
        }
    }

    [[nodiscard]] BOMTemplate result()
    {
        if (std::ranges::none_of(m_categories, &BOMCategory::isMiscCategory)) {
            //: Stands in reports, which have one language on all machines: leave it as it is.
            m_categories.append(BOMCategory{tr("Miscellaneous"), {QStringLiteral("*")}, true});
        }
        BOMTemplate made;
        made.setCategories(m_categories);
        made.setFields(m_fields);
        return made;
    }

private:
    void addCategory(const QStringList &values)
    {
        if (values.size() != 3) {
            return;
        }
        const QString &prefix = values.at(0);
        const QString &heading = values.at(1);
        const QString key = heading.toCaseFolded();
        const auto known = m_indices.constFind(key);
        if (known != m_indices.constEnd()) {
            m_categories[*known].references.append(prefix);
            return;
        }
        m_indices.insert(key, m_categories.size());
        m_categories.append(BOMCategory{heading, {prefix}, prefix == u'*'});
    }

    void addField(const QStringList &values, bool isTotal)
    {
        constexpr qsizetype fewestValues = 8;
        if (values.size() < fewestValues) {
            return;
        }
        BOMField field;
        field.propertyName = values.at(0);
        field.fieldWidth = clampedInt(values.at(1));
        field.asciiWidth = field.fieldWidth;
        field.fieldName = values.at(2);
        field.prefix = values.at(4);
        field.suffix = values.at(5);
        field.applyToEmpty = values.at(6).compare(QLatin1String("YES"), Qt::CaseInsensitive) == 0;
        field.generateTotals = isTotal;
        field.fieldLines = 1;
        field.manualWidth = 0;
        m_fields.set(field);
    }

    QList<BOMCategory> m_categories;
    /// By folded heading.
    QHash<QString, qsizetype> m_indices;
    BOMFields m_fields;
};

bool needsNoDefinition(const QString &property)
{
    return property.startsWith(u'.') || property.compare(QLatin1String("VALUE"), Qt::CaseInsensitive) == 0;
}

} // namespace

QStringList legacyScriptValues(const QString &text)
{
    QStringList values;
    const auto add = [&values](QStringView piece) {
        if (piece != u',') {
            values.append(piece.toString());
        }
    };
    bool isInside = false;
    for (const QStringView quoted : QStringView(text).tokenize(u'"')) {
        if (isInside) {
            add(quoted);
        } else {
            for (const QStringView piece : quoted.tokenize(u',', Qt::SkipEmptyParts)) {
                add(piece);
            }
        }
        isInside = !isInside;
    }
    return values;
}

BOMTemplate legacyTemplate(const LegacyScript &script)
{
    ScriptConversion conversion;
    for (QStringView line : QStringView(script.text).tokenize(u'\n')) {
        while (line.endsWith(u'\r')) {
            line.chop(1);
        }
        conversion.read(line);
    }
    return conversion.result();
}

QString proposedTemplateName(const QString &scriptName, const TemplateList &templates)
{
    //: A name in settings, options and scripts: leave it as it is.
    const QString imported = QCoreApplication::translate("BOMTemplateImporter", "Imported Template");
    const QString name = scriptName.isEmpty() ? imported : scriptName;
    return templates.contains(name) ? name + QStringLiteral("-copy") : name;
}

QStringList undefinedProperties(const BOMTemplate &settings)
{
    DIDX known;
    if (!load_defaultdefs(&known, nullptr)) {
        return {};
    }
    QStringList undefined;
    for (const BOMField &field : settings.fields().fields()) {
        const QString &name = field.propertyName;
        // Adding the name keeps a second field of the same property out of the list.
        if (!name.isEmpty() && !needsNoDefinition(name) && known.add({name, PropType::String, {}})) {
            undefined.append(name);
        }
    }
    return undefined;
}
