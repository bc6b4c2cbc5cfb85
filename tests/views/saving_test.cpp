// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What happens when a user saves a report, the same for all of them.
#include "host/framework/reportfile.h"
#include "report/reportfixture.h"
#include "support/fulldisk.h"
#include "support/testfiles.h"
#include "views/bomasciiview.h"
#include "views/bomcsvview.h"
#include "views/bomexcelview.h"
#include "views/bomhtmlview.h"
#include "views/report/asciireport.h"
#include "views/report/csvreport.h"
#include "views/report/htmlreport.h"
#include "views/report/spreadsheetreport.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class Saving : public ReportFixture
{
protected:
    Saving()
    {
        netlist.add("R1", "1k");
        netlist.add("R2", "1k");
        process.design.info["TITLE"] = u"amp"_s;
        database.load();
        changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    }
    template<typename View, typename... Arguments>
    void saveWith(Arguments... arguments)
    {
        View view(nullptr, arguments...);
        view.writeOutput(); // Without a database that is nothing.
        view.setPartsDatabase(&database);
        view.writeOutput();
    }
    void saveHtml()
    {
        BOMHTMLView view;
        view.saveHTML();
        view.setPartsDatabase(&database);
        view.handleBOMDataUpdate();
        view.saveHTML();
    }

    QTemporaryDir folder;
};

TEST_F(Saving, AsksForAFileWritesAndOpensIt)
{
    const QString csv = u"Comma Separated Variables (*.csv)"_s;
    const QString ascii = u"ASCII fixed column width file (*.txt)"_s;
    const QString xlsx = u"Spreadsheets (*.xlsx)"_s;
    const QString html = u"Web pages (*.html *.htm)"_s;
    const struct
    {
        std::function<void()> save;
        QString caption, extension, filter;
        QByteArray content;
    } cases[] = {
        {[this] { saveWith<BOMCsvView>(false); }, u"CSV"_s, u".csv"_s, csv,
         csvReport(dataReport(), CsvRows::Lines)},
        {[this] { saveWith<BOMCsvView>(true); }, u"CSV"_s, u".csv"_s, csv,
         csvReport(dataReport(), CsvRows::Parts)},
        {[this] { saveWith<BOMAsciiView>(); }, u"ASCII"_s, u".txt"_s, ascii, asciiReport(dataReport())},
        {[this] { saveWith<BOMExcelView>(); }, u"Spreadsheet"_s, u".xlsx"_s, xlsx,
         spreadsheetReport(dataReport()).file},
        {[this] { saveHtml(); }, u"HTML"_s, u".html"_s, html, htmlReport(report()).toUtf8()},
    };
    for (const auto &[save, caption, extension, filter, content] : cases) {
        ui.fileName = folder.filePath(u"100% #1"_s + extension);
        save();
        const QString proposed = QDir::currentPath() + u"/Bill Of Materials amp"_s + extension;
        EXPECT_EQ(ui.fileRequests,
                  (QList<ScriptedUi::FileRequest>{{caption + u" file to save"_s, proposed, filter}}));
        EXPECT_EQ(readFile(ui.fileName), content);
        EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(ui.fileName)});
        ui.fileRequests.clear();
        ui.openedUrls.clear();
    }
    EXPECT_TRUE(ui.warnings.isEmpty());
}

TEST_F(Saving, EndsSilentlyWhenTheUserCancels)
{
    saveWith<BOMCsvView>(false);
    saveHtml();
    EXPECT_EQ(ui.fileRequests.size(), 2);
    EXPECT_TRUE(ui.openedUrls.isEmpty() && ui.warnings.isEmpty());
}

TEST_F(Saving, SaysThatAFileCannotBeWrittenAndLeavesDevicesDevices)
{
    ui.fileName = folder.filePath(u"missing %1/out.csv"_s);
    saveWith<BOMCsvView>(false);
    const ScriptedUi::Message message{u"Output Failed"_s,
                                      u"Could not open file '"_s + ui.fileName + u"' for writing"_s};
    EXPECT_EQ(ui.warnings, QList<ScriptedUi::Message>{message});
    saveHtml();
    EXPECT_EQ(ui.warnings, (QList<ScriptedUi::Message>{message, message}));
    EXPECT_FALSE(QFileInfo::exists(ui.fileName));

    ui.fileName = u"/dev/full"_s;
    saveWith<BOMAsciiView>();
    ASSERT_EQ(ui.warnings.size(), 3);
    EXPECT_TRUE(ui.warnings.last().text.contains(ui.fileName));
    EXPECT_FALSE(QFileInfo(ui.fileName).isFile());
    EXPECT_TRUE(ui.openedUrls.isEmpty());
}

TEST_F(Saving, SaysWhyThereIsNoSpreadsheetBeforeItAsksForAFile)
{
    netlist.add("C1", "x", {{"CODE", QByteArray(32768, 'x')}});
    database.reload();
    saveWith<BOMExcelView>();
    EXPECT_EQ(ui.warnings,
              (QList<ScriptedUi::Message>{{u"Output Failed"_s, spreadsheetReport(dataReport()).problem}}));
    EXPECT_TRUE(ui.fileRequests.isEmpty());
}

TEST(ReportFile, IsReplacedAsAWholeOrStays)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"out.csv"_s);
    ASSERT_EQ(writeReportFile(path, "old\n", nullptr), ReportFileResult::Written);
    for (const int size : {2000, 100000}) {
        const FullDisk full(1000);
        QString reason;
        EXPECT_EQ(writeReportFile(path, QByteArray(size, 'x'), &reason), ReportFileResult::NotWritten);
        EXPECT_FALSE(reason.isEmpty());
    }
    EXPECT_EQ(readFile(path), "old\n");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"out.csv"_s});
    EXPECT_EQ(writeReportFile(path, "new\n", nullptr), ReportFileResult::Written);
    EXPECT_EQ(readFile(path), "new\n");
    EXPECT_EQ(writeReportFile(folder.path(), "x", nullptr), ReportFileResult::NotOpened);
    EXPECT_TRUE(QFileInfo(folder.path()).isDir());
}

} // namespace
