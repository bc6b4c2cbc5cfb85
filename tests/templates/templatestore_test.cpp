// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatestore.h"

#include "host/framework/hostsettings.h"
#include "templates/workingtemplate.h"
#include "tests/support/scriptedui.h"
#include "tests/templates/templatefixture.h"

#include <QSettings>

namespace {

class Working final : public WorkingTemplate
{
public:
    [[nodiscard]] BOMTemplate workingTemplate() const override { return m_settings; }
    void takeTemplate(const BOMTemplate &settings) override
    {
        m_settings = settings;
        m_taken << settings.name();
    }

    BOMTemplate m_settings;
    QStringList m_taken;
};

class TemplateStoreTest : public TemplateFixture
{
protected:
    TemplateStoreTest() { HostSettings::install(&m_settings); }
    ~TemplateStoreTest() override { HostSettings::install(nullptr); }

    /// A template file that is told by its column width.
    void writeTemplate(const QString &filePath, int width) const
    {
        BOMTemplate settings;
        settings.setAsciiRefWidth(width);
        settings.setFilePath(filePath);
        ASSERT_TRUE(settings.save());
    }
    void addFile(const char *name, int width) const
    {
        writeTemplate(path(QString::fromUtf8(name) + QStringLiteral(".bomt")), width);
    }
    [[nodiscard]] int widthInFile(const QString &filePath) const
    {
        return QFile::exists(filePath) ? BOMTemplate(QString(), filePath).asciiRefWidth() : -1;
    }
    [[nodiscard]] QString names() const { return m_store.names().join(u','); }
    [[nodiscard]] QString remembered() const
    {
        return m_settings.value(QStringLiteral("BOM"), QStringLiteral("CurrentTemplate")).value_or(QString());
    }
    void edit(int width)
    {
        m_working.m_settings.setAsciiRefWidth(width);
        m_store.setModified(true);
    }
    void writeLegacy(const QString &name, const QVariantMap &map) const
    {
        QSettings settings(path(QStringLiteral("BOMTemplates.ini")), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Templates/") + name, map);
    }
    [[nodiscard]] QStringList legacyNames() const
    {
        QSettings settings(path(QStringLiteral("BOMTemplates.ini")), QSettings::IniFormat);
        settings.beginGroup(QStringLiteral("Templates"));
        return settings.allKeys();
    }
    /// Puts a folder in the way of a file, so that it can neither be written nor deleted.
    void block(const QString &fileName) const
    {
        ASSERT_TRUE(QDir().mkpath(path(fileName + QStringLiteral("/inside"))));
    }

    MemoryHostSettings m_settings;
    ScriptedUi m_ui;
    Working m_working;
    TemplateStore m_store{&m_working};
};

const QString mine = QStringLiteral("Mine");
const QString defaultTemplate = QStringLiteral("Default");

TEST_F(TemplateStoreTest, AnEmptyFolderHoldsOnlyDefaultWhichHasNoFileYet)
{
    m_store.reload();
    EXPECT_EQ(names(), defaultTemplate);
    EXPECT_EQ(m_store.currentName(), defaultTemplate);
    EXPECT_EQ(remembered(), defaultTemplate);
    EXPECT_EQ(m_working.m_settings.toVariantMap(), BOMTemplate().toVariantMap());
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(TemplateStoreTest, TheFirstFolderWinsIgnoringCase)
{
    QTemporaryDir second;
    addFile("Parts", 11);
    writeTemplate(second.filePath(QStringLiteral("parts.bomt")), 12);
    writeTemplate(second.filePath(QStringLiteral("Zeta.v2.bomt")), 13);
    setTemplatePaths({m_folder.path(), second.path()});
    m_store.reload();
    EXPECT_EQ(names(), QStringLiteral("Default,Parts,Zeta.v2"));
    EXPECT_EQ(m_store.storedTemplate(QStringLiteral("Parts")).asciiRefWidth(), 11);
    EXPECT_EQ(m_store.listedName(QStringLiteral("zETA.V2")), QStringLiteral("Zeta.v2"));
}

TEST_F(TemplateStoreTest, AFileInCapitalsGivesWayToTheOneThatIsSaved)
{
    writeTemplate(path(QStringLiteral("Mine.BOMT")), 11);
    m_store.reload();
    ASSERT_TRUE(m_store.select(mine));
    edit(12);
    ASSERT_TRUE(m_store.saveCurrent());
    m_store.reload();
    EXPECT_EQ(names(), QStringLiteral("Default,Mine"));
    EXPECT_EQ(m_store.storedTemplate(mine).asciiRefWidth(), 12);
}

TEST_F(TemplateStoreTest, TheRememberedTemplateComesBackAndAMissingOneGivesTheFirst)
{
    addFile("Alpha", 11);
    addFile("Mine", 12);
    addFile("Default", 13);
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), QStringLiteral("Alpha"));
    m_store.select(mine);
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), mine);
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 12);
    QFile::remove(path(QStringLiteral("Mine.bomt")));
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), QStringLiteral("Alpha"));
}

TEST_F(TemplateStoreTest, SelectingAsksForUnsavedChangesAndStaysWhenTheyCannotBeSaved)
{
    addFile("Mine", 12);
    m_store.reload();
    m_store.select({});
    EXPECT_EQ(m_store.currentName(), defaultTemplate);

    m_ui.saveAnswer = HostUi::SaveAnswer::Discard;
    edit(50);
    EXPECT_TRUE(m_store.select(mine));
    const ScriptedUi::Message asked{
        QStringLiteral("Unsaved BOM Template Changes"),
        QStringLiteral("Do you want to save the changes you made to the BOM template?")};
    EXPECT_EQ(m_ui.saveQuestions, QList{asked});
    EXPECT_FALSE(m_store.isModified());
    EXPECT_EQ(m_store.storedTemplate(defaultTemplate).asciiRefWidth(), 30);

    m_ui.saveAnswer = HostUi::SaveAnswer::Save;
    edit(51);
    EXPECT_TRUE(m_store.select(defaultTemplate));
    EXPECT_EQ(widthInFile(path(QStringLiteral("Mine.bomt"))), 51);
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 30);

    block(QStringLiteral("Default.bomt"));
    edit(52);
    EXPECT_FALSE(m_store.select(mine));
    EXPECT_EQ(m_store.currentName(), defaultTemplate);
    EXPECT_TRUE(m_store.isModified());
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 52);
    EXPECT_EQ(m_store.storedTemplate(defaultTemplate).asciiRefWidth(), 30);
    EXPECT_EQ(m_messages.value(0).title, QStringLiteral("BOM Template Save Failed"));
}

TEST_F(TemplateStoreTest, SelectingAnOldFileDoesNotRewriteIt)
{
    const QString file = write(QStringLiteral("Old.bomt"), "<BOMTemplate version=\"4\"><AsciiRefWidth "
                                                           "Type=\"int\" Value=\"44\"/></BOMTemplate>");
    const QByteArray before = readFile(file);
    m_store.reload();
    m_store.select(QStringLiteral("Old"));
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 44);
    EXPECT_EQ(readFile(file), before);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_TRUE(readFile(file).contains("version=\"5\""));
}

TEST_F(TemplateStoreTest, LegacyEntriesMoveToFilesWhenSavedAndFilesHideThem)
{
    addFile("Mine", 12);
    const QVariantMap map{{QStringLiteral("suppressEmptyCategories"), true}};
    writeLegacy(mine, map);
    writeLegacy(QStringLiteral("Veteran"), map);
    m_store.reload();
    EXPECT_EQ(names(), QStringLiteral("Default,Mine,Veteran"));
    EXPECT_EQ(m_store.storedTemplate(mine).asciiRefWidth(), 12);
    m_store.select(QStringLiteral("Veteran"));
    EXPECT_TRUE(m_working.m_settings.suppressEmptyCategories());
    EXPECT_TRUE(m_store.saveCurrent());
    m_store.reload();
    EXPECT_EQ(legacyNames(), QStringList{mine});
    EXPECT_TRUE(BOMTemplate({}, path(QStringLiteral("Veteran.bomt"))).suppressEmptyCategories());
}

TEST_F(TemplateStoreTest, ANewTemplateHoldsTheWorkingSettings)
{
    addFile("Mine", 12);
    m_store.reload();
    edit(60);
    EXPECT_TRUE(m_store.createTemplate(QStringLiteral("  Next one ")));
    EXPECT_EQ(m_store.names().last(), QStringLiteral("Next one"));
    EXPECT_EQ(m_store.currentName(), QStringLiteral("Next one"));
    EXPECT_EQ(remembered(), QStringLiteral("Next one"));
    EXPECT_EQ(widthInFile(path(QStringLiteral("Next one.bomt"))), 60);
    EXPECT_FALSE(m_store.isModified());

    const QString before = names();
    for (const char *refused : {"", "   ", "mine", "default", "a/b", "..", "con"}) {
        SCOPED_TRACE(refused);
        m_ui.informations.clear();
        EXPECT_FALSE(m_store.createTemplate(QString::fromLatin1(refused)));
        EXPECT_EQ(m_ui.informations.value(0).title, QStringLiteral("Could not create template"));
        EXPECT_EQ(names(), before);
    }
    block(QStringLiteral("Blocked.bomt"));
    EXPECT_FALSE(m_store.createTemplate(QStringLiteral("Blocked")));
    EXPECT_EQ(names(), before);
    EXPECT_EQ(m_store.currentName(), QStringLiteral("Next one"));
}

TEST_F(TemplateStoreTest, AnAddedTemplateIsSavedAndSelectedWhateverItsVersion)
{
    m_store.reload();
    BOMTemplate made;
    made.setVersion(3);
    made.setAsciiRefWidth(33);
    made.setName(mine);
    EXPECT_TRUE(m_store.add(made));
    EXPECT_EQ(m_working.m_taken.last(), mine);
    EXPECT_EQ(widthInFile(path(QStringLiteral("Mine.bomt"))), 33);
    EXPECT_FALSE(m_store.add(made));
}

TEST_F(TemplateStoreTest, DeletingTakesEverythingOfTheTemplateAndSelectsItsNeighbour)
{
    const QString html = write(QStringLiteral("mine.html"), "<p>old</p>");
    write(QStringLiteral("Mine.bomt"),
          "<BOMTemplate version=\"5\"><htmlTemplateFileName Type=\"QString\">mine.html</htmlTemplateFileName>"
          "</BOMTemplate>");
    addFile("Alpha", 11);
    writeLegacy(mine, {});
    m_store.reload();
    m_store.select(mine);
    ASSERT_EQ(m_working.m_settings.htmlTemplateFileName(), html);
    EXPECT_FALSE(m_store.deleteCurrent());
    EXPECT_EQ(m_ui.questions, (QList<ScriptedUi::Message>{{QStringLiteral("Template Deletion"),
                                                           QStringLiteral("Delete the template 'Mine'?")}}));
    EXPECT_TRUE(QFile::exists(html));

    m_ui.answer = true;
    edit(70);
    EXPECT_TRUE(m_store.deleteCurrent());
    EXPECT_TRUE(m_ui.saveQuestions.isEmpty());
    EXPECT_FALSE(QFile::exists(html) || QFile::exists(path(QStringLiteral("Mine.bomt"))));
    EXPECT_EQ(names(), QStringLiteral("Default,Alpha"));
    EXPECT_EQ(m_store.currentName(), QStringLiteral("Alpha"));
    m_store.reload();
    EXPECT_TRUE(legacyNames().isEmpty());
    EXPECT_EQ(names(), QStringLiteral("Default,Alpha"));
}

TEST_F(TemplateStoreTest, DeletingNeverReachesFilesOfOthers)
{
    QTemporaryDir elsewhere;
    const QString foreign = elsewhere.filePath(QStringLiteral("x.html"));
    addFile("Other", 11);
    writeFile(foreign, {});
    const QStringList victims{foreign, path(QStringLiteral("Other.bomt"))};
    for (const QString &victim : victims) {
        write(QStringLiteral("Mine.bomt"),
              "<BOMTemplate version=\"5\"><htmlTemplateFileName Type=\"QString\">" + victim.toUtf8() +
                  "</htmlTemplateFileName></BOMTemplate>");
        m_store.reload();
        EXPECT_TRUE(m_store.remove(mine));
        EXPECT_TRUE(QFile::exists(victim)) << qPrintable(victim);
    }
}

TEST_F(TemplateStoreTest, DefaultCannotBeDeletedAndABlockedFileKeepsItsTemplate)
{
    addFile("default", 11);
    m_store.reload();
    for (const QString &name : {defaultTemplate, QStringLiteral("default")}) {
        m_ui.informations.clear();
        m_store.select(name);
        EXPECT_FALSE(m_store.canDelete(name) || m_store.deleteCurrent());
        EXPECT_EQ(m_ui.informations.value(0).text, QStringLiteral("Cannot delete default template"));
    }
    addFile("Mine", 12);
    m_store.reload();
    QFile::remove(path(QStringLiteral("Mine.bomt")));
    block(QStringLiteral("Mine.bomt"));
    EXPECT_FALSE(m_store.remove(mine));
    EXPECT_TRUE(m_store.names().contains(mine));
    EXPECT_EQ(m_messages.size(), 1);
}

TEST_F(TemplateStoreTest, ResetPutsDefaultBackAndShowsItWhenItIsCurrent)
{
    addFile("Default", 13);
    m_store.reload();
    EXPECT_FALSE(m_store.resetDefault());
    EXPECT_EQ(widthInFile(path(QStringLiteral("Default.bomt"))), 13);
    m_ui.answer = true;
    edit(80);
    EXPECT_TRUE(m_store.resetDefault());
    EXPECT_EQ(m_ui.questions.value(1), (ScriptedUi::Message{QStringLiteral("Template Reset"),
                                                            QStringLiteral("Reset the default template?")}));
    EXPECT_EQ(widthInFile(path(QStringLiteral("Default.bomt"))), 30);
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 30);
    EXPECT_FALSE(m_store.isModified());
}

TEST_F(TemplateStoreTest, ImportTakesTheFileAsItIsNotTheWorkingSettings)
{
    QTemporaryDir elsewhere;
    m_ui.fileName = elsewhere.filePath(QStringLiteral("Mine.bomt"));
    writeTemplate(m_ui.fileName, 21);
    ASSERT_TRUE(QFile::setPermissions(m_ui.fileName, QFile::ReadOwner));
    m_store.reload();
    EXPECT_TRUE(m_store.importTemplate());
    EXPECT_EQ(m_ui.fileRequests,
              (QList<ScriptedUi::FileRequest>{{QStringLiteral("Import BOM Template"), m_folder.path(),
                                               QStringLiteral("BOM Templates (*.bomt)")}}));
    EXPECT_EQ(m_store.currentName(), mine);
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 21);
    EXPECT_EQ(widthInFile(path(QStringLiteral("Mine.bomt"))), 21);

    m_store.select(defaultTemplate);
    EXPECT_TRUE(m_store.save(mine));
    EXPECT_EQ(widthInFile(path(QStringLiteral("Mine.bomt"))), 30);
    EXPECT_FALSE(m_store.importTemplate());
    EXPECT_EQ(m_ui.warnings, (QList<ScriptedUi::Message>{
                                 {QStringLiteral("BOM Template Import Failed"),
                                  QStringLiteral("A BOM template with the name 'Mine' already exists.")}}));
}

TEST_F(TemplateStoreTest, ImportRefusesWhatIsNoTemplateAndSaysWhenTheFolderTakesNothing)
{
    QTemporaryDir elsewhere;
    const QString good = elsewhere.filePath(QStringLiteral("Good.bomt"));
    writeTemplate(good, 21);
    m_store.reload();
    const QString broken = write(QStringLiteral("broken.txt"), "<BOMTemplate version=\"5\">\n<a");
    EXPECT_FALSE(m_store.importFile(broken));
    EXPECT_TRUE(m_messages.value(0).detail.startsWith(broken + QStringLiteral(":2: ")));

    setTemplatePaths({broken + QStringLiteral("/folder")});
    EXPECT_FALSE(m_store.importFile(good));
    EXPECT_TRUE(m_messages.value(1).text.startsWith(QStringLiteral("Could not import the template to '")));
    EXPECT_EQ(names(), defaultTemplate);
}

TEST_F(TemplateStoreTest, ExportReplacesTheFileAndWritesATemplateThatHasNone)
{
    QTemporaryDir elsewhere;
    m_store.reload();
    m_ui.fileName = elsewhere.filePath(QStringLiteral("out"));
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_EQ(widthInFile(m_ui.fileName + QStringLiteral(".bomt")), 30);

    addFile("Mine", 12);
    m_store.reload();
    m_store.select(mine);
    m_ui.fileName += QStringLiteral(".bomt");
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_EQ(readFile(m_ui.fileName), readFile(path(QStringLiteral("Mine.bomt"))));
    EXPECT_EQ(m_ui.fileRequests.value(0).caption, QStringLiteral("Export BOM Template"));
}

TEST_F(TemplateStoreTest, AShippedTemplateStaysAndSavingItMakesTheUsersOwn)
{
    const QString name = QStringLiteral("Purchasing");
    setTemplatePaths({m_folder.path(), shippedTemplateFolder()});
    addFile("Zeta", 12);
    m_store.reload();
    EXPECT_TRUE(names().startsWith(QStringLiteral("Default,Zeta,Assembly,")));
    m_store.select(name);
    EXPECT_TRUE(m_store.isShipped(name));
    m_ui.answer = true;
    EXPECT_FALSE(m_store.deleteCurrent());

    edit(61);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_EQ(widthInFile(path(QStringLiteral("Purchasing.bomt"))), 61);
    m_store.reload();
    EXPECT_EQ(m_store.names().count(name), 1);
    EXPECT_EQ(m_working.m_settings.asciiRefWidth(), 61);
    EXPECT_TRUE(m_store.deleteCurrent());
    EXPECT_TRUE(m_store.isShipped(name));
    EXPECT_EQ(m_store.currentName(), name);
    EXPECT_NE(m_working.m_settings.asciiRefWidth(), 61);
}

TEST_F(TemplateStoreTest, TheFoldersOfAHostComeInOrderAndTheFirstThatCanBeMadeIsPrimary)
{
    const QString file = write(QStringLiteral("file"), {});
    const QString made = path(QStringLiteral("a/made"));
    const QString data = path(QStringLiteral("data"));
    EXPECT_EQ(hostTemplatePaths(QStringLiteral(";%1/x; %2 ;;%2").arg(file, made), data),
              (QStringList{made, file + QStringLiteral("/x"), data, shippedTemplateFolder()}));
    EXPECT_TRUE(QDir(made).exists());
    EXPECT_FALSE(QDir(data).exists());
    EXPECT_EQ(hostTemplatePaths(shippedTemplateFolder(), file + QStringLiteral("/x")),
              (QStringList{file + QStringLiteral("/x"), shippedTemplateFolder()}));
}

TEST_F(TemplateStoreTest, TheLegacyImportIsPendingUntilItWasOffered)
{
    const QString file = path(QStringLiteral("bom.ini"));
    IniHostSettings settings(file);
    HostSettings::install(&settings);
    EXPECT_TRUE(TemplateStore::isLegacyImportPending());
    EXPECT_FALSE(QFile::exists(file));
    TemplateStore::setLegacyImportDone();
    EXPECT_FALSE(TemplateStore::isLegacyImportPending());
    IniHostSettings again(file);
    EXPECT_EQ(again.value(QStringLiteral("BOM"), QStringLiteral("BomScriptsImported")),
              QStringLiteral("true"));
}

} // namespace
