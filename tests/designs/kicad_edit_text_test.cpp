// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editbatch.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");
const QString sub = QStringLiteral("sub.kicad_sch");

std::string oneResistor(int version)
{
    return schematic(version, "top", symbol(version, {.reference = "R1", .fields = {{"A", "1"}}}));
}

using Model = std::map<std::string, std::map<std::string, std::string>>;

/// Two roots' worth of parts: two units, a sheet used twice, ordinary ones.
void writeSample(const DesignFolder &folder, int version)
{
    std::string body = sheet(version, {.uuid = "h1"}) + sheet(version, {.uuid = "h2"});
    for (int unit = 1; unit <= 3; ++unit) {
        body += symbol(version, {.reference = "U1",
                                 .uuid = "u" + std::to_string(unit),
                                 .lib = "Amp:TL074",
                                 .unit = unit,
                                 .fields = {{"P", "x"}}});
    }
    for (int number = 1; number <= 6; ++number) {
        body += symbol(version, {.reference = "C" + std::to_string(number),
                                 .uuid = "c" + std::to_string(number),
                                 .dnp = number % 2 && version > v6 ? "no" : "",
                                 .fields = number % 3 ? Fields{{"Footprint", "f"}, {"Q", "y"}} : Fields{}});
    }
    std::vector<Use> uses{{.path = "/top/h1", .reference = "R1"}, {.path = "/top/h2", .reference = "R2"}};
    if (version == v6) {
        body += instanceTable({{.path = "/h1/sym", .reference = "R1", .value = "5k", .footprint = "t"},
                               {.path = "/h2/sym", .reference = "R2", .value = "6k"}});
        uses.clear();
    }
    folder.write(root, schematic(version, "top", body));
    folder.write(sub, schematic(version, "s", symbol(version, {.uses = uses})));
}

class Texts
{
public:
    explicit Texts(unsigned seed)
        : m_random(seed)
    {
    }

    std::size_t below(std::size_t count) { return m_random() % count; }

    std::string next()
    {
        static const std::vector<std::string> pieces{
            "\"",        "\\",           "\n",       "\r",      "\t",      "{", "}",          "{slash}",
            "~",         "${",           "${VALUE}", "${none}", "#x",      "(", ")",          ";",
            "|",         "%1",           " ",        "\\n",     "\\u00e4", "é", "\U0001D11E", "abc",
            "@{",        "\xEF\xBB\xBF", "_{",       "$",       "",        "k", "\x01",       "\\\"",
            "{dblquote}"};
        std::string text;
        for (std::size_t count = 1 + below(5); count > 0; --count) {
            text += pieces[below(pieces.size())];
        }
        return text;
    }

private:
    std::mt19937 m_random;
};

Model everything(const designs::Design &design)
{
    Model model;
    for (const designs::Component &component : design.components()) {
        auto &texts = model[std::string(component.reference)];
        texts["Value"] = component.value;
        for (const designs::Property &property : component.properties) {
            texts[std::string(design.names().name(property.name))] = property.value;
        }
    }
    return model;
}

} // namespace

TEST(KicadEditText, AwkwardOnesAreReadBack)
{
    const std::vector<std::string> texts{"\"quoted\" \\ back\\slash\\n",
                                         "line\nbreak\r\n\ttab",
                                         "{x} {} {",
                                         "~~",
                                         "a~{b}_{c}",
                                         "\U0001F600 \U0001D11E é",
                                         std::string(100'000, '"'),
                                         "${unknown}",
                                         "%1 %L2",
                                         "# no comment",
                                         ""};
    for (const int version : {v6, v7, v8, v9, v10}) {
        for (const std::string &text : texts) {
            const DesignFolder folder;
            folder.write(root, oneResistor(version));
            makeEdits(folder, {{"R1", "A", text}, {"R1", "B", text}});
            EXPECT_EQ(property(*folder.load(), "R1", "A"), text) << version;
            EXPECT_EQ(property(*folder.load(), "R1", "B"), text) << version;
        }
    }
}

TEST(KicadEditText, WhatKicadWouldReadOtherwiseIsRefused)
{
    const std::vector<std::pair<std::string, const char *>> texts{
        {std::string("a\0b", 3), "NUL"}, {"\xFFx", "UTF-8"},
        {"a{slash}b", "in braces"},      {"{brace}", "in braces"},
        {"${VALUE}", "variable"},        {"x${reference}", "variable"},
        {"${R2:Value}", "variable"},     {"${DNP}", "variable"},
        {"${open", "variable"},          {"${}", "variable"},
        {"\\${unknown}", "variable"},    {"${NET_NAME(1)}", "variable"},
        {"@{1+1}", "calculate"},         {"\xED\xA0\x80", "UTF-8"}};
    const DesignFolder folder;
    folder.write(
        root,
        schematic(v9, "top", symbol(v9, {.reference = "R1"}) + symbol(v9, {.reference = "R2", .uuid = "b"})));
    const auto design = folder.load();
    for (const auto &[text, why] : texts) {
        for (const char *name : {"Value", "New"}) {
            EXPECT_NE(refusal(*design, {"R1", name, text}).find(why), std::string::npos) << text;
        }
    }
    for (const char *name : {"", " ", "a\nb", " a", "${a}", "\xFF"}) {
        EXPECT_NE(refusal(*design, {"R1", name, "x"}), "") << name;
    }
    EXPECT_NE(refusal(*design, {"R1", "A", "~"}).find("reads as an empty text"), std::string::npos);
}

TEST(KicadEditText, Version10HasAnEscapeForVariables)
{
    const DesignFolder folder;
    const QString file = folder.write(root, oneResistor(v10));
    for (const std::string text : {"${VALUE} and ${A}", "\\${VALUE}", "~", "x${NET_NAME(1)}", "${}"}) {
        makeEdits(folder, {{"R1", "B", text}});
        EXPECT_EQ(property(*folder.load(), "R1", "B"), text);
    }
    makeEdits(folder, {{"R1", "B", "${VALUE}"}});
    EXPECT_NE(contentOf(file).find("\"B\" \"\\\\${VALUE}\""), std::string::npos);
    makeEdits(folder, {{"R1", "B", "${other}"}});
    EXPECT_NE(contentOf(file).find("\"B\" \"${other}\""), std::string::npos) << "it stands for itself";
}

TEST(KicadEditText, AVariableForWhatChangesToo)
{
    const DesignFolder folder;
    folder.write(root, oneResistor(v9));
    const auto plan = planned(*folder.load(), {{"R1", "B", "${maker}"}, {"R1", "Maker", "me"}});
    ASSERT_EQ(plan.problems.size(), 1u);
    EXPECT_EQ(plan.problems[0].edit, 0u);
}

/// Whatever is asked for is refused, or reads back exactly and leaves everything else; taking back what was
/// new gives the bytes from before.
TEST(KicadEditText, AnyEditsReadBack)
{
    const std::vector<std::string> names{"VALUE", "PACKAGE", "P", "Q", "q", "New", "Other", "Datasheet"};
    const std::vector<std::string> parts{"U1", "R1", "R2", "C1", "C2", "C3", "C4", "C5", "C6"};
    for (const int version : {v6, v7, v8, v9, v10}) {
        Texts texts{unsigned(version)};
        for (int round = 0; round < 20; ++round) {
            SCOPED_TRACE(std::to_string(version) + " round " + std::to_string(round));
            const DesignFolder folder;
            writeSample(folder, version);
            const auto design = folder.load();
            std::vector<AskedEdit> edits;
            for (std::size_t count = 1 + texts.below(8); count > 0; --count) {
                AskedEdit edit{parts[texts.below(parts.size())], names[texts.below(names.size())],
                               texts.next()};
                if (texts.below(5) == 0) {
                    edit.value.reset();
                }
                std::vector<AskedEdit> more = edits;
                more.push_back(edit);
                edits = problemsOf(planned(*design, more)).empty() ? more : edits;
            }
            Model wanted = everything(*design);
            const auto plan = makeEdits(folder, edits);
            for (const designs::Change &change : plan.changes) {
                const AskedEdit &edit = edits[change.edit];
                std::vector<std::string> changed{edit.reference};
                for (const std::size_t other : change.alsoChanges) {
                    changed.emplace_back(design->components()[other].reference);
                }
                for (const std::string &reference : changed) {
                    wanted[reference].erase(change.name);
                    if (change.after) {
                        wanted[reference][change.name] = *change.after;
                    }
                }
                EXPECT_EQ(change.after.value_or(""), edit.value.value_or(""));
            }
            EXPECT_EQ(everything(*folder.load()), wanted);
        }
    }
}

TEST(KicadEditText, WhatWasAddedGoesWithoutTrace)
{
    for (const int version : {v6, v7, v8, v9, v10}) {
        const DesignFolder folder;
        writeSample(folder, version);
        const std::string before = contentOf(folder.path(root)) + contentOf(folder.path(sub));
        const std::vector<std::string> parts{"U1", "R1", "C1", "C2", "C3"};
        std::vector<AskedEdit> add;
        std::vector<AskedEdit> remove;
        for (const std::string &reference : parts) {
            for (const char *name : {"One", "Two \"2\"", "drei\\"}) {
                add.push_back({reference, name, "text\n\"" + reference});
                remove.push_back({reference, name});
            }
        }
        makeEdits(folder, add);
        EXPECT_NE(contentOf(folder.path(root)) + contentOf(folder.path(sub)), before);
        makeEdits(folder, remove);
        EXPECT_EQ(contentOf(folder.path(root)) + contentOf(folder.path(sub)), before);
    }
}
