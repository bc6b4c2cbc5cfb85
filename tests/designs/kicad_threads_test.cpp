// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"
#include "designs/kicad/edit/editablekicaddesign.h"
#include "designs/kicadtext.h"
#include "designs/threads.h"

#include <QDirIterator>

#include <stdexcept>

using namespace kicadtext;
using namespace Qt::StringLiterals;

namespace {

/// Everything that reading gives, the order of names and messages included.
std::string told(const QString &path, int threads)
{
    designs::ReadOptions options;
    options.threads = threads;
    const auto result = designs::kicad::readKicadDesign(path, options);
    if (!result.design) {
        return errorOf(result);
    }
    const designs::Design &design = *result.design;
    std::string text = warnings(design) + marks(design) + '\n' + design.files().join(u' ').toStdString();
    for (designs::NameId id = 0; id < design.names().size(); ++id) {
        text += '\n' + std::string(design.names().name(id));
    }
    for (const designs::Component &component : design.components()) {
        text += "\n" + std::string(component.value) + ' ' + std::to_string(component.sheet);
        for (const designs::Property &property : component.properties) {
            text += ' ' + std::to_string(property.name) + '=' + std::string(property.value);
        }
    }
    designs::Problem problem;
    const designs::SymbolCount count = design.recount(&problem);
    return text + '\n' + std::to_string(count.placed) + ' ' + std::to_string(count.power) +
           problem.text.toStdString() + design.changedFiles().join(u' ').toStdString();
}

void expectSameForAnyNumber(const QString &path)
{
    const std::string expected = told(path, 1);
    for (const int threads : {0, 2, 7}) {
        EXPECT_EQ(told(path, threads), expected) << path.toStdString() << " with " << threads;
    }
}

/// A root of ten sheets, each with names of properties in another order; the fifth sheet holds `fifth`.
void writeFan(const DesignFolder &folder, const std::string &fifth)
{
    std::string sheets;
    for (int i = 0; i < 10; ++i) {
        const std::string number = std::to_string(i);
        sheets +=
            sheet(v9, {.name = "S" + number, .file = "s" + number + ".kicad_sch", .uuid = "h" + number});
        const Fields fields{{"N" + std::to_string(i % 3), "a\xFF"}, {"N" + std::to_string(i % 4), "b"}};
        folder.write(u"s%1.kicad_sch"_s.arg(i), schematic(v9, "u" + number, symbol(v9, {.fields = fields})));
    }
    folder.write(root, schematic(v9, "top", sheets));
    if (!fifth.empty()) {
        folder.write(u"s4.kicad_sch"_s, fifth);
    }
}

/// Everything that a plan says for edits of all sheets; two files change meanwhile where `spoils`.
std::string toldPlan(const DesignFolder &folder, int threads, bool spoils)
{
    writeFan(folder, {});
    designs::ReadOptions options;
    options.threads = threads;
    const auto design = designs::kicad::readKicadDesign(folder.path(root), options).design;
    std::vector<designs::Edit> edits;
    for (std::size_t component = 0; component < design->components().size(); ++component) {
        edits.push_back({component, "N" + std::to_string(component % 4), "new"});
    }
    if (spoils) {
        folder.write(u"s6.kicad_sch"_s, "no schematic");
        folder.write(u"s2.kicad_sch"_s, schematic(v9, "u2", symbol(v9, {})));
    }
    const designs::EditPlan plan = design->planEdits(edits);
    std::string text = changesOf(plan) + problemsOf(plan);
    for (const designs::Change &change : plan.changes) {
        text += '\n' + std::to_string(change.line);
    }
    for (const designs::FileReplacement &file : plan.files) {
        text += file.path.toStdString() + contentAfter(readFile(file.path).toStdString(), file);
    }
    return text.replace(0, 0, std::to_string(plan.files.size()) + ' ');
}

} // namespace

TEST(KicadThreads, AnyNumberOfThreadsReadsTheSameDesign)
{
    for (const QString &folder : {dataPath(u"kicad"_s), dataPath(u"../../examples"_s)}) {
        QDirIterator files(folder, {u"*.kicad_sch"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            expectSameForAnyNumber(files.next());
        }
    }
    const DesignFolder fan;
    writeFan(fan, {});
    expectSameForAnyNumber(fan.path(root));
}

TEST(KicadThreads, TheFirstProblemInTheOrderOfTheHierarchyIsTold)
{
    const std::string user = sheet(v9, {.name = "Back", .file = "root.kicad_sch"});
    const std::string missing = sheet(v9, {.name = "Gone", .file = "gone.kicad_sch"});
    for (const std::string &fifth : {std::string("(kicad_sch (version 20250114"), std::string("no schematic"),
                                     schematic(v9, "u4", user), schematic(v9, "u4", missing)}) {
        const DesignFolder folder;
        writeFan(folder, fifth);
        folder.write(u"s7.kicad_sch"_s, "(kicad_sch (version 1))");
        EXPECT_NE(told(folder.path(root), 1).find("s4.kicad_sch"), std::string::npos);
        expectSameForAnyNumber(folder.path(root));
    }
}

TEST(KicadThreads, AnyNumberOfThreadsPlansTheSame)
{
    const DesignFolder folder;
    for (const bool spoils : {false, true}) {
        const std::string expected = toldPlan(folder, 1, spoils);
        EXPECT_EQ(expected.substr(0, 2), spoils ? "0 " : "10");
        for (const int threads : {2, 7}) {
            EXPECT_EQ(toldPlan(folder, threads, spoils), expected);
        }
    }
}

TEST(KicadThreads, WhatACallThrowsReachesTheCaller)
{
    const auto fail = [](std::size_t item, int) {
        if (item == 5) {
            throw std::runtime_error("5");
        }
    };
    EXPECT_THROW(designs::forEachInThreads(9, 4, fail), std::runtime_error);
}
