// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"

#include <gmock/gmock.h>

using namespace kicadtext;
using testing::HasSubstr;

namespace {

class KicadEditText : public EditTest
{
protected:
    void writeResistor(int version) const
    {
        write(schematic(version, "top",
                        symbol(version, {.reference = "R1", .fields = {{"A", "1"}}}) +
                            symbol(version, {.reference = "R2", .uuid = "b"})));
    }

    /// Two units, a sheet used twice, ordinary parts.
    void writeSample(int version) const
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
            body +=
                symbol(version, {.reference = "C" + std::to_string(number),
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
        write(schematic(version, "top", body));
        write(sub, schematic(version, "s", symbol(version, {.uses = uses})));
    }

    [[nodiscard]] std::string allContent() const { return content() + content(sub); }
};

} // namespace

TEST_F(KicadEditText, AwkwardOnesAreReadBack)
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
            writeResistor(version);
            make({{"R1", "A", text}, {"R1", "B", text}});
            EXPECT_EQ(property(*load(), "R1", "A"), text) << version;
            EXPECT_EQ(property(*load(), "R1", "B"), text) << version;
        }
    }
}

TEST_F(KicadEditText, WhatKicadWouldReadOtherwiseIsRefused)
{
    // clang-format off
    const std::vector<std::pair<std::string, const char *>> texts{
        {std::string("a\0b", 3), "NUL"}, {"\xFFx", "UTF-8"}, {"\xED\xA0\x80", "UTF-8"},
        {"a{slash}b", "in braces"}, {"{brace}", "in braces"}, {"@{1+1}", "calculate"},
        {"${VALUE}", "variable"}, {"x${reference}", "variable"}, {"${R2:Value}", "variable"},
        {"${DNP}", "variable"}, {"${open", "variable"}, {"${}", "variable"},
        {"\\${unknown}", "variable"}, {"${NET_NAME(1)}", "variable"}};
    // clang-format on
    writeResistor(v9);
    for (const auto &[text, why] : texts) {
        for (const char *name : {"Value", "New"}) {
            EXPECT_THAT(refusal({"R1", name, text}), HasSubstr(why)) << text;
        }
    }
    for (const char *name : {"", " ", "a\nb", " a", "${a}", "\xFF"}) {
        EXPECT_NE(refusal({"R1", name, "x"}), "") << name;
    }
    EXPECT_THAT(refusal({"R1", "A", "~"}), HasSubstr("reads as an empty text"));
}

TEST_F(KicadEditText, Version10HasAnEscapeForVariables)
{
    writeResistor(v10);
    for (const std::string text : {"${VALUE} and ${A}", "\\${VALUE}", "~", "x${NET_NAME(1)}", "${}"}) {
        make({{"R1", "B", text}});
        EXPECT_EQ(property(*load(), "R1", "B"), text);
    }
    make({{"R1", "B", "${VALUE}"}});
    EXPECT_THAT(content(), HasSubstr("\"B\" \"\\\\${VALUE}\""));
    make({{"R1", "B", "${other}"}});
    EXPECT_THAT(content(), HasSubstr("\"B\" \"${other}\"")) << "it stands for itself";
}

TEST_F(KicadEditText, AVariableForWhatChangesTooIsRefused)
{
    writeResistor(v9);
    const auto plan = planned(*load(), {{"R1", "B", "${maker}"}, {"R1", "Maker", "me"}});
    ASSERT_EQ(plan.problems.size(), 1u);
    EXPECT_EQ(plan.problems[0].edit, 0u);
}

TEST_F(KicadEditText, RandomEditsReadBack)
{
    // clang-format off
    const std::vector<std::string> pieces{
        "\"", "\\", "\n", "\r", "\t", "{", "}", "{slash}", "~", "${", "${VALUE}", "${none}", "#x", "(", ")", ";", "|",
        "%1", " ", "\\n", "\\u00e4", "é", "\U0001D11E", "abc", "@{", "\xEF\xBB\xBF", "_{", "$", "", "k", "\x01",
        "\\\"", "{dblquote}"};
    // clang-format on
    const std::vector<std::string> names{"VALUE", "PACKAGE", "P", "Q", "q", "New", "Other", "Datasheet"};
    for (const int version : {v6, v7, v8, v9, v10}) {
        RandomInputs random{unsigned(version)};
        const auto text = [&] { return random.textOf(pieces, 1 + random.below(5)); };
        for (int round = 0; round < 20; ++round) {
            SCOPED_TRACE(std::to_string(version) + " round " + std::to_string(round));
            writeSample(version);
            makeRandom(&random, 1 + random.below(8), names, text);
        }
    }
}

TEST_F(KicadEditText, WhatWasAddedGoesWithoutTrace)
{
    for (const int version : {v6, v7, v8, v9, v10}) {
        writeSample(version);
        const std::string before = allContent();
        std::vector<AskedEdit> add;
        std::vector<AskedEdit> remove;
        for (const char *reference : {"U1", "R1", "C1", "C2", "C3"}) {
            for (const char *name : {"One", "Two \"2\"", "drei\\"}) {
                add.push_back({reference, name, std::string("text\n\"") + reference});
                remove.push_back({reference, name});
            }
        }
        make(add);
        EXPECT_NE(allContent(), before);
        make(remove);
        EXPECT_EQ(allContent(), before);
    }
}
