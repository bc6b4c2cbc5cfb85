// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/boardfile.h"

#include "designs/filebuffer.h"
#include "designs/kicad/sexprscanner.h"

#include <algorithm>

namespace designs::kicad {

namespace {

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
                scanner.failed() ? scanner.error() : QStringLiteral("the board file is cut off")};
    return false;
}

} // namespace designs::kicad
