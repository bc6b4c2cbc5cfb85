// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/advancedsettings.h"

#include "core/bompartsdatabase.h"
#include "support/fakenetlist.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

class Advanced : public testing::Test
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
        odd.fieldName = QStringLiteral("A&B <b>");
        odd.propertyName = QStringLiteral("ODD");
        fields.set(odd);
        settings.setFields(fields);
        database.setCurrentTemplate(settings);
        database.load();
        dialog = std::make_unique<AdvancedSettings>(&database, false);
        dialog->open();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    template<class Widget>
    Widget *child(const char *name)
    {
        return dialog->findChild<Widget *>(QLatin1String(name));
    }
    QSpinBox *spin(const char *layout, int row)
    {
        return qobject_cast<QSpinBox *>(
            child<QFormLayout>(layout)->itemAt(row, QFormLayout::FieldRole)->widget());
    }
    QList<int> prettyWidths()
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
    static void enter(QSpinBox *spin, const QString &text)
    {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, text);
        QTest::keyClick(spin, Qt::Key_Tab);
    }
    void tab(int index)
    {
        QTabBar *bar = child<QTabWidget>("tabWidget")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
    void toggle(const char *name)
    {
        auto *box = child<QCheckBox>(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    void click(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(child<QDialogButtonBox>("buttonBox")->button(button), Qt::LeftButton);
    }

    FakeNetlist netlist;
    BOMPartsDatabase database;
    std::unique_ptr<AdvancedSettings> dialog;
};

TEST_F(Advanced, HasARowPerColumn)
{
    EXPECT_EQ(prettyWidths(), QList<int>({7, 15, 12, 12, 12, 12}));
    EXPECT_EQ(spin("prettyLayout", 0)->minimum(), 2);
    EXPECT_EQ(spin("prettyLayout", 0)->maximum(), 90);
    EXPECT_EQ(spin("prettyLayout", 0)->text(), QStringLiteral("7%"));
    QStringList titles;
    for (int row = 0; row < 6; ++row) {
        auto *form = child<QFormLayout>("asciiLayout");
        auto *label = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::LabelRole)->widget());
        EXPECT_EQ(label->buddy(), spin("asciiLayout", row));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        titles.append(label->text());
    }
    EXPECT_EQ(titles.join(u'|'), QStringLiteral("Quantity|References|Value|Stock Code|Unit Cost|A&&B <b>"));
}

TEST_F(Advanced, WidthsFollowAndAreStoredAtOnce)
{
    QSignalSpy report(dialog.get(), &AdvancedSettings::reportFormatChanged);
    QSignalSpy data(dialog.get(), &AdvancedSettings::dataChanged);
    QSignalSpy modified(&database, &BOMPartsDatabase::currentTemplateModified);
    QSignalSpy regrouped(&database, &BOMPartsDatabase::dataChanged);
    enter(spin("prettyLayout", 0), QStringLiteral("40"));
    EXPECT_EQ(prettyWidths(), QList<int>({40, 15, 12, 12, 12, 9}));
    EXPECT_EQ(storedWidths(), prettyWidths());
    EXPECT_EQ(report.size(), 1) << "one typed number is one change";
    QTest::keyClick(spin("prettyLayout", 5), Qt::Key_Up);
    EXPECT_EQ(prettyWidths(), QList<int>({40, 15, 12, 12, 12, 9}));
    QTest::keyClick(spin("prettyLayout", 0), Qt::Key_Down);
    EXPECT_EQ(prettyWidths(), QList<int>({39, 15, 12, 12, 12, 10}));
    EXPECT_EQ(storedWidths(), prettyWidths());
    EXPECT_EQ(data.size(), 0);
    EXPECT_GE(modified.size(), 2);
    EXPECT_TRUE(modified.last().first().toBool());
    EXPECT_EQ(regrouped.size(), 0);
}

TEST_F(Advanced, DataOutputsAreStoredAtOnce)
{
    QSignalSpy report(dialog.get(), &AdvancedSettings::reportFormatChanged);
    QSignalSpy data(dialog.get(), &AdvancedSettings::dataChanged);
    tab(1);
    enter(spin("asciiLayout", 1), QStringLiteral("33"));
    enter(spin("asciiLayout", 3), QStringLiteral("1001"));
    EXPECT_EQ(database.currentTemplate().asciiRefWidth(), 33);
    EXPECT_LE(database.currentTemplate().fields().get(QStringLiteral("Stock Code")).asciiWidth, 1000);
    enter(spin("asciiLayout", 3), QStringLiteral("0"));
    EXPECT_EQ(database.currentTemplate().fields().get(QStringLiteral("Stock Code")).asciiWidth, 0)
        << "leaves the column out";
    const int changes = int(data.size());
    tab(2);
    const bool quoted = database.currentTemplate().alwaysQuoteRefs();
    const bool excluded = database.currentTemplate().excludeValueField();
    toggle("alwaysQuoteRefsCheck");
    toggle("excludeValueFieldCheck");
    EXPECT_EQ(database.currentTemplate().alwaysQuoteRefs(), !quoted);
    EXPECT_EQ(database.currentTemplate().excludeValueField(), !excluded);
    EXPECT_EQ(data.size(), changes + 2);
    EXPECT_EQ(report.size(), 0);
}

TEST_F(Advanced, CaseRuleGroupsAnew)
{
    const QString category = database.categoryOf(QStringLiteral("R1"));
    EXPECT_EQ(database.lineCount(category), 1);
    QSignalSpy report(dialog.get(), &AdvancedSettings::reportFormatChanged);
    QSignalSpy regrouped(&database, &BOMPartsDatabase::dataChanged);
    tab(3);
    toggle("partGroupCaseCheckBox");
    EXPECT_EQ(database.lineCount(category), 2);
    EXPECT_EQ(regrouped.size(), 1);
    EXPECT_EQ(report.size(), 1);
    click(QDialogButtonBox::Cancel);
    EXPECT_EQ(database.lineCount(category), 1);
}

TEST_F(Advanced, CancelRestoresWhatItFound)
{
    const QVariantMap before = database.currentTemplate().toVariantMap();
    QSignalSpy modified(&database, &BOMPartsDatabase::currentTemplateModified);
    QSignalSpy report(dialog.get(), &AdvancedSettings::reportFormatChanged);
    enter(spin("prettyLayout", 2), QStringLiteral("30"));
    auto *group = child<QGroupBox>("prettyWidthsGroupBox");
    QTest::mouseClick(group, Qt::LeftButton, {}, QPoint(10, 8));
    EXPECT_FALSE(database.currentTemplate().manualPrettyLayout());
    tab(1);
    enter(spin("asciiLayout", 4), QStringLiteral("77"));
    EXPECT_EQ(dialog->focusWidget(), spin("asciiLayout", 5));
    QTest::keyClicks(dialog->focusWidget(), QStringLiteral("9"));
    EXPECT_NE(database.currentTemplate().toVariantMap(), before);
    const auto notices = report.size();
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(database.currentTemplate().toVariantMap(), before);
    EXPECT_FALSE(modified.last().first().toBool()) << "it was not modified before";
    EXPECT_EQ(report.size(), notices + 1);
}

TEST_F(Advanced, OkTakesTheNumberBeingTyped)
{
    QSpinBox *width = spin("prettyLayout", 1);
    width->setFocus();
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("20"));
    QTest::keyClick(width, Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(database.currentTemplate().prettyRefWidth(), 20);
    EXPECT_EQ(storedWidths(), prettyWidths());
}

} // namespace
