// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/reportfile.h"
#include "views/bomcsvview.h"
#include "views/viewfixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be opened");
}

class Csv : public ViewFixture
{
protected:
    [[nodiscard]] QByteArray csv(bool full = false)
    {
        BOMCsvView view(nullptr, full);
        view.setPartsDatabase(&database);
        return view.csv();
    }
    void writeOutput()
    {
        BOMCsvView view(nullptr, false);
        view.setPartsDatabase(&database);
        view.writeOutput();
    }

    QTemporaryDir folder;
};

TEST_F(Csv, hasOneRowPerLine)
{
    netlist.add("R2", "10k", {{"COST", "0.5"}});
    netlist.add("C1", "1\xc2\xb5", {{"CODE", "\xe7\x94\xb5"}});
    netlist.add("R1", "10k", {{"COST", "0.5"}});
    netlist.add("R4", "10k", {{"COST", "0.5"}});
    database.load();
    EXPECT_EQ(csv(), "Category,Quantity,References,Value,Stock Code,Unit Cost\n"
                     "Capacitors,1,C1,1\xc2\xb5,\xe7\x94\xb5,\n"
                     "Resistors,3,\"R1-R2,R4\",10k,,0.50\n");
}

TEST_F(Csv, fullHasOneRowPerPart)
{
    netlist.add("R2", "10k", {{"COST", "0.5"}});
    netlist.add("R1", "10k");
    database.load();
    EXPECT_EQ(csv(true), "Category,References,Value,Stock Code,Unit Cost\n"
                         "Resistors,R1,10k,,\n"
                         "Resistors,R2,10k,,0.50\n");
}

TEST_F(Csv, ofAnEmptyDesignIsTheHeading)
{
    database.load();
    EXPECT_EQ(csv(), "Category,Quantity,References,Value,Stock Code,Unit Cost\n");
    EXPECT_EQ(BOMCsvView(nullptr, false).csv(), QByteArray());
}

TEST_F(Csv, dropsQuotesAndLineBreaksAndEnclosesCommas)
{
    netlist.add("R1", "10\"x2", {{"CODE", "a\r\nb"}});
    netlist.add("R2", "1,2", {{"CODE", "\"\"\n"}});
    netlist.add("R3", "5%1", {{"CODE", "\",\""}});
    changeField(u"Unit \"Cost\", net"_s, [](BOMField &field) { field.propertyName = u"COST"_s; });
    database.load();
    EXPECT_EQ(csv(), "Category,Quantity,References,Value,Stock Code,Unit Cost,\"Unit Cost, net\"\n"
                     "Resistors,1,R1,10x2,ab,,\n"
                     "Resistors,1,R2,\"1,2\",,,\n"
                     "Resistors,1,R3,5%1,\",\",,\n");
}

TEST_F(Csv, enclosesReferencesWhenAskedTo)
{
    netlist.add("R1", "1k");
    netlist.add("R2", "2k");
    netlist.add("R4", "2k");
    database.load();
    changeTemplate([](BOMTemplate &settings) {
        settings.setAlwaysQuoteRefs(true);
        settings.setExcludeValueField(true);
        settings.setGroupReferences(false);
    });
    EXPECT_EQ(csv(), "Category,Quantity,References,Stock Code,Unit Cost\n"
                     "Resistors,1,\"R1\",,\n"
                     "Resistors,2,\"R2,R4\",,\n");
    EXPECT_EQ(csv(true).split('\n').at(1), "Resistors,\"R1\",,");
}

TEST_F(Csv, neverCutsReferences)
{
    QByteArray references;
    for (int i = 1; i < 30000; i += 2) {
        references += ",R" + QByteArray::number(i);
        netlist.add("R" + QByteArray::number(i), "1k");
    }
    database.load();
    for (const bool ranges : {true, false}) {
        changeTemplate([ranges](BOMTemplate &settings) { settings.setGroupReferences(ranges); });
        EXPECT_TRUE(csv().contains(",15000,\"" + references.mid(1) + "\",1k,"));
    }
}

TEST_F(Csv, asksForAFileWritesAndOpensIt)
{
    netlist.add("R1", "1k");
    database.load();
    process.design.info["TITLE"] = u"amp"_s;
    ui.fileName = folder.filePath(u"100% #1.csv"_s);
    writeOutput();
    EXPECT_EQ(ui.fileRequests,
              (QList<ScriptedUi::FileRequest>{{u"CSV file to save"_s,
                                               QDir::currentPath() + u"/Bill Of Materials amp.csv"_s,
                                               u"Comma Separated Variables (*.csv)"_s}}));
    EXPECT_EQ(contentOf(ui.fileName), csv());
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(ui.fileName)});
    EXPECT_EQ(ui.openedUrls.first().toLocalFile(), ui.fileName);
    EXPECT_TRUE(ui.warnings.isEmpty());
}

TEST_F(Csv, aCancelledDialogEndsSilently)
{
    database.load();
    writeOutput();
    BOMCsvView(nullptr, false).writeOutput();
    EXPECT_EQ(ui.fileRequests.size(), 1);
    EXPECT_TRUE(ui.openedUrls.isEmpty());
    EXPECT_TRUE(ui.warnings.isEmpty());
}

TEST_F(Csv, tellsThatAFileCannotBeOpened)
{
    database.load();
    ui.fileName = folder.filePath(u"missing %1/out.csv"_s);
    writeOutput();
    EXPECT_EQ(ui.warnings,
              (QList<ScriptedUi::Message>{
                  {u"Output Failed"_s, u"Could not open file '"_s + ui.fileName + u"' for writing"_s}}));
    EXPECT_TRUE(ui.openedUrls.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(ui.fileName));
}

TEST_F(Csv, aFullDeviceIsToldAndStaysADevice)
{
    const QString device = u"/dev/full"_s;
    if (!QFileInfo::exists(device)) {
        GTEST_SKIP() << "no /dev/full here";
    }
    database.load();
    ui.fileName = device;
    writeOutput();
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_EQ(ui.warnings.first().title, u"Output Failed"_s);
    EXPECT_TRUE(ui.warnings.first().text.contains(device));
    EXPECT_TRUE(ui.openedUrls.isEmpty());
    EXPECT_FALSE(QFileInfo(device).isFile());
}

/// Lets no file grow beyond a size while it lives: to a writer that is a full disk.
class SmallDisk final
{
public:
    explicit SmallDisk(rlim_t bytes)
        : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limited{bytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    rlimit m_old{};
    void (*m_oldHandler)(int);
};

TEST(ReportFile, isReplacedAsAWholeOrStays)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"out.csv"_s);
    ASSERT_EQ(writeReportFile(path, "old\n", nullptr), ReportFileResult::Written);
    {
        const SmallDisk disk(1000);
        QString reason;
        EXPECT_EQ(writeReportFile(path, QByteArray(100000, 'x'), &reason), ReportFileResult::NotWritten);
        EXPECT_FALSE(reason.isEmpty());
    }
    EXPECT_EQ(contentOf(path), "old\n");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"out.csv"_s});
    EXPECT_EQ(writeReportFile(path, "new\n", nullptr), ReportFileResult::Written);
    EXPECT_EQ(contentOf(path), "new\n");
}

TEST(ReportFile, isNoFolder)
{
    const QTemporaryDir folder;
    EXPECT_EQ(writeReportFile(folder.path(), "x", nullptr), ReportFileResult::NotOpened);
    EXPECT_TRUE(QFileInfo(folder.path()).isDir());
}

} // namespace
