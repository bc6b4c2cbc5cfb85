// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomstring.h"
#include "core/hashindex.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QStringList &texts()
{
    static const QStringList all{
        QString(),       u""_s,           u"10k"_s,    u"10K"_s,    u"10kk"_s, u"Ä1"_s, u"ä1"_s, u"ß"_s,
        u"ss"_s,         u"SS"_s,         u"İ"_s,      u"i"_s,      u"I"_s,    u"Σ"_s,  u"ς"_s,  u"σ"_s,
        u"\U00010400"_s, u"\U00010428"_s, u"\xd801"_s, u"\xdc00"_s, u"K"_s,    u"k"_s};
    return all;
}

TEST(BomString, OrdersAsQtComparesUnderItsRuleAndHashesEqualKeysAlike)
{
    for (const auto rule : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const QString &left : texts()) {
            for (const QString &right : texts()) {
                const BomString a(left, rule);
                const BomString b(right, rule);
                const int order = QString::compare(left, right, rule);
                EXPECT_EQ(a < b, order < 0);
                EXPECT_EQ(a == b, order == 0);
                EXPECT_EQ(a >= b, order >= 0);
                EXPECT_TRUE(order != 0 || hashText(a, rule) == hashText(b, rule))
                    << left.toStdString() << ' ' << right.toStdString();
            }
        }
    }
}

TEST(HashIndex, FindsWhatWasInsertedAmongEqualHashes)
{
    HashIndex index;
    std::vector<int> numbers;
    for (int i = 0; i < 6000; ++i) {
        const int number = i % 4000;
        const quint64 hash = hashNumber(quint32(number / 3));
        const quint32 found = index.find(hash, [&](quint32 known) { return numbers[known] == number; });
        ASSERT_EQ(found, i < 4000 ? HashIndex::None : quint32(number));
        if (found == HashIndex::None) {
            index.insert(hash, quint32(numbers.size()));
            numbers.push_back(number);
        }
    }
    EXPECT_EQ(index.find(hashNumber(0), [](quint32) { return false; }), HashIndex::None);
}

} // namespace
