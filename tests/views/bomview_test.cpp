// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/bomview.h"

#include "report/reportfixture.h"
#include "support/scopeddefinitions.h"

using namespace Qt::StringLiterals;

namespace {

class PlainView : public BOMView
{
public:
    void handleBOMDataUpdate() override {}
};

class View : public ReportFixture
{
protected:
    View()
    {
        netlist.add("R10", "1k");
        netlist.add("R3", "10k", {{"CODE", "4711"}, {"COST", "0.5"}});
        netlist.add("R1", "10k", {{"CODE", "4711"}, {"COST", "0.5"}});
        database.load();
        view.setPartsDatabase(&database);
        view.updateFields();
    }

    PlainView view;
    const QString resistors = u"Resistors"_s;
    const QString cost = u"Unit Cost"_s;
};

TEST_F(View, GivesRowsOfLinesOrParts)
{
    EXPECT_EQ(view.categoryRows(resistors, true, Report::UnlimitedWidth, 1),
              (QList<QStringList>{{u"2"_s, u"R1,R3"_s, u"10k"_s, u"4711"_s, u"0.50"_s},
                                  {u"1"_s, u"R10"_s, u"1k"_s, QString(), QString()}}));
    EXPECT_EQ(view.categoryRows(resistors, false, Report::UnlimitedWidth, 1),
              (QList<QStringList>{{u"R1"_s, u"10k"_s, u"4711"_s, u"0.50"_s},
                                  {u"R3"_s, u"10k"_s, u"4711"_s, u"0.50"_s},
                                  {u"R10"_s, u"1k"_s, QString(), QString()}}));
    EXPECT_EQ(view.categoryRows(resistors, true, 4, 2).first().at(1),
              database.categories().formatReferences({u"R1"_s, u"R3"_s}, 4, 2));
    EXPECT_TRUE(view.categoryRows(u"unknown"_s, true, 0, 1).isEmpty());
    EXPECT_EQ(view.categorySubTotals(resistors), (QStringList{QString(), QString(), u"1.00"_s}));
    EXPECT_EQ(view.grandTotals(), view.categorySubTotals(resistors));
}

TEST_F(View, GivesValuesByName)
{
    EXPECT_EQ(view.fieldValue(u"R1"_s, cost, true), u"0.50"_s);
    EXPECT_EQ(view.fieldValue(u"R1"_s, cost, false), u"0.5"_s);
    EXPECT_EQ(view.fieldValue(u"R1"_s, u"no such field"_s, true), QString());
    EXPECT_EQ(view.fieldValue(u"R9"_s, cost, false), QString());
    changeField(cost, [](BOMField &field) {
        field.prefix = u"$"_s;
        field.applyToEmpty = true;
        field.fieldWidth = 5;
    });
    EXPECT_EQ(view.fieldValue(u"R1"_s, cost, true), u"0.50"_s)
        << "fields are taken over when they are asked for";
    view.updateFields();
    EXPECT_EQ(view.fieldValue(u"R9"_s, cost, true), u"$"_s);
    EXPECT_EQ(view.formatFieldValue(u"1"_s, cost), u"$1.00"_s);
    EXPECT_EQ(view.formatFieldValue(u"1"_s, u"no such field"_s), u"1"_s);
    EXPECT_EQ(view.truncateToFieldWidth(u"123456"_s, cost), u"12..."_s);
    EXPECT_EQ(view.truncateToFieldWidth(u"123456"_s, u"no such field"_s), u"123456"_s);
    const ScopedDefinitions definitions("\"COST\",STRING");
    database.updatePropertyTypes();
    EXPECT_EQ(view.formatFieldValue(u"1"_s, cost), u"$1"_s);
}

TEST_F(View, RowsHoldWhatADerivedViewMakesOfValues)
{
    class LinkView final : public PlainView
    {
    public:
        QString fieldValue(const QString &reference, const QString &field, bool formatted) const override
        {
            return u"<"_s + reference + u' ' + BOMView::fieldValue(reference, field, formatted) + u'>';
        }
        QString formatFieldValue(const QString &value, const QString &field) const override
        {
            return BOMView::formatFieldValue(value, field).toHtmlEscaped();
        }
    };
    netlist.add("C1", "a&b");
    database.reload();
    LinkView links;
    links.setPartsDatabase(&database);
    links.updateFields();
    EXPECT_EQ(links.categoryRows(u"Capacitors"_s, true, 0, 1).first().at(2), u"<C1 a&amp;b>"_s);
}

TEST_F(View, LeavesOutTheValueFieldWhereTheTemplateSaysSo)
{
    view.removeValueField();
    EXPECT_EQ(view.columnHeadings(false).size(), 5);
    changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    EXPECT_EQ(view.columnHeadings(true), (QStringList{u"Category"_s, u"Quantity"_s, u"References"_s,
                                                      u"Value"_s, u"Stock Code"_s, cost}));
    view.removeValueField();
    EXPECT_EQ(view.columnHeadings(false),
              (QStringList{u"Category"_s, u"References"_s, u"Stock Code"_s, cost}));
    EXPECT_EQ(view.categoryRows(resistors, false, 0, 1).last(), (QStringList{u"R10"_s, {}, {}}));
}

TEST_F(View, IsEmptyWithoutDatabase)
{
    view.setPartsDatabase(nullptr);
    view.updateFields();
    view.removeValueField();
    EXPECT_TRUE(view.categoryRows(resistors, true, 0, 1).isEmpty());
    EXPECT_EQ(view.columnHeadings(true) + view.categorySubTotals(resistors) + view.grandTotals(),
              QStringList());
    EXPECT_EQ(view.fieldValue(u"R1"_s, u"Value"_s, true) + view.formatFieldValue(u"x"_s, u"Value"_s) +
                  view.truncateToFieldWidth(u"x"_s, u"Value"_s),
              QString());
}

} // namespace
