// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomasciiview.h"
#include "views/viewfixture.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class Ascii : public ViewFixture
{
protected:
    Ascii()
    {
        changeTemplate([](BOMTemplate &settings) {
            settings.setSuppressEmptyCategories(true);
            settings.setAsciiQuantityWidth(4);
            settings.setAsciiRefWidth(10);
            BOMFields fields = settings.fields();
            for (BOMField field : fields.fields()) {
                field.asciiWidth = 8;
                fields.set(field);
            }
            settings.setFields(fields);
        });
    }

    [[nodiscard]] QByteArray ascii()
    {
        BOMAsciiView view;
        view.setPartsDatabase(&database);
        return view.ascii();
    }
    /// What follows the information block.
    [[nodiscard]] QByteArray table()
    {
        const QByteArray text = ascii();
        return text.mid(text.indexOf("\n\n") + 2);
    }
};

TEST_F(Ascii, beginsWithTitleAndDesign)
{
    process.design.info = {{"TITLE", u"amp 5%1"_s}, {"DOCNO", u"D-7"_s},           {"REV", u"B"_s},
                           {"AUTHOR", u"Åsa"_s},    {"WL_CDATE", u"2026-01-02"_s}, {"WL_MDATE", u"today"_s}};
    database.load();
    const QByteArray plain = "Bill Of Materials\n"
                             "=================\n"
                             "Design Title:    amp 5%1\n"
                             "Document Number: D-7\n"
                             "Revision:        B\n"
                             "Author:          Åsa\n"
                             "Created:         2026-01-02\n"
                             "Modified:        today\n"
                             "\n"
                             "QTY PART-REFS Value   Stock CoUnit Cos\n"
                             "--- --------- -----   ----------------\n";
    EXPECT_EQ(ascii(), plain);
    process.design.properties["VARIANT"] = "Lite";
    EXPECT_TRUE(ascii().contains("Design Title:     amp 5%1\n"
                                 "Document Number:  D-7\n"
                                 "Revision:         B\n"
                                 "Assembly Variant: Lite\n"
                                 "Author:           Åsa\n"));
    EXPECT_EQ(BOMAsciiView().ascii(), QByteArray());
}

TEST_F(Ascii, wrapsReferencesAndCutsValues)
{
    for (const char *reference : {"R1", "R2", "R3", "R4", "R5"}) {
        netlist.add(reference, "10k/0.1W/5%", {{"COST", "0.5"}});
    }
    netlist.add("C1", "1\xc2\xb5\nx",
                {{"CODE", "12\xe2\x80\xa8"
                          "4567\xf0\x9f\x98\x80"}});
    database.load();
    changeTemplate([](BOMTemplate &settings) { settings.setGroupReferences(false); });
    EXPECT_EQ(table(), "QTY PART-REFS Value   Stock CoUnit Cos\n"
                       "--- --------- -----   ----------------\n"
                       "Capacitors\n"
                       "----------\n"
                       "1   C1        1\xc2\xb5 x    12 4567         \n"
                       "\n"
                       "Resistors\n"
                       "---------\n"
                       "5   R1,R2,R3, 10k/0.1W        0.50    \n"
                       "    R4,R5\n"
                       "\n");
}

TEST_F(Ascii, hasTheColumnsOfTheTemplate)
{
    netlist.add("R1", "10k", {{"CODE", "S-1"}, {"COST", "0.5"}});
    database.load();
    changeField(u"Stock Code"_s, [](BOMField &field) { field.asciiWidth = -5; });
    EXPECT_EQ(table().split('\n').at(4), "1   R1        10k     0.50    ");
    changeField(u"Stock Code"_s, [](BOMField &field) { field.asciiWidth = 2000000000; });
    EXPECT_EQ(table().split('\n').at(4).size(), 4 + 10 + 8 + 1000 + 8);
    changeTemplate([](BOMTemplate &settings) {
        settings.setExcludeValueField(true);
        settings.setAsciiQuantityWidth(-1);
    });
    EXPECT_TRUE(table().startsWith("PART-REFS Stock Code"));
    changeTemplate([](BOMTemplate &settings) { settings.setAsciiRefWidth(0); });
    EXPECT_TRUE(table().split('\n').at(4).startsWith("S-1 "));
}

TEST_F(Ascii, asksForAFileAndWritesIt)
{
    const QTemporaryDir folder;
    netlist.add("R1", "1k");
    database.load();
    ui.fileName = folder.filePath(u"out.txt"_s);
    BOMAsciiView view;
    view.setPartsDatabase(&database);
    view.writeOutput();
    ASSERT_EQ(ui.fileRequests.size(), 1);
    EXPECT_EQ(ui.fileRequests.first().caption, u"ASCII file to save"_s);
    EXPECT_EQ(ui.fileRequests.first().filter, u"ASCII fixed column width file (*.txt)"_s);
    EXPECT_TRUE(ui.fileRequests.first().path.endsWith(u".txt"_s));
    QFile file(ui.fileName);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), ascii());
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(ui.fileName)});
}

} // namespace
