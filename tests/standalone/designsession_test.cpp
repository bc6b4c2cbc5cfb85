// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designsession.h"

#include "standalone/environment.h"
#include "standalone/loadeddesign.h"
#include "tests/standalone/tabledesign.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

/// Sets an environment variable for one test.
class Environment
{
public:
    Environment(const char *name, const QByteArray &value)
        : m_name(name)
        , m_old(qgetenv(name))
    {
        qputenv(name, value);
    }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;
    ~Environment() { m_old.isNull() ? qunsetenv(m_name) : qputenv(m_name, m_old); }

private:
    const char *m_name;
    QByteArray m_old;
};

std::unique_ptr<TableDesign> designOf(std::initializer_list<const char *> references)
{
    auto design = std::make_unique<TableDesign>();
    for (const char *reference : references) {
        design->add(reference, "10k");
    }
    return design;
}

class Client final : public INETCLIENT
{
public:
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool isvisible() override { return true; }
    void designChanged(bool reload) override { calls.push_back(reload); }

    std::vector<bool> calls;
};

INETSERVER *offeredServer()
{
    return static_cast<INETSERVER *>(getapplnprocess()->getmoduleinterface("ORIN", INTERFACE_NETSERVER));
}

TEST(DesignSession, IsTheInstalledHostWhileItLives)
{
    {
        DesignSession session;
        ASSERT_NE(getapplnprocess(), nullptr);
        EXPECT_NE(getcdb(), nullptr);
        EXPECT_EQ(getapplnprocess()->currentdocument(DOCUMENT_KIND_DESIGN, nullptr), nullptr);
        session.open(designOf({"R1"}));
        APPLNPROCESS &process = *getapplnprocess();
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, nullptr), &session.document());
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, "/d/amp.kicad_sch"), &session.document());
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN, "/d/other"), nullptr);
        EXPECT_EQ(process.currentdocument(DOCUMENT_KIND_DESIGN + 1, nullptr), nullptr);
        EXPECT_EQ(process.getmoduleinterface("ORIN", INTERFACE_NETSERVER), &session.netlist());
        EXPECT_EQ(process.getmoduleinterface("ORIN", 8), nullptr);
        EXPECT_EQ(process.getmoduleinterface("OTHER", INTERFACE_NETSERVER), nullptr);
        EXPECT_TRUE(QFileInfo(process.getdatapath("BOM")).isAbsolute());
    }
    EXPECT_EQ(getapplnprocess(), nullptr);
    EXPECT_EQ(getcdb(), nullptr);
}

TEST(DesignSession, KeepsTheOpenDesignWhenAnotherCannotBeRead)
{
    DesignSession session;
    session.open(designOf({"R1"}));
    EXPECT_FALSE(session.open(QStringLiteral("/nonexistent/x.kicad_sch")));
    EXPECT_TRUE(session.error().startsWith(QStringLiteral("/nonexistent/x.kicad_sch")))
        << qPrintable(session.error());
    EXPECT_EQ(session.design()->components().size(), 1U);
}

TEST(Netlist, SendsOneRecordForEachComponentInOrder)
{
    DesignSession session;
    auto design = designOf({"R2", "R1"});
    design->add("R1", "47k", {{"MPN", "x"}});
    session.open(std::move(design));
    NETCACHE cache;
    cache.setsource(offeredServer());
    EXPECT_FALSE(cache.isValid());
    cache.validate(1);
    EXPECT_TRUE(cache.isValid());
    ASSERT_EQ(cache.components.size(), 3U);
    EXPECT_EQ(cache.components[0]->reference, QByteArrayView("R2"));
    EXPECT_EQ(cache.components[2]->reference, QByteArrayView("R1"));
    EXPECT_EQ(cache.components[2]->value, QByteArrayView("47k"));
    EXPECT_EQ((*cache.components[2]->properties)["MPN"], QByteArrayView("x"));
    EXPECT_EQ(cache.propertyNames, (QByteArrayList{"Footprint", "MPN"}));
}

TEST(Netlist, OfNoDesignLeavesTheCacheStale)
{
    DesignSession session;
    NETCACHE cache;
    Client client;
    cache.attach(&client);
    cache.setsource(offeredServer());
    cache.validate(1);
    EXPECT_TRUE(cache.isstale());
    EXPECT_FALSE(cache.isValid());
    EXPECT_EQ(client.calls, std::vector<bool>{false});
}

TEST(Netlist, KeepsWhatACacheHoldsUntilItIsReadAgain)
{
    DesignSession session;
    session.open(designOf({"R1"}));
    NETCACHE cache;
    cache.setsource(offeredServer());
    cache.validate(1);
    const quint64 oldIdentifier = cache.components[0]->identifier;

    session.open(designOf({"C1", "C2"}));
    EXPECT_TRUE(cache.isstale());
    EXPECT_EQ(cache.components[0]->reference, QByteArrayView("R1"));
    EXPECT_EQ(cache.components[0]->properties->test("VALUE"), 1);
    EXPECT_EQ(getcdb()->getpart(oldIdentifier), nullptr)
        << "a record of the old design is none of the new one";

    cache.validate(1);
    ASSERT_EQ(cache.components.size(), 2U);
    EXPECT_EQ(cache.components[0]->reference, QByteArrayView("C1"));
}

TEST(Netlist, ChangingTheNotFittedChoiceMakesCachesStale)
{
    DesignSession session;
    auto design = designOf({"R1"});
    design->add("R2", "1k").notFitted = designs::MarkedBy::Symbol;
    session.open(std::move(design));
    NETCACHE cache;
    cache.setsource(offeredServer());
    cache.validate(1);
    EXPECT_EQ(cache.components[1]->properties->test("BOMSKIP"), 1);
    session.setDnpChoice(DnpChoice::Exclude);
    EXPECT_FALSE(cache.isstale());
    session.setDnpChoice(DnpChoice::Only);
    EXPECT_TRUE(cache.isstale());
    EXPECT_EQ(cache.components[0]->properties->test("BOMSKIP"), 1);
    EXPECT_EQ(cache.components[1]->properties->test("BOMSKIP"), 0);
}

TEST(Netlist, ThatGoesAwayFirstEmptiesItsCaches)
{
    NETCACHE cache;
    {
        DesignSession session;
        session.open(designOf({"R1"}));
        cache.setsource(offeredServer());
        cache.validate(1);
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

    const CDBPART *top = getcdb()->getpart(components[0]->identifier);
    const CDBPART *bottom = getcdb()->getpart(components[1]->identifier);
    const CDBPART *none = getcdb()->getpart(components[2]->identifier);
    ASSERT_TRUE(top && top->layout() && bottom && bottom->layout() && none);
    EXPECT_EQ(top->layout()->name(), QByteArrayView("Top"));
    EXPECT_EQ(bottom->layout()->name(), QByteArrayView("Bottom"));
    EXPECT_EQ(none->layout(), nullptr);
    EXPECT_EQ(getcdb()->getpart(0), nullptr);
    EXPECT_EQ(getcdb()->getpart(components[2]->identifier + 1), nullptr);
}

TEST(Document, AnswersTheInformationKeys)
{
    DesignSession session;
    auto design = designOf({});
    design->editInfo() = {QStringLiteral("Amp"),
                          QStringLiteral("Ada"),
                          QStringLiteral("D-7"),
                          QStringLiteral("B"),
                          QStringLiteral("2026-01-02"),
                          QStringLiteral("Lite"),
                          QStringLiteral("/d/a.rev2.kicad_sch"),
                          {}};
    session.open(std::move(design));
    const std::pair<const char *, const char *> expected[] = {
        {"TITLE", "Amp"},
        {"AUTHOR", "Ada"},
        {"DOCNO", "D-7"},
        {"REV", "B"},
        {"WL_CDATE", "2026-01-02"},
        {"WL_MDATE", ""},
        {"FILENAME", "/d/a.rev2.kicad_sch"},
        {"title", ""},
        {"VARIANT", ""},
    };
    for (const auto &[key, value] : expected) {
        EXPECT_EQ(session.document().getinfo(key).toStdString(), value) << key;
    }
    EXPECT_EQ(session.document().getproperty("VARIANT"), "Lite");
    EXPECT_EQ(session.document().getproperty("TITLE"), "");
    EXPECT_EQ(session.document().kindcode(), 's');
    EXPECT_TRUE(session.document().isdoctype("DSN"));
    EXPECT_FALSE(session.document().isdoctype("LYT"));
    EXPECT_EQ(session.document().notesFile(), QStringLiteral("/d/a.rev2.bomnotes.txt"));
}

TEST(Document, ModificationIsAtMostTheReproducibleClockAndInUtc)
{
    const QDateTime modified(QDate(2026, 3, 4), QTime(5, 6, 59), Qt::OffsetFromUTC, 3600);
    const std::pair<const char *, const char *> cases[] = {
        {"1772595959", "2026-03-04 03:45"}, // earlier than the modification
        {"1900000000", "2026-03-04 04:06"}, // later
    };
    for (const auto &[epoch, expected] : cases) {
        const Environment environment("SOURCE_DATE_EPOCH", epoch);
        DesignSession session;
        auto design = designOf({});
        design->editInfo().modified = modified;
        session.open(std::move(design));
        EXPECT_EQ(session.document().getinfo("WL_MDATE").toStdString(), expected);
    }
}

TEST(Document, AClockThatIsNoNumberIsIgnored)
{
    for (const char *text : {"", "now", "-5", "12x"}) {
        const Environment environment("SOURCE_DATE_EPOCH", text);
        EXPECT_FALSE(sourceDateEpoch()) << text;
    }
}

class Notes : public testing::Test
{
protected:
    void write(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("amp.bomnotes.txt")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytes() const
    {
        QFile file(m_folder.filePath(QStringLiteral("amp.bomnotes.txt")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void openDesign()
    {
        auto design = std::make_unique<TableDesign>();
        design->editInfo().file = m_folder.filePath(QStringLiteral("amp.kicad_sch"));
        m_session.open(std::move(design));
    }
    QString notes() { return m_session.document().readattachment("BOMNOTES.TXT"); }

    QTemporaryDir m_folder;
    DesignSession m_session;
};

TEST_F(Notes, AreReadBesideTheDesign)
{
    openDesign();
    EXPECT_EQ(notes(), QString());
    EXPECT_EQ(m_session.document().notesProblem(), QString());
    write("\xEF\xBB\xBF"
          "Größe\r\ntwo\n");
    EXPECT_EQ(notes(), QStringLiteral("Größe\ntwo\n"));
    EXPECT_EQ(m_session.document().readattachment("OTHER.TXT"), QString());
}

TEST_F(Notes, ThatAreNoTextAreNamed)
{
    openDesign();
    write("\xff\xfe\x00");
    EXPECT_EQ(notes(), QString());
    EXPECT_TRUE(
        m_session.document().notesProblem().endsWith(QStringLiteral("amp.bomnotes.txt: is no UTF-8 text")));
}

TEST_F(Notes, ThatAreAFolderAreNamed)
{
    openDesign();
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("amp.bomnotes.txt")));
    EXPECT_EQ(notes(), QString());
    EXPECT_TRUE(m_session.document().notesProblem().endsWith(QStringLiteral("is no file")));
}

TEST_F(Notes, AreWrittenAsTheFileWas)
{
    openDesign();
    auto &document = m_session.document();
    EXPECT_TRUE(document.writeattachment("BOMNOTES.TXT", QStringLiteral("eins\nzwölf\r\n")));
    EXPECT_EQ(bytes(), "eins\nzw\xc3\xb6lf\n");
    EXPECT_EQ(notes(), QStringLiteral("eins\nzwölf\n"));
    write("\xEF\xBB\xBF"
          "one\r\ntwo");
    EXPECT_TRUE(document.writeattachment("BOMNOTES.TXT", QStringLiteral("one\ntwo\n")));
    EXPECT_EQ(bytes(), "\xEF\xBB\xBF"
                       "one\r\ntwo\r\n");
    EXPECT_TRUE(document.writeattachment("BOMNOTES.TXT", QString()));
    EXPECT_FALSE(QFile::exists(document.notesFile()));
    EXPECT_TRUE(document.writeattachment("BOMNOTES.TXT", QString()));
    EXPECT_FALSE(document.writeattachment("OTHER.TXT", QStringLiteral("x")));
    EXPECT_FALSE(document.attachmenterror().isEmpty());
}

TEST_F(Notes, ThatCannotBeWrittenLeaveTheOldFile)
{
    openDesign();
    auto &document = m_session.document();
    write("\xff\xfe");
    EXPECT_FALSE(document.writeattachment("BOMNOTES.TXT", QStringLiteral("new")));
    EXPECT_TRUE(document.attachmenterror().endsWith(QStringLiteral("amp.bomnotes.txt: is no UTF-8 text")));
    EXPECT_EQ(bytes(), "\xff\xfe");
    write("old");
    EXPECT_FALSE(document.writeattachment("BOMNOTES.TXT", QString(17 * 1024 * 1024, u'x')));
    EXPECT_TRUE(document.attachmenterror().startsWith(document.notesFile()));
    EXPECT_EQ(bytes(), "old");
    EXPECT_TRUE(document.writeattachment("BOMNOTES.TXT", QStringLiteral("new")));
    EXPECT_EQ(document.attachmenterror(), QString());
}

} // namespace
