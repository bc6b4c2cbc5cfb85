// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class DesignInfo : public testing::Test
{
protected:
    FakeProcess process;
    BOMPartsDatabase database;
};

TEST_F(DesignInfo, asksTheDocument)
{
    process.design.info = {{"AUTHOR", u"A"_s},   {"DOCNO", u"D"_s},    {"REV", u"<NONE>"_s},
                           {"WL_CDATE", u"c"_s}, {"WL_MDATE", u"m"_s}, {"OTHER", u"o"_s}};
    EXPECT_EQ(database.designAuthor(), u"A"_s);
    EXPECT_EQ(database.designDocumentNumber(), u"D"_s);
    EXPECT_EQ(database.designRevision(), QString());
    EXPECT_EQ(database.designCreated(), u"c"_s);
    EXPECT_EQ(database.designModified(), u"m"_s);
    EXPECT_EQ(database.designInfo("OTHER"), u"o"_s);
}

TEST_F(DesignInfo, isEmptyWithoutDocumentOrProcess)
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

TEST_F(DesignInfo, titleFallsBackOnTheFileName)
{
    process.design.info = {{"TITLE", u"Amplifier"_s}, {"FILENAME", u"C:/x/amp.rev2.dsn"_s}};
    EXPECT_EQ(database.designTitle(), u"Amplifier"_s);
    for (const QString &title : {QString(), u"<NONE>"_s}) {
        process.design.info["TITLE"] = title;
        EXPECT_EQ(database.designTitle(), u"amp.rev2"_s);
    }
}

TEST_F(DesignInfo, aBoardHasNoVariant)
{
    process.design.properties["VARIANT"] = "Economy \xc2\xb5";
    EXPECT_EQ(database.designVariant(), u"Economy µ"_s);
    process.design.kind = 'b';
    EXPECT_EQ(database.designVariant(), QString());
}

TEST_F(DesignInfo, outputNameHasNoForbiddenCharacters)
{
    const struct
    {
        const char16_t *title, *name;
    } cases[] = {
        {u"a/b:c?d", u"Bill Of Materials abcd.csv"},   {u"\\/:*?\"<>|", u"Bill Of Materials.csv"},
        {u"<NONE>", u"Bill Of Materials unknown.csv"}, {u"", u"Bill Of Materials unknown.csv"},
        {u" amp ", u"Bill Of Materials  amp.csv"},     {u"5%1 #2", u"Bill Of Materials 5%1 #2.csv"},
        {u"..", u"Bill Of Materials ...csv"},
    };
    for (const auto &expected : cases) {
        process.design.info["TITLE"] = QString::fromUtf16(expected.title);
        EXPECT_EQ(database.defaultOutputPath(u".csv"_s),
                  QDir::currentPath() + u'/' + QString::fromUtf16(expected.name));
    }
}

TEST_F(DesignInfo, outputFolderIsTheUsersWhenStartedInPlace)
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
