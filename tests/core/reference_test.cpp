// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/reference.h"

#include "core/referenceformat.h"
#include "support/datatable.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SplitReference, CutsTheNumberOffTheEnd)
{
    for (const auto &[reference, prefix, number] : dataTable<3>("core/split-references.txt")) {
        const QString start = QString::fromStdString(prefix);
        const int end = number.empty() ? 0 : std::stoi(number);
        EXPECT_EQ(splitReference(QString::fromStdString(reference)),
                  (SplitReference{start, end, !number.empty()}))
            << reference;
    }
}

TEST(ReferenceOrder, IsByPrefixThenNumber)
{
    const QStringList sorted{u"C10"_s, u"J"_s,   u"J1"_s, u"R1"_s, u"R2"_s,
                             u"R10"_s, u"RN1"_s, u"U1"_s, u"r1"_s};
    for (qsizetype left = 0; left < sorted.size(); ++left) {
        for (qsizetype right = 0; right < sorted.size(); ++right) {
            const int order = compareReferences(sorted[left], sorted[right]);
            EXPECT_EQ(order < 0, left < right) << sorted[left].toStdString() << sorted[right].toStdString();
            EXPECT_EQ(order == 0, left == right);
        }
    }
    EXPECT_EQ(compareReferences(u"J", u"J0"), 0);
}

TEST(ReferenceOrder, KeepsEqualReferencesAsTheyCame)
{
    QStringList references{u"R2"_s, u"R01"_s, u"R1"_s, u"R001"_s};
    sortReferences(references);
    EXPECT_EQ(references, (QStringList{u"R01"_s, u"R1"_s, u"R001"_s, u"R2"_s}));
}

TEST(FormatReferences, MakesRangesBreaksLinesAndCutsWhatDoesNotFit)
{
    for (const auto &[style, references, text] : dataTable<3>("core/formatted-references.txt")) {
        const QStringList words = QString::fromStdString(style).split(u' ');
        const ReferenceStyle wanted{words[0] == u"yes", words[1].toInt(), words[2].toInt()};
        EXPECT_EQ(formatReferences(QString::fromStdString(references).split(u' '), wanted).toStdString(),
                  text)
            << style << ": " << references;
    }
    EXPECT_EQ(formatReferences({}, {true, 50000, 1}), QString());
}

TEST(FormatReferences, NeverExceedsTheWidthByMoreThanTheMarker)
{
    QStringList references = u"TP98 TP99 TP100 TP101 X100 X102 X104 X1000 X1002 X30 X20"_s.split(u' ');
    for (int number = 1; number <= 60; ++number) {
        references << u'R' + QString::number(number);
    }
    for (const bool ranges : {true, false}) {
        for (int width = 8; width < 40; ++width) {
            for (int lines = 2; lines < 6; ++lines) {
                const QString text = formatReferences(references, {ranges, width, lines});
                for (const QString &line : text.split(u'\n')) {
                    EXPECT_LE(line.size(), width + 3) << text.toStdString();
                }
                EXPECT_LE(text.count(u'\n'), lines - 1);
            }
        }
    }
}

} // namespace
