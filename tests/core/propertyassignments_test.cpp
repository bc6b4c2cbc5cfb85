// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"
#include "core/propertyassignments.h"
#include "core/resultstream.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

namespace {

class Assignments : public CoreDesign
{
protected:
    Assignments()
    {
        database.setCurrentTemplate(BOMTemplate());
        load({{"R1", "10k"},
              {"R2", "10k", {{"CODE", "old"}}},
              {"U1", "reg", {{"BOMPART1", "'2','SCR','M3','LEN=8'"}, {"BOMPART2", "'1','PAD','soft'"}}}});
        takeChanges();
    }

    /// The scripts that were run, without the brackets of batches.
    [[nodiscard]] QStringList scripts() const
    {
        QStringList all = cdb.calls;
        all.removeIf([](const QString &call) { return !call.startsWith(u"DATA"_s); });
        return all;
    }
    /// "R1 CODE" of what is refused when one more is assigned; nothing is pending any more then.
    [[nodiscard]] std::string refused(const QString &reference, const QString &property, const QString &value)
    {
        assignments.assign(reference, property, value);
        QStringList all;
        for (const CDBPROBLEM &problem : assignments.apply(ApplyOptions()).problems) {
            all << problem.reference + u' ' + problem.property;
        }
        EXPECT_EQ(assignments.isEmpty(), all.isEmpty());
        assignments.clear();
        return joined(all);
    }

    ScopedDefinitions definitions{"\"FIT\",YESNO\n\"COST\",FLOAT\n\"AMOUNT\",INT\n\"LEVEL\",HIGHLOW\n"
                                  "\"OK\",TRUEFALSE\n\"BOMLINKS\",STRING"};
    ScriptedUi ui;
    FakeCdb cdb;
    PropertyAssignments assignments{&database};
};

TEST_F(Assignments, AreWrittenAsOneScriptPerReference)
{
    assignments.assign(u"R2"_s, u"CODE"_s, u"first"_s);
    assignments.assign(u"R2"_s, u"CODE"_s, u"100%1 \"ö\""_s);
    assignments.assign(u"R2"_s, u"ALPHA"_s, u"[REMOVE]"_s);
    assignments.assign(u"R1"_s, u"VALUE"_s, QString());
    assignments.assign(u"X9"_s, u"CODE"_s, u"nobody"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_EQ(takeChanges(), 0) << "the host's report of the change gives the notice";
    EXPECT_EQ(cdb.calls,
              (QStringList{u"begin"_s, u"DATA NAME : R1-\n\"VALUE\"   :   \"[REMOVE]\"\nEND\n\n"_s,
                           u"DATA NAME : R2-\n\"ALPHA\"   :   \"[REMOVE]\"\n\"CODE\"   :   \"100%1 \"ö\"\"\n"
                           "END\n\n"_s,
                           u"commit"_s}));
    EXPECT_EQ(assignments.pending(), (QMap<QString, PropertyAssignments::Values>{}));
    ASSERT_EQ(assignments.size(), 1) << "what no part answers for is not dropped";
    cdb.calls.clear();
    const ApplyResult nothing = assignments.apply(ApplyOptions());
    EXPECT_EQ(nothing.text, u"Nothing was applied, see the pending changes"_s);
    EXPECT_EQ(nothing.kept.value(0).reference, u"X9"_s);
    assignments.clear();
    EXPECT_EQ(assignments.apply(), QString());
    EXPECT_TRUE(cdb.calls.isEmpty());
}

TEST_F(Assignments, ShowTheReportUntilItOnceSaysNoErrors)
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

TEST_F(Assignments, OfABatchThatIsRefusedStayPending)
{
    cdb.refusal = {{u"R1"_s, u"CODE"_s, u"a.kicad_sch"_s, 7, u"is locked"_s}};
    assignments.assign(u"R1"_s, u"CODE"_s, u"x"_s);
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    const ApplyResult expected{u"a.kicad_sch:7: R1, CODE: is locked"_s, cdb.refusal};
    EXPECT_EQ(assignments.apply(ApplyOptions()), expected);
    EXPECT_EQ(assignments.pending().size(), 2);
    // Nothing was written, so the part is what the design says.
    EXPECT_EQ(database.property(u"SCR1"_s, u"LEN"_s), u"8"_s);
}

TEST_F(Assignments, ThatCannotBeWrittenAreRefusedBeforeAnyScriptIsRun)
{
    assignments.assign(u"R2"_s, u"CODE"_s, u"fine"_s);
    assignments.assign(u"R1"_s, u"CODE"_s, u"x\"\nEND\n\nDATA NAME : R2-\n\"CODE\"   :   \"stolen"_s);
    assignments.assign(u"R1"_s, u"A\"   :   \"B"_s, u"x"_s);
    EXPECT_EQ(refused(u"R1"_s, u"A\"   :   "_s, u"x"_s), "R1 A\"   :    | R1 A\"   :   \"B | R1 CODE");
    EXPECT_EQ(refused(u"SCR1"_s, u"LEN"_s, u"a\rb"_s), "SCR1 LEN");
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    EXPECT_EQ(refused(u"U1"_s, u"bompart0"_s, u"1,'SCR','M4'"_s), "U1 bompart0") << "it would be lost";
    EXPECT_TRUE(scripts().isEmpty());
}

TEST_F(Assignments, OfBomOnlyPartsRewriteTheDefinitionsOfTheirParent)
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

TEST_F(Assignments, NeverLetNamesOfTheDesignIntoAScript)
{
    // A name that ends a record, begins another and takes a value of R1 away.
    const QString name = u"BOMPARTX\"   :   \"1\"\nEND\n\nDATA NAME : R1-\n\"CODE"_s;
    netlist.add("U2", "reg", {{name.toUtf8().constData(), "1,'NUT','M3'"}});
    netlist.add("U3", "reg", {{"BOMPART\"   :   \"y", "1,'BLT','M4'"}});
    database.reload();
    for (const QString &reference : {u"NUT1"_s, u"BLT1"_s}) {
        EXPECT_TRUE(refused(reference, u"LEN"_s, u"9"_s).starts_with("U")) << reference.toStdString();
    }
    assignments.assignNow(u"U2"_s, name, u"x"_s);
    EXPECT_TRUE(assignments.result().contains(u"A line break cannot be written"_s));
    EXPECT_TRUE(scripts().isEmpty()) << scripts().join(u'|').toStdString();
    EXPECT_EQ(cdb.calls, (QStringList{u"begin"_s, u"drop"_s}));
}

TEST_F(Assignments, OfBomOnlyPartsAreToldOnceAndADryRunKeepsThem)
{
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"9"_s);
    assignments.assign(u"SCR2"_s, u"LEN"_s, u"9"_s);
    assignments.assign(u"SCR2"_s, u"VALUE"_s, u"M4"_s);
    EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
    EXPECT_EQ(takeChanges(), 1);
    database.reload();
    assignments.assign(u"SCR1"_s, u"LEN"_s, u"10"_s);
    EXPECT_EQ(assignments.apply({true}), (ApplyResult{u"Applied successfully"_s, {}}));
    EXPECT_EQ(database.property(u"SCR1"_s, u"LEN"_s), u"8"_s);
}

TEST_F(Assignments, AreStoredByTheTypeOfTheirProperty)
{
    const auto stored = [this](const QString &property, const QString &text) {
        return assignments.storedValue(property, text).toStdString();
    };
    ui.numberFormat = QLocale(QLocale::German);
    EXPECT_EQ(stored(u"fit"_s, u"Yes"_s) + stored(u"FIT"_s, u"1"_s) + stored(u"FIT"_s, u"No"_s), "110");
    EXPECT_EQ(stored(u"FIT"_s, QString()), "");
    EXPECT_EQ(stored(u"FIT"_s, u"[REMOVE]"_s), "[REMOVE]");
    EXPECT_EQ(stored(u"LEVEL"_s, u"High"_s) + stored(u"LEVEL"_s, u"Low"_s), "10");
    EXPECT_EQ(stored(u"OK"_s, u"True"_s) + stored(u"OK"_s, u"false"_s), "10");
    EXPECT_EQ(stored(u"AMOUNT"_s, u"1 234.567,8"_s), "12345678");
    EXPECT_EQ(stored(u"COST"_s, u"4,7"_s), "4.7");
    EXPECT_EQ(stored(u"NAME"_s, u"4,7"_s), "4,7");
    ui.numberFormat = QLocale(QLocale::Swedish);
    EXPECT_EQ(stored(u"COST"_s, u"−4,7"_s) + stored(u"AMOUNT"_s, u"−5"_s), "-4.7-5");
    EXPECT_EQ(stored(u"NAME"_s, u"−5"_s), "−5");
}

TEST_F(Assignments, AcceptWhatTheTypeOfTheirPropertyHas)
{
    ui.numberFormat = QLocale(QLocale::German);
    EXPECT_TRUE(assignments.accepts(u"FIT"_s, u"yes"_s));
    EXPECT_TRUE(assignments.accepts(u"COST"_s, u"-4,7"_s));
    EXPECT_TRUE(assignments.accepts(u"AMOUNT"_s, QString()));
    for (const QString &text : {u"maybe"_s, u"2"_s, u"Hig h"_s}) {
        EXPECT_FALSE(assignments.accepts(u"FIT"_s, text)) << text.toStdString();
    }
    EXPECT_FALSE(assignments.accepts(u"COST"_s, u"1.234,5"_s));
    EXPECT_FALSE(assignments.accepts(u"COST"_s, u"nan"_s));
    for (const QString &text : {u"1.500"_s, u"-1 500"_s, u"0007"_s}) {
        EXPECT_TRUE(assignments.accepts(u"AMOUNT"_s, text)) << text.toStdString();
    }
    for (const QString &text : {u"many"_s, u"1,5"_s, u"1.5"_s, u"1.500,0"_s}) {
        EXPECT_FALSE(assignments.accepts(u"AMOUNT"_s, text)) << text.toStdString();
    }
}

TEST(AssignmentsAndDefinitions, DefineTheLinksOnce)
{
    FakeNetlist netlist;
    netlist.add("R1", "10k");
    const ScopedDefinitions definitions("\"COST\",FLOAT");
    ScriptedUi ui;
    FakeCdb cdb;
    BOMPartsDatabase database;
    database.setNetlist(netlist.cache());
    database.load();
    PropertyAssignments assignments(&database);
    const auto apply = [&assignments](const ApplyOptions &options) {
        assignments.assign(u"R1"_s, u"CODE"_s, u"x"_s);
        return assignments.apply(options);
    };
    const auto defined = [] {
        DIDX index;
        EXPECT_TRUE(load_defaultdefs(&index, nullptr));
        return index;
    };
    apply({true});
    EXPECT_FALSE(defined().find(u"BOMLINKS"_s)) << "a dry run";
    cdb.refusal = {{{}, {}, {}, 0, u"is locked"_s}};
    apply({});
    EXPECT_FALSE(defined().find(u"BOMLINKS"_s)) << "nothing was written";
    cdb.refusal.clear();
    apply({});
    apply({});
    ASSERT_TRUE(defined().find(u"BOMLINKS"_s));
    EXPECT_EQ(*defined().find(u"BOMLINKS"_s),
              (PROPDEF{u"BOMLINKS"_s, PropType::String, u"External links set in the BOM"_s}));
    EXPECT_EQ(defined().definitions().size(), 2);
    EXPECT_TRUE(ui.warnings.isEmpty());
    setpropdefsfile(u"/proc/no/such/PROPDEFS.INI"_s);
    EXPECT_EQ(apply({}).text, u"Applied successfully"_s);
    EXPECT_EQ(ui.warnings.size(), 1);
}

TEST(ResultStream, FindsTheWordsOverSeveralWrites)
{
    ResultStream result;
    result << "x no Err";
    EXPECT_FALSE(result.saysNoErrors());
    result.clear();
    result << 'O';
    result << "rS" << 7;
    EXPECT_TRUE(result.saysNoErrors());
    EXPECT_EQ(result.text(), u"x no ErrOrS7"_s);
}

} // namespace
