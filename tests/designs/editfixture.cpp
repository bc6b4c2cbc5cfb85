// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editfixture.h"

#include "designs/utf8.h"

#include <algorithm>

namespace {

std::vector<designs::Edit> byNumber(const designs::Design &design, const std::vector<AskedEdit> &edits)
{
    std::vector<designs::Edit> numbered;
    for (const AskedEdit &edit : edits) {
        const auto &parts = design.components();
        const auto at =
            std::ranges::find(parts, std::string_view(edit.reference), &designs::Component::reference);
        EXPECT_NE(at, parts.end()) << edit.reference;
        numbered.push_back({std::size_t(at - parts.begin()), edit.name, edit.value});
    }
    return numbered;
}

/// All properties by reference and name. A part list has every property for every part; there the empty ones
/// are left out.
using PartTexts = std::map<std::string, std::map<std::string, std::string>>;
PartTexts textsOf(const designs::Design &design, bool isPartList)
{
    PartTexts all;
    for (const designs::Component &component : design.components()) {
        auto &texts = all[std::string(component.reference)];
        texts["Value"] = component.value;
        for (const designs::Property &property : component.properties) {
            texts[std::string(design.names().name(property.name))] = property.value;
        }
        std::erase_if(texts, [&](const auto &text) { return isPartList && text.second.empty(); });
    }
    return all;
}

void apply(const designs::EditPlan &plan, const std::vector<AskedEdit> &edits, const designs::Design &design,
           bool isPartList, PartTexts *texts)
{
    for (const designs::Change &change : plan.changes) {
        std::vector<std::string> changed{edits[change.edit].reference};
        for (const std::size_t other : change.alsoChanges) {
            changed.emplace_back(design.components()[other].reference);
        }
        for (const std::string &reference : changed) {
            (*texts)[reference].erase(change.name);
            if (change.after && !(isPartList && change.after->empty())) {
                (*texts)[reference][change.name] = *change.after;
            }
        }
    }
}

/// What a part shows under a name, in any spelling.
std::string shown(const designs::Design &design, const std::string &reference, const std::string &name)
{
    const designs::Component component = part(design, reference);
    for (const designs::NameId id : design.names().candidates(name)) {
        if (const auto text = design.stored(component, id)) {
            return std::string(*text);
        }
    }
    return {};
}

} // namespace

designs::EditPlan planned(const designs::Design &design, const std::vector<AskedEdit> &edits)
{
    return design.planEdits(byNumber(design, edits));
}

std::string problemsOf(const designs::EditPlan &plan)
{
    std::string text;
    for (const designs::EditProblem &problem : plan.problems) {
        text += problem.problem.message().toStdString() + '\n';
    }
    EXPECT_TRUE(plan.problems.empty() || plan.files.empty());
    return text;
}

std::string contentAfter(std::string_view before, const designs::FileReplacement &file)
{
    EXPECT_EQ(designs::fingerprintOf(before), file.before);
    std::string after;
    designs::makeSpliced(before, file.splices, &after);
    EXPECT_EQ(designs::fingerprintOf(after), file.after);
    return after;
}

std::string changesOf(const designs::EditPlan &plan)
{
    std::string text;
    for (const designs::Change &change : plan.changes) {
        text += text.empty() ? "" : "; ";
        text += change.name + ": " + change.before.value_or("-") + " > " + change.after.value_or("-");
    }
    return text;
}

designs::EditPlan EditTest::make(const std::vector<AskedEdit> &edits) const
{
    designs::EditPlan plan = planned(*load(), edits);
    EXPECT_EQ(problemsOf(plan), "");
    for (const designs::FileReplacement &file : plan.files) {
        const std::string after = contentAfter(readFile(file.path).toStdString(), file);
        writeFile(file.path, QByteArray::fromStdString(after));
    }
    return plan;
}

std::string EditTest::refusal(const AskedEdit &edit) const
{
    const auto design = load();
    const auto alone = design->checkEdit(byNumber(*design, {edit}).front());
    const designs::EditPlan plan = planned(*design, {edit});
    EXPECT_EQ(alone.has_value(), !plan.problems.empty()) << edit.name << ": " << problemsOf(plan);
    return alone.value_or(QString()).toStdString();
}

designs::EditPlan EditTest::makeRandom(RandomInputs *random, int count, const std::vector<std::string> &names,
                                       const std::function<std::string()> &text) const
{
    const bool isPartList = m_file.endsWith(QLatin1String(".csv"));
    const auto design = load();
    std::vector<AskedEdit> edits;
    std::map<std::pair<std::string, std::string>, AskedEdit> last;
    for (; count > 0; --count) {
        const auto &component = random->oneOf(design->components());
        std::vector<AskedEdit> more = edits;
        more.push_back({std::string(component.reference), random->oneOf(names), text()});
        if (random->once(5)) {
            more.back().value.reset();
        }
        // In a part list, what is not refused alone is not refused in a batch.
        const bool isRefused = isPartList
                                   ? design->checkEdit(byNumber(*design, {more.back()}).front()).has_value()
                                   : !problemsOf(planned(*design, more)).empty();
        if (!isRefused) {
            edits = more;
            last[{edits.back().reference, designs::caseFolded(edits.back().name)}] = edits.back();
        }
    }
    PartTexts expected = textsOf(*design, isPartList);
    designs::EditPlan plan = make(edits);
    apply(plan, edits, *design, isPartList, &expected);
    const auto changed = load();
    EXPECT_EQ(textsOf(*changed, isPartList), expected) << content();
    for (const auto &[key, edit] : last) {
        EXPECT_EQ(shown(*changed, edit.reference, edit.name), edit.value.value_or("")) << edit.name;
    }
    return plan;
}
