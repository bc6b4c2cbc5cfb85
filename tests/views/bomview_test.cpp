// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "support/scopeddefinitions.h"
#include "views/bomview.h"
#include "views/viewfixture.h"

using namespace Qt::StringLiterals;

namespace {

class PlainView : public BOMView
{
public:
    void handleBOMDataUpdate() override { ++updates; }
    int updates = 0;
};

class Rows : public ViewFixture
{
protected:
    Rows() { view.setPartsDatabase(&database); }

    [[nodiscard]] QList<QStringList> rows(const QString &category, bool grouped = true)
    {
        view.updateFields();
        return view.categoryRows(category, grouped, BOMView::UnlimitedWidth, 1);
    }
    [[nodiscard]] QString shown(const QString &value, const QString &field)
    {
        view.updateFields();
        return view.formatFieldValue(value, field);
    }

    PlainView view;
    const QString resistors = u"Resistors"_s;
    const QString cost = u"Unit Cost"_s;
};

TEST_F(Rows, groupedRowsAreLines)
{
    netlist.add("R10", "1k");
    netlist.add("R3", "10k", {{"CODE", "4711"}});
    netlist.add("R1", "10k", {{"CODE", "4711"}});
    netlist.add("R2", "10k", {{"CODE", "4711"}});
    netlist.add("R4", "10k", {{"CODE", "4712"}});
    database.load();
    EXPECT_EQ(rows(resistors), (QList<QStringList>{{u"3"_s, u"R1-R3"_s, u"10k"_s, u"4711"_s, QString()},
                                                   {u"1"_s, u"R4"_s, u"10k"_s, u"4712"_s, QString()},
                                                   {u"1"_s, u"R10"_s, u"1k"_s, QString(), QString()}}));
    EXPECT_EQ(rows(u"Diodes"_s), QList<QStringList>());
    EXPECT_EQ(rows(u"unknown"_s), QList<QStringList>());
}

TEST_F(Rows, ungroupedRowsAreParts)
{
    netlist.add("R10", "1k");
    netlist.add("R2", "10k", {{"COST", "0,5"}});
    netlist.add("R1", "10k");
    database.load();
    EXPECT_EQ(rows(resistors, false), (QList<QStringList>{{u"R1"_s, u"10k"_s, QString(), QString()},
                                                          {u"R2"_s, u"10k"_s, QString(), u"0.50"_s},
                                                          {u"R10"_s, u"1k"_s, QString(), QString()}}));
}

TEST_F(Rows, theLastOfRowsWithEqualReferencesStays)
{
    netlist.add("J", "b");
    netlist.add("J0", "a");
    netlist.add("R01", "1k");
    netlist.add("R1", "2k");
    netlist.add("V1", "x");
    netlist.add("U1", "x");
    database.load();
    QStringList references;
    for (const QStringList &row : rows(u"Miscellaneous"_s)) {
        references << row.at(1);
    }
    EXPECT_EQ(references, (QStringList{u"J"_s, u"V1"_s}));
    EXPECT_EQ(rows(resistors), (QList<QStringList>{{u"1"_s, u"R1"_s, u"2k"_s, QString(), QString()}}));
    EXPECT_EQ(rows(resistors, false).size(), 1);
}

TEST_F(Rows, formatsNumbersOfNumericFields)
{
    const ScopedDefinitions definitions("\"COST\",FLOAT\n\"COUNT\",INT");
    database.load();
    const struct
    {
        int precision;
        const char16_t *value, *text;
    } cases[] = {
        {2, u"1.5", u"1.50"},
        {2, u"1,5", u"1,5"},
        {2, u"n/a", u"n/a"},
        {2, u"nan", u"nan"},
        {2, u"inf", u"inf"},
        {2, u"\"0805\"", u"0805"},
        {2, u"\"", u""},
        {2, u"\"x", u"\"x"},
        {2, u"1e3", u"1000.00"},
        {0, u"0.000001234", u"1.234e-06"},
        {0, u"1.50", u"1.5"},
        {-3, u"1234567", u"1.23457e+06"},
        {40, u"0.5", u"0.500000000000000"},
        {2, u"", u""},
    };
    for (const auto &expected : cases) {
        changeField(cost, [&](BOMField &field) { field.precision = expected.precision; });
        EXPECT_EQ(shown(QString::fromUtf16(expected.value), cost), QString::fromUtf16(expected.text));
    }
    EXPECT_EQ(shown(u"007"_s, u"Stock Code"_s), u"007"_s);
    EXPECT_EQ(shown(u"007"_s, u"no such field"_s), u"007"_s);
}

TEST_F(Rows, numbersAreInTheUsersFormat)
{
    ui.numberFormat = QLocale(QLocale::German, QLocale::Germany);
    netlist.add("R1", "1k", {{"COST", "1.25"}});
    netlist.add("R2", "1k", {{"COST", "1.25"}});
    database.load();
    EXPECT_EQ(rows(resistors).first().last(), u"1,25"_s);
    EXPECT_EQ(view.categorySubTotals(resistors).last(), u"2,50"_s);
    EXPECT_EQ(shown(u"0.5"_s, cost), u"0,50"_s) << "what the locale does not read is read as C";
}

TEST_F(Rows, putsPrefixAndSuffixAround)
{
    database.load();
    changeField(cost, [](BOMField &field) {
        field.prefix = u"$"_s;
        field.suffix = u" each%1"_s;
    });
    EXPECT_EQ(shown(u"1.5"_s, cost), u"$1.50 each%1"_s);
    EXPECT_EQ(shown(u"5%1"_s, cost), u"$5%1 each%1"_s);
    EXPECT_EQ(shown(QString(), cost), QString());
    changeField(cost, [](BOMField &field) { field.applyToEmpty = true; });
    EXPECT_EQ(shown(QString(), cost), u"$ each%1"_s);
}

TEST_F(Rows, cellsByNameAreTheCellsOfRows)
{
    netlist.add("R1", "1k", {{"COST", "1.5"}, {"CODE", "A"}});
    database.load();
    const QStringList row = rows(resistors).first();
    const QStringList names = database.currentTemplate().fields().names();
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(view.fieldValue(u"R1"_s, names.at(i), true), row.at(i + 2));
    }
    EXPECT_EQ(view.fieldValue(u"R1"_s, cost, false), u"1.5"_s);
    EXPECT_EQ(view.fieldValue(u"R1"_s, u"no such field"_s, true), QString());
    EXPECT_EQ(view.fieldValue(u"R9"_s, cost, false), QString());
}

TEST_F(Rows, aReportCanHaveOtherCells)
{
    class LinkView final : public PlainView
    {
    protected:
        QString cellText(const Part &part, const ReportColumn &column, bool formatted) const override
        {
            return u"<"_s + part.reference() + u' ' + BOMView::cellText(part, column, formatted) + u'>';
        }
        QString formatCell(const QString &value, const ReportColumn &column) const override
        {
            return BOMView::formatCell(value, column).toHtmlEscaped();
        }
    };
    netlist.add("R1", "a&b");
    database.load();
    LinkView links;
    links.setPartsDatabase(&database);
    links.updateFields();
    EXPECT_EQ(links.categoryRows(resistors, true, 0, 1).first().at(2), u"<R1 a&amp;b>"_s);
    EXPECT_EQ(links.fieldValue(u"R1"_s, u"Value"_s, true), u"<R1 a&amp;b>"_s);
    EXPECT_EQ(links.formatFieldValue(u"a&b"_s, u"Value"_s), u"a&amp;b"_s);
}

TEST_F(Rows, totalsMultiplyByQuantity)
{
    netlist.add("R1", "1k", {{"COST", "0,25"}});
    netlist.add("R2", "1k", {{"COST", "0.25"}});
    netlist.add("R3", "2k", {{"COST", "unknown"}});
    netlist.add("C1", "1u", {{"COST", "1.5"}});
    netlist.add("C2", "1u", {{"COST", "inf"}});
    database.load();
    view.updateFields();
    EXPECT_EQ(view.categorySubTotals(resistors), (QStringList{QString(), QString(), u"0.50"_s}));
    EXPECT_EQ(view.categorySubTotals(u"Diodes"_s), (QStringList{QString(), QString(), u"0.00"_s}));
    EXPECT_EQ(view.grandTotals(), (QStringList{QString(), QString(), u"2.00"_s}));
    changeField(cost, [](BOMField &field) {
        field.precision = 0;
        field.prefix = u"$"_s;
    });
    view.updateFields();
    EXPECT_EQ(view.grandTotals(), (QStringList{QString(), QString(), u"$2"_s}));
}

TEST_F(Rows, leavesOutTheValueFieldWhereTheTemplateSaysSo)
{
    view.updateFields();
    view.removeValueField();
    EXPECT_EQ(view.columnHeadings(false).size(), 5);
    changeTemplate([](BOMTemplate &settings) { settings.setExcludeValueField(true); });
    view.updateFields();
    EXPECT_EQ(view.columnHeadings(true), (QStringList{u"Category"_s, u"Quantity"_s, u"References"_s,
                                                      u"Value"_s, u"Stock Code"_s, u"Unit Cost"_s}));
    view.removeValueField();
    EXPECT_EQ(view.columnHeadings(false),
              (QStringList{u"Category"_s, u"References"_s, u"Stock Code"_s, u"Unit Cost"_s}));
    netlist.add("R1", "1k", {{"CODE", "A"}});
    database.load();
    EXPECT_EQ(view.categoryRows(resistors, true, 0, 1),
              (QList<QStringList>{{u"1"_s, u"R1"_s, u"A"_s, QString()}}));
}

TEST_F(Rows, truncatesToTheFieldWidth)
{
    const struct
    {
        int width;
        const char16_t *text;
    } cases[] = {{0, u"12345678"}, {3, u"12345678"}, {4, u"1..."}, {7, u"1234..."}, {8, u"12345678"}};
    for (const auto &expected : cases) {
        changeField(cost, [&](BOMField &field) { field.fieldWidth = expected.width; });
        view.updateFields();
        EXPECT_EQ(view.truncateToFieldWidth(u"12345678"_s, cost), QString::fromUtf16(expected.text));
    }
    EXPECT_EQ(view.truncateToFieldWidth(u"12345678"_s, u"other"_s), u"12345678"_s);
    changeField(cost, [](BOMField &field) { field.fieldWidth = 5; });
    view.updateFields();
    // A character of two units is not cut in halves.
    EXPECT_EQ(view.truncateToFieldWidth(u"1\U0001f600234567"_s, cost), u"1..."_s);
}

TEST_F(Rows, withoutDatabaseEverythingIsEmpty)
{
    netlist.add("R1", "1k");
    database.load();
    view.updateFields();
    view.setPartsDatabase(nullptr);
    view.updateFields();
    view.removeValueField();
    EXPECT_TRUE(view.categoryRows(resistors, true, 0, 1).isEmpty());
    EXPECT_TRUE(view.columnHeadings(true).isEmpty());
    EXPECT_TRUE(view.categorySubTotals(resistors).isEmpty());
    EXPECT_TRUE(view.grandTotals().isEmpty());
    EXPECT_EQ(view.fieldValue(u"R1"_s, u"Value"_s, true), QString());
    EXPECT_EQ(view.formatFieldValue(u"x"_s, u"Value"_s), QString());
    EXPECT_EQ(view.truncateToFieldWidth(u"x"_s, u"Value"_s), QString());
}

TEST_F(Rows, aViewHearsOfChanges)
{
    QObject::connect(&database, &BOMPartsDatabase::dataChanged, &view, &BOMView::handleBOMDataUpdate);
    database.load();
    EXPECT_EQ(view.updates, 1);
}

} // namespace
