// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designsession.h"

#include "designs/formats/designreader.h"
#include "standalone/environment.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"
#include "tests/support/fulldisk.h"
#include "tests/support/testfiles.h"

#include <QScopeGuard>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<TableDesign> designOf(std::initializer_list<const char *> references)
{
    auto design = std::make_unique<TableDesign>();
    for (const char *reference : references) {
        design->add(reference, "10k");
    }
    return design;
}

INETSERVER *offeredServer()
{
    return static_cast<INETSERVER *>(getapplnprocess()->getmoduleinterface("ORIN", INTERFACE_NETSERVER));
}

TEST(DesignSession, IsTheInstalledHostWhileItLives)
{
    {
        DesignSession session;
        ASSERT_NE(getapplnprocess(), nullptr);
        APPLNPROCESS &process = *getapplnprocess();
        EXPECT_NE(getcdb(), nullptr);
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, nullptr), nullptr);
        session.open(designOf({"R1"}));
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, nullptr), &session.document());
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, "/d/amp.kicad_sch"), &session.document());
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, "/d/other"), nullptr);
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN + 1, nullptr), nullptr);
        EXPECT_EQ(offeredServer(), &session.netlist());
        EXPECT_EQ(process.getmoduleinterface("ORIN", 8), nullptr);
        EXPECT_EQ(process.getmoduleinterface("OTHER", INTERFACE_NETSERVER), nullptr);
        EXPECT_TRUE(QFileInfo(process.getdatapath("BOM")).isAbsolute());
    }
    EXPECT_EQ(getapplnprocess(), nullptr);
    EXPECT_EQ(getcdb(), nullptr);
}

TEST(DesignSession, ReadingThatIsStoppedGivesNoDesign)
{
    const QTemporaryDir folder;
    std::stop_source stopped;
    stopped.request_stop();
    for (const auto &[name, text] :
         {std::pair("list.csv", "Reference,Value\nR1,1\n"),
          std::pair("amp.kicad_sch", "(kicad_sch (version 20231120) (uuid \"u\") (lib_symbols))")}) {
        const QString path = folder.filePath(QLatin1String(name));
        writeFile(path, text);
        EXPECT_TRUE(readSettledDesign(path, {}).design);
        const SettledDesign none = readSettledDesign(path, {}, stopped.get_token());
        EXPECT_FALSE(none.design);
        EXPECT_EQ(none.errors, QStringList(path + u": reading was stopped"_s));
    }
}

TEST(DesignSession, ReadsAgainWhatIsWrittenDuringTheReading)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.csv"_s);
    for (const auto &[writes, readings] : {std::pair{0, 1}, {3, 4}, {1000, 20}}) {
        int read = 0;
        const auto writingReader = [&](const QString &file, const designs::ReadOptions &options) {
            designs::ReadResult result = designs::readDesign(file, options);
            if (++read <= writes) {
                writeFile(path, "Reference\nR" + QByteArray::number(read) + '\n');
            }
            return result;
        };
        writeFile(path, "Reference\nR0\n");
        const SettledDesign settled = readSettledDesign(path, {}, writingReader);
        EXPECT_EQ(read, readings);
        EXPECT_EQ(settled.design != nullptr, writes < readings);
        if (settled.design) {
            EXPECT_EQ(settled.design->components().front().reference, "R" + std::to_string(writes));
        }
        EXPECT_EQ(settled.errors.join(u' ').contains(u"again and again"_s), !settled.design);
    }
}

TEST(DesignSession, KeepsTheOpenDesignWhenAnotherCannotBeRead)
{
    DesignSession session;
    session.open(designOf({"R1"}));
    EXPECT_FALSE(session.open(u"/nonexistent/x.kicad_sch"_s));
    EXPECT_TRUE(session.error().startsWith(u"/nonexistent/x.kicad_sch"_s)) << qPrintable(session.error());
    EXPECT_EQ(session.design()->components().size(), 1U);
}

/// A cache that was filled with a design.
class Netlist : public testing::Test
{
protected:
    void open(std::unique_ptr<TableDesign> design)
    {
        m_session.open(std::move(design));
        m_cache.setsource(offeredServer());
        m_cache.validate(1);
    }
    [[nodiscard]] const COMPONENT &at(std::size_t index) const { return *m_cache.components[index]; }
    [[nodiscard]] int isSkipped(std::size_t index) const { return at(index).properties->test("BOMSKIP"); }

    NETCACHE m_cache;
    DesignSession m_session;
};

TEST_F(Netlist, SendsOneRecordForEachComponentInOrder)
{
    auto design = designOf({"R2", "R1"});
    design->add("R1", "47k", {{"MPN", "x"}});
    open(std::move(design));
    EXPECT_TRUE(m_cache.isValid());
    ASSERT_EQ(m_cache.components.size(), 3U);
    EXPECT_EQ(at(0).reference, QByteArrayView("R2"));
    EXPECT_EQ(at(2).reference, QByteArrayView("R1"));
    EXPECT_EQ(at(2).value, QByteArrayView("47k"));
    EXPECT_EQ((*at(2).properties)["MPN"], QByteArrayView("x"));
    EXPECT_EQ(m_cache.propertyNames, (QByteArrayList{"Footprint", "MPN"}));
}

TEST_F(Netlist, OfNoDesignLeavesTheCacheStale)
{
    m_cache.setsource(offeredServer());
    m_cache.validate(1);
    EXPECT_TRUE(m_cache.isstale());
    EXPECT_FALSE(m_cache.isValid());
}

TEST_F(Netlist, KeepsWhatACacheHoldsUntilItIsReadAgain)
{
    open(designOf({"R1"}));
    const quint64 oldIdentifier = at(0).identifier;
    m_session.open(designOf({"C1", "C2"}));
    EXPECT_TRUE(m_cache.isstale());
    EXPECT_EQ(at(0).reference, QByteArrayView("R1"));
    EXPECT_EQ(at(0).properties->test("VALUE"), 1);
    EXPECT_EQ(getcdb()->getpart(oldIdentifier), nullptr)
        << "a record of the old design is none of the new one";
    m_cache.validate(1);
    ASSERT_EQ(m_cache.components.size(), 2U);
    EXPECT_EQ(at(0).reference, QByteArrayView("C1"));
}

TEST_F(Netlist, ChangingTheNotFittedChoiceMakesCachesStale)
{
    auto design = designOf({"R1"});
    design->add("R2", "1k").notFitted = designs::MarkedBy::Symbol;
    open(std::move(design));
    EXPECT_EQ(isSkipped(1), 1);
    m_session.setDnpChoice(DnpChoice::Exclude);
    EXPECT_FALSE(m_cache.isstale());
    m_session.setDnpChoice(DnpChoice::Only);
    EXPECT_TRUE(m_cache.isstale());
    EXPECT_EQ(isSkipped(0), 1);
    EXPECT_EQ(isSkipped(1), 0);
}

TEST(NetlistServer, ThatGoesAwayFirstEmptiesItsCaches)
{
    NETCACHE cache;
    {
        DesignSession session;
        session.open(designOf({"R1"}));
        cache.setsource(offeredServer());
        cache.validate(1);
        EXPECT_TRUE(cache.isValid());
    }
    EXPECT_FALSE(cache.isValid());
    EXPECT_TRUE(cache.components.empty());
}

TEST(ComponentDatabase, AsksTheBoardOnlyWhenAskedItself)
{
    DesignSession session;
    auto design = designOf({"R1", "R2", "R3"});
    design->place("R1", designs::Side::Top);
    design->place("R2", designs::Side::Bottom);
    const TableDesign *board = design.get();
    session.open(std::move(design));
    const auto components = session.design()->components();
    EXPECT_EQ(board->boardReads(), 0);
    const auto sideOf = [&](std::size_t index) {
        const CDBPART *part = getcdb()->getpart(components[index]->identifier);
        EXPECT_TRUE(part);
        return part && part->layout() ? part->layout()->name().toByteArray() : QByteArray("none");
    };
    EXPECT_EQ(sideOf(0) + ' ' + sideOf(1) + ' ' + sideOf(2), "Top Bottom none");
    EXPECT_EQ(getcdb()->getpart(0), nullptr);
    EXPECT_EQ(getcdb()->getpart(components[2]->identifier + 1), nullptr);
}

TEST(Document, AnswersTheInformationKeys)
{
    DesignSession session;
    auto design = designOf({});
    design->editInfo() = {
        u"Amp"_s, u"Ada"_s, u"D-7"_s, u"B"_s, u"2026-01-02"_s, u"Lite"_s, u"/d/a.rev2.kicad_sch"_s, {}};
    session.open(std::move(design));
    const StandaloneDocument &document = session.document();
    QStringList answers;
    for (const char *key :
         {"TITLE", "AUTHOR", "DOCNO", "REV", "WL_CDATE", "WL_MDATE", "FILENAME", "title", "VARIANT"}) {
        answers << document.getinfo(key);
    }
    EXPECT_EQ(answers.join(u'|'), u"Amp|Ada|D-7|B|2026-01-02||/d/a.rev2.kicad_sch||"_s);
    EXPECT_EQ(document.getproperty("VARIANT"), "Lite");
    EXPECT_EQ(document.getproperty("TITLE"), "");
    EXPECT_EQ(document.kindcode(), 's');
    EXPECT_TRUE(document.isdoctype("DSN"));
    EXPECT_FALSE(document.isdoctype("LYT"));
    EXPECT_EQ(document.notesFile(), u"/d/a.rev2.bomnotes.txt"_s);
}

TEST(Document, ModificationIsAtMostTheReproducibleClockAndInUtc)
{
    const QDateTime modified(QDate(2026, 3, 4), QTime(5, 6, 59), Qt::OffsetFromUTC, 3600);
    const auto restore = qScopeGuard([old = qgetenv("SOURCE_DATE_EPOCH")] {
        old.isNull() ? qunsetenv("SOURCE_DATE_EPOCH") : qputenv("SOURCE_DATE_EPOCH", old);
    });
    DesignSession session;
    auto design = designOf({});
    design->editInfo().modified = modified;
    session.open(std::move(design));
    qputenv("SOURCE_DATE_EPOCH", "1772595959");
    EXPECT_EQ(session.document().getinfo("WL_MDATE"), u"2026-03-04 03:45"_s);
    qputenv("SOURCE_DATE_EPOCH", "1900000000");
    EXPECT_EQ(session.document().getinfo("WL_MDATE"), u"2026-03-04 04:06"_s);
    for (const char *noNumber : {"", "now", "-5", "12x"}) {
        qputenv("SOURCE_DATE_EPOCH", noNumber);
        EXPECT_FALSE(sourceDateEpoch()) << noNumber;
    }
}

class Notes : public testing::Test
{
protected:
    Notes()
    {
        auto design = std::make_unique<TableDesign>();
        design->editInfo().file = m_folder.filePath(u"amp.kicad_sch"_s);
        m_session.open(std::move(design));
    }
    void put(const QByteArray &bytes) const { writeFile(m_document.notesFile(), bytes); }
    [[nodiscard]] QByteArray bytes() const { return contentIfAny(m_document.notesFile()); }
    [[nodiscard]] QString notes() const { return m_document.readattachment("BOMNOTES.TXT"); }
    ATTACHMENTWRITE replace(const QString &before, const QString &text)
    {
        return m_document.writeattachment("BOMNOTES.TXT", before, text);
    }
    bool write(const QString &text) { return replace(notes(), text) == ATTACHMENTWRITE::Written; }

    QTemporaryDir m_folder;
    DesignSession m_session;
    StandaloneDocument &m_document = m_session.document();
    const QByteArray mark = "\xEF\xBB\xBF";
};

TEST_F(Notes, AreReadBesideTheDesign)
{
    EXPECT_EQ(notes(), QString());
    EXPECT_EQ(m_document.notesProblem(), QString());
    put(mark + "Größe\r\ntwo\n");
    EXPECT_EQ(notes(), u"Größe\ntwo\n"_s);
    EXPECT_EQ(m_document.readattachment("OTHER.TXT"), QString());
}

TEST_F(Notes, ThatCannotBeReadAreNamed)
{
    put("\xff\xfe\x00");
    EXPECT_EQ(notes(), QString());
    EXPECT_TRUE(m_document.notesProblem().endsWith(u"amp.bomnotes.txt: is no UTF-8 text"_s));
    ASSERT_TRUE(QFile::remove(m_document.notesFile()) && QDir().mkdir(m_document.notesFile()));
    EXPECT_EQ(notes(), QString());
    EXPECT_TRUE(m_document.notesProblem().endsWith(u"is no file"_s));
}

TEST_F(Notes, AreWrittenAsTheFileWas)
{
    EXPECT_TRUE(write(u"eins\nzwölf\r\n"_s));
    EXPECT_EQ(bytes(), "eins\nzw\xc3\xb6lf\n");
    EXPECT_EQ(notes(), u"eins\nzwölf\n"_s);
    put(mark + "one\r\ntwo");
    EXPECT_TRUE(write(u"one\ntwo\n"_s));
    EXPECT_EQ(bytes(), mark + "one\r\ntwo\r\n");
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(write(QString()));
        EXPECT_FALSE(QFile::exists(m_document.notesFile()));
    }
    EXPECT_EQ(m_document.writeattachment("OTHER.TXT", {}, u"x"_s), ATTACHMENTWRITE::Failed);
    EXPECT_FALSE(m_document.attachmenterror().isEmpty());
}

TEST_F(Notes, OfAnotherProgramAreNeitherReplacedNorMissed)
{
    const QString backup = m_folder.filePath(u"amp-backup/amp.bomnotes.txt.bak"_s);
    EXPECT_FALSE(m_document.hasOtherNotes()) << "nobody has read them yet";
    EXPECT_TRUE(write(u"mine\r\n"_s));
    EXPECT_FALSE(m_document.hasOtherNotes());
    {
        const FullDisk full(2);
        EXPECT_FALSE(write(u"more"_s));
    }
    EXPECT_EQ(bytes(), "mine\n");
    EXPECT_EQ(replace(u"mine\r\n"_s, u"more"_s), ATTACHMENTWRITE::Written);
    EXPECT_EQ(contentIfAny(backup), "mine\n");
    put("theirs");
    EXPECT_TRUE(m_document.hasOtherNotes());
    EXPECT_EQ(replace(u"more"_s, u"most"_s), ATTACHMENTWRITE::Changed);
    EXPECT_EQ(bytes(), "theirs");
    EXPECT_EQ(notes(), u"theirs"_s);
    EXPECT_FALSE(m_document.hasOtherNotes());
    EXPECT_TRUE(write(QString()));
    EXPECT_EQ(contentIfAny(backup), "theirs");

    ASSERT_TRUE(QFile::remove(backup) && QDir().mkpath(backup + u"/inside"_s));
    put("last");
    EXPECT_FALSE(write(u"x"_s));
    EXPECT_TRUE(m_document.attachmenterror().contains(u"the previous notes cannot be kept in "_s + backup));
    EXPECT_EQ(bytes(), "last");
}

TEST_F(Notes, ThatCannotBeWrittenLeaveTheOldFile)
{
    put("\xff\xfe");
    EXPECT_FALSE(write(u"new"_s));
    EXPECT_TRUE(m_document.attachmenterror().endsWith(u"amp.bomnotes.txt: is no UTF-8 text"_s));
    EXPECT_EQ(bytes(), "\xff\xfe");
    put("old");
    EXPECT_FALSE(write(QString(17 * 1024 * 1024, u'x')));
    EXPECT_TRUE(m_document.attachmenterror().startsWith(m_document.notesFile()));
    EXPECT_EQ(bytes(), "old");
    EXPECT_TRUE(write(u"new"_s));
    EXPECT_EQ(m_document.attachmenterror(), QString());
}

} // namespace
