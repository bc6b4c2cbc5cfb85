// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/reference.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(SplitReference, CutsTheNumberOffTheEnd)
{
    const struct
    {
        QString reference, prefix;
        int number;
        bool hasNumber;
    } cases[] = {
        {u"R12"_s, u"R"_s, 12, true},
        {u"U"_s, u"U"_s, 0, false},
        {u"U0"_s, u"U"_s, 0, true},
        {u"R007"_s, u"R"_s, 7, true},
        {u"123"_s, u"1"_s, 23, true},
        {u"7"_s, u"7"_s, 0, false},
        {u""_s, u""_s, 0, false},
        {u"U1A2"_s, u"U1A"_s, 2, true},
        {u"U12A"_s, u"U12A"_s, 0, false},
        {u"R2147483647"_s, u"R"_s, 2147483647, true},
        {u"R2147483648"_s, u"R2147483648"_s, 0, false},
        {u"R99999999999999999999999"_s, u"R99999999999999999999999"_s, 0, false},
        {u"R\u0663"_s, u"R\u0663"_s, 0, false},
    };
    for (const auto &[reference, prefix, number, hasNumber] : cases) {
        EXPECT_EQ(splitReference(reference), (SplitReference{prefix, number, hasNumber}))
            << reference.toStdString();
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

} // namespace
