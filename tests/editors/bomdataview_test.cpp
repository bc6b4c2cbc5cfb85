// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomdataview.h"

#include "editors/applytexts.h"
#include "editors/dataviewfixture.h"
#include "editors/propsfindandreplace.h"
#include "host/widgets/blankingdoublespinbox.h"
#include "host/widgets/blankingspinbox.h"
#include "host/widgets/keywordvalueeditor.h"

#include <QLabel>
#include <QSet>

namespace {

using Messages = QList<ScriptedUi::Message>;

TEST_F(DataView, ShowsPartsInReferenceOrderWithAColumnForEachField)
{
    EXPECT_EQ(rows(), "C1 R1 R2 R3 R10 SCR1 U1");
    EXPECT_EQ(table->horizontalHeaderItem(0)->text(), u"References"_s);
    EXPECT_EQ(table->horizontalHeaderItem(1)->text(), u"Category"_s);
    EXPECT_EQ(table->columnCount(), 8);
    EXPECT_EQ(text("R1", "Category"), "Resistors");
    EXPECT_EQ(text("R1", "F FIT"), "Yes");
    EXPECT_EQ(cell("SCR1", "References")->toolTip(), u"BOM Part of: U1"_s);
    EXPECT_EQ(cell("R1", "References")->toolTip(), u"Navigate to: R1"_s);
    EXPECT_TRUE(cell("R1", "References")->font().underline());
    EXPECT_TRUE(cell("SCR1", "F CODE")->font().italic());
    click("showLinksCheckBox");
    EXPECT_EQ(text("R3", "_(Links)"), "2 Links");
    EXPECT_EQ(text("R1", "_(Links)"), "");
    child<QComboBox>("categoriesCombo")->setCurrentText(u"Resistors"_s);
    EXPECT_EQ(rows(), "R1 R2 R3 R10");
    click("groupingCheckbox");
    EXPECT_EQ(rows(), "R1-R2 R3 R10");
}

TEST_F(DataView, HasRoomForLongTextsFarBelow)
{
    const QByteArray code = "200-0102-2250-X7R";
    for (int i = 100; i < 300; ++i) {
        netlist.add("R" + QByteArray::number(i), "1k", {{"CODE", i < 299 ? "x" : code}});
    }
    database.reload();
    EXPECT_GT(table->columnWidth(column("F CODE")),
              table->fontMetrics().horizontalAdvance(QLatin1String(code)));
}

TEST_F(DataView, RecordsWhatIsTypedForEachPartOfTheLine)
{
    QSignalSpy pendingSpy(&view, &BOMDataView::pendingPropertyAssignments);
    EXPECT_FALSE(child<QWidget>("applyPropDefsBtn")->isEnabled());
    type("R3", "F CODE", u"a{b}\"c\\"_s);
    EXPECT_EQ(pending(), "R3 CODE=abc");
    EXPECT_EQ(table->currentRow(), row("R10"));
    EXPECT_TRUE(isBlue(cell("R3", "F CODE")));
    EXPECT_FALSE(isBlue(cell("R10", "F CODE")));
    EXPECT_TRUE(pendingSpy.last().first().toBool());
    EXPECT_TRUE(child<QWidget>("applyPropDefsBtn")->isEnabled());
    click("groupingCheckbox");
    type("R1-R2", "F CODE", u"x"_s);
    EXPECT_EQ(pending(), "R1 CODE=x, R2 CODE=x, R3 CODE=abc");
    type("R1-R2", "F CODE", u"b"_s);
    EXPECT_EQ(pending(), "R3 CODE=abc") << "the design's own text is no edit";
}

TEST_F(DataView, SetsPropertiesUnderTheNamesThatTheTemplateHas)
{
    BOMFields fields;
    for (const QString &name : {u"VALUE"_s, u"mpn"_s, u"Größe"_s}) {
        BOMField field;
        field.fieldName = field.propertyName = name;
        fields.add(field);
    }
    database.updateBOMFields(fields);
    table->item(row("R1"), column("mpn"))->setText(u"x"_s);
    table->item(row("R1"), 4)->setText(u"y"_s);
    EXPECT_EQ(pending(), "R1 Größe=y, R1 mpn=x");
}

TEST_F(DataView, OpensTheEditorThatSuitsTheProperty)
{
    const auto editorOf = [this](const char *heading) {
        table->setFocus();
        table->setCurrentItem(cell("R1", heading));
        QTest::keyClick(table, Qt::Key_Return);
        return QApplication::focusWidget();
    };
    const auto isIn = [](const QWidget *focused, const QMetaObject &type) {
        return type.cast(focused) || type.cast(focused->parentWidget());
    };
    EXPECT_TRUE(isIn(editorOf("F FIT"), KeywordValueEditor::staticMetaObject));
    EXPECT_TRUE(isIn(editorOf("F COST"), BlankingDoubleSpinBox::staticMetaObject));
    EXPECT_TRUE(isIn(editorOf("F AMOUNT"), BlankingSpinBox::staticMetaObject));
    EXPECT_TRUE(isIn(editorOf("F CODE"), QLineEdit::staticMetaObject));
    for (const char *heading : {"References", "Category", "F .Placed"}) {
        EXPECT_EQ(editorOf(heading), table) << heading;
    }
    EXPECT_EQ(pending(), "");
}

TEST_F(DataView, PutsTheOldTextBackWhereOneIsRefused)
{
    QSignalSpy status(&view, &BOMDataView::statusMessage);
    cell("C1", "F COST")->setText(u"cheap"_s);
    cell("R1", "F VALUE")->setText(u" "_s);
    cell("R1", "F VALUE")->setText(u"[REMOVE]"_s);
    EXPECT_EQ(pending(), "");
    EXPECT_EQ(text("C1", "F COST"), "0.5");
    EXPECT_EQ(text("R1", "F VALUE"), "1k");
    ASSERT_EQ(status.size(), 3);
    EXPECT_EQ(status.first().first().toString(),
              u"C1, F COST: the property does not take this text; the text stays as it was."_s);
    table->setCurrentItem(cell("C1", "F COST"));
    table->editItem(table->currentItem());
    QTest::keyClicks(QApplication::focusWidget(), u"cheap"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(status.last(), status.first());
    EXPECT_EQ(status.size(), 4);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    cell("R1", "F FIT")->setText(u"0"_s);
    cell("SCR1", "F VALUE")->setText(QString());
    EXPECT_EQ(pending(), "R1 FIT=No, SCR1 VALUE=");
}

TEST_F(DataView, AsksBeforePendingEditsAreForgotten)
{
    cell("R1", "F CODE")->setText(u"x"_s);
    QSignalSpy pendingSpy(&view, &BOMDataView::pendingPropertyAssignments);
    click("clearPendingChangesBtn");
    EXPECT_EQ(ui.questions, (Messages{{u"Clear Pending Changes"_s,
                                       u"Clear pending property assignments, are you sure?"_s}}));
    EXPECT_EQ(pending(), "R1 CODE=x");
    EXPECT_TRUE(isBlue(cell("R1", "F CODE")));
    EXPECT_TRUE(pendingSpy.isEmpty());
    ui.answer = true;
    click("clearPendingChangesBtn");
    EXPECT_EQ(text("R1", "F CODE"), "b");
    EXPECT_FALSE(isBlue(cell("R1", "F CODE")));
    EXPECT_FALSE(pendingSpy.last().first().toBool());
    EXPECT_FALSE(child<QWidget>("clearPendingChangesBtn")->isEnabled());
}

TEST_F(DataView, WritesWhatIsPendingAndNamesWhatStays)
{
    view.applyPropertyValues();
    EXPECT_TRUE(ui.informations.isEmpty());
    cell("R3", "F CODE")->setText(u"mine"_s);
    cell("C1", "F CODE")->setText(u"x"_s);
    r3Code = "theirs";
    reload();
    QTableWidgetItem *conflict = cell("R3", "F CODE");
    EXPECT_EQ(conflict->text(), u"mine"_s);
    EXPECT_FALSE(conflict->data(Qt::DecorationRole).isNull());
    for (const QString &said : {u"Now: theirs"_s, u"Before: (empty)"_s, u"Your edit: mine"_s}) {
        EXPECT_TRUE(conflict->toolTip().contains(said)) << qPrintable(conflict->toolTip());
    }
    QSignalSpy pendingSpy(&view, &BOMDataView::pendingPropertyAssignments);
    QSignalSpy status(&view, &BOMDataView::statusMessage);
    click("applyPropDefsBtn");
    ASSERT_EQ(ui.informations.size(), 1);
    EXPECT_EQ(ui.informations.first().title, u"ADI scripting results"_s);
    EXPECT_TRUE(ui.informations.first().text.endsWith(u": R3 CODE"_s));
    EXPECT_EQ(pending(), "R3 CODE=mine");
    EXPECT_TRUE(status.first().first().toString().endsWith(u": R3 CODE"_s));
    EXPECT_TRUE(pendingSpy.last().first().toBool()) << "something is";
}

TEST_F(DataView, SaysOnceWhyNothingWasWritten)
{
    const QString reason =
        u"the file may not be written, as the folder in which it lies is a read-only one"_s;
    const CDBPROBLEM problem{{}, {}, u"/d/a.kicad_sch"_s, 0, reason};
    tellApplied(nullptr, {problem.message().left(80) + u"..."_s, {problem}});
    tellApplied(nullptr, {u"Host: refused"_s, {problem}});
    ASSERT_EQ(ui.warnings.size(), 2);
    EXPECT_EQ(ui.warnings[0].text.count(problem.message().left(80)), 1);
    EXPECT_TRUE(ui.warnings[0].text.endsWith(reason));
    EXPECT_EQ(ui.warnings[1].text, u"Host: refused\n\n"_s + ui.warnings[0].text);
}

TEST_F(DataView, WaitsWithAReloadUntilTheEditorIsClosed)
{
    table->setCurrentItem(cell("R3", "F CODE"));
    table->setFocus();
    QTest::keyClick(table, 't');
    EXPECT_TRUE(view.isBusy());
    r3Code = "theirs";
    reload();
    QWidget *editor = QApplication::focusWidget();
    ASSERT_NE(editor, table);
    QTest::keyClicks(editor, u"yped on"_s);
    EXPECT_EQ(row("SCR1"), 5) << "not filled yet";
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!view.isBusy());
    QTRY_COMPARE(table->currentItem(), cell("R10", "F CODE"));
    EXPECT_EQ(pending(), "R3 CODE=typed on");
}

TEST_F(DataView, StaysWhereTheUserIsWhenTheDesignIsReadAgain)
{
    table->sortByColumn(column("F VALUE"), Qt::DescendingOrder);
    child<QLineEdit>("filterEdit")->setText(u"resist"_s);
    table->setCurrentItem(cell("R3", "F CODE"));
    const std::string before = rows();
    EXPECT_EQ(before, "R10 R3 R2 R1");
    hasMore = true;
    reload();
    EXPECT_EQ(rows(), "R10 R4 R3 R2 R1");
    EXPECT_EQ(table->currentItem(), cell("R3", "F CODE"));
    EXPECT_EQ(table->selectedItems(), QList{cell("R3", "F CODE")});
    // Rows stay where they are while a search is open, new ones come where they belong.
    view.showFindDialogue();
    hasMore = false;
    reload();
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(table->selectedItems(), QList{cell("R3", "F CODE")});
}

TEST_F(DataView, SaysHowManyValuesWereReplaced)
{
    click("groupingCheckbox");
    table->setCurrentItem(cell("R1-R2", "F CODE"));
    view.showReplaceDialogue();
    auto *dialog = view.findChild<PropsFindAndReplace *>();
    dialog->findChild<QLineEdit *>(u"replaceEdit"_s)->setText(u"z"_s);
    QSignalSpy messages(&view, &BOMDataView::statusMessage);
    dialog->findChild<QAbstractButton *>(u"replaceAllBtn"_s)->click();
    EXPECT_EQ(pending(), "R1 CODE=z, R2 CODE=z");
    ASSERT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.constLast().constFirst().toString(), u"2 values were replaced, in 2 parts."_s);
}

TEST_F(DataView, RowsStayWhileTheyAreEditedUntilTheyAreSortedAgain)
{
    table->sortByColumn(column("F CODE"), Qt::AscendingOrder);
    const std::string before = rows();
    EXPECT_EQ(before, "C1 R3 SCR1 U1 R10 R1 R2");
    cell("C1", "F CODE")->setText(u"z"_s);
    EXPECT_EQ(rows(), before);
    table->sortByColumn(column("F CODE"), Qt::DescendingOrder);
    EXPECT_EQ(rows(), "C1 R2 R1 R10 U1 SCR1 R3");
}

TEST_F(DataView, ShowsOnlyTheRowsThatTheFilterWants)
{
    auto *filter = child<QLineEdit>("filterEdit");
    auto *kind = child<QComboBox>("rowsCombo");
    filter->setFocus();
    QTest::keyClicks(filter, u"resist 1K"_s);
    EXPECT_EQ(rows(), "R1 R2");
    EXPECT_EQ(child<QLabel>("countLabel")->text(), u"2 of 7"_s);
    filter->setText(u"fcode:b"_s);
    EXPECT_EQ(rows(), "R1 R2");
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_EQ(rows(), "C1 R1 R2 R3 R10 SCR1 U1");
    cell("R2", "F CODE")->setText(u"x"_s);
    kind->setCurrentIndex(1);
    EXPECT_EQ(rows(), "R2");
    child<BOMTableWidget>("partsView")->sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(rows(), "R2");
    kind->setCurrentIndex(2);
    EXPECT_EQ(rows(), "");
}

TEST_F(DataView, PutsItsGroupsIntoTwoRowsWhereItIsNarrow)
{
    const QWidget *groups = child<QWidget>("groups");
    const auto rowTops = [this, groups] {
        QApplication::processEvents();
        QSet<int> tops;
        for (const QWidget *group : groups->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            tops.insert(group->y());
            EXPECT_TRUE(groups->rect().contains(group->geometry())) << qPrintable(group->objectName());
        }
        EXPECT_GT(table->y(), groups->geometry().bottom());
        return tops.size();
    };
    EXPECT_EQ(rowTops(), 1);
    view.resize(view.minimumSizeHint().width(), 400);
    EXPECT_EQ(rowTops(), 2);
    EXPECT_LT(view.width(), groups->sizeHint().width());
    view.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(rowTops(), 2);
    EXPECT_GT(child<QWidget>("categoriesGroupBox")->x(), child<QWidget>("DisplayGroupBox")->x());
}

TEST_F(DataView, SaysWhereThePartsOfALineDiffer)
{
    cell("R1", "F CODE")->setText(u"x"_s);
    click("groupingCheckbox");
    const char *line = "R1-R2";
    QTableWidgetItem *item = cell(line, "F CODE");
    EXPECT_EQ(item->text(), u"(different)"_s);
    EXPECT_TRUE(item->toolTip().contains(u"b: R2\nx: R1"_s)) << qPrintable(item->toolTip());
    table->setCurrentItem(item);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_F2);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    ASSERT_TRUE(editor);
    EXPECT_EQ(editor->text(), QString());
    EXPECT_EQ(editor->placeholderText(), u"(different)"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    table->setRangeSelected({row(line), 2, row(line), 3}, true);
    EXPECT_EQ(pending(), "R1 CODE=x") << "left as it was";
    type(line, "F CODE", u"both"_s);
    EXPECT_EQ(pending(), "R1 CODE=both, R2 CODE=both");
}

TEST_F(DataView, RecordsNothingWithoutADatabase)
{
    view.setPartsDatabase(nullptr);
    cell("R1", "F CODE")->setText(u"x"_s);
    EXPECT_EQ(pending(), "");
    EXPECT_EQ(text("R1", "F CODE"), "b");
    view.handleBOMDataUpdate();
    EXPECT_EQ(table->rowCount(), 0);
    auto other = std::make_unique<BOMPartsDatabase>();
    auto store = std::make_unique<PropertyAssignments>(other.get());
    view.setPartsDatabase(other.get());
    view.setAssignments(store.get());
    store.reset();
    other.reset();
    view.handleBOMDataUpdate();
    view.applyPropertyValues();
    view.clearPendingChanges();
    EXPECT_FALSE(view.hasPendingAssignments());
}

} // namespace
