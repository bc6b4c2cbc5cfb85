// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "designs/formats/designreader.h"
#include "designs/kicadtext.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <map>
#include <string_view>

using namespace kicadtext;

namespace {

/// The input, in a file: a new one each time, some file systems write through when one is truncated.
QString inputFile(std::string_view text)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("root.kicad_sch"));
    QFile::remove(path);
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) &&
                file.write(text.data(), qint64(text.size())) == qint64(text.size()),
            "the input can be written to a file");
    return path;
}

/// All texts of a component but those of one property, by name.
std::map<std::string, std::string> textsOf(const designs::Design &design, std::size_t component,
                                           const std::string &without)
{
    std::map<std::string, std::string> texts;
    for (const designs::Property &property : design.components()[component].properties) {
        texts[std::string(design.names().name(property.name))] = property.value;
    }
    texts["Reference"] = design.components()[component].reference;
    texts["Value"] = design.components()[component].value;
    texts.erase(without);
    return texts;
}

/// Lists and texts of a file stay in place but for a stretch: as long as the longest common beginning and end
/// leave.
bool isChangedInOnePlace(std::string_view before, std::string_view after, std::size_t most)
{
    const auto start = std::ranges::mismatch(before, after);
    before.remove_prefix(std::size_t(start.in1 - before.begin()));
    after.remove_prefix(std::size_t(start.in2 - after.begin()));
    while (!before.empty() && !after.empty() && before.back() == after.back()) {
        before.remove_suffix(1);
        after.remove_suffix(1);
    }
    return before.size() <= most && after.size() <= most;
}

void checkEdit(const designs::Design &design, std::string_view text, const designs::Edit &edit)
{
    const designs::EditPlan plan = design.planEdits(std::span(&edit, 1));
    promise(plan.problems.empty() || plan.files.empty(), "nothing is written where there is a problem");
    promise(design.checkEdit(edit).has_value() == !plan.problems.empty() || plan.problems.size() > 0,
            "what is refused alone is refused in a plan");
    if (plan.files.empty()) {
        return;
    }
    promise(plan.files.size() == 1 && plan.changes.size() == 1, "one edit changes the one file");
    const designs::Change &change = plan.changes.front();
    std::string after;
    designs::makeSpliced(text, plan.files.front().splices, &after);
    if (change.alsoChanges.empty() && change.name != "Value") {
        const std::size_t most = 2000 + 4 * change.before.value_or("").size();
        promise(isChangedInOnePlace(text, after, most), "one edit changes one place");
    }
    const designs::ReadResult again = designs::readDesign(inputFile(after));
    promise(again.design && again.design->components().size() == design.components().size(),
            "what was written is read again, with all components");
    for (std::size_t component = 0; component < design.components().size(); ++component) {
        const bool isMeant = component == edit.component ||
                             std::ranges::find(change.alsoChanges, component) != change.alsoChanges.end();
        const std::string without = isMeant ? change.name : std::string();
        promise(textsOf(design, component, without) == textsOf(*again.design, component, without),
                "other texts stay");
    }
}

} // namespace

/// The first three bytes choose the edit, the rest is the schematic.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 3) {
        return 0;
    }
    const std::string_view text(reinterpret_cast<const char *>(data) + 3, size - 3);
    const designs::ReadResult read = designs::readDesign(inputFile(text));
    promise(read.design || !read.error.text.isEmpty(), "a refusal says why");
    if (!read.design || read.design->components().empty()) {
        return 0;
    }
    const std::size_t component = data[0] % read.design->components().size();
    const auto isSame = [reference = read.design->components()[component].reference](const auto &other) {
        return other.reference == reference;
    };
    if (std::ranges::count_if(read.design->components(), isSame) > 1) {
        return 0; // Edits of references that stand on several symbols are refused before they are planned.
    }
    static const std::vector<std::string> names{"Value", "MPN",     "Note", "Footprint",
                                                "DNP",   "BOMSKIP", "value"};
    static const std::vector<std::optional<std::string>> values{
        "x", "", std::nullopt, "a \"b\" \\ {slash} ${VALUE}\n", "Yes", "\xC3\xA4"};
    checkEdit(*read.design, text,
              {component, names[data[1] % names.size()], values[data[2] % values.size()]});
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    const std::vector<Use> uses{{.path = "/top", .reference = "R1"}};
    const Fields fields{{"Footprint", "R:0402"}, {"Note", "a \"quoted\" C:\\path {slash} ${VALUE}"}};
    std::vector<std::string> seeds;
    for (const int version : {v6, v7, v8, v9, v10}) {
        const std::string text = schematic(
            version, "top",
            "# a comment (\n" +
                symbol(version, {.reference = "R1", .dnp = "no", .fields = fields, .uses = uses}) +
                symbol(version,
                       {.reference = "R2", .uuid = "sym2", .uses = {{.path = "/top", .reference = "R2"}}}) +
                instanceTable({{"/sym", "R1", "2k", "R:0603"}, {"/sym2", "R2", "2k", ""}}));
        for (const char *edit : {"aab", "abc", "bca", "aeb"}) {
            seeds.push_back(edit + text);
        }
    }
    return seeds;
}

std::vector<std::string> fuzzWords()
{
    // clang-format off
    return {"(", ")", "\"", "\\", "\n", "#", "\n#", "\\\"", "(symbol ", "(property \"MPN\" \"1\" (at 0 0 0))", "(instances",
            "(path \"/top\" (reference \"R3\") (unit 1))", "(dnp yes)", "(in_bom no)", "(id 1)", "\"~\"", "${", "{slash}",
            "\xFF", "\xEF\xBB\xBF", " ", "(version 20260101)", "private ", std::string(1, '\0')};
    // clang-format on
}
