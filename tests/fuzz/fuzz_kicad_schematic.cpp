// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "designs/kicad/sexprscanner.h"
#include "designs/kicad/sheetparser.h"
#include "designs/kicad/symbolrecount.h"
#include "designs/kicadtext.h"

#include <QFile>
#include <QTemporaryDir>

#include <string_view>

using namespace kicadtext;
using designs::kicad::SexprScanner;
using Token = SexprScanner::Token;

namespace {

/// Goes behind the end of the list just opened token by token; false when the text is broken before that.
bool walkList(SexprScanner *scanner, int *deepest)
{
    for (int depth = 1; depth > 0;) {
        switch (scanner->next()) {
        case Token::Open:
            *deepest = std::max(*deepest, ++depth);
            break;
        case Token::Close:
            --depth;
            break;
        case Token::Text:
            break;
        case Token::End:
        case Token::Error:
            return false;
        }
    }
    return true;
}

/// Skipping a list and reading it must end at the same place; `lists` are looked at, the first ones of the
/// text.
void compareSkipping(std::string_view text, int lists)
{
    SexprScanner scanner(text);
    for (Token token = scanner.next(); lists > 0 && token != Token::End && token != Token::Error;
         token = scanner.next()) {
        if (token != Token::Open) {
            continue;
        }
        --lists;
        SexprScanner skipping = scanner;
        SexprScanner walking = scanner;
        int deepest = 1;
        const bool skipped = skipping.skipList();
        const bool walked = walkList(&walking, &deepest);
        if (deepest < SexprScanner::maximumDepth) {
            promise(skipped == walked, "skipping and reading a list fail together");
            promise(!skipped || skipping.offset() == walking.offset(),
                    "skipping and reading end at the same place");
        }
        promise(skipped || skipping.errorLine() > 0, "a failure has a line");
    }
}

/// The second count has a reader of its own, for files.
void recount(std::string_view text)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("input.kicad_sch"));
    // A new file each time: some file systems write through when one is truncated.
    QFile::remove(path);
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) &&
                file.write(text.data(), qint64(text.size())) == qint64(text.size()),
            "the input can be written to a file");
    file.close();
    designs::SymbolCount count;
    designs::Problem problem;
    promise(designs::kicad::SymbolRecount().count({path}, &count, &problem) || !problem.text.isEmpty(),
            "a count that fails says why");
}

/// True when the text is a schematic.
bool parse(std::string_view text)
{
    designs::TextArena arena;
    designs::PropertyNames names;
    designs::kicad::SheetFile file;
    designs::kicad::SheetParser parser(text, &file, &arena, &names);
    if (!parser.parse()) {
        promise(!parser.problem().text.isEmpty() && parser.problem().line > 0,
                "a refusal has a text and a line");
        return false;
    }
    promise(file.formatVersion > 0, "a schematic that was read has a version");
    for (const auto &symbol : file.symbols) {
        promise(text.substr(symbol.offset).starts_with("("), "a symbol's offset is that of its list");
        for (const auto &property : symbol.properties) {
            promise(property.name < names.size(), "a property's name is known");
        }
        for (const auto &instance : symbol.instances) {
            promise(instance.path < file.paths.size(), "an instance's path is known");
        }
    }
    for (const std::size_t offset : parser.badTexts()) {
        promise(offset < text.size(), "a bad text lies in the file");
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    if (parse(text)) {
        recount(text);
    }
    compareSkipping(text, 20);
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    const std::vector<Use> uses{{.path = "/top",
                                 .reference = "R1",
                                 .more = "(variant (name \"A\") (dnp yes)"
                                         " (field (name \"Value\") (value \"1k\")))"}};
    const Fields fields{{"Footprint", "R:0402"}, {"Note", "a \"quoted\" C:\\path {slash} ${VALUE}"}};
    const std::string title = "(title_block (title \"T\") (date \"2026-01-01\") (comment 1 \"one\"))";
    const std::string area = "(rule_area (in_bom no) (polyline (pts (xy 0 0) (xy 10 0) (xy 10 10))))";
    std::vector<std::string> seeds;
    for (const int version : {v6, v7, v8, v9, v10}) {
        seeds.push_back(
            schematic(version, "top",
                      title + "\n# a comment (\n" +
                          symbol(version, {.libName = "R_1", .dnp = "no", .fields = fields, .uses = uses}) +
                          sheet(version, {.fields = fields, .uses = uses}) + area +
                          instanceTable({{"/sym", "R2", "2k", "R:0603"}})));
    }
    return seeds;
}

std::vector<std::string> fuzzWords()
{
    // clang-format off
    return {"(", ")", "\"", "\\", "\n", "#", "\n#", "\\\"", "\\x", "(symbol ", "(property", "(instances", "(path \"/top\"",
            "(dnp yes)", "(id 1)", "\"~\"", "${", "{slash}", "\xFF", "\xEF\xBB\xBF", " ", "(version 20260101)", "private ",
            "(at nan 1e999)", std::string(1, '\0')};
    // clang-format on
}
