// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/projectfile.h"

#include "designs/filebuffer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace designs::kicad {

namespace {

QStringList variantNames(const QJsonArray &variants)
{
    QStringList names;
    for (const auto variant : variants) {
        names << (variant.isObject() ? variant.toObject().value(QLatin1String("name")).toString()
                                     : variant.toString());
    }
    names.removeAll(QString());
    return names;
}

int lineOf(std::string_view text, int offset)
{
    const auto before = text.substr(0, std::size_t(qMax(0, offset)));
    return 1 + int(std::count(before.begin(), before.end(), '\n'));
}

} // namespace

bool readProjectFile(const QString &path, ProjectFile *project, Problem *problem)
{
    FileBuffer buffer;
    if (!buffer.read(path, "{", problem)) {
        return false;
    }
    const std::string_view text = buffer.text();
    QJsonParseError error{};
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), qsizetype(text.size())), &error);
    if (!document.isObject()) {
        *problem = {path, lineOf(text, error.offset),
                    QStringLiteral("the project file is broken: ") + error.errorString()};
        return false;
    }
    project->path = path;
    const QJsonObject root = document.object();
    const QJsonObject variables = root.value(QLatin1String("text_variables")).toObject();
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        project->textVariables.insert(it.key(), it.value().toString());
    }
    const QJsonObject schematic = root.value(QLatin1String("schematic")).toObject();
    project->variants = variantNames(schematic.value(QLatin1String("variants")).toArray());
    const QJsonArray sheets = schematic.value(QLatin1String("top_level_sheets")).toArray();
    for (const auto entry : sheets) {
        const QJsonObject sheet = entry.toObject();
        project->topLevelSheets.push_back({sheet.value(QLatin1String("filename")).toString(),
                                           sheet.value(QLatin1String("uuid")).toString(),
                                           sheet.value(QLatin1String("name")).toString()});
    }
    return true;
}

} // namespace designs::kicad
