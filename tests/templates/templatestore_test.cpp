// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/templatestore.h"

#include "host/framework/hostsettings.h"
#include "support/scriptedui.h"
#include "templates/templatefixture.h"

#include <QSettings>

namespace {

class Working final : public WorkingTemplate
{
public:
    [[nodiscard]] BOMTemplate workingTemplate() const override { return settings; }
    void takeTemplate(const BOMTemplate &taken, const std::function<void()> &announce) override
    {
        settings = taken;
        announce();
    }

    BOMTemplate settings;
};

/// Templates are told apart by the width of their column of references.
class TemplateStoreTest : public TemplateFixture
{
protected:
    TemplateStoreTest() { HostSettings::install(&m_settings); }
    ~TemplateStoreTest() override { HostSettings::install(nullptr); }

    static QString writeTemplate(const QString &filePath, int width)
    {
        BOMTemplate settings;
        settings.setAsciiRefWidth(width);
        settings.setFilePath(filePath);
        EXPECT_TRUE(settings.save());
        return filePath;
    }
    QString addFile(const char *name, int width) const { return writeTemplate(file(name), width); }
    [[nodiscard]] QString file(const char *name) const { return path(QLatin1String(name) + u".bomt"_s); }
    /// -1 without a file.
    static int widthIn(const QString &filePath)
    {
        return QFile::exists(filePath) ? BOMTemplate(QString(), filePath).asciiRefWidth() : -1;
    }
    [[nodiscard]] int workingWidth() const { return m_working.settings.asciiRefWidth(); }
    [[nodiscard]] int storedWidth(const QString &name) const
    {
        return m_store.templates().stored(name).asciiRefWidth();
    }
    [[nodiscard]] std::string names() const { return m_store.templates().names().join(u',').toStdString(); }
    [[nodiscard]] QString remembered() const
    {
        return m_settings.value(u"BOM"_s, u"CurrentTemplate"_s).value_or(QString());
    }
    void edit(int width)
    {
        m_working.settings.setAsciiRefWidth(width);
        m_store.setModified(true);
    }
    void writeLegacy(const QString &name, const QVariantMap &map) const
    {
        QSettings(path(u"BOMTemplates.ini"_s), QSettings::IniFormat).setValue(u"Templates/"_s + name, map);
    }
    [[nodiscard]] QStringList legacyEntries() const
    {
        return QSettings(path(u"BOMTemplates.ini"_s), QSettings::IniFormat).allKeys();
    }
    /// A template with an old HTML file.
    QString writeWithHtml(const char *name, const QString &html) const
    {
        return write(QLatin1String(name) + u".bomt"_s, "<BOMTemplate version=\"5\"><htmlTemplateFileName>" +
                                                           html.toUtf8() +
                                                           "</htmlTemplateFileName></BOMTemplate>");
    }
    /// The template "Mine" with an old HTML file that has a header.
    QString writeWithHeader() const
    {
        write(u"old.html"_s, "<div id='customHeader'>ACME</div><p>rest");
        return writeWithHtml("Mine", u"old.html"_s);
    }
    /// Puts a folder in the way of a file, so that it can neither be written nor deleted.
    void block(const char *name) const { ASSERT_TRUE(QDir().mkpath(file(name) + u"/inside"_s)); }

    MemoryHostSettings m_settings;
    ScriptedUi m_ui;
    Working m_working;
    TemplateStore m_store{&m_working};
};

using Messages = QList<ScriptedUi::Message>;

TEST_F(TemplateStoreTest, TheFirstFolderWinsIgnoringCase)
{
    const QTemporaryDir second;
    addFile("Parts", 11);
    writeTemplate(second.filePath(u"parts.bomt"_s), 12);
    writeTemplate(second.filePath(u"Zeta.v2.bomt"_s), 13);
    setTemplatePaths({m_folder.path(), second.path()});
    m_store.reload();
    EXPECT_EQ(names(), "Default,Parts,Zeta.v2");
    EXPECT_EQ(storedWidth(u"Parts"_s), 11);
    EXPECT_EQ(m_store.templates().listedName(u"zETA.V2"_s), u"Zeta.v2"_s);
}

TEST_F(TemplateStoreTest, AFileInCapitalsGivesWayToTheOneThatIsSaved)
{
    writeTemplate(path(u"Mine.BOMT"_s), 11);
    m_store.reload();
    ASSERT_TRUE(m_store.select(u"Mine"_s));
    edit(12);
    ASSERT_TRUE(m_store.saveCurrent());
    m_store.reload();
    EXPECT_EQ(names(), "Default,Mine");
    EXPECT_EQ(storedWidth(u"Mine"_s), 12);
}

TEST_F(TemplateStoreTest, TheRememberedTemplateComesBackAndAMissingOneGivesTheFirst)
{
    addFile("Alpha", 11);
    const QString mine = addFile("Mine", 12);
    addFile("Default", 13);
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), u"Alpha"_s);
    m_store.select(u"Mine"_s);
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), u"Mine"_s);
    EXPECT_EQ(workingWidth(), 12);
    QFile::remove(mine);
    m_store.reload();
    EXPECT_EQ(m_store.currentName(), u"Alpha"_s);
}

TEST_F(TemplateStoreTest, SelectingAsksForUnsavedChangesAndStaysWhenTheyCannotBeSaved)
{
    const QString mine = addFile("Mine", 12);
    m_store.reload();
    m_store.select({});
    EXPECT_EQ(m_store.currentName(), u"Default"_s);

    m_ui.saveAnswer = HostUi::SaveAnswer::Discard;
    edit(50);
    EXPECT_TRUE(m_store.select(u"Mine"_s));
    EXPECT_EQ(m_ui.saveQuestions,
              (Messages{{u"Unsaved BOM Template Changes"_s,
                         u"Do you want to save the changes you made to the BOM template?"_s}}));
    EXPECT_FALSE(m_store.isModified());
    EXPECT_EQ(storedWidth(u"Default"_s), 30);

    m_ui.saveAnswer = HostUi::SaveAnswer::Save;
    edit(51);
    EXPECT_TRUE(m_store.select(u"Default"_s));
    EXPECT_EQ(widthIn(mine), 51);
    EXPECT_EQ(workingWidth(), 30);

    block("Default");
    edit(52);
    EXPECT_FALSE(m_store.select(u"Mine"_s));
    EXPECT_EQ(m_store.currentName(), u"Default"_s);
    EXPECT_TRUE(m_store.isModified());
    EXPECT_EQ(workingWidth(), 52);
    EXPECT_EQ(storedWidth(u"Default"_s), 30);
    EXPECT_EQ(m_messages.size(), 1);
}

TEST_F(TemplateStoreTest, SelectingAnOldFileDoesNotRewriteIt)
{
    const QByteArray old =
        "<BOMTemplate version=\"4\"><AsciiRefWidth Type=\"int\" Value=\"44\"/></BOMTemplate>";
    const QString file = write(u"Old.bomt"_s, old);
    m_store.reload();
    m_store.select(u"Old"_s);
    EXPECT_EQ(workingWidth(), 44);
    EXPECT_EQ(readFile(file), old);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_TRUE(readFile(file).contains("version=\"5\""));
}

TEST_F(TemplateStoreTest, LegacyEntriesMoveToFilesWhenSavedAndFilesHideThem)
{
    addFile("Mine", 12);
    const QVariantMap map{{u"suppressEmptyCategories"_s, true}};
    writeLegacy(u"Mine"_s, map);
    writeLegacy(u"Veteran"_s, map);
    m_store.reload();
    EXPECT_EQ(names(), "Default,Mine,Veteran");
    EXPECT_EQ(storedWidth(u"Mine"_s), 12);
    m_store.select(u"Veteran"_s);
    EXPECT_TRUE(m_working.settings.suppressEmptyCategories());
    EXPECT_TRUE(m_store.saveCurrent());
    m_store.reload();
    EXPECT_EQ(legacyEntries(), QStringList(u"Templates/Mine"_s));
    EXPECT_TRUE(BOMTemplate({}, file("Veteran")).suppressEmptyCategories());
}

TEST_F(TemplateStoreTest, ANewTemplateHoldsTheWorkingSettings)
{
    addFile("Mine", 12);
    m_store.reload();
    edit(60);
    EXPECT_TRUE(m_store.createTemplate(u"  Next one "_s));
    EXPECT_EQ(names(), "Default,Mine,Next one");
    EXPECT_EQ(remembered(), u"Next one"_s);
    EXPECT_EQ(widthIn(file("Next one")), 60);
    EXPECT_FALSE(m_store.isModified());

    block("Blocked");
    for (const char *refused : {"", "   ", "mine", "default", "a/b", "..", "con", "Blocked"}) {
        EXPECT_FALSE(m_store.createTemplate(QLatin1String(refused))) << refused;
    }
    EXPECT_EQ(m_ui.informations.size(), 7) << "all but the last, which could be a name";
    EXPECT_EQ(m_ui.informations[0].title, u"Could not create template"_s);
    EXPECT_EQ(names(), "Default,Mine,Next one");
    EXPECT_EQ(m_store.currentName(), u"Next one"_s);
}

TEST_F(TemplateStoreTest, WhatAnotherWindowSavedIsNeitherReplacedUnaskedNorMissed)
{
    addFile("Mine", 12);
    m_store.reload();
    ASSERT_TRUE(m_store.select(u"Mine"_s));
    addFile("Mine", 13);
    edit(14);
    EXPECT_FALSE(m_store.saveCurrent());
    EXPECT_EQ(m_ui.questions.size(), 1);
    EXPECT_EQ(widthIn(file("Mine")), 13);
    m_ui.answer = true;
    m_working.settings.setDocumentHeader(u"line ends\r\nand\ttabs  "_s);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_TRUE(m_store.saveCurrent());
    m_ui.answer = false;
    EXPECT_EQ(m_ui.questions.size(), 2) << "its own file is no other one";
    addFile("New", 15);
    EXPECT_FALSE(m_store.createTemplate(u"New"_s));
    EXPECT_EQ(widthIn(file("New")), 15);

    m_settings.setValue(u"BOM"_s, u"CurrentTemplate"_s, u"New"_s);
    addFile("Mine", 16);
    edit(17);
    m_store.followFiles();
    EXPECT_EQ(names(), "Default,Mine,New");
    EXPECT_EQ(workingWidth(), 17);
    EXPECT_FALSE(m_store.saveCurrent()) << "still not what was read";
    m_store.setModified(false);
    addFile("Mine", 118);
    m_store.followFiles();
    EXPECT_EQ(m_store.currentName(), u"Mine"_s) << "not what another window remembers";
    EXPECT_EQ(workingWidth(), 118);
}

TEST_F(TemplateStoreTest, AnAddedTemplateIsSavedAndSelectedWhateverItsVersion)
{
    m_store.reload();
    BOMTemplate made;
    made.setVersion(3);
    made.setAsciiRefWidth(33);
    made.setName(u"Mine"_s);
    EXPECT_TRUE(m_store.add(made));
    EXPECT_EQ(m_store.currentName(), u"Mine"_s);
    EXPECT_EQ(workingWidth(), 33);
    EXPECT_EQ(widthIn(file("Mine")), 33);
    EXPECT_FALSE(m_store.add(made));
}

TEST_F(TemplateStoreTest, DeletingTakesEverythingOfTheTemplateAndSelectsItsNeighbour)
{
    const QString html = write(u"mine.html"_s, "<p>old</p>");
    const QString mine = writeWithHtml("Mine", u"mine.html"_s);
    addFile("Alpha", 11);
    writeLegacy(u"Mine"_s, {});
    m_store.reload();
    m_store.select(u"Mine"_s);
    ASSERT_EQ(m_working.settings.htmlTemplateFileName(), html);
    EXPECT_FALSE(m_store.deleteCurrent());
    EXPECT_EQ(m_ui.questions, (Messages{{u"Template Deletion"_s, u"Delete the template 'Mine'?"_s}}));
    EXPECT_TRUE(QFile::exists(html));

    m_ui.answer = true;
    edit(70);
    EXPECT_TRUE(m_store.deleteCurrent());
    EXPECT_TRUE(m_ui.saveQuestions.isEmpty());
    EXPECT_FALSE(QFile::exists(html) || QFile::exists(mine));
    EXPECT_EQ(names(), "Default,Alpha");
    EXPECT_EQ(m_store.currentName(), u"Alpha"_s);
    m_store.reload();
    EXPECT_TRUE(legacyEntries().isEmpty());
    EXPECT_EQ(names(), "Default,Alpha");
}

TEST_F(TemplateStoreTest, DeletingNeverReachesFilesOfOthers)
{
    const QTemporaryDir elsewhere;
    const QString foreign = writeFile(elsewhere.filePath(u"x.html"_s), {});
    const QString shared = write(u"shared.html"_s, {});
    writeWithHtml("Sharing", u"shared.html"_s);
    for (const QString &kept : {foreign, shared, addFile("Other", 11)}) {
        writeWithHtml("Mine", kept);
        m_store.reload();
        EXPECT_EQ(m_store.templates().stored(u"Mine"_s).htmlTemplateFileName(), kept);
        EXPECT_TRUE(m_store.remove(u"Mine"_s));
        EXPECT_TRUE(QFile::exists(kept)) << qPrintable(kept);
    }
}

TEST_F(TemplateStoreTest, DefaultCannotBeDeletedAndABlockedFileKeepsItsTemplate)
{
    addFile("default", 11);
    const QString mine = addFile("Mine", 12);
    m_store.reload();
    for (const QString &name : {u"Default"_s, u"default"_s}) {
        m_ui.informations.clear();
        m_store.select(name);
        EXPECT_FALSE(m_store.canDelete(name) || m_store.deleteCurrent());
        EXPECT_EQ(m_ui.informations.value(0).text, u"Cannot delete default template"_s);
    }
    QFile::remove(mine);
    block("Mine");
    EXPECT_FALSE(m_store.remove(u"Mine"_s));
    EXPECT_TRUE(m_store.templates().names().contains(u"Mine"_s));
    EXPECT_EQ(m_messages.size(), 1);
}

TEST_F(TemplateStoreTest, ResetPutsDefaultBackAndShowsItWhenItIsCurrent)
{
    const QString file = addFile("Default", 13);
    m_store.reload();
    EXPECT_FALSE(m_store.resetDefault());
    EXPECT_EQ(m_ui.questions, (Messages{{u"Template Reset"_s, u"Reset the default template?"_s}}));
    EXPECT_EQ(widthIn(file), 13);
    m_ui.answer = true;
    edit(80);
    EXPECT_TRUE(m_store.resetDefault());
    EXPECT_EQ(widthIn(file), 30);
    EXPECT_EQ(workingWidth(), 30);
    EXPECT_FALSE(m_store.isModified());
}

TEST_F(TemplateStoreTest, ImportTakesTheFileAsItIsNotTheWorkingSettings)
{
    const QTemporaryDir elsewhere;
    m_ui.fileName = writeTemplate(elsewhere.filePath(u"Mine.bomt"_s), 21);
    ASSERT_TRUE(QFile::setPermissions(m_ui.fileName, QFile::ReadOwner));
    m_store.reload();
    EXPECT_TRUE(m_store.importTemplate());
    EXPECT_EQ(m_ui.fileRequests, (QList<ScriptedUi::FileRequest>{{u"Import BOM Template"_s, m_folder.path(),
                                                                  u"BOM Templates (*.bomt)"_s}}));
    EXPECT_EQ(m_store.currentName(), u"Mine"_s);
    EXPECT_EQ(workingWidth(), 21);
    EXPECT_EQ(widthIn(file("Mine")), 21);

    m_store.select(u"Default"_s);
    EXPECT_TRUE(m_store.save(u"Mine"_s)) << "the file is no more read-only";
    EXPECT_EQ(widthIn(file("Mine")), 30);
    EXPECT_FALSE(m_store.importTemplate());
    EXPECT_EQ(m_ui.warnings, (Messages{{u"BOM Template Import Failed"_s,
                                        u"A BOM template with the name 'Mine' already exists."_s}}));
}

TEST_F(TemplateStoreTest, ImportRefusesWhatIsNoTemplateAndSaysWhenTheFolderTakesNothing)
{
    const QTemporaryDir elsewhere;
    const QString good = writeTemplate(elsewhere.filePath(u"Good.bomt"_s), 21);
    m_store.reload();
    const QString broken = write(u"broken.txt"_s, "<BOMTemplate version=\"5\">\n<a");
    EXPECT_FALSE(m_store.importFile(broken));
    EXPECT_TRUE(m_messages.value(0).detail.startsWith(broken + u":2: "_s));

    setTemplatePaths({broken + u"/folder"_s});
    EXPECT_FALSE(m_store.importFile(good));
    EXPECT_TRUE(m_messages.value(1).text.startsWith(u"Could not import the template to '"_s));
    EXPECT_EQ(names(), "Default");
}

TEST_F(TemplateStoreTest, AnOldHeaderIsTakenAtEachSelectionUntilItIsSavedAndToldOnce)
{
    const QString mine = writeWithHeader();
    m_store.reload();
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(m_store.select(u"Mine"_s));
        EXPECT_EQ(m_working.settings.documentHeader(), u"ACME"_s);
        EXPECT_TRUE(m_store.isModified());
        EXPECT_EQ(
            m_ui.informations,
            (Messages{{u"BOM Template Upgraded"_s,
                       u"The BOM template 'Mine' has been upgraded.  Some styling may have changed."_s}}));
        ASSERT_TRUE(m_store.select(u"Default"_s));
        EXPECT_FALSE(m_store.isModified());
    }
    m_store.select(u"Mine"_s);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_EQ(BOMTemplate({}, mine).documentHeader(), u"ACME"_s);
    m_store.reload();
    EXPECT_EQ(m_working.settings.documentHeader(), u"ACME"_s);
    EXPECT_FALSE(m_store.isModified());
}

TEST_F(TemplateStoreTest, AFileOfALaterVersionIsToldAndNotReplacedWithoutAQuestion)
{
    const QByteArray later =
        "<BOMTemplate version=\"6\"><AsciiRefWidth Type=\"int\" Value=\"44\"/></BOMTemplate>";
    const QString mine = write(u"Mine.bomt"_s, later);
    const QString standard = write(u"Default.bomt"_s, later);
    m_store.reload();
    for (int time = 0; time < 2; ++time) {
        m_store.select(u"Mine"_s);
        EXPECT_EQ(workingWidth(), 44);
        m_store.select(u"Default"_s);
    }
    ASSERT_EQ(m_messages.size(), 2) << "once for each";
    EXPECT_TRUE(m_messages[1].detail.startsWith(mine + u": has the format version 6"_s));

    EXPECT_FALSE(m_store.saveCurrent() || m_store.restoreDefault() || m_store.save(u"Mine"_s));
    EXPECT_EQ(m_ui.questions.size(), 3);
    EXPECT_EQ(readFile(mine) + readFile(standard), later + later);
    m_ui.answer = true;
    EXPECT_TRUE(m_store.save(u"Mine"_s));
    EXPECT_TRUE(readFile(mine).contains("version=\"5\""));
    EXPECT_TRUE(m_store.save(u"Mine"_s));
    EXPECT_EQ(m_ui.questions.size(), 4);
}

TEST_F(TemplateStoreTest, ExportReplacesTheFileAndWritesATemplateThatHasNone)
{
    const QTemporaryDir elsewhere;
    const QString exported = elsewhere.filePath(u"out.bomt"_s);
    addFile("Mine", 12);
    m_store.reload();
    m_store.select(u"Default"_s);
    m_ui.fileName = elsewhere.filePath(u"out"_s);
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_EQ(m_ui.fileRequests.value(0).caption, u"Export BOM Template"_s);
    EXPECT_EQ(widthIn(exported), 30);

    m_store.select(u"Mine"_s);
    m_ui.fileName = exported;
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_EQ(readFile(exported), readFile(file("Mine")));

    // The old HTML file is not exported; its header is.
    write(u"Mine.bomt"_s, readFile(writeWithHeader()).replace("version=\"5\"", "version=\"2\""));
    m_store.reload();
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_EQ(BOMTemplate({}, exported).documentHeader(), u"ACME"_s);
    write(u"Mine.bomt"_s, "<BOMTemplate version=\"2\"/>");
    m_store.reload();
    EXPECT_TRUE(m_store.exportTemplate());
    EXPECT_TRUE(readFile(exported).contains("version=\"5\""));
    EXPECT_EQ(BOMTemplate({}, exported).toVariantMap(), BOMTemplate({}, file("Mine")).toVariantMap());
}

TEST_F(TemplateStoreTest, AShippedTemplateStaysAndSavingItMakesTheUsersOwn)
{
    const QString name = u"Purchasing"_s;
    setTemplatePaths({m_folder.path(), shippedTemplateFolder()});
    addFile("Zeta", 12);
    m_store.reload();
    EXPECT_TRUE(names().starts_with("Default,Zeta,Assembly,"));
    m_store.select(name);
    EXPECT_TRUE(m_store.templates().isShipped(name));
    m_ui.answer = true;
    EXPECT_FALSE(m_store.deleteCurrent());

    edit(61);
    EXPECT_TRUE(m_store.saveCurrent());
    EXPECT_EQ(widthIn(file("Purchasing")), 61);
    m_store.reload();
    EXPECT_EQ(m_store.templates().names().count(name), 1);
    EXPECT_EQ(workingWidth(), 61);
    EXPECT_TRUE(m_store.deleteCurrent());
    EXPECT_TRUE(m_store.templates().isShipped(name));
    EXPECT_EQ(m_store.currentName(), name);
    EXPECT_NE(workingWidth(), 61);
}

} // namespace
