// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/advancedsettings.h"

#include "core/bompartsdatabase.h"
#include "editors/dialogfixture.h"
#include "support/fakenetlist.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>

namespace {

class Advanced : public DialogFixture
{
protected:
    Advanced()
    {
        netlist.add("R1", "10k");
        netlist.add("R2", "10K");
        database.setNetlist(netlist.cache());
        BOMTemplate settings;
        settings.setManualPrettyLayout(true);
        settings.setCaseSensitiveGrouping(false);
        BOMFields fields = settings.fields();
        BOMField odd;
        odd.fieldName = u"A&B <b>"_s;
        fields.set(odd);
        settings.setFields(fields);
        database.setCurrentTemplate(settings);
        database.load();
        dialog = std::make_unique<AdvancedSettings>(&database, false);
        open(*dialog);
        report = std::make_unique<QSignalSpy>(dialog.get(), &AdvancedSettings::reportFormatChanged);
        data = std::make_unique<QSignalSpy>(dialog.get(), &AdvancedSettings::dataChanged);
    }

    [[nodiscard]] QSpinBox *spin(const char *layout, int row) const
    {
        return qobject_cast<QSpinBox *>(
            child<QFormLayout>(layout)->itemAt(row, QFormLayout::FieldRole)->widget());
    }
    [[nodiscard]] QList<int> prettyWidths() const
    {
        QList<int> widths;
        for (int row = 0; row < child<QFormLayout>("prettyLayout")->rowCount(); ++row) {
            widths.append(spin("prettyLayout", row)->value());
        }
        return widths;
    }
    [[nodiscard]] QList<int> storedWidths() const
    {
        const BOMTemplate &now = database.currentTemplate();
        QList<int> widths{now.prettyQuantityWidth(), now.prettyRefWidth()};
        for (const BOMField &field : database.currentTemplate().fields().fields()) {
            widths.append(field.manualWidth);
        }
        return widths;
    }
    static void enter(QSpinBox *spin, const QString &text, Qt::Key end = Qt::Key_Tab)
    {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, text);
        QTest::keyClick(spin, end);
    }
    void tab(int index) const
    {
        QTabBar *bar = child<QTabWidget>("tabWidget")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
    void toggle(const char *name) const
    {
        auto *box = child<QCheckBox>(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }

    FakeNetlist netlist;
    BOMPartsDatabase database;
    std::unique_ptr<AdvancedSettings> dialog;
    std::unique_ptr<QSignalSpy> report;
    std::unique_ptr<QSignalSpy> data;
    QSignalSpy modified{&database, &BOMPartsDatabase::currentTemplateModified};
    QSignalSpy regrouped{&database, &BOMPartsDatabase::dataChanged};
};

TEST_F(Advanced, HasARowPerColumn)
{
    EXPECT_EQ(prettyWidths(), QList<int>({7, 15, 12, 12, 12, 12}));
    const QSpinBox *first = spin("prettyLayout", 0);
    EXPECT_EQ(std::pair(first->minimum(), first->maximum()), std::pair(2, 90));
    EXPECT_EQ(first->text(), u"7%"_s);
    QStringList titles;
    for (int row = 0; row < 6; ++row) {
        auto *form = child<QFormLayout>("asciiLayout");
        auto *label = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::LabelRole)->widget());
        EXPECT_EQ(label->buddy(), spin("asciiLayout", row));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        titles.append(label->text());
    }
    EXPECT_EQ(titles.join(u'|'), u"Quantity|References|Value|Stock Code|Unit Cost|A&&B <b>"_s);
}

TEST_F(Advanced, WidthsFollowAndAreStoredAtOnce)
{
    regrouped.clear();
    enter(spin("prettyLayout", 0), u"40"_s);
    EXPECT_EQ(prettyWidths(), QList<int>({40, 15, 12, 12, 12, 9}));
    EXPECT_EQ(storedWidths(), prettyWidths());
    EXPECT_EQ(report->size(), 1) << "one typed number is one change";
    QTest::keyClick(spin("prettyLayout", 5), Qt::Key_Up);
    EXPECT_EQ(prettyWidths(), QList<int>({40, 15, 12, 12, 12, 9}));
    QTest::keyClick(spin("prettyLayout", 0), Qt::Key_Down);
    EXPECT_EQ(prettyWidths(), QList<int>({39, 15, 12, 12, 12, 10}));
    EXPECT_EQ(storedWidths(), prettyWidths());
    EXPECT_EQ(data->size(), 0);
    EXPECT_TRUE(modified.last().first().toBool());
    EXPECT_EQ(regrouped.size(), 0);
}

TEST_F(Advanced, DataOutputsAreStoredAtOnce)
{
    const auto codeWidth = [this] {
        return database.currentTemplate().fields().get(u"Stock Code"_s).asciiWidth;
    };
    tab(1);
    enter(spin("asciiLayout", 1), u"33"_s);
    enter(spin("asciiLayout", 3), u"1001"_s);
    EXPECT_EQ(database.currentTemplate().asciiRefWidth(), 33);
    EXPECT_LE(codeWidth(), 1000);
    enter(spin("asciiLayout", 3), u"0"_s);
    EXPECT_EQ(codeWidth(), 0) << "leaves the column out";
    const auto changes = data->size();
    tab(2);
    toggle("alwaysQuoteRefsCheck");
    EXPECT_TRUE(database.currentTemplate().alwaysQuoteRefs());
    EXPECT_FALSE(database.currentTemplate().excludeValueField());
    toggle("excludeValueFieldCheck");
    EXPECT_TRUE(database.currentTemplate().excludeValueField());
    EXPECT_EQ(data->size(), changes + 2);
    EXPECT_EQ(report->size(), 0);
}

TEST_F(Advanced, CaseRuleGroupsAnew)
{
    const QString category = database.categoryOf(u"R1"_s);
    EXPECT_EQ(database.lineCount(category), 1);
    regrouped.clear();
    tab(3);
    toggle("partGroupCaseCheckBox");
    EXPECT_EQ(database.lineCount(category), 2);
    EXPECT_EQ(regrouped.size(), 1);
    EXPECT_EQ(report->size(), 1);
    toggle("layoutForReadingCheck");
    EXPECT_TRUE(database.currentTemplate().layoutForReading());
    EXPECT_EQ(report->size(), 2);
    click(QDialogButtonBox::Cancel);
    EXPECT_EQ(database.lineCount(category), 1);
    EXPECT_FALSE(database.currentTemplate().layoutForReading());
}

TEST_F(Advanced, CancelRestoresWhatItFound)
{
    const QVariantMap before = database.currentTemplate().toVariantMap();
    enter(spin("prettyLayout", 2), u"30"_s);
    QTest::mouseClick(child<QGroupBox>("prettyWidthsGroupBox"), Qt::LeftButton, {}, QPoint(10, 8));
    EXPECT_FALSE(database.currentTemplate().manualPrettyLayout());
    tab(1);
    enter(spin("asciiLayout", 4), u"77"_s);
    EXPECT_EQ(dialog->focusWidget(), spin("asciiLayout", 5));
    QTest::keyClicks(dialog->focusWidget(), u"9"_s);
    EXPECT_NE(database.currentTemplate().toVariantMap(), before);
    const auto changes = report->size();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(database.currentTemplate().toVariantMap(), before);
    EXPECT_FALSE(modified.last().first().toBool()) << "it was not modified before";
    EXPECT_EQ(report->size(), changes + 1);
}

TEST_F(Advanced, OkTakesTheNumberBeingTyped)
{
    enter(spin("prettyLayout", 1), u"20"_s, Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(database.currentTemplate().prettyRefWidth(), 20);
    EXPECT_EQ(storedWidths(), prettyWidths());
}

TEST_F(Advanced, OkWithNothingTouchedChangesNothing)
{
    BOMTemplate settings = database.currentTemplate();
    settings.setPrettyQuantityWidth(0);
    settings.setAsciiRefWidth(2'000'000);
    BOMFields fields = settings.fields();
    BOMField narrow = fields.get(u"A&B <b>"_s);
    narrow.manualWidth = -3;
    narrow.asciiWidth = -1;
    fields.set(narrow);
    settings.setFields(fields);
    database.setCurrentTemplate(settings);
    AdvancedSettings untouched(&database, false);
    const QSignalSpy modified(&database, &BOMPartsDatabase::currentTemplateModified);
    untouched.accept();
    EXPECT_EQ(database.currentTemplate().toVariantMap(), settings.toVariantMap());
    EXPECT_EQ(modified.size(), 0);
}

} // namespace
