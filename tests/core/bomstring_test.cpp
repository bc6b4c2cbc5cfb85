// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomstring.h"
#include "core/hashindex.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <QMap>

#include <map>
#include <string>

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

TEST(BomString, ordersAsQtComparesUnderItsRule)
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
            }
        }
    }
}

TEST(BomString, hashesEqualKeysAlike)
{
    for (const auto rule : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const QString &left : texts()) {
            for (const QString &right : texts()) {
                const BomString a(left, rule);
                const BomString b(right, rule);
                if (a == b) {
                    EXPECT_EQ(hashText(a, rule), hashText(b, rule))
                        << left.toStdString() << ' ' << right.toStdString();
                }
            }
        }
    }
}

TEST(BomString, mergesKeysThatDifferOnlyInCase)
{
    QMap<BomString, int> counts;
    for (const QString &text : {u"10k"_s, u"10K"_s, u"4u7"_s}) {
        ++counts[BomString(text, Qt::CaseInsensitive)];
    }
    EXPECT_EQ(counts.size(), 2);
    EXPECT_EQ(counts.first(), 2);
    EXPECT_EQ(QString(counts.firstKey()), u"10k"_s);
}

TEST(HashIndex, findsWhatWasInserted)
{
    std::map<std::string, quint32> known;
    std::vector<std::string> names;
    HashIndex index;
    for (quint32 i = 0; i < 5000; ++i) {
        const std::string name = "N" + std::to_string(i % 3000 * 7919U);
        const quint64 hash = hashBytes(name.data(), name.size());
        const quint32 found = index.find(hash, [&](quint32 number) { return names[number] == name; });
        const auto expected = known.find(name);
        ASSERT_EQ(found, expected == known.end() ? HashIndex::None : expected->second);
        if (found == HashIndex::None) {
            index.insert(hash, quint32(names.size()));
            known.emplace(name, quint32(names.size()));
            names.push_back(name);
        }
    }
    EXPECT_EQ(names.size(), 3000U);
}

TEST(HashIndex, tellsThingsWithOneHashApart)
{
    HashIndex index;
    for (quint32 number = 0; number < 100; ++number) {
        index.insert(42, number);
    }
    EXPECT_EQ(index.find(42, [](quint32 number) { return number == 77; }), 77U);
    EXPECT_EQ(index.find(42, [](quint32) { return false; }), HashIndex::None);
}

} // namespace
