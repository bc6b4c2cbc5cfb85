// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editbatch.h"
#include "designs/kicadtext.h"

#include <gtest/gtest.h>

using namespace kicadtext;

namespace {

const QString root = QStringLiteral("root.kicad_sch");

struct Layout
{
    const char *name;
    std::string before;
    /// With the value 22k in place of 10k, and with a property MPN "x".
    std::string changed;
    std::string added;
};

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

/// A file around one symbol whose properties end with "@", where a further one goes.
Layout layout(const char *name, const std::string &head, const std::string &symbol, const std::string &tail,
              const std::string &property)
{
    const std::string whole = head + symbol + tail;
    return {name, replaced(whole, "@", ""), replaced(replaced(whole, "@", ""), "\"10k\"", "\"22k\""),
            replaced(whole, "@", property)};
}

const std::string head7 = "(kicad_sch (version 20230121) (generator eeschema)\n\n  (uuid top)\n\n"
                          "  (lib_symbols (symbol \"Device:R\" (property \"Value\" \"R\" (at 0 0 0))))\n\n";

std::string tabs(int version, const std::string &hiddenTail)
{
    return "(kicad_sch\n\t(version " + std::to_string(version) +
           ")\n\t(uuid \"top\")\n\t(symbol\n\t\t(lib_id \"Device:R\")\n\t\t(at 12.7 25.4 90)\n\t\t(uuid "
           "\"s\")\n\t\t(property \"Reference\" \"R1\"\n\t\t\t(at 1 2 0)\n\t\t)\n\t\t(property \"Value\" "
           "\"10k\"\n\t\t\t(at 1 2 0)" +
           hiddenTail + "\n\t\t)";
}

const std::string tabTail = "\n\t\t(pin \"1\"\n\t\t\t(uuid \"p\")\n\t\t)\n\t)\n)";

std::vector<Layout> layouts()
{
    const std::string old =
        "  (symbol (lib_id \"Device:R\") (at 12.7 25.4 90) (unit 1)\n"
        "    (in_bom yes) (on_board yes)\n    (uuid s)\n"
        "    (property \"Reference\" \"R1\" (id 0) (at 1 2 0))\n"
        "    (property \"Value\" \"10k\" (id 1) (at 1 2 0)\n"
        "      (effects (font (size 1 1)) (justify left) hide)\n    )\n"
        "    (property \"Note\" \"\" (id 7) (at 3 4 0))@\n    (pin \"1\" (uuid p))\n  )\n";
    const std::string oldProperty = "\n    (property \"MPN\" \"x\" (id 8) (at 12.7 25.4 0)\n"
                                    "      (effects (font (size 1 1)) (justify left) hide)\n    )";
    const std::string effects = "\n\t\t\t(effects\n\t\t\t\t(font\n\t\t\t\t\t(size 1 1)\n\t\t\t\t)";
    const std::string hidden = effects + "\n\t\t\t\t(hide yes)\n\t\t\t)";
    const std::string names = "\n\t\t\t(hide yes)\n\t\t\t(show_name no)\n\t\t\t(do_not_autoplace no)";
    const auto mpn = [](const std::string &tail) {
        return "\n\t\t(property \"MPN\" \"x\"\n\t\t\t(at 12.7 25.4 0)" + tail + "\n\t\t)";
    };
    const std::string line =
        "(kicad_sch (version 20250114) (uuid \"top\") (symbol (lib_id \"Device:R\") (at 5 6) "
        "(property \"Reference\" R1) (property \"Value\" 10k)";
    const std::string old6 = replaced(head7, "20230121", "20211123");
    return {
        layout("6", old6, old, ")\n", oldProperty),
        layout("7", head7, replaced(replaced(replaced(old, " (id 0)", ""), " (id 1)", ""), " (id 7)", ""),
               ")\n", replaced(oldProperty, " (id 8)", "")),
        layout("7 with CRLF", replaced(head7, "\n", "\r\n"),
               replaced(replaced(replaced(replaced(old, " (id 0)", ""), " (id 1)", ""), " (id 7)", ""), "\n",
                        "\r\n"),
               ")\r\n", replaced(replaced(oldProperty, " (id 8)", ""), "\n", "\r\n")),
        layout("8 without last line end", tabs(v8, hidden) + "@", "", tabTail, mpn(hidden)),
        layout("9, a link and an unknown list in the sibling",
               tabs(v9, "\n\t\t\t(uuid \"u\")" + effects +
                            "\n\t\t\t\t(href \"x\")\n\t\t\t\t(hide yes)\n\t\t\t)") +
                   "@",
               "", tabTail, mpn(hidden)),
        layout("9, nothing hidden", tabs(v9, effects + "\n\t\t\t)") + "@", "", tabTail, mpn(hidden)),
        layout("10", tabs(v10, names + effects + "\n\t\t\t)") + "@", "", tabTail + "\n",
               mpn(names + effects + "\n\t\t\t)")),
        layout("10, nothing hidden",
               tabs(v10, replaced(names, "\n\t\t\t(hide yes)", "") + effects + "\n\t\t\t)") + "@", "",
               tabTail + "\n", mpn(names + effects + "\n\t\t\t)")),
        {"one line", line + "))\n", replaced(line, " 10k)", " \"22k\")") + "))\n",
         line + " (property \"MPN\" \"x\" (effects (font (size 1.27 1.27)) (hide yes)))))\n"},
    };
}

} // namespace

TEST(KicadEditLayout, ChangeAddAndRemove)
{
    for (const Layout &layout : layouts()) {
        SCOPED_TRACE(layout.name);
        const DesignFolder folder;
        const QString file = folder.write(root, layout.before);
        const auto plan = makeEdits(folder, {{"R1", "VALUE", "22k"}});
        EXPECT_EQ(changesOf(plan), "Value: 10k > 22k");
        EXPECT_EQ(contentOf(file), layout.changed);
        makeEdits(folder, {{"R1", "Value", "10k"}, {"R1", "MPN", "x"}});
        EXPECT_EQ(replaced(contentOf(file), "\"10k\"", "10k"), replaced(layout.added, "\"10k\"", "10k"));
        makeEdits(folder, {{"R1", "mpn"}});
        EXPECT_EQ(replaced(contentOf(file), "\"10k\"", "10k"), replaced(layout.before, "\"10k\"", "10k"));
    }
}

TEST(KicadEditLayout, WhereThingsStandIsTold)
{
    const DesignFolder folder;
    const QString file = folder.write(root, tabs(v8, "") + tabTail);
    const auto plan = planned(*folder.load(), {{"R1", "New", "x"}, {"R1", "Value", "1"}});
    ASSERT_EQ(plan.changes.size(), 2u);
    EXPECT_EQ(plan.changes[0].file, file);
    EXPECT_EQ(plan.changes[0].line, 4) << "the symbol";
    EXPECT_EQ(plan.changes[1].line, 11) << "the property";
    EXPECT_EQ(plan.changes[1].edit, 1u);
    EXPECT_EQ(plan.files.at(0).before, designs::fingerprintOf(tabs(v8, "") + tabTail));
}

TEST(KicadEditLayout, NamesAreFoundAndSpelledAsStored)
{
    const DesignFolder folder;
    folder.write(root,
                 schematic(v6, "top",
                           symbol(v6, {.reference = "R1", .fields = {{"FOOTPRINT", "a"}, {"mpn", "1"}}}) +
                               symbol(v6, {.reference = "R2", .fields = {{"MPN", "1"}, {"mpn", "2"}}}) +
                               symbol(v6, {.reference = "R3"})));
    const auto plan = makeEdits(folder, {{"R1", "PACKAGE", "b"},
                                         {"R1", "Mpn", "7"},
                                         {"R2", "MPN", "8"},
                                         {"R3", "Mpn", "9"},
                                         {"R3", "New One", "n"},
                                         {"R2", "new one", "n"}});
    EXPECT_EQ(changesOf(plan),
              "Footprint: a > b; mpn: 1 > 7; MPN: 1 > 8; mpn: - > 9; New One: - > n; New One: "
              "- > n");
    const std::string text = contentOf(folder.path(root));
    EXPECT_NE(text.find("(property \"FOOTPRINT\" \"b\""), std::string::npos);
    EXPECT_NE(text.find("(property \"mpn\" \"9\" (id 4)"), std::string::npos);
    EXPECT_NE(text.find("(property \"New One\" \"n\" (id 5)"), std::string::npos);
    EXPECT_EQ(property(*folder.load(), "R2", "mpn"), "2") << "the twin stays";
}

TEST(KicadEditLayout, TheLastEditCountsAndNothingIsDoneForNothing)
{
    const DesignFolder folder;
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1", .fields = {{"A", "1"}}})));
    const auto design = folder.load();
    const auto none =
        planned(*design, {{"R1", "A", "2"}, {"R1", "Value", "10k"}, {"R1", "Gone"}, {"R1", "a", "1"}});
    EXPECT_EQ(changesOf(none) + problemsOf(none), "");
    EXPECT_TRUE(none.files.empty());
    const auto last =
        planned(*design, {{"R1", "Value", ""}, {"R1", "A"}, {"R1", "VALUE", "1"}, {"R1", "A", "3"}});
    EXPECT_EQ(changesOf(last) + problemsOf(last), "Value: 10k > 1; A: 1 > 3");
}

TEST(KicadEditLayout, WhatEverySymbolHasBecomesEmpty)
{
    const DesignFolder folder;
    const Fields fields{{"Footprint", "f"}, {"Datasheet", "d"}, {"Description", "e"}};
    folder.write(root, schematic(v9, "top", symbol(v9, {.reference = "R1", .fields = fields})));
    makeEdits(folder, {{"R1", "PACKAGE"}, {"R1", "datasheet"}, {"R1", "Description"}});
    const auto design = folder.load();
    for (const char *name : {"Footprint", "Datasheet", "Description"}) {
        EXPECT_EQ(property(*design, "R1", name), "") << name;
    }
    EXPECT_NE(refusal(*design, {"R1", "Value"}), "");
    EXPECT_NE(refusal(*design, {"R1", "VALUE", ""}), "");
    EXPECT_NE(refusal(*design, {"R1", "reference", "R2"}), "");
    folder.write(root, schematic(v7, "top", symbol(v7, {.reference = "R1", .fields = fields})));
    makeEdits(folder, {{"R1", "Description"}});
    EXPECT_EQ(property(*folder.load(), "R1", "Description"), std::nullopt)
        << "an ordinary one up to version 7";
}

TEST(KicadEditLayout, AStaleFileIsNotTouched)
{
    const DesignFolder folder;
    const std::string text = schematic(v9, "top", symbol(v9, {.reference = "R1"}));
    const QString file = folder.write(root, text);
    const auto design = folder.load();
    folder.write(root, text + "\n");
    const auto plan = planned(*design, {{"R1", "Value", "1"}});
    EXPECT_EQ(problemsOf(plan),
              file.toStdString() + ": was changed since it was read; read the design again\n");
    EXPECT_EQ(plan.problems.at(0).edit, std::nullopt);
}

TEST(KicadEditLayout, CommentsSwallowNothing)
{
    const std::string before = tabs(20250114, "") + "\n  # (property \"X\" \"1\")\n" +
                               "  (property \"A\" \"1\" (at 0 0 0)) (property \"B\" \"2\" (at 0 0 0))" +
                               tabTail;
    const DesignFolder folder;
    const QString path = folder.write(root, before);
    makeEdits(folder, {{"R1", "A"}});
    EXPECT_EQ(contentOf(path), replaced(before, "  (property \"A\" \"1\" (at 0 0 0))", ""));
    EXPECT_EQ(property(*folder.load(), "R1", "B"), "2");
    makeEdits(folder, {{"R1", "B"}, {"R1", "C", "3"}});
    EXPECT_EQ(property(*folder.load(), "R1", "B"), std::nullopt);
    EXPECT_EQ(property(*folder.load(), "R1", "C"), "3");
}
