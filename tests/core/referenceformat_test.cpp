// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/referenceformat.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct FormatCase
{
    /// Blanks between.
    QString references;
    QString text;
};

void expectTexts(const ReferenceStyle &style, const QList<FormatCase> &cases)
{
    for (const auto &[references, text] : cases) {
        EXPECT_EQ(formatReferences(references.split(u' '), style), text) << references.toStdString();
    }
}

TEST(FormatReferences, MakesRangesOfTwoAndMore)
{
    EXPECT_EQ(formatReferences({}, {true, 50000, 1}), QString());
    expectTexts({true, 50000, 1}, {
                                      {u"R1 R2 R3 R5"_s, u"R1-R3,R5"_s},
                                      {u"C1 C2"_s, u"C1-C2"_s},
                                      {u"R1 R3"_s, u"R1,R3"_s},
                                      {u"R1"_s, u"R1"_s},
                                      {u"R9 RN10"_s, u"R9,RN10"_s},
                                      {u"J J1 J2"_s, u"J,J1-J2"_s},
                                      {u"J1 J2 K"_s, u"J1-J2,K"_s},
                                      {u"J0 J J1"_s, u"J0,J,J1"_s},
                                      {u"H7 J J8"_s, u"H7,J,J8"_s},
                                      {u"R3 C2 R1 C1 R2"_s, u"C1-C2,R1-R3"_s},
                                      {u"R1 R1 R2"_s, u"R1,R1-R2"_s},
                                      {u"R08 R09 R10"_s, u"R08-R10"_s},
                                      {u"R0 R1"_s, u"R0-R1"_s},
                                      {u"R2147483646 R2147483647"_s, u"R2147483646-R2147483647"_s},
                                      {u"R1 R2 R4 R5"_s, u"R1-R2,R4-R5"_s},
                                  });
}

TEST(FormatReferences, JoinsThemAsTheyComeWithoutRangesOrLimits)
{
    expectTexts({false, 4, 1}, {{u"R3 R1 R2"_s, u"R3,R1,R2"_s}, {u" R1"_s, u",R1"_s}});
    expectTexts({false, 50000, 0}, {{u"R2 R1"_s, u"R2,R1"_s}});
    expectTexts({true, 0, 5}, {{u"R1 R2"_s, u"R1,R2"_s}});
    expectTexts({true, std::numeric_limits<int>::max(), 1}, {{u"R1 R3 R5"_s, u"R1,R3,R5"_s}});
    expectTexts({true, -7, 5}, {{u"R1 R2"_s, u"R1,R2"_s}});
}

TEST(FormatReferences, BreaksLinesAndCutsWhatDoesNotFit)
{
    expectTexts({false, 9, 1000}, {{u"R1 R2 R3 R4 R5"_s, u"R1,R2,R3,\nR4,R5"_s}});
    expectTexts({true, 9, 1000}, {{u"R1 R3 R5 R7 R9"_s, u"R1,R3,R5,\nR7,R9"_s}});
    expectTexts({true, 3, 1000}, {{u"R1 R2 R3 R4"_s, u"R1-\nR4"_s}});
    expectTexts({true, 10, 1}, {{u"R1 R3 R5 R7 R9"_s, u"R1,R3..."_s}});
    expectTexts({true, 7, 2}, {{u"R1 R3 R5 R7 R9 R11 R13"_s, u"R1,R3,\nR5..."_s}});
    expectTexts({true, 9, 5}, {{u"CONNECTOR1 R1"_s, u"CONNE...,\nR1"_s}});
    expectTexts({true, 2, 1}, {{u"CONNECTOR1"_s, u"..."_s}});
    expectTexts({true, 1, 3}, {{u"CONN1 CONN3"_s, u"...,\n......"_s}});
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
