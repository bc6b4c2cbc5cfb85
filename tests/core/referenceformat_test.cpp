// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/referenceformat.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int wide = 50000;

struct FormatCase
{
    const char *what;
    QStringList references;
    ReferenceStyle style;
    QString text;
};

QStringList list(const QString &references)
{
    return references.split(u' ', Qt::SkipEmptyParts);
}

QStringList numbered(const QString &prefix, int first, int last)
{
    QStringList references;
    for (int number = first; number <= last; ++number) {
        references << prefix + QString::number(number);
    }
    return references;
}

void expectTexts(const QList<FormatCase> &cases)
{
    for (const FormatCase &expected : cases) {
        EXPECT_EQ(formatReferences(expected.references, expected.style), expected.text) << expected.what;
    }
}

TEST(FormatReferences, makesRanges)
{
    const ReferenceStyle style{true, wide, 1};
    expectTexts({
        {"a run and a single", list(u"R1 R2 R3 R5"_s), style, u"R1-R3,R5"_s},
        {"two are a range", list(u"C1 C2"_s), style, u"C1-C2"_s},
        {"a gap", list(u"R1 R3"_s), style, u"R1,R3"_s},
        {"one", list(u"R1"_s), style, u"R1"_s},
        {"none", {}, style, QString()},
        {"other prefix", list(u"R9 RN10"_s), style, u"R9,RN10"_s},
        {"a reference without number", list(u"J J1 J2"_s), style, u"J,J1-J2"_s},
        {"without number after a run", list(u"J1 J2 K"_s), style, u"J1-J2,K"_s},
        {"any order", list(u"R3 C2 R1 C1 R2"_s), style, u"C1-C2,R1-R3"_s},
        {"the same twice", list(u"R1 R1 R2"_s), style, u"R1,R1-R2"_s},
        {"leading zeros", list(u"R08 R09 R10"_s), style, u"R08-R10"_s},
        {"zero and one", list(u"R0 R1"_s), style, u"R0-R1"_s},
        {"the largest number", list(u"R2147483646 R2147483647"_s), style, u"R2147483646-R2147483647"_s},
        {"two runs", list(u"R1 R2 R4 R5"_s), style, u"R1-R2,R4-R5"_s},
    });
}

TEST(FormatReferences, joinsWithoutRangesOrLimits)
{
    expectTexts({
        {"individual, one line", list(u"R3 R1 R2"_s), {false, 4, 1}, u"R3,R1,R2"_s},
        {"individual, no lines", list(u"R1 R2"_s), {false, wide, 0}, u"R1,R2"_s},
        {"no width", list(u"R1 R2"_s), {true, 0, 5}, u"R1,R2"_s},
        {"negative width", list(u"R1 R2"_s), {true, -7, 5}, u"R1,R2"_s},
        {"an empty reference is kept", {QString(), u"R1"_s}, {false, wide, 1}, u",R1"_s},
    });
}

TEST(FormatReferences, breaksLines)
{
    expectTexts({
        {"individual over lines", list(u"R1 R2 R3 R4 R5"_s), {false, 9, 1000}, u"R1,R2,R3,\nR4,R5"_s},
        {"ranges over lines", list(u"R1 R3 R5 R7 R9"_s), {true, 9, 1000}, u"R1,R3,R5,\nR7,R9"_s},
        {"a range that is broken", list(u"R1 R2 R3 R4"_s), {true, 3, 1000}, u"R1-\nR4"_s},
    });
}

TEST(FormatReferences, cutsWhatDoesNotFit)
{
    expectTexts({
        {"one line", list(u"R1 R3 R5 R7 R9"_s), {true, 10, 1}, u"R1,R3..."_s},
        {"two lines", list(u"R1 R3 R5 R7 R9 R11 R13"_s), {true, 7, 2}, u"R1,R3,\nR5..."_s},
        {"a long reference", list(u"CONNECTOR1 R1"_s), {true, 9, 5}, u"CONNE...,\nR1"_s},
        {"a narrow line", list(u"CONNECTOR1"_s), {true, 2, 1}, u"..."_s},
        {"lines that hold nothing", list(u"CONN1 CONN3"_s), {true, 1, 3}, u"...,\n......"_s},
    });
}

TEST(FormatReferences, neverExceedsTheWidthByMoreThanTheMarker)
{
    const QStringList references =
        numbered(u"R"_s, 1, 60) + numbered(u"TP"_s, 98, 102) + list(u"X100 X102 X104 X1000 X1002 X30 X20"_s);
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

TEST(FormatReferences, keepsEveryReferenceWithoutLimit)
{
    QStringList references;
    for (int number = 1; number < 60000; number += 2) {
        references << u'R' + QString::number(number);
    }
    for (const bool ranges : {true, false}) {
        EXPECT_EQ(formatReferences(references, {ranges, std::numeric_limits<int>::max(), 1}),
                  references.join(u','));
    }
}

} // namespace
