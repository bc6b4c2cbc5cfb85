// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/bomsettingsreader.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <QJsonArray>

#include <algorithm>

namespace designs::kicad {

namespace {

constexpr qsizetype mostFields = 1000;
constexpr qsizetype mostPresets = 1000;
constexpr qsizetype longestText = 1000;

/// Reads settings that may be of another program, or edited by hand: what is not as it should be is named.
class Reader
{
public:
    explicit Reader(const QString &path)
        : m_path(path)
    {
    }

    [[nodiscard]] BomSettings settings(const QJsonValue &value, const QString &where)
    {
        BomSettings settings;
        if (!value.isObject()) {
            problem(KicadTexts::tr("%1 is no object").arg(where));
            return settings;
        }
        const QJsonObject object = value.toObject();
        settings.name = object.value(QLatin1String("name")).toString().left(longestText);
        settings.filter = object.value(QLatin1String("filter_string")).toString().left(longestText);
        const QJsonValue fields = object.value(QLatin1String("fields_ordered"));
        if (!fields.isArray()) {
            problem(KicadTexts::tr("%1 has no list \"fields_ordered\"").arg(where));
            return settings;
        }
        readFields(fields.toArray(), where, &settings);
        return settings;
    }

    void problem(const QString &text)
    {
        constexpr qsizetype mostProblems = 5;
        if (problems.size() < mostProblems) {
            problems << m_path + QStringLiteral(": ") +
                            KicadTexts::tr("some of the BOM settings cannot be read: %1").arg(text);
        }
    }

    QStringList problems;

private:
    void readFields(const QJsonArray &fields, const QString &where, BomSettings *settings)
    {
        if (fields.size() > mostFields) {
            problem(KicadTexts::tr("%1 has more than %2 fields").arg(where, QString::number(mostFields)));
            return;
        }
        for (const auto entry : fields) {
            const QJsonObject field = entry.toObject();
            const QString name = field.value(QLatin1String("name")).toString();
            if (name.trimmed().isEmpty() || name.size() > longestText) {
                problem(KicadTexts::tr("%1 has a field without a name").arg(where));
                settings->fields.clear();
                return;
            }
            settings->fields.append({name, field.value(QLatin1String("label")).toString().left(longestText),
                                     field.value(QLatin1String("show")).toBool()});
        }
    }

    QString m_path;
};

} // namespace

ProjectBom readProjectBom(const QJsonObject &schematic, const QString &path)
{
    Reader reader(path);
    ProjectBom bom;
    if (const QJsonValue current = schematic.value(QLatin1String("bom_settings")); !current.isUndefined()) {
        bom.current = reader.settings(current, quotedForMessage("bom_settings"));
    }
    const QJsonValue presets = schematic.value(QLatin1String("bom_presets"));
    if (!presets.isUndefined() && !presets.isArray()) {
        reader.problem(KicadTexts::tr("%1 is no list").arg(quotedForMessage("bom_presets")));
    }
    const QJsonArray list = presets.toArray();
    for (qsizetype i = 0; i < std::min<qsizetype>(list.size(), mostPresets); ++i) {
        const BomSettings preset = reader.settings(list.at(i), KicadTexts::tr("preset %1").arg(i + 1));
        if (!preset.name.isEmpty() && !preset.fields.isEmpty()) {
            bom.presets.append(preset);
        }
    }
    bom.problems = reader.problems;
    return bom;
}

} // namespace designs::kicad
