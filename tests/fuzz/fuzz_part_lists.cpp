// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "designs/csv/csvfile.h"
#include "designs/csv/edit/editablepartlist.h"
#include "designs/csv/partlistreader.h"
#include "designs/splices.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <string_view>

namespace {

using designs::PartList;

/// What a part says, by name; texts that are empty say nothing.
using Texts = std::map<std::string, std::string>;

/// No headings, because a list with zero bytes is refused.
const std::string referenceKey("\0reference", 10);
const std::string valueKey("\0value", 6);
/// Of lists that are read a second and third time; ranges make many parts out of few bytes.
constexpr std::size_t mostParts = 500;

QString inputPath()
{
    static const QTemporaryDir folder;
    return folder.filePath(QStringLiteral("parts.csv"));
}

designs::ReadResult read(const QByteArray &bytes)
{
    return designs::readPartListBytes(inputPath(), bytes, {}, std::make_unique<designs::EditablePartList>());
}

/// In any order.
std::vector<Texts> partsOf(const designs::Design &design)
{
    std::vector<Texts> parts;
    for (const designs::Component &component : design.components()) {
        Texts texts{{referenceKey, std::string(component.reference)},
                    {valueKey, std::string(component.value)}};
        for (const designs::Property &property : component.properties) {
            texts[std::string(design.names().name(property.name))] = property.value;
        }
        std::erase_if(texts, [](const auto &text) { return text.second.empty(); });
        parts.push_back(std::move(texts));
    }
    return parts;
}

std::vector<Texts> sorted(std::vector<Texts> parts)
{
    std::ranges::sort(parts);
    return parts;
}

void checkParts(const designs::Design &design)
{
    for (const designs::Component &component : design.components()) {
        const QByteArrayView reference(component.reference.data(), qsizetype(component.reference.size()));
        promise(!reference.isEmpty() && !reference.startsWith('#') && reference.isValidUtf8() &&
                    component.reference.find_first_of(" ,;&\r\n\t") == std::string_view::npos,
                "a part has a reference");
        promise(component.line > 0, "a part has a line");
    }
    for (const designs::Problem &warning : design.warnings()) {
        promise(warning.file == inputPath() && !warning.text.isEmpty(), "a warning says what and where");
    }
}

/// The same cells, all in quotes, between semicolons, in UTF-8.
QByteArray rewritten(const designs::CsvFile &file)
{
    designs::TextArena arena;
    QByteArray bytes;
    for (const designs::CsvRow &row : file.rows()) {
        const char *between = "";
        for (const designs::CsvCell &cell : file.cells(row)) {
            const std::string_view text = file.text(cell, arena);
            QByteArray quoted(text.data(), qsizetype(text.size()));
            quoted.replace('"', "\"\"");
            bytes += between + ('"' + quoted + '"');
            between = ";";
        }
        bytes += '\n';
    }
    return bytes;
}

void checkOtherDialect(const QByteArray &bytes, const designs::Design *design)
{
    designs::Problem problem;
    const auto file = designs::CsvFile::parse(bytes, &problem);
    const QByteArray other = file ? rewritten(*file) : QByteArray();
    const auto dialect = designs::recogniseDialect({other.constData(), std::size_t(other.size())}, &problem);
    if (!file || !dialect || dialect->delimiter != ';') {
        return;
    }
    const designs::ReadResult again = read(other);
    promise(bool(again.design) == bool(design), "what is refused does not depend on how the cells stand");
    promise(!design || partsOf(*again.design) == partsOf(*design),
            "the parts do not depend on how the cells stand in the file");
}

void checkEdit(const PartList &list, const QByteArray &bytes, const designs::Edit &edit)
{
    const designs::EditPlan plan = list.planEdits(std::span(&edit, 1));
    promise(plan.problems.empty() || plan.files.empty(), "nothing is written where there is a problem");
    promise(!list.checkEdit(edit) || !plan.problems.empty(), "what is refused alone is refused in a plan");
    if (plan.files.empty()) {
        return;
    }
    promise(plan.files.size() == 1 && plan.changes.size() == 1, "one edit changes the one file");
    const designs::Change &change = plan.changes.front();
    const bool isValue = list.columns().value ? change.name == list.columns().names[*list.columns().value]
                                              : designs::isValueHeading(change.name);
    std::vector<Texts> expected = partsOf(list);
    Texts &part = expected[edit.component];
    part[isValue ? valueKey : change.name] = change.after.value_or("");
    std::erase_if(part, [](const auto &text) { return text.second.empty(); });
    std::string after;
    designs::makeSpliced({bytes.constData(), std::size_t(bytes.size())}, plan.files.front().splices, &after);
    const designs::ReadResult again = read(QByteArray::fromStdString(after));
    promise(bool(again.design), "what was written is read again");
    promise(sorted(partsOf(*again.design)) == sorted(expected),
            "what was written says what was meant and all else that it said");
}

void checkFile(const PartList &list, const QByteArray &bytes)
{
    // A new file each time: some file systems write through when one is truncated.
    QFile::remove(inputPath());
    QFile file(inputPath());
    promise(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "the input can be written to a file");
    file.close();
    designs::Problem problem;
    const designs::SymbolCount count = list.recount(&problem);
    promise(count.placed == list.symbols().placed && count.power == list.symbols().power,
            "the second count comes to the same");
}

} // namespace

/// The first three bytes choose the edit, the rest is the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 3) {
        return 0;
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 3, qsizetype(size) - 3);
    const designs::ReadResult result = read(bytes);
    promise(result.design || !result.error.text.isEmpty(), "a refusal says why");
    if (!result.design) {
        checkOtherDialect(bytes, nullptr);
        return 0;
    }
    if (result.design->components().size() > mostParts) {
        return 0;
    }
    const auto &list = static_cast<const PartList &>(*result.design);
    checkParts(list);
    checkOtherDialect(bytes, &list);
    checkFile(list, bytes);
    if (list.components().empty()) {
        return 0;
    }
    static const std::vector<std::string> names{"Value", "MPN",     "Note", "Footprint",
                                                "DNP",   "BOMSKIP", "value"};
    static const std::vector<std::optional<std::string>> values{
        "x", "", std::nullopt, " a, \"b\";\n\t'c' ", "Yes", "\xC3\xA4"};
    checkEdit(
        list, bytes,
        {data[0] % list.components().size(), names[data[1] % names.size()], values[data[2] % values.size()]});
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    // clang-format off
    return {
        "aabReference,Value,MPN,Qty\nR1-R4,1k,\"a, \"\"b\"\"\",4\n\"C1,C2;C5\",1u,,3\nX1-1 X1-3,x,,\n",
        "abaBill;of;parts\r\nDesignator;Comment;Footprint;DNP\r\nR01..R12;\"1\nk\";0402;1\r\nU1/A U2B;;SO8;\r\nTotal;14;;\r\n",
        "bbc\xEF\xBB\xBF\"RefDes\"\t\"Note\"\n\"D1 to D3 & D7\"\t\"\xE2\x84\xA6\"\n\"#PWR1,#PWR2\"\t\"\"\n",
        "cddCategory|References|Quantity\rResistors|J1-1|1\rResistors|J1-2|1\r",
        "aeeRef,BOMSKIP,Value\nR1\xE2\x80\x93" "5,,10 \xB5" "F\nR7,8-9,1,x\n",
        "adfsep=;\nReference;Value;;Value (2)\nC17/18/19;a;b;c\n1;d;;\n\"R1\nR2 thru R5\";e\n",
    };
    // clang-format on
}

std::vector<std::string> fuzzWords()
{
    // clang-format off
    return {",", ";", "\t", "|", "\"", "\"\"", "\n", "\r\n", "\r", " ", "-", "..", ":", "~", " to ", "thru", "&", "+", "/", "R1", "R01-R12",
            "X1-2", "J1-A", "#PWR", "+5V", "R?", "100001", "18446744073709551615", "Reference", "Value", "Qty", "DNP", "Total",
            "sep=;\n", "\xEF\xBB\xBF", "\xE2\x80\x93", "\xE3\x80\x81", "\xEF\xBC\x91", "\xC2\xA0", "\xB5", std::string(1, '\0')};
    // clang-format on
}
