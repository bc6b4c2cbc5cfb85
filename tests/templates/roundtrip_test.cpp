// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "support/randominputs.h"
#include "templates/bomtemplate.h"
#include "templates/templatefixture.h"

namespace {

/// Makes the maps of templates with awkward texts.
class RandomMaps
{
public:
    /// `hasCleanTexts`: without characters that XML lacks.
    QVariantMap next(bool hasCleanTexts)
    {
        m_isClean = hasCleanTexts;
        return like(BOMTemplate().toVariantMap()).toMap();
    }

private:
    /// Another value of the same form.
    QVariant like(const QVariant &value)
    {
        static constexpr int numbers[] = {0, 1, -1, 7, 12, 100, 2147483647, -2147483647 - 1};
        switch (value.metaType().id()) {
        case QMetaType::Bool:
            return m_random.flag();
        case QMetaType::Int:
            return m_random.oneOf(numbers);
        case QMetaType::QString:
            return text();
        case QMetaType::QStringList: {
            QStringList list(m_random.below(4));
            std::ranges::generate(list, [this] { return text(); });
            return list;
        }
        case QMetaType::QVariantList: {
            QVariantList list(m_random.below(5));
            std::ranges::generate(list, [&] { return like(value.toList().first()); });
            return list;
        }
        default:
            return mapLike(value.toMap());
        }
    }

    QVariantMap mapLike(QVariantMap map)
    {
        for (QVariant &value : map) {
            value = like(value);
        }
        if (map.contains(u"fieldName"_s)) {
            map[u"fieldName"_s] = map[u"fieldName"_s].toString() + QString::number(++m_fields);
        }
        return map;
    }

    QString text()
    {
        static const QStringList clean{u"a"_s,      u" "_s,      u"  "_s,     u"\n"_s,         u"\t"_s,
                                       u"\r"_s,     u"\r\n"_s,   u"<b>"_s,    u"&amp;"_s,      u"]]>"_s,
                                       u"\""_s,     u"'"_s,      u"%1"_s,     u"\u00a0"_s,     u"\u2028"_s,
                                       u"\u05e9"_s, u"\ufeff"_s, u"\ufffd"_s, u"\U0001F600"_s, u"<!--"_s,
                                       u"{}"_s,     u"\u0085"_s, u"Element"_s};
        static constexpr char16_t lacking[] = {0, 1, 0xb, 0x1b, 0xd800, 0xdc00, 0xfffe, 0xffff};
        QString text = m_random.textOf(clean, m_random.below(6));
        if (!m_isClean && m_random.once(12)) {
            text.insert(m_random.below(text.size() + 1), QChar(m_random.oneOf(lacking)));
        }
        return text;
    }

    RandomInputs m_random{1};
    int m_fields = 0;
    bool m_isClean = true;
};

class RoundTrip : public TemplateFixture
{
protected:
    BOMTemplate of(const QVariantMap &map) const
    {
        BOMTemplate made;
        made.fromVariantMap(map);
        made.setName(u"5%1 \u00e4"_s);
        return made;
    }
};

TEST_F(RoundTrip, DocumentsHaveTheKnownForm)
{
    BOMTemplate made;
    made.setCss(u"a<b"_s);
    made.setHtmlTemplateFileName(u"/is/not/written.html"_s);
    made.setName(u"Default"_s);
    ASSERT_TRUE(made.save());
    EXPECT_EQ(readFile(made.filePath()).toStdString(), readFile(data("defaults.bomt")).toStdString());

    BOMTemplate full(u"full"_s, data("every-key.bomt"));
    full.setFilePath(path(u"full.bomt"_s));
    ASSERT_TRUE(full.save());
    EXPECT_EQ(readFile(full.filePath()).toStdString(), readFile(data("every-key.bomt")).toStdString());
    EXPECT_EQ(QList({full.asciiQuantityWidth(), full.asciiRefWidth(), full.prettyQuantityWidth(),
                     full.prettyRefWidth()}),
              QList({91, -92, 93, 100000}));
    EXPECT_EQ(QStringList({full.documentHeader(), full.documentFooter(), full.pageHeader()}),
              QStringList({u"<p>head &amp; \"toe\"</p>"_s, u"end]]>"_s, u"\n\tpage %1"_s}));
    EXPECT_EQ(full.pageFooter(), u"line\r\nline\rline\u00b5\U0001F50C"_s);
}

TEST_F(RoundTrip, EveryTemplateReadsAsItWasWritten)
{
    RandomMaps maps;
    for (int i = 0; i < 1000; ++i) {
        const QVariantMap map = maps.next(true);
        BOMTemplate written = of(map);
        ASSERT_EQ(written.toVariantMap(), map) << i;
        ASSERT_TRUE(written.save()) << i;
        const BOMTemplate again(written.name(), written.filePath());
        ASSERT_EQ(again.toVariantMap(), map) << i << '\n' << readFile(written.filePath()).toStdString();
    }
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(RoundTrip, WhatCannotBeWrittenLeavesTheOldFile)
{
    RandomMaps maps;
    BOMTemplate old = of(maps.next(true));
    ASSERT_TRUE(old.save());
    const QByteArray oldBytes = readFile(old.filePath());
    int refused = 0;
    for (int i = 0; i < 300; ++i) {
        BOMTemplate written = of(maps.next(false));
        if (written.save()) {
            ASSERT_EQ(BOMTemplate({}, old.filePath()).toVariantMap(), written.toVariantMap()) << i;
            ASSERT_TRUE(old.save());
        } else {
            ASSERT_EQ(readFile(old.filePath()), oldBytes) << i;
            ++refused;
        }
    }
    EXPECT_GT(refused, 50);
    ASSERT_EQ(m_messages.size(), refused);
    EXPECT_EQ(m_messages[0].title, u"BOM Template Save Failed"_s);
    EXPECT_EQ(m_messages[0].text,
              u"The BOM template '5%1 \u00e4' was not saved.  An unknown error occurred."_s);
}

/// The first version that has the key.
int firstVersion(const QString &key)
{
    static const QStringList since3{u"ManualPrettyLayout"_s, u"AsciiQuantityWidth"_s, u"AsciiRefWidth"_s,
                                    u"PrettyQuantityWidth"_s, u"PrettyRefWidth"_s};
    static const QStringList since4{u"AlwaysQuoteRefs"_s, u"ExcludeValueField"_s};
    return since3.contains(key) ? 3 : since4.contains(key) ? 4 : key == u"CaseSensitiveGrouping"_s ? 5 : -1;
}

TEST_F(RoundTrip, EachVersionReadsItsKeysAndAMissingOneIsEmpty)
{
    const QByteArray bytes = readFile(data("every-key.bomt"));
    const QVariantMap full = BOMTemplate({}, data("every-key.bomt")).toVariantMap();
    const QVariantMap defaults = BOMTemplate().toVariantMap();
    for (const int version : {-1, 1, 2, 3, 4, 5, 6}) {
        for (const QString &missing : full.keys()) {
            QByteArray changed = bytes;
            changed.replace("version=\"5\"", "version=\"" + QByteArray::number(version) + '"');
            changed.replace('<' + missing.toUtf8() + ' ', "<other ");
            changed.replace("</" + missing.toUtf8() + '>', "</other>");
            const BOMTemplate loaded(u"t"_s, write(u"t.bomt"_s, changed));
            EXPECT_EQ(loaded.version(), 5);
            for (const auto &[key, value] : loaded.toVariantMap().asKeyValueRange()) {
                const QVariant empty(full[key].metaType());
                const QVariant expected = version < firstVersion(key) ? defaults[key]
                                          : key == missing            ? empty
                                                                      : full[key];
                EXPECT_EQ(value, expected)
                    << key.toStdString() << " of version " << version << " without " << missing.toStdString();
            }
        }
    }
    EXPECT_TRUE(m_messages.isEmpty());
}

} // namespace
