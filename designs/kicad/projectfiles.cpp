// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/projectfiles.h"

#include "designs/filebuffer.h"
#include "designs/kicad/bomsettingsreader.h"
#include "designs/kicad/sexprscanner.h"
#include "designs/texts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

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

using Token = SexprScanner::Token;

struct Footprint
{
    std::string reference;
    Side side = Side::Top;
};

/// Version 8 writes the reference as a property, earlier ones as a text of that kind.
void readFootprintItem(SexprScanner *scanner, Footprint *footprint)
{
    const std::string_view keyword = scanner->keyword();
    const bool names = keyword == "property" || keyword == "fp_text";
    if (keyword == "layer" && scanner->takeText()) {
        footprint->side = scanner->raw().starts_with("B.") ? Side::Bottom : Side::Top;
    } else if (names && scanner->takeText() &&
               (scanner->raw() == "Reference" || scanner->raw() == "reference") && scanner->takeText()) {
        footprint->reference = scanner->text();
    }
}

bool readFootprint(SexprScanner *scanner, BoardSides *sides)
{
    Footprint footprint;
    for (;;) {
        switch (scanner->next()) {
        case Token::Open:
            readFootprintItem(scanner, &footprint);
            if (!scanner->skipList()) {
                return false;
            }
            break;
        case Token::Text:
            break;
        case Token::Close:
            sides->emplace(footprint.reference, footprint.side);
            return true;
        case Token::End:
        case Token::Error:
            return false;
        }
    }
}

bool readBoard(SexprScanner *scanner, BoardSides *sides)
{
    if (scanner->next() != Token::Open) {
        return false;
    }
    for (;;) {
        switch (scanner->next()) {
        case Token::Open: {
            const bool footprint = scanner->keyword() == "footprint" || scanner->keyword() == "module";
            if (!(footprint ? readFootprint(scanner, sides) : scanner->skipList())) {
                return false;
            }
            break;
        }
        case Token::Text:
            break;
        case Token::Close:
            return true;
        case Token::End:
        case Token::Error:
            return false;
        }
    }
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
                    KicadTexts::tr("the project file is broken: %1").arg(error.errorString())};
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
    project->bom = readProjectBom(schematic, path);
    const QJsonArray sheets = schematic.value(QLatin1String("top_level_sheets")).toArray();
    for (const auto entry : sheets) {
        const QJsonObject sheet = entry.toObject();
        project->topLevelSheets.push_back({sheet.value(QLatin1String("filename")).toString(),
                                           sheet.value(QLatin1String("uuid")).toString(),
                                           sheet.value(QLatin1String("name")).toString()});
    }
    return true;
}

bool readBoardSides(const QString &path, BoardSides *sides, Problem *problem)
{
    FileBuffer buffer;
    if (!buffer.read(path, "(kicad_pcb", problem)) {
        return false;
    }
    SexprScanner scanner(buffer.text());
    if (readBoard(&scanner, sides)) {
        return true;
    }
    *problem = {path, scanner.errorLine(),
                scanner.failed() ? scanner.error() : KicadTexts::tr("the board file is cut off")};
    return false;
}

} // namespace designs::kicad
