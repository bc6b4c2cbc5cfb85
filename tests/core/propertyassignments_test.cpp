// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "core/reportstream.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/fakeprocess.h"
#include "support/printtext.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Assignments : public testing::Test
{
protected:
    Assignments()
    {
        netlist.add("R1", "10k");
        netlist.add("R2", "10k", {{"CODE", "old"}});
        netlist.add("U1", "reg", {{"BOMPART1", "'2','SCR','M3','LEN=8'"}, {"BOMPART2", "'1','PAD','soft'"}});
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(BOMTemplate());
        database.load();
    }

    /// The scripts that were run, without the brackets of batches.
    [[nodiscard]] QStringList scripts() const
    {
        QStringList all = cdb.calls;
        for (const QString &bracket : {u"begin"_s, u"commit"_s, u"drop"_s}) {
            all.removeAll(bracket);
        }
        return all;
    }

    ScopedDefinitions definitions{"\"FIT\",YESNO\n\"COST\",FLOAT\n\"AMOUNT\",INT\n\"LEVEL\",HIGHLOW\n"
                                  "\"OK\",TRUEFALSE\n\"BOMLINKS\",STRING"};
    ScriptedUi ui;
    FakeProcess process;
    FakeCdb cdb;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
};

TEST_F(Assignments, areWrittenAsOneScriptPerReference)
{
    assignments.assign(u"R2"_s, u"CODE"_s, u"first"_s);
    assignments.assign(u"R2"_s, u"CODE"_s, u"100%1 \"ö\""_s);
    assignments.assign(u"R2"_s, u"ALPHA"_s, u"[REMOVE]"_s);
    assignments.assign(u"R1"_s, u"VALUE"_s, QString());
    assignments.assign(u"X9"_s, u"CODE"_s, u"nobody"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_EQ(cdb.calls,
              (QStringList{u"begin"_s, u"DATA NAME : R1-\n\"VALUE\"   :   \"[REMOVE]\"\nEND\n\n"_s,
                           u"DATA NAME : R2-\n\"ALPHA\"   :   \"[REMOVE]\"\n\"CODE\"   :   \"100%1 \"ö\"\"\n"
                           "END\n\n"_s,
                           u"commit"_s}));
    EXPECT_TRUE(assignments.isEmpty());
    cdb.calls.clear();
    EXPECT_EQ(assignments.apply(), QString());
    EXPECT_TRUE(cdb.calls.isEmpty());
}

TEST_F(Assignments, showTheReportUntilItOnceSaysNoErrors)
{
    const auto resultOf = [this](const QStringList &reports) {
        cdb.reports = reports;
        for (const QString &reference : {u"R1"_s, u"R2"_s, u"U1"_s}) {
            assignments.assign(reference, u"CODE"_s, u"x"_s);
        }
        return assignments.apply();
    };
    EXPECT_EQ(resultOf({u"a"_s, u"b"_s, u"c"_s}), u"aababc"_s);
    EXPECT_EQ(resultOf({u"bad;"_s, u"NO ERRORS"_s, u"worse"_s}), u"bad;"_s);
    EXPECT_EQ(resultOf({u"no errors"_s, u"bad"_s, u"worse"_s}), u"Applied successfully"_s);
    EXPECT_EQ(resultOf({QString(200, u'e')}), QString(80, u'e') + u"..."_s);
    EXPECT_EQ(resultOf({QString(80, u'e')}), QString(80, u'e'));
}

TEST_F(Assignments, ofABatchThatIsRefusedStayPending)
{
    cdb.refusal = {{u"R1"_s, u"CODE"_s, u"a.kicad_sch"_s, 7, u"is locked"_s}};
    assignments.assign(u"R1"_s, u"CODE"_s, u"x"_s);
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    EXPECT_EQ(assignments.apply(), u"a.kicad_sch:7: R1, CODE: is locked"_s);
    EXPECT_EQ(assignments.problems(), cdb.refusal);
    EXPECT_EQ(assignments.pending().size(), 2);
    // Nothing was written, so the part is what the design says.
    EXPECT_EQ(database.property(u"SCR1"_s, u"LEN"_s), u"8"_s);
}

TEST_F(Assignments, thatAScriptCannotCarryAreRefusedBeforeAnyIsRun)
{
    assignments.assign(u"R2"_s, u"CODE"_s, u"fine"_s);
    assignments.assign(u"R1"_s, u"CODE"_s, u"x\"\nEND\n\nDATA NAME : R2-\n\"CODE\"   :   \"stolen"_s);
    assignments.assign(u"R1"_s, u"A\"   :   \"B"_s, u"x"_s);
    assignments.assign(u"R1"_s, u"A\"   :   "_s, u"x"_s);
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"a\rb"_s);
    (void)assignments.apply();
    EXPECT_TRUE(scripts().isEmpty());
    EXPECT_EQ(assignments.problems().size(), 3);
    EXPECT_EQ(assignments.pending().size(), 3);
    assignments.clear();
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"a\rb"_s);
    (void)assignments.apply();
    ASSERT_EQ(assignments.problems().size(), 1);
    EXPECT_EQ(assignments.problems().front().reference, u"SCR1"_s);
    EXPECT_TRUE(scripts().isEmpty());
}

TEST_F(Assignments, ofBomOnlyPartsRewriteTheDefinitionsOfTheirParent)
{
    assignments.assign(u"SCR2"_s, u"len"_s, u"Bob's"_s);
    assignments.assign(u"SCR2"_s, u"VALUE"_s, u"[REMOVE]"_s);
    assignments.assign(u"R1"_s, u"CODE"_s, u"x"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    const QStringList run = scripts();
    ASSERT_EQ(run.size(), 4);
    EXPECT_EQ(run[0], u"DATA NAME : U1-\n\"BOMPART2\"   :   \"[REMOVE]\"\nEND\n\n"_s);
    EXPECT_EQ(run[1], u"DATA NAME : U1-\n\"BOMPART1\"   :   \"[REMOVE]\"\nEND\n\n"_s);
    EXPECT_TRUE(run[2].startsWith(u"DATA NAME : R1-\n"_s));
    EXPECT_TRUE(run[3].contains(u"\"BOMPART0\"   :   \""_s)) << run[3].toStdString();
    EXPECT_TRUE(run[3].contains(u"'LEN=Bob\\'s'"_s)) << run[3].toStdString();
    EXPECT_EQ(run[3].count(u"BOMPART"_s), 3) << run[3].toStdString();
    EXPECT_EQ(cdb.calls.first(), u"begin"_s);
    EXPECT_EQ(cdb.calls.last(), u"commit"_s);
}

TEST_F(Assignments, neverLetNamesOfTheDesignIntoAScript)
{
    // A name that ends a record, begins another and takes a value of R1 away.
    const QString name = u"BOMPARTX\"   :   \"1\"\nEND\n\nDATA NAME : R1-\n\"CODE"_s;
    netlist.add("U2", "reg", {{name.toUtf8().constData(), "1,'NUT','M3'"}});
    netlist.add("U3", "reg", {{"BOMPART\"   :   \"y", "1,'BLT','M4'"}});
    database.reload();
    for (const QString &reference : {u"NUT1"_s, u"BLT1"_s}) {
        assignments.assign(reference, u"LEN"_s, u"9"_s);
        (void)assignments.apply();
        EXPECT_EQ(assignments.problems().size(), 1) << reference.toStdString();
        EXPECT_EQ(assignments.pending().size(), 1) << reference.toStdString();
        assignments.clear();
    }
    assignments.assignNow(u"U2"_s, name, u"x"_s);
    EXPECT_TRUE(assignments.result().contains(u"A line break cannot be written"_s));
    EXPECT_TRUE(scripts().isEmpty()) << scripts().join(u'|').toStdString();
    EXPECT_EQ(cdb.calls, (QStringList{u"begin"_s, u"drop"_s}));
}

TEST_F(Assignments, ofBomOnlyPartsAndTheirDefinitionExcludeEachOther)
{
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    assignments.assign(u"U1"_s, u"bompart0"_s, u"1,'SCR','M4'"_s);
    (void)assignments.apply();
    ASSERT_EQ(assignments.problems().size(), 1);
    EXPECT_EQ(assignments.problems().front().property, u"bompart0"_s);
    EXPECT_TRUE(scripts().isEmpty());
}

TEST_F(Assignments, ofBomOnlyPartsAreToldOnceAndADryRunKeepsThem)
{
    int notices = 0;
    QObject::connect(&database, &BOMPartsDatabase::dataChanged, [&notices] { ++notices; });
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    assignments.assign(u"SCR2"_s, u"LEN"_s, u"9"_s);
    assignments.assign(u"SCR2"_s, u"VALUE"_s, u"M4"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_EQ(notices, 1);
    database.reload();
    assignments.setDryRun(true);
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"10"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_EQ(database.property(u"SCR1"_s, u"LEN"_s), u"8"_s);
}

TEST_F(Assignments, areStoredByTheTypeOfTheirProperty)
{
    ui.numberFormat = QLocale(QLocale::German);
    const auto stored = [this](const char *property, const QString &text) {
        return assignments.storedValue(QString::fromLatin1(property), text);
    };
    EXPECT_EQ(stored("fit", u"Yes"_s), u"1"_s);
    EXPECT_EQ(stored("FIT", u"1"_s), u"1"_s);
    EXPECT_EQ(stored("FIT", u"No"_s), u"0"_s);
    EXPECT_EQ(stored("FIT", QString()), QString());
    EXPECT_EQ(stored("FIT", u"[REMOVE]"_s), u"[REMOVE]"_s);
    EXPECT_EQ(stored("LEVEL", u"High"_s) + stored("LEVEL", u"Low"_s), u"10"_s);
    EXPECT_EQ(stored("OK", u"True"_s) + stored("OK", u"false"_s), u"10"_s);
    EXPECT_EQ(stored("AMOUNT", u"1 234.567,8"_s), u"12345678"_s);
    EXPECT_EQ(stored("COST", u"4,7"_s), u"4.7"_s);
    EXPECT_EQ(stored("NAME", u"4,7"_s), u"4,7"_s);
    ui.numberFormat = QLocale(QLocale::Swedish);
    EXPECT_EQ(stored("COST", u"−4,7"_s) + stored("AMOUNT", u"−5"_s), u"-4.7-5"_s);
    EXPECT_EQ(stored("NAME", u"−5"_s), u"−5"_s);
    ui.numberFormat = QLocale(QLocale::German);
    for (const char *refused : {"maybe", "2", "Hig h"}) {
        EXPECT_FALSE(assignments.accepts(u"FIT"_s, QString::fromLatin1(refused))) << refused;
    }
    EXPECT_TRUE(assignments.accepts(u"FIT"_s, u"yes"_s));
    EXPECT_TRUE(assignments.accepts(u"COST"_s, u"-4,7"_s));
    EXPECT_FALSE(assignments.accepts(u"COST"_s, u"1.234,5"_s));
    EXPECT_FALSE(assignments.accepts(u"COST"_s, u"nan"_s));
    EXPECT_FALSE(assignments.accepts(u"AMOUNT"_s, u"many"_s));
    EXPECT_TRUE(assignments.accepts(u"AMOUNT"_s, QString()));
}

TEST(AssignmentsAndDefinitions, defineTheLinksOnce)
{
    const ScopedDefinitions definitions("\"COST\",FLOAT");
    ScriptedUi ui;
    FakeCdb cdb;
    BOMPartsDatabase database;
    PropertyAssignments assignments(&database);
    const auto apply = [&assignments] {
        assignments.assign(u"R1"_s, u"CODE"_s, u"x"_s);
        (void)assignments.apply();
    };
    const auto defined = [] {
        DIDX index;
        EXPECT_TRUE(load_defaultdefs(&index, nullptr));
        return index;
    };
    assignments.setDryRun(true);
    apply();
    EXPECT_FALSE(defined().find(u"BOMLINKS"_s));
    assignments.setDryRun(false);
    apply();
    apply();
    ASSERT_TRUE(defined().find(u"BOMLINKS"_s));
    EXPECT_EQ(*defined().find(u"BOMLINKS"_s),
              (PROPDEF{u"BOMLINKS"_s, PropType::String, u"External links set in the BOM"_s}));
    EXPECT_EQ(defined().definitions().size(), 2);
    EXPECT_TRUE(ui.warnings.isEmpty());
    setpropdefsfile(u"/proc/no/such/PROPDEFS.INI"_s);
    apply();
    EXPECT_EQ(ui.warnings.size(), 1);
    EXPECT_EQ(assignments.result(), u"Applied successfully"_s);
}

TEST(ReportStream, findsTheWordsOverSeveralWrites)
{
    ReportStream report;
    report << "x no Err";
    EXPECT_FALSE(report.saysNoErrors());
    report.clear();
    report << 'O';
    report << "rS" << 7;
    EXPECT_TRUE(report.saysNoErrors());
    EXPECT_EQ(report.text(), u"x no ErrOrS7"_s);
}

class Viewer final : public INETCLIENT
{
public:
    IMODULE *queryinterface(unsigned) override { return this; }
    bool isvisible() override { return false; }
    void designChanged(bool reload) override { calls << reload; }
    QList<bool> calls;
};

TEST(Writing, endsWithOneReloadThroughTheModule)
{
    FakeProcess process;
    BOMPartsDatabase database;
    database.setWriting(true);
    database.setWriting(false);
    Viewer viewer;
    process.viewer = &viewer;
    database.setWriting(false);
    database.setWriting(true);
    database.setWriting(true);
    EXPECT_TRUE(database.isWriting());
    EXPECT_TRUE(viewer.calls.isEmpty());
    database.setWriting(false);
    database.setWriting(false);
    EXPECT_EQ(viewer.calls, QList<bool>{true});
}

} // namespace
