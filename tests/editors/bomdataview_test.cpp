// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomdataview.h"

#include "editors/dataviewfixture.h"

namespace {

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

} // namespace
