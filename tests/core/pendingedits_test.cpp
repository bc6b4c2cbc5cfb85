// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/coredesign.h"
#include "core/propertyassignments.h"
#include "support/fulldisk.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <memory>

namespace {

struct IdentifiedRow
{
    QByteArray identity;
    Row row;
};

/// "R1 MPN=x" each, with what keeps it from being written.
std::string told(const QList<PendingEdit> &edits)
{
    QStringList all;
    for (const PendingEdit &edit : edits) {
        const char *conflicts[] = {"", " changed", " left out", " gone"};
        all << edit.reference + u' ' + edit.property + u'=' + edit.value +
                   QLatin1String(conflicts[int(edit.conflict)]);
    }
    return joined(all);
}

/// Pending edits of a design whose components have identities, and which a test has read again.
class Pending : public CoreDesign
{
protected:
    Pending()
    {
        database.setCurrentTemplate(BOMTemplate());
        netlist.cache()->identityof = [this](quint64 identifier) {
            return m_identities.value(qsizetype(identifier) - 1);
        };
        process.design.info["FILENAME"] = u"/designs/amp.kicad_sch"_s;
        assignments = std::make_unique<PropertyAssignments>(&database);
    }

    void read(const QList<IdentifiedRow> &rows)
    {
        netlist.clear();
        m_identities.clear();
        for (const IdentifiedRow &row : rows) {
            netlist.add(row.row.reference, row.row.value, row.row.properties);
            m_identities.append(row.identity);
        }
        database.reload();
    }
    [[nodiscard]] std::string pending() const { return told(assignments->edits()); }
    /// As if the program had ended and were started again.
    void restart()
    {
        // First, as what a program holds goes with it.
        assignments.reset();
        assignments = std::make_unique<PropertyAssignments>(&database);
        assignments->setJournalFolder(m_journals.path());
        database.reload();
    }
    [[nodiscard]] QStringList journals() const
    {
        return QDir(m_journals.path()).entryList({u"*.pending"_s}, QDir::Files);
    }
    [[nodiscard]] QString journal() const { return m_journals.filePath(journals().value(0)); }

    FakeProcess process;
    FakeCdb cdb;
    ScriptedUi ui;

private:
    QList<QByteArray> m_identities;
    QTemporaryDir m_journals;

protected:
    std::unique_ptr<PropertyAssignments> assignments;
};

TEST_F(Pending, FollowTheirPartsWhenReferencesChange)
{
    read({{"s1", {"R1", "10k"}}, {"s2", {"R2", "22k"}}, {"s3", {"C1", "1u"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    assignments->assign(u"C1"_s, u"MPN"_s, u"y"_s);
    read({{"s2", {"R1", "22k"}}, {"s3", {"C7", "1u"}}, {"s1", {"R2", "10k"}}});
    EXPECT_EQ(pending(), "C7 MPN=y | R2 MPN=x");
    EXPECT_FALSE(assignments->hasEdits(u"R1"_s));
    ASSERT_TRUE(assignments->edit(u"R2"_s, u"MPN"_s));
    EXPECT_EQ(assignments->apply(), u"Applied successfully"_s);
    EXPECT_TRUE(cdb.calls.contains(u"DATA NAME : R2-\n\"MPN\"   :   \"x\"\nEND\n\n"_s));
    EXPECT_TRUE(assignments->isEmpty());
}

TEST_F(Pending, AreKeptWhereTheTextChangedUntilTheUserConfirms)
{
    read({{"s1", {"R1", "10k", {{"MPN", "old"}}}}, {"s2", {"R2", "1k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"mine"_s);
    assignments->assign(u"R2"_s, u"MPN"_s, u"fits"_s);
    read({{"s1", {"R1", "10k", {{"MPN", "theirs"}}}}, {"s2", {"R2", "1k"}}});
    EXPECT_EQ(pending(), "R1 MPN=mine changed | R2 MPN=fits");
    EXPECT_EQ(told(assignments->apply(ApplyOptions()).kept), "R1 MPN=mine changed");
    ASSERT_EQ(pending(), "R1 MPN=mine changed");
    EXPECT_EQ(assignments->edits()[0].before, u"old"_s);
    EXPECT_EQ(assignments->edits()[0].present, u"theirs"_s);

    assignments->confirm(assignments->edits()[0], true);
    read({{"s1", {"R1", "10k", {{"MPN", "another"}}}}});
    EXPECT_FALSE(assignments->edits()[0].canBeWritten()) << "that is not what was confirmed";
    assignments->confirm(assignments->edits()[0], true);
    EXPECT_EQ(assignments->apply(), u"Applied successfully"_s);
    EXPECT_TRUE(assignments->isEmpty());

    assignments->assign(u"R1"_s, u"MPN"_s, u"mine"_s);
    read({{"s1", {"R1", "10k", {{"MPN", "mine"}}}}});
    EXPECT_EQ(pending(), "R1 MPN=mine") << "done by somebody else is no conflict";
}

TEST_F(Pending, StayWhenTheirPartsCannotBeReached)
{
    read({{"s1", {"R1", "10k"}}, {"s2", {"R2", "1k"}}, {"s3", {"R3", "1k"}}});
    for (const QString &reference : {u"R1"_s, u"R2"_s, u"R3"_s}) {
        assignments->assign(reference, u"MPN"_s, u"x"_s);
    }
    // R1 is gone and another part has its reference now.
    read({{"s9", {"R1", "10k"}}, {"s2", {"R2", "1k", {{"BOMSKIP", ""}}}}, {"s3", {"R3", "1k"}}});
    EXPECT_EQ(pending(), "R1 MPN=x gone | R2 MPN=x left out | R3 MPN=x");
    EXPECT_FALSE(assignments->edit(u"R1"_s, u"MPN"_s)) << "it is not the new R1's";
    assignments->assign(u"R1"_s, u"MPN"_s, u"new"_s);
    EXPECT_EQ(told(assignments->apply(ApplyOptions()).kept), "R1 MPN=x gone | R2 MPN=x left out");
    read({{"s1", {"R8", "10k"}}, {"s2", {"R2", "1k"}}});
    EXPECT_EQ(pending(), "R2 MPN=x | R8 MPN=x");
}

TEST_F(Pending, OfBomOnlyPartsStayWithThemWhenOthersGo)
{
    const FakeProperties screws = {{"BOMPART1", "'3','SCR','M3'"}, {"BOMPART2", "'1','PAD','soft'"}};
    read({{"s1", {"U1", "reg", screws}}});
    assignments->assign(u"SCR1"_s, u"LEN"_s, u"of 1"_s);
    assignments->assign(u"SCR3"_s, u"LEN"_s, u"of 3"_s);
    assignments->assign(u"PAD1"_s, u"LEN"_s, u"of pad"_s);
    EXPECT_EQ(assignments->removeBOMPart(u"U1"_s, u"SCR2"_s), QString());
    read({{"s1", {"U2", "reg", {{"BOMPART0", "'2','SCR','M3'"}, {"BOMPART1", "'1','PAD','soft'"}}}}});
    EXPECT_EQ(pending(), "PAD1 LEN=of pad | SCR1 LEN=of 1 | SCR2 LEN=of 3");

    EXPECT_EQ(assignments->removeBOMPart(u"U2"_s, u"SCR1"_s), QString());
    read({{"s1", {"U2", "reg", {{"BOMPART0", "'1','SCR','M3'"}, {"BOMPART1", "'1','PAD','soft'"}}}}});
    EXPECT_EQ(pending(), "PAD1 LEN=of pad | SCR1 LEN=of 1 gone | SCR1 LEN=of 3");
    read({{"s1", {"U2", "reg", {{"BOMPART0", "'1','SCR','M4'"}, {"BOMPART1", "'1','PAD','soft'"}}}}});
    EXPECT_EQ(pending(), "PAD1 LEN=of pad | SCR1 LEN=of 1 gone | SCR1 LEN=of 3 gone") << "other screws";

    cdb.refusal = {{u"U2"_s, {}, {}, 0, u"is locked"_s}};
    EXPECT_EQ(assignments->removeBOMPart(u"U2"_s, u"PAD1"_s), u"U2: is locked"_s);
    EXPECT_EQ(references(), "U2 | PAD1 | SCR1");
    EXPECT_EQ(assignments->addBOMParts(u"U2"_s, 1, u"SCR"_s, u"M5"_s), u"U2: is locked"_s);
    EXPECT_EQ(references(), "U2 | PAD1 | SCR1");
    EXPECT_EQ(assignments->size(), 3);
}

TEST_F(Pending, OfADesignWaitWhileAnotherOneOrAVariantIsOpen)
{
    read({{"s1", {"R1", "10k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    int ended = 0;
    QObject::connect(assignments.get(), &PropertyAssignments::historyEnded, [&ended] { ++ended; });
    process.design.info["FILENAME"] = u"/designs/other.kicad_sch"_s;
    read({{"s1", {"R1", "10k"}}});
    EXPECT_TRUE(assignments->isEmpty());
    assignments->assign(u"R1"_s, u"MPN"_s, u"of the other"_s);
    process.design.info["FILENAME"] = u"/designs/amp.kicad_sch"_s;
    process.design.properties["VARIANT"] = "lite";
    read({{"s1", {"R1", "10k"}}});
    EXPECT_TRUE(assignments->isEmpty());
    process.design.properties.clear();
    read({{"s1", {"R1", "10k"}}});
    EXPECT_EQ(pending(), "R1 MPN=x");
    EXPECT_EQ(ended, 3);
}

TEST_F(Pending, SurviveTheEndOfTheProgram)
{
    restart();
    read({{"s1", {"R1", "10k"}}, {"s2", {"R2", "1k"}}, {"s3", {"R3", "1k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"\"ä\n\u2028{}"_s);
    assignments->assign(u"R2"_s, u"MPN"_s, u"dropped"_s);
    assignments->assign(u"R3"_s, u"VALUE"_s, u"2k"_s);
    assignments->retract(u"R2"_s, u"MPN"_s);
    ASSERT_EQ(journals().size(), 1);
    // The power fails while a line is written.
    QFile file(journal());
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("{\"set\":{\"compon") > 0);
    file.close();

    restart();
    EXPECT_TRUE(assignments->isEmpty()) << "nothing is taken up without the user";
    EXPECT_EQ(assignments->leftFromEarlier(), 2);
    read({{"s1", {"R5", "10k"}}, {"s3", {"R3", "9k"}}, {"s2", {"R2", "1k"}}});
    EXPECT_EQ(told(assignments->conflictsFromEarlier()), "R3 VALUE=2k changed");
    assignments->assign(u"R2"_s, u"MPN"_s, u"later"_s);
    restart();
    EXPECT_EQ(assignments->leftFromEarlier(), 3) << "what waits and what came later";
    assignments->takeUpFromEarlier();
    EXPECT_EQ(pending(), "R2 MPN=later | R3 VALUE=2k changed | R5 MPN=\"ä\n\u2028{}");
    assignments->clear();
    EXPECT_TRUE(journals().isEmpty());
}

TEST_F(Pending, NumbersAreTakenUpInAnotherLocale)
{
    const ScopedDefinitions definitions("\"COST\",FLOAT");
    restart();
    read({{"s1", {"R1", "10k"}}});
    ui.numberFormat = QLocale(QLocale::German);
    database.reload();
    assignments->assign(u"R1"_s, u"COST"_s, u"1,50"_s);
    ui.numberFormat = QLocale::c();
    restart();
    assignments->takeUpFromEarlier();
    EXPECT_EQ(pending(), "R1 COST=1.50");
}

TEST_F(Pending, ThatCannotBeJournalledAreTold)
{
    process.design.info["FILENAME"] = u"/designs/"_s + QString(300, u'x') + u".kicad_sch"_s;
    restart();
    read({{"s1", {"R1", "10k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    EXPECT_EQ(journals().size(), 1) << "a long name is cut";
    EXPECT_TRUE(ui.warnings.isEmpty());
    {
        const FullDisk full(100);
        for (const QString &value : {u"w"_s, u"v"_s}) {
            assignments->assign(u"R1"_s, u"MPN"_s, value);
            EXPECT_FALSE(assignments->journalError().isEmpty());
        }
    }
    EXPECT_EQ(std::exchange(ui.warnings, {}).size(), 1);
    EXPECT_TRUE(readFile(journal()).contains("\"x\"")) << "what was kept stays";
    assignments = std::make_unique<PropertyAssignments>(&database);
    assignments->setJournalFolder(u"/proc/no/such"_s);
    for (const QString &value : {u"y"_s, u"z"_s}) {
        assignments->assign(u"R1"_s, u"MPN"_s, value);
    }
    EXPECT_EQ(ui.warnings.size(), 1) << "once";
    EXPECT_EQ(assignments->size(), 1);
}

TEST_F(Pending, OfALaterVersionAreLeftAsTheyAre)
{
    restart();
    read({{"s1", {"R1", "10k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"x"_s);
    const QByteArray later = readFile(journal()).replace("\"version\":1", "\"version\":2");
    writeFile(journal(), later);
    const QString path = journal();
    restart();
    EXPECT_TRUE(ui.warnings.isEmpty()) << "not in the middle of a reload";
    int count = 0;
    const QCoreApplication application(count, nullptr);
    QCoreApplication::sendPostedEvents(assignments.get());
    EXPECT_EQ(ui.warnings.size(), 1);
    assignments->assign(u"R1"_s, u"MPN"_s, u"y"_s);
    EXPECT_EQ(journals().size(), 2);
    EXPECT_EQ(readFile(path), later);
}

TEST_F(Pending, OfTwoProgramsHaveJournalsOfTheirOwn)
{
    restart();
    read({{"s1", {"R1", "10k"}}, {"s2", {"R2", "1k"}}});
    assignments->assign(u"R1"_s, u"MPN"_s, u"first"_s);
    {
        PropertyAssignments second(&database);
        second.setJournalFolder(QFileInfo(journal()).path());
        second.assign(u"R2"_s, u"MPN"_s, u"second"_s);
        EXPECT_EQ(second.leftFromEarlier(), 0) << "the first one is at work";
        EXPECT_EQ(journals().size(), 2);
    }
    restart();
    EXPECT_EQ(assignments->leftFromEarlier(), 2);
    assignments->assign(u"R1"_s, u"MPN"_s, u"instead"_s);
    assignments->retract(u"R1"_s, u"MPN"_s);
    restart();
    EXPECT_EQ(assignments->leftFromEarlier(), 2) << "what waits is not taken away by another edit";
    assignments->takeUpFromEarlier();
    EXPECT_EQ(pending(), "R1 MPN=first | R2 MPN=second");
    EXPECT_EQ(journals().size(), 1);
    restart();
    EXPECT_EQ(assignments->leftFromEarlier(), 2);
}

TEST_F(Pending, AreToldOncePerActionAndCanBePutBack)
{
    read({{"s1", {"R1", "10k"}}, {"s2", {"R2", "1k"}}});
    QList<EditChanges> actions;
    QObject::connect(assignments.get(), &PropertyAssignments::edited,
                     [&](const auto &before, const auto &after) {
                         actions.append({before, after});
                     });
    assignments->assign(u"R1"_s, u"MPN"_s, u"one"_s);
    {
        const PropertyAssignments::Action action(assignments.get());
        assignments->assign(u"R1"_s, u"MPN"_s, u"two"_s);
        assignments->assign(u"R2"_s, u"MPN"_s, u"two"_s);
        assignments->assign(u"R2"_s, u"CODE"_s, u"not meant"_s);
        assignments->retract(u"R2"_s, u"CODE"_s);
    }
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(told(actions[1].before), "R1 MPN=one");
    EXPECT_EQ(told(actions[1].after), "R1 MPN=two | R2 MPN=two");
    read({{"s2", {"R1", "1k"}}, {"s1", {"R2", "10k"}}});
    assignments->restore(actions[1].after, actions[1].before);
    EXPECT_EQ(pending(), "R2 MPN=one");
    assignments->restore(actions[1].before, actions[1].after);
    EXPECT_EQ(pending(), "R1 MPN=two | R2 MPN=two");
    EXPECT_EQ(actions.size(), 2) << "putting back is no action of its own";
}

} // namespace
