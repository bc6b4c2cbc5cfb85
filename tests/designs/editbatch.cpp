// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/editbatch.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

std::vector<designs::Edit> byNumber(const designs::Design &design, const std::vector<AskedEdit> &edits)
{
    std::vector<designs::Edit> numbered;
    for (const AskedEdit &edit : edits) {
        std::size_t number = 0;
        while (number < design.components().size() &&
               design.components()[number].reference != edit.reference) {
            ++number;
        }
        EXPECT_LT(number, design.components().size()) << edit.reference;
        numbered.push_back({number, edit.name, edit.value});
    }
    return numbered;
}

} // namespace

designs::EditPlan planned(const designs::Design &design, const std::vector<AskedEdit> &edits)
{
    return design.planEdits(byNumber(design, edits));
}

designs::EditPlan makeEdits(const DesignFolder &folder, const std::vector<AskedEdit> &edits,
                            const QString &variant)
{
    const auto design = folder.load(QStringLiteral("root.kicad_sch"), variant);
    designs::EditPlan plan = planned(*design, edits);
    EXPECT_EQ(problemsOf(plan), "");
    for (const designs::FileReplacement &file : plan.files) {
        QFile target(file.path);
        EXPECT_TRUE(target.open(QIODevice::WriteOnly));
        EXPECT_EQ(target.write(file.after), file.after.size());
    }
    return plan;
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

std::string refusal(const designs::Design &design, const AskedEdit &edit)
{
    const auto numbered = byNumber(design, {edit});
    const auto alone = design.checkEdit(numbered.front());
    const designs::EditPlan plan = design.planEdits(numbered);
    EXPECT_EQ(alone.has_value(), !plan.problems.empty()) << edit.name << ": " << problemsOf(plan);
    return alone.value_or(QString()).toStdString();
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

std::string contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}
