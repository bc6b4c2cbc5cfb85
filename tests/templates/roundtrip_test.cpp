// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "support/randominputs.h"
#include "templates/bomtemplate.h"
#include "templates/bomtemplatefile.h"
#include "templates/templatefixture.h"

#include <QBuffer>
#include <QScopeGuard>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Makes templates with awkward texts; the same sequence on every machine.
class RandomTemplates
{
public:
    /// `cleanTexts`: without characters that XML lacks.
    BOMTemplate next(bool cleanTexts)
    {
        m_isClean = cleanTexts;
        BOMTemplate result;
        result.setCss(text());
        result.setDocumentHeader(text());
        result.setDocumentFooter(text());
        result.setPageHeader(text());
        result.setPageFooter(text());
        result.setAppendNotes(flag());
        result.setSuppressEmptyCategories(flag());
        result.setGroupReferences(flag());
        result.setFullTextOuputs(flag());
        result.setManualPrettyLayout(flag());
        result.setAlwaysQuoteRefs(flag());
        result.setExcludeValueField(flag());
        result.setCaseSensitiveGrouping(flag());
        result.setAsciiQuantityWidth(number());
        result.setAsciiRefWidth(number());
        result.setPrettyQuantityWidth(number());
        result.setPrettyRefWidth(number());
        result.setFields(fields());
        result.setCategories(categories());
        return result;
    }

private:
    BOMFields fields()
    {
        BOMFields fields;
        for (unsigned i = below(5); i > 0; --i) {
            BOMField field;
            field.fieldName = text();
            field.propertyName = text();
            field.prefix = text();
            field.suffix = text();
            field.applyToEmpty = flag();
            field.generateTotals = flag();
            field.enableLinks = flag();
            field.precision = number();
            field.fieldWidth = number();
            field.fieldLines = number();
            field.asciiWidth = number();
            field.manualWidth = number();
            fields.add(field);
        }
        return fields;
    }
    QList<BOMCategory> categories()
    {
        QList<BOMCategory> categories;
        for (unsigned i = below(4); i > 0; --i) {
            BOMCategory category;
            category.heading = text();
            category.isMiscCategory = flag();
            for (unsigned j = below(4); j > 0; --j) {
                category.references.append(text());
            }
            categories.append(category);
        }
        return categories;
    }
    QString text()
    {
        static const QStringList clean{u"a"_s,      u" "_s,      u"  "_s,     u"\n"_s,         u"\t"_s,
                                       u"\r"_s,     u"\r\n"_s,   u"<b>"_s,    u"&amp;"_s,      u"]]>"_s,
                                       u"\""_s,     u"'"_s,      u"%1"_s,     u"\u00a0"_s,     u"\u2028"_s,
                                       u"\u05e9"_s, u"\ufeff"_s, u"\ufffd"_s, u"\U0001F600"_s, u"<!--"_s,
                                       u"{}"_s,     u"\u0085"_s, u"Element"_s};
        static const QStringList lacking{QString(QChar(0)),
                                         u"\u0001"_s,
                                         u"\u000b"_s,
                                         u"\u001b"_s,
                                         QString(QChar(0xd800)),
                                         QString(QChar(0xdc00)),
                                         QString(QChar(0xfffe)),
                                         QString(QChar(0xffff))};
        QString result;
        for (unsigned i = below(6); i > 0; --i) {
            const bool isLacking = !m_isClean && below(6) == 0;
            result +=
                isLacking ? lacking[below(unsigned(lacking.size()))] : clean[below(unsigned(clean.size()))];
        }
        return result;
    }
    int number()
    {
        static constexpr int numbers[] = {0, 1, -1, 7, 12, 100, 2147483647, -2147483647 - 1};
        return numbers[below(8)];
    }
    bool flag() { return below(2) == 1; }
    unsigned below(unsigned limit) { return m_random.below(limit); }

    RandomInputs m_random{1};
    bool m_isClean = true;
};

using RoundTrip = TemplateFixture;

TEST_F(RoundTrip, EveryTemplateReadsAsItWasWritten)
{
    RandomTemplates templates;
    const QString file = path(u"t.bomt"_s);
    for (int i = 0; i < 1000; ++i) {
        BOMTemplate written = templates.next(true);
        written.setFilePath(file);
        ASSERT_TRUE(written.save()) << i;
        const BOMTemplate again(u"t"_s, file);
        ASSERT_EQ(again.toVariantMap(), written.toVariantMap()) << i << '\n' << readFile(file).toStdString();
    }
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(RoundTrip, WhatCannotBeWrittenLeavesTheOldFile)
{
    RandomTemplates templates;
    BOMTemplate old = templates.next(true);
    old.setFilePath(path(u"t.bomt"_s));
    ASSERT_TRUE(old.save());
    const QByteArray oldBytes = readFile(old.filePath());
    int refused = 0;
    for (int i = 0; i < 300; ++i) {
        BOMTemplate written = templates.next(false);
        written.setFilePath(old.filePath());
        if (written.save()) {
            ASSERT_EQ(BOMTemplate(u"t"_s, old.filePath()).toVariantMap(), written.toVariantMap()) << i;
            ASSERT_TRUE(old.save());
        } else {
            ASSERT_EQ(readFile(old.filePath()), oldBytes) << i;
            ++refused;
        }
    }
    EXPECT_GT(refused, 50);
    EXPECT_EQ(m_messages.size(), refused);
}

TEST_F(RoundTrip, AFileCutAnywhereIsRefusedOrWhole)
{
    BOMTemplate whole;
    whole.setFilePath(path(u"whole.bomt"_s));
    whole.setCss(u"p { color: red; }"_s);
    ASSERT_TRUE(whole.save());
    const QByteArray bytes = readFile(whole.filePath());
    const qsizetype end = bytes.lastIndexOf('>') + 1;
    const BOMTemplate defaults;
    const auto debugLines =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const auto cleanUp = qScopeGuard([debugLines] { qInstallMessageHandler(debugLines); });
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        QByteArray start = bytes.first(size);
        QBuffer buffer(&start);
        ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
        QVariantMap map;
        ASSERT_EQ(BOMTemplateFile(u"cut.bomt"_s).readDocument(buffer, map), size >= end) << size;
        if (size % 97 != 0) {
            continue;
        }
        const QString file = write(u"cut.bomt"_s, start);
        m_messages.clear();
        const BOMTemplate cut(u"cut"_s, file);
        ASSERT_EQ(cut.toVariantMap(), (size < end ? defaults : whole).toVariantMap()) << size;
        ASSERT_EQ(m_messages.isEmpty(), size >= end) << size;
        ASSERT_EQ(readFile(file), start);
    }
}

TEST_F(RoundTrip, EachVersionReadsItsKeysAndAMissingOneIsEmpty)
{
    // What differs from the defaults, so that a key that was not read shows.
    BOMTemplate full = RandomTemplates().next(true);
    full.setAsciiQuantityWidth(91);
    full.setAsciiRefWidth(92);
    full.setPrettyQuantityWidth(93);
    full.setPrettyRefWidth(94);
    full.setManualPrettyLayout(true);
    full.setAlwaysQuoteRefs(true);
    full.setExcludeValueField(true);
    full.setCaseSensitiveGrouping(false);
    full.setFilePath(path(u"full.bomt"_s));
    ASSERT_TRUE(full.save());
    const QStringList since3{u"ManualPrettyLayout"_s, u"AsciiQuantityWidth"_s, u"AsciiRefWidth"_s,
                             u"PrettyQuantityWidth"_s, u"PrettyRefWidth"_s};
    const QStringList since4{u"AlwaysQuoteRefs"_s, u"ExcludeValueField"_s};
    const QVariantMap defaults = BOMTemplate().toVariantMap();
    for (int version = 1; version <= 5; ++version) {
        for (const QString &missing : full.toVariantMap().keys()) {
            QByteArray bytes = readFile(full.filePath());
            bytes.replace("version=\"5\"", "version=\"" + QByteArray::number(version) + '"');
            bytes.replace('<' + missing.toUtf8() + ' ', "<other ");
            bytes.replace("</" + missing.toUtf8() + '>', "</other>");
            const BOMTemplate loaded(u"t"_s, write(u"t.bomt"_s, bytes));
            EXPECT_EQ(loaded.version(), 5);
            const QVariantMap map = loaded.toVariantMap();
            for (auto it = map.cbegin(); it != map.cend(); ++it) {
                const int since = since3.contains(it.key())                ? 3
                                  : since4.contains(it.key())              ? 4
                                  : it.key() == "CaseSensitiveGrouping"_L1 ? 5
                                                                           : 1;
                const QVariant empty(full.toVariantMap().value(it.key()).metaType());
                const QVariant expected = version < since       ? defaults.value(it.key())
                                          : it.key() == missing ? empty
                                                                : full.toVariantMap().value(it.key());
                EXPECT_EQ(it.value(), expected) << it.key().toStdString() << " of version " << version
                                                << " without " << missing.toStdString();
            }
        }
    }
    EXPECT_TRUE(m_messages.isEmpty());
}

} // namespace
