// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

using DesignInfo = CoreDesign;

TEST_F(DesignInfo, AsksTheDocument)
{
    process.design.info = {{"AUTHOR", u"A"_s},   {"DOCNO", u"D"_s},    {"REV", u"<NONE>"_s},
                           {"WL_CDATE", u"c"_s}, {"WL_MDATE", u"m"_s}, {"OTHER", u"o"_s}};
    const QStringList all{database.designAuthor(),   database.designDocumentNumber(),
                          database.designRevision(), database.designCreated(),
                          database.designModified(), database.designInfo("OTHER")};
    EXPECT_EQ(joined(all), "A | D |  | c | m | o");
}

TEST_F(DesignInfo, IsEmptyWithoutDocumentOrProcess)
{
    process.hasDesign = false;
    EXPECT_EQ(database.designInfo("TITLE"), QString());
    EXPECT_EQ(database.designTitle(), QString());
    EXPECT_EQ(database.designVariant(), QString());
    setapplnprocess(nullptr);
    EXPECT_EQ(database.designTitle(), QString());
    EXPECT_EQ(database.defaultOutputPath(u".csv"_s),
              QDir::currentPath() + u"/Bill Of Materials unknown.csv"_s);
}

TEST_F(DesignInfo, TakesTheFileNameWithoutATitle)
{
    process.design.info = {{"TITLE", u"Amplifier"_s}, {"FILENAME", u"C:/x/amp.rev2.dsn"_s}};
    EXPECT_EQ(database.designTitle(), u"Amplifier"_s);
    for (const QString &title : {QString(), u"<NONE>"_s}) {
        process.design.info["TITLE"] = title;
        EXPECT_EQ(database.designTitle(), u"amp.rev2"_s);
    }
}

TEST_F(DesignInfo, HasNoVariantForABoard)
{
    process.design.properties["VARIANT"] = "Economy \xc2\xb5";
    EXPECT_EQ(database.designVariant(), u"Economy µ"_s);
    process.design.kind = 'b';
    EXPECT_EQ(database.designVariant(), QString());
}

TEST_F(DesignInfo, NamesOutputsWithoutForbiddenCharacters)
{
    const std::pair<QString, QString> cases[] = {
        {u"a/b:c?d"_s, u"Bill Of Materials abcd.csv"_s},   {u"\\/:*?\"<>|"_s, u"Bill Of Materials.csv"_s},
        {u"<NONE>"_s, u"Bill Of Materials unknown.csv"_s}, {u" amp "_s, u"Bill Of Materials  amp.csv"_s},
        {u"5%1 #2"_s, u"Bill Of Materials 5%1 #2.csv"_s},  {u".."_s, u"Bill Of Materials ...csv"_s},
    };
    for (const auto &[title, name] : cases) {
        process.design.info["TITLE"] = title;
        EXPECT_EQ(database.defaultOutputPath(u".csv"_s), QDir::currentPath() + u'/' + name);
    }
}

TEST_F(DesignInfo, PutsOutputsIntoTheUsersFolderWhenStartedInPlace)
{
    const QTemporaryDir folder;
    process.design.info["TITLE"] = u"amp"_s;
    process.dataPath = folder.filePath(u"new/data"_s);
    const QString inWorkingFolder = QDir::currentPath() + u"/Bill Of Materials amp.txt"_s;
    const QString inDataFolder = process.dataPath + u"/Bill Of Materials amp.txt"_s;
    EXPECT_EQ(database.defaultOutputPath(u".txt"_s), inWorkingFolder);
    EXPECT_FALSE(QFileInfo::exists(process.dataPath));
    for (const QString &programs :
         {u"bin"_s, u"."_s, QString(), QDir::currentPath(), QDir::currentPath() + u'/'}) {
        process.binPath = programs;
        EXPECT_EQ(database.defaultOutputPath(u".txt"_s), inDataFolder) << programs.toStdString();
        EXPECT_TRUE(QFileInfo::exists(process.dataPath)) << "made with its parents";
    }
}

} // namespace
