// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/reference.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct SplitCase
{
    const char16_t *reference;
    const char16_t *prefix;
    int number;
    bool hasNumber;
};

TEST(SplitReference, cutsTheNumberOffTheEnd)
{
    const SplitCase cases[] = {
        {u"R12", u"R", 12, true},
        {u"U", u"U", 0, false},
        {u"U0", u"U", 0, true},
        {u"R007", u"R", 7, true},
        {u"12", u"1", 2, true},
        {u"123", u"1", 23, true},
        {u"7", u"7", 0, false},
        {u"", u"", 0, false},
        {u"U1A2", u"U1A", 2, true},
        {u"U12A", u"U12A", 0, false},
        {u"R2147483647", u"R", 2147483647, true},
        {u"R2147483648", u"R2147483648", 0, false},
        {u"R12345678901", u"R12345678901", 0, false},
        {u"R99999999999999999999999", u"R99999999999999999999999", 0, false},
        {u"R\u0663", u"R\u0663", 0, false},
    };
    for (const SplitCase &expected : cases) {
        const QString reference = QString::fromUtf16(expected.reference);
        const SplitReference split = splitReference(reference);
        EXPECT_EQ(split.prefix.toString(), QString::fromUtf16(expected.prefix)) << reference.toStdString();
        EXPECT_EQ(split.number, expected.number) << reference.toStdString();
        EXPECT_EQ(split.hasNumber, expected.hasNumber) << reference.toStdString();
    }
}

TEST(CategoryPrefix, endsBeforeTheFirstDigit)
{
    EXPECT_EQ(categoryPrefix(u"U12A").toString(), u"U"_s);
    EXPECT_EQ(categoryPrefix(u"U1A2").toString(), u"U"_s);
    EXPECT_EQ(categoryPrefix(u"RN3").toString(), u"RN"_s);
    EXPECT_EQ(categoryPrefix(u"LOGO").toString(), u"LOGO"_s);
    EXPECT_EQ(categoryPrefix(u"12").toString(), QString());
}

TEST(ReferenceOrder, isByPrefixThenNumber)
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
}

TEST(ReferenceOrder, doesNotTellSomeReferencesApart)
{
    EXPECT_EQ(compareReferences(u"R1", u"R01"), 0);
    EXPECT_EQ(compareReferences(u"J", u"J0"), 0);
}

TEST(ReferenceOrder, keepsEqualReferencesAsTheyCame)
{
    QStringList references{u"R2"_s, u"R01"_s, u"R1"_s, u"R001"_s};
    sortReferences(references);
    EXPECT_EQ(references, (QStringList{u"R01"_s, u"R1"_s, u"R001"_s, u"R2"_s}));
}

} // namespace
