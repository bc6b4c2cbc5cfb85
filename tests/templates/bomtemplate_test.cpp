// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplate.h"

#include "templates/defaultstylesheet.h"
#include "tests/templates/templatefixture.h"

#include <QRegularExpression>
#include <QSettings>

// The macros declare functions, which may not happen inside a namespace.
static void dropResources()
{
    Q_CLEANUP_RESOURCE(bom);
}

static void restoreResources()
{
    Q_INIT_RESOURCE(bom);
}

namespace {
using BomTemplate = TemplateFixture;

// A setting for every key, none of them the default or the empty value.
BOMTemplate unusual()
{
    BOMTemplate made;
    made.setSuppressEmptyCategories(true);
    made.setGroupReferences(false);
    made.setFullTextOuputs(true);
    made.setCss(QStringLiteral("p { color: red; }"));
    made.setDocumentHeader(QStringLiteral("<p>head & \"toe\"</p>"));
    made.setDocumentFooter(QStringLiteral("<p>end</p>]]>"));
    made.setPageHeader(QStringLiteral(" \n\t "));
    made.setPageFooter(QStringLiteral("line\r\nline\rline\u00b5\U0001F50C"));
    made.setAppendNotes(true);
    made.setAsciiQuantityWidth(6);
    made.setAsciiRefWidth(-31);
    made.setPrettyQuantityWidth(100000);
    made.setPrettyRefWidth(16);
    made.setManualPrettyLayout(true);
    made.setAlwaysQuoteRefs(true);
    made.setExcludeValueField(true);
    made.setCaseSensitiveGrouping(false);
    BOMFields fields = made.fields();
    fields.add({QStringLiteral("x"), QStringLiteral("X"), QStringLiteral(" "), QStringLiteral("%1"), true,
                true, true, 4, 5, 6, 0, 0});
    fields.setOrder({QStringLiteral("x"), QStringLiteral("Value")});
    made.setFields(fields);
    made.setCategories(
        {{QString(), {}, false}, {QStringLiteral("h"), {QStringLiteral("A"), QString()}, true}});
    return made;
}

TEST_F(BomTemplate, NewOneHasTheDefaults)
{
    const BOMTemplate made;
    EXPECT_EQ(made.version(), 5);
    EXPECT_TRUE(made.groupReferences() && made.caseSensitiveGrouping());
    EXPECT_FALSE(made.suppressEmptyCategories() || made.fullTextOuputs() || made.appendNotes());
    EXPECT_FALSE(made.manualPrettyLayout() || made.alwaysQuoteRefs() || made.excludeValueField());
    EXPECT_EQ(made.asciiQuantityWidth(), 5);
    EXPECT_EQ(made.asciiRefWidth(), 30);
    EXPECT_EQ(made.prettyQuantityWidth(), 7);
    EXPECT_EQ(made.prettyRefWidth(), 15);
    EXPECT_EQ(made.fields().size(), 3);
    EXPECT_EQ(made.categories().size(), 7);
    EXPECT_EQ(made.css(), defaultStyleSheet());
    EXPECT_TRUE(made.name().isEmpty() && made.filePath().isEmpty() && made.htmlTemplateFileName().isEmpty());
}

TEST_F(BomTemplate, DefaultsKeepIdentityAndResetEverythingElse)
{
    QSettings store(path(QStringLiteral("a.ini")), QSettings::IniFormat);
    BOMTemplate made = unusual();
    made.setName(QStringLiteral("n"));
    made.setLegacySettings(&store);
    made.setHtmlTemplateFileName(QStringLiteral("/x.html"));
    made.setVersion(2);
    made.setDefaults();
    EXPECT_EQ(made.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(made.version(), 5);
    EXPECT_EQ(made.name(), QStringLiteral("n"));
    EXPECT_EQ(made.filePath(), path(QStringLiteral("n.bomt")));
    EXPECT_EQ(made.legacySettings(), &store);
    EXPECT_TRUE(made.htmlTemplateFileName().isEmpty());
}

TEST_F(BomTemplate, CopiesAreIndependent)
{
    const BOMTemplate source;
    BOMTemplate copy = source;
    BOMFields fields = copy.fields();
    fields.remove(QStringLiteral("Value"));
    copy.setFields(fields);
    copy.setCategories({});
    copy.setCss({});
    EXPECT_EQ(source.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(copy.fields().size(), 2);
}

TEST_F(BomTemplate, DefaultStyleSheetDefinesEveryReportClassInOrder)
{
    QStringList selectors;
    const QRegularExpression rule(QStringLiteral("^([^ /{}\\n][^{\\n]*) \\{$"),
                                  QRegularExpression::MultilineOption);
    for (auto found = rule.globalMatch(defaultStyleSheet()); found.hasNext();)
        selectors << found.next().captured(1);
    EXPECT_EQ(selectors.join(u' '),
              QStringLiteral(
                  "body p div lp h1.mainTitle table.headerTable p.headerTitle p.headerValue h3.NotesTitle "
                  "p.bomNotes p.DocHeader p.DocFooter table.categoriesTable p.sectionTitle p.oddfield "
                  "p.evenfield p.fieldHeading p.subtotal p.total a p.timestamp p.horizLine"));
    EXPECT_TRUE(defaultStyleSheet().startsWith(QLatin1String("/*_HDefault Style*/")));
    EXPECT_FALSE(defaultStyleSheet().contains(QRegularExpression(QStringLiteral("[<&]"))));
}

TEST_F(BomTemplate, MissingStyleSheetLeavesOnlyTheCssEmpty)
{
    const QVariantMap expected = BOMTemplate().toVariantMap();
    dropResources();
    QVariantMap map = BOMTemplate().toVariantMap();
    restoreResources();
    EXPECT_EQ(map.value(QStringLiteral("CSS")), QString());
    map.insert(QStringLiteral("CSS"), defaultStyleSheet());
    EXPECT_EQ(map, expected);
    EXPECT_FALSE(defaultStyleSheet().isEmpty());
}

TEST_F(BomTemplate, MapHoldsEveryKeyButTheHtmlFile)
{
    BOMTemplate made = unusual();
    made.setHtmlTemplateFileName(QStringLiteral("/x.html"));
    const QVariantMap map = made.toVariantMap();
    EXPECT_EQ(map.size(), 19);
    BOMTemplate read;
    read.fromVariantMap(map);
    EXPECT_EQ(read.toVariantMap(), map);
}

TEST_F(BomTemplate, KeysOfLaterVersionsAreSkipped)
{
    struct Case
    {
        qint32 version;
        bool manual, quote, caseSensitive;
    };
    const QVariantMap map = unusual().toVariantMap();
    for (const Case &expected :
         {Case{-1, false, false, true}, Case{1, false, false, true}, Case{2, false, false, true},
          Case{3, true, false, true}, Case{4, true, true, true}, Case{5, true, true, false},
          Case{6, true, true, false}}) {
        SCOPED_TRACE(expected.version);
        BOMTemplate read;
        read.setVersion(expected.version);
        read.fromVariantMap(map);
        EXPECT_EQ(read.manualPrettyLayout(), expected.manual);
        EXPECT_EQ(read.asciiQuantityWidth(), expected.manual ? 6 : 5);
        EXPECT_EQ(read.asciiRefWidth(), expected.manual ? -31 : 30);
        EXPECT_EQ(read.prettyQuantityWidth(), expected.manual ? 100000 : 7);
        EXPECT_EQ(read.prettyRefWidth(), expected.manual ? 16 : 15);
        EXPECT_EQ(read.alwaysQuoteRefs(), expected.quote);
        EXPECT_EQ(read.excludeValueField(), expected.quote);
        EXPECT_EQ(read.caseSensitiveGrouping(), expected.caseSensitive);
        EXPECT_TRUE(read.suppressEmptyCategories() && read.appendNotes() && !read.groupReferences());
        EXPECT_EQ(read.version(), 5);
    }
}

TEST_F(BomTemplate, MissingKeysAreEmptyNotDefault)
{
    BOMTemplate read = unusual();
    read.fromVariantMap({});
    EXPECT_FALSE(read.groupReferences() || read.caseSensitiveGrouping() || read.appendNotes());
    EXPECT_EQ(read.asciiRefWidth(), 0);
    EXPECT_TRUE(read.css().isEmpty() && read.fields().isEmpty() && read.categories().isEmpty());
    EXPECT_TRUE(read.htmlTemplateFileName().isEmpty());
}

TEST_F(BomTemplate, RepeatedFieldNameKeepsTheFirst)
{
    const auto item = [](const char *name, const char *property) {
        return QVariantMap{{QStringLiteral("fieldName"), QString::fromLatin1(name)},
                           {QStringLiteral("propertyName"), QString::fromLatin1(property)}};
    };
    BOMTemplate read;
    read.fromVariantMap(
        {{QStringLiteral("fields"), QVariantList{item("a", "A"), item("b", "B"), item("a", "C")}}});
    EXPECT_EQ(read.fields().names().join(u','), QStringLiteral("a,b"));
    EXPECT_EQ(read.fields().get(QStringLiteral("a")).propertyName, QStringLiteral("A"));
}

TEST_F(BomTemplate, HtmlFileIsFoundInThePrimaryFolder)
{
    const QString key = QStringLiteral("htmlTemplateFileName");
    BOMTemplate read;
    read.fromVariantMap({{key, QStringLiteral("old.html")}});
    EXPECT_EQ(read.htmlTemplateFileName(), path(QStringLiteral("old.html")));
    read.fromVariantMap({{key, QStringLiteral("/elsewhere/old.html")}});
    EXPECT_EQ(read.htmlTemplateFileName(), QStringLiteral("/elsewhere/old.html"));
}

TEST_F(BomTemplate, NameThatIsNoFileNameGetsNoFile)
{
    for (const char *name : {"", ".", "..", "../x", "a/b", "a\\b", ".hidden", "con", "Lpt1.old", "a\nb"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(isTemplateFileName(QString::fromLatin1(name)));
        BOMTemplate made;
        made.setName(QString::fromLatin1(name));
        EXPECT_EQ(made.name(), QString::fromLatin1(name));
        EXPECT_FALSE(made.save());
    }
    EXPECT_EQ(m_messages.size(), 10);
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
    for (const char *name : {"Default", "console", "COM0", "com10", "a.b", "50%1", " x "})
        EXPECT_TRUE(isTemplateFileName(QString::fromLatin1(name))) << name;
}

TEST_F(BomTemplate, SavedFileReadsBackTheSame)
{
    BOMTemplate made = unusual();
    made.setName(QStringLiteral("round \u00e4 trip"));
    ASSERT_TRUE(made.save());
    const BOMTemplate read(made.name(), made.filePath());
    EXPECT_EQ(read.toVariantMap(), made.toVariantMap());
    EXPECT_EQ(read.fields(), made.fields());
    EXPECT_EQ(read.name(), made.name());
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(BomTemplate, OldVersionIsNeverWritten)
{
    BOMTemplate made;
    made.setName(QStringLiteral("old"));
    made.setVersion(4);
    EXPECT_FALSE(made.save());
    EXPECT_FALSE(QFile::exists(made.filePath()));
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(BomTemplate, UnreadableFileGivesDefaultsAMessageAndStaysAsItIs)
{
    const QByteArray broken = "<BOMTemplate version=\"3\">\n<CSS Type=\"QString\">x</CSS>";
    const QString file = write(QStringLiteral("5%1.bomt"), broken);
    const BOMTemplate read(QStringLiteral("5%1"), file);
    EXPECT_EQ(read.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(read.version(), 5);
    EXPECT_EQ(read.filePath(), file);
    ASSERT_EQ(m_messages.size(), 1);
    EXPECT_EQ(m_messages.first().title, QStringLiteral("BOM Template Load Failed"));
    EXPECT_EQ(m_messages.first().text,
              QStringLiteral("The BOM template '") + file +
                  QStringLiteral("' could not be loaded.  Default settings loaded."));
    EXPECT_TRUE(m_messages.first().detail.startsWith(file + QStringLiteral(":2: ")));
    EXPECT_EQ(readFile(file), broken);
}

TEST_F(BomTemplate, VersionZeroLoadsNothing)
{
    BOMTemplate made = unusual();
    made.setFilePath(path(QStringLiteral("missing.bomt")));
    made.setVersion(0);
    made.load();
    EXPECT_EQ(made.toVariantMap(), unusual().toVariantMap());
    EXPECT_EQ(made.version(), 0);
    EXPECT_TRUE(m_messages.isEmpty());
}

class LegacySettings : public TemplateFixture
{
protected:
    LegacySettings()
        : m_store(path(QStringLiteral("BOMTemplates.ini")), QSettings::IniFormat)
    {
        m_store.beginGroup(QStringLiteral("Templates"));
    }

    void put(const QString &name, const QString &header)
    {
        m_store.setValue(name, QVariantMap{{QStringLiteral("DocumentHeader"), header},
                                           {QStringLiteral("CSS"), QStringLiteral("old")},
                                           {QStringLiteral("AsciiRefWidth"), 77},
                                           {QStringLiteral("fullTextOuputs"), true}});
    }

    QSettings m_store;
};

TEST_F(LegacySettings, EntryOfTheNameIsReadInTheOldForm)
{
    put(QStringLiteral("mine"), QStringLiteral("h"));
    put(QStringLiteral("Default"), QStringLiteral("d"));
    const BOMTemplate read(QStringLiteral("mine"), &m_store);
    EXPECT_EQ(read.documentHeader(), QStringLiteral("h"));
    EXPECT_TRUE(read.fullTextOuputs() && !read.groupReferences());
    EXPECT_EQ(read.asciiRefWidth(), 30);
    EXPECT_EQ(read.css(), defaultStyleSheet());
    EXPECT_EQ(read.version(), 5);
    EXPECT_EQ(read.filePath(), path(QStringLiteral("mine.bomt")));
}

TEST_F(LegacySettings, WithoutAnEntryTheDefaultOneOrTheDefaultsServe)
{
    EXPECT_EQ(BOMTemplate(QStringLiteral("mine"), &m_store).toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(BOMTemplate(QStringLiteral("mine"), static_cast<QSettings *>(nullptr)).toVariantMap(),
              BOMTemplate().toVariantMap());
    put(QStringLiteral("Default"), QStringLiteral("d"));
    EXPECT_EQ(BOMTemplate(QStringLiteral("mine"), &m_store).documentHeader(), QStringLiteral("d"));
    const QString file = path(QStringLiteral("mine.bomt"));
    EXPECT_EQ(BOMTemplate(QString(), file).documentHeader(), QString()) << "a file that is there stays";
    const BOMTemplate saved(QStringLiteral("other"), &m_store);
    EXPECT_EQ(BOMTemplate(QString(), saved.filePath()).toVariantMap(), saved.toVariantMap());
    EXPECT_EQ(m_store.allKeys().join(u','), QStringLiteral("Default"));
    EXPECT_TRUE(m_messages.isEmpty());
    put(QStringLiteral("moved"), QStringLiteral("m"));
    EXPECT_FALSE(QFile::exists(BOMTemplate(QStringLiteral("moved"), &m_store).filePath()));
}

TEST_F(LegacySettings, SavingMovesOnlyTheOwnEntry)
{
    put(QStringLiteral("mine"), QStringLiteral("h"));
    put(QStringLiteral("other"), QStringLiteral("o"));
    BOMTemplate read(QStringLiteral("mine"), &m_store);
    ASSERT_TRUE(read.save());
    EXPECT_EQ(m_store.allKeys().join(u','), QStringLiteral("other"));
    EXPECT_EQ(BOMTemplate(QStringLiteral("mine"), read.filePath()).toVariantMap(), read.toVariantMap());
}

TEST_F(LegacySettings, AFailedSaveAndANamelessOneKeepEveryEntry)
{
    put(QStringLiteral("mine"), QStringLiteral("h"));
    BOMTemplate read(QStringLiteral("mine"), &m_store);
    read.setFilePath(path(QStringLiteral("no/such/folder/mine.bomt")));
    EXPECT_FALSE(read.save());
    read.setName({});
    read.setFilePath(path(QStringLiteral("nameless.bomt")));
    EXPECT_TRUE(read.save());
    EXPECT_EQ(m_store.allKeys().join(u','), QStringLiteral("mine"));
}
} // namespace
