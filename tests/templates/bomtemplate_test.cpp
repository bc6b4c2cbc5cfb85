// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomtemplate.h"

#include "templates/templatefixture.h"

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
using TemplatePaths = TemplateFixture;

TEST_F(BomTemplate, DefaultsKeepIdentityAndResetEverythingElse)
{
    QSettings store(path(u"a.ini"_s), QSettings::IniFormat);
    BOMTemplate made(u"x"_s, data("every-key.bomt"));
    made.setName(u"n"_s);
    made.setLegacySettings(&store);
    made.setHtmlTemplateFileName(u"/x.html"_s);
    made.setVersion(2);
    made.setDefaults();
    EXPECT_EQ(made.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(made.version(), 5);
    EXPECT_EQ(made.name(), u"n"_s);
    EXPECT_EQ(made.filePath(), path(u"n.bomt"_s));
    EXPECT_EQ(made.legacySettings(), &store);
    EXPECT_TRUE(made.htmlTemplateFileName().isEmpty());
}

TEST_F(BomTemplate, DefaultStyleSheetDefinesEveryReportClassInOrder)
{
    QStringList selectors;
    const QRegularExpression rule(u"^([^ /{}\\n][^{\\n]*) \\{$"_s, QRegularExpression::MultilineOption);
    for (auto found = rule.globalMatch(BOMTemplate().css()); found.hasNext();) {
        selectors << found.next().captured(1);
    }
    EXPECT_EQ(
        selectors.join(u' '),
        u"body p div lp h1.mainTitle table.headerTable p.headerTitle p.headerValue h3.NotesTitle p.bomNotes "
        "p.DocHeader p.DocFooter table.categoriesTable p.sectionTitle p.oddfield p.evenfield p.fieldHeading "
        "p.subtotal p.total a p.timestamp p.horizLine"_s);
    EXPECT_TRUE(defaultStyleSheet().startsWith("/*_HDefault Style*/"_L1));
    EXPECT_FALSE(defaultStyleSheet().contains(QRegularExpression(u"[<&]"_s)));
}

TEST_F(BomTemplate, MissingStyleSheetLeavesOnlyTheCssEmpty)
{
    QVariantMap expected = BOMTemplate().toVariantMap();
    expected[u"CSS"_s] = QString();
    dropResources();
    EXPECT_EQ(BOMTemplate().toVariantMap(), expected);
    restoreResources();
    EXPECT_FALSE(defaultStyleSheet().isEmpty());
}

TEST_F(BomTemplate, AFieldIsItsFirstMentionAndHasDefaultWidths)
{
    const BOMTemplate read(u"x"_s, data("sparse-fields.bomt"));
    EXPECT_EQ(read.fields().names().join(u','), u"a,b"_s);
    const BOMField first = read.fields().get(u"a"_s);
    EXPECT_EQ(first.propertyName, u"FIRST"_s);
    EXPECT_EQ(std::pair(first.asciiWidth, first.manualWidth), std::pair(16, 12));
    EXPECT_EQ(read.fields().get(u"b"_s).asciiWidth, 0) << "a width of 0 is one";
    EXPECT_EQ(read.categories(), QList{BOMCategory()});
}

TEST_F(BomTemplate, NameThatIsNoFileNameGetsNoFile)
{
    for (const char *name : {"", ".", "..", "../x", "a/b", "a\\b", ".hidden", "con", "Lpt1.old", "a\nb"}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(isTemplateFileName(QLatin1String(name)));
        BOMTemplate made;
        made.setName(QLatin1String(name));
        EXPECT_EQ(made.name(), QLatin1String(name));
        EXPECT_FALSE(made.save());
    }
    EXPECT_EQ(m_messages.size(), 10);
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
    for (const char *name : {"Default", "console", "COM0", "com10", "a.b", "50%1", " x "}) {
        EXPECT_TRUE(isTemplateFileName(QLatin1String(name))) << name;
    }
}

TEST_F(BomTemplate, OldVersionIsNeverWritten)
{
    BOMTemplate made;
    made.setName(u"old"_s);
    made.setVersion(4);
    EXPECT_FALSE(made.save());
    EXPECT_TRUE(m_messages.isEmpty() && !QFile::exists(made.filePath()));
}

TEST_F(BomTemplate, UnreadableFileGivesDefaultsAMessageAndStaysAsItIs)
{
    const QByteArray broken = "<BOMTemplate version=\"3\">\n<CSS Type=\"QString\">x</CSS>";
    const QString file = write(u"5%1.bomt"_s, broken);
    const BOMTemplate read(u"5%1"_s, file);
    EXPECT_EQ(read.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(read.version(), 5);
    EXPECT_EQ(read.filePath(), file);
    ASSERT_EQ(m_messages.size(), 1);
    EXPECT_EQ(m_messages[0].title, u"BOM Template Load Failed"_s);
    EXPECT_EQ(m_messages[0].text,
              u"The BOM template '"_s + file + u"' could not be loaded.  Default settings loaded."_s);
    EXPECT_TRUE(m_messages[0].detail.startsWith(file + u":2: "_s));
    EXPECT_EQ(readFile(file), broken);
}

TEST_F(BomTemplate, VersionZeroLoadsNothing)
{
    BOMTemplate made;
    made.setCss(u"mine"_s);
    made.setFilePath(path(u"missing.bomt"_s));
    made.setVersion(0);
    EXPECT_TRUE(made.load());
    EXPECT_EQ(made.css(), u"mine"_s);
    EXPECT_EQ(made.version(), 0);
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(TemplatePaths, OfAHostComeInOrderAndTheFirstThatCanBeMadeIsPrimary)
{
    const QString blocked = write(u"file"_s, {}) + u"/x"_s;
    const QString made = path(u"a/made"_s);
    const QString data = path(u"data"_s);
    EXPECT_EQ(hostTemplatePaths(u";%1; %2 ;;%2"_s.arg(blocked, made), data),
              QStringList({made, blocked, data, shippedTemplateFolder()}));
    EXPECT_TRUE(QDir(made).exists() && !QDir(data).exists());
    EXPECT_EQ(hostTemplatePaths(shippedTemplateFolder(), blocked),
              QStringList({blocked, shippedTemplateFolder()}));
}

class LegacySettings : public TemplateFixture
{
protected:
    LegacySettings() { m_store.beginGroup(u"Templates"_s); }

    void put(const QString &name, const QString &header)
    {
        m_store.setValue(name, QVariantMap{{u"DocumentHeader"_s, header},
                                           {u"CSS"_s, u"old"_s},
                                           {u"AsciiRefWidth"_s, 77},
                                           {u"fullTextOuputs"_s, true}});
    }
    [[nodiscard]] QString entries() const { return m_store.allKeys().join(u','); }

    QSettings m_store{path(u"BOMTemplates.ini"_s), QSettings::IniFormat};
};

TEST_F(LegacySettings, EntryOfTheNameIsReadInTheOldForm)
{
    put(u"mine"_s, u"h"_s);
    put(u"Default"_s, u"d"_s);
    const BOMTemplate read(u"mine"_s, &m_store);
    EXPECT_EQ(read.documentHeader(), u"h"_s);
    EXPECT_TRUE(read.fullTextOuputs() && !read.groupReferences());
    EXPECT_EQ(read.asciiRefWidth(), 30);
    EXPECT_EQ(read.css(), defaultStyleSheet());
    EXPECT_EQ(read.version(), 5);
    EXPECT_FALSE(QFile::exists(read.filePath())) << "it moves when it is saved";
}

TEST_F(LegacySettings, WithoutAnEntryTheDefaultOneOrTheDefaultsServe)
{
    const QString file = path(u"mine.bomt"_s);
    const auto inFile = [](const QString &file) { return BOMTemplate({}, file); };
    EXPECT_EQ(BOMTemplate(u"mine"_s, &m_store).toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_EQ(BOMTemplate(u"mine"_s, static_cast<QSettings *>(nullptr)).toVariantMap(),
              BOMTemplate().toVariantMap());
    put(u"Default"_s, u"d"_s);
    EXPECT_EQ(BOMTemplate(u"mine"_s, &m_store).documentHeader(), u"d"_s);
    EXPECT_EQ(inFile(file).documentHeader(), QString()) << "a file that is there stays";
    const BOMTemplate saved(u"other"_s, &m_store);
    EXPECT_EQ(inFile(saved.filePath()).toVariantMap(), saved.toVariantMap());
    EXPECT_EQ(entries(), u"Default"_s);
    EXPECT_TRUE(m_messages.isEmpty());
}

TEST_F(LegacySettings, SavingMovesOnlyTheOwnEntryAndFailingToNone)
{
    put(u"mine"_s, u"h"_s);
    put(u"other"_s, u"o"_s);
    BOMTemplate read(u"mine"_s, &m_store);
    read.setFilePath(path(u"no/such/folder/mine.bomt"_s));
    EXPECT_FALSE(read.save());
    BOMTemplate nameless = read;
    nameless.setName({});
    nameless.setFilePath(path(u"nameless.bomt"_s));
    EXPECT_TRUE(nameless.save());
    EXPECT_EQ(entries(), u"mine,other"_s);

    read.setName(u"mine"_s);
    ASSERT_TRUE(read.save());
    EXPECT_EQ(entries(), u"other"_s);
    EXPECT_EQ(BOMTemplate(u"mine"_s, read.filePath()).toVariantMap(), read.toVariantMap());
}

} // namespace
