// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/fieldnames.h"

#include "standalone/fieldtables.h"
#include "standalone/fieldtitles.h"
#include "standalone/loadeddesign.h"
#include "support/testpaths.h"
#include "tests/standalone/tabledesign.h"
#include "tests/support/testfiles.h"

#include <QCoreApplication>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

/// Has a text for everything.
class AnyTranslator final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("translated");
    }
};

QString data(const char *file)
{
    return QString::fromUtf8(
        readFile(QStringLiteral(BOM_SOURCE_DIR "/tests/data/fields/") + QLatin1String(file)));
}

/// The program's table, and one that extends it.
std::shared_ptr<const FieldNames> names(const QByteArray &further = {})
{
    const auto all = std::make_shared<FieldNames>(*loadFieldNames(QStringLiteral("/none/x.csv")).names);
    if (!further.isEmpty()) {
        EXPECT_TRUE(all->add(further, QStringLiteral("t")).isEmpty());
    }
    return all;
}

/// "mpn", "? mpn house-number" or "nothing".
QString sense(const FieldNames &names, const QString &name)
{
    const FieldSense sense = names.senseOf(name);
    if (sense.meaning) {
        return names.meanings()[*sense.meaning].key;
    }
    QString text = sense.proposed.empty() ? QStringLiteral("nothing") : QStringLiteral("?");
    for (const std::size_t meaning : sense.proposed) {
        text += u' ' + names.meanings()[meaning].key;
    }
    return text;
}

TEST(FieldNames, MeanWhatPeopleMeanByThem)
{
    const auto all = names();
    for (const QString &line : data("meanings.txt").split(u'\n')) {
        const qsizetype colon = line.indexOf(QLatin1String(": "));
        for (const QString &name : line.mid(colon + 2).split(QStringLiteral("; "))) {
            if (!line.startsWith(u'#') && colon > 0) {
                EXPECT_EQ(sense(*all, name), line.first(colon)) << name.toStdString();
            }
        }
    }
}

TEST(FieldNames, ShippedTitlesAreShownInTheLanguageOfTheUser)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    AnyTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    const auto all = names("[own] my number\nMine\n");
    for (const FieldMeaning &meaning : all->meanings()) {
        EXPECT_EQ(shownTitle(meaning), meaning.key == u"own" ? u"my number" : u"translated")
            << meaning.title.toStdString();
    }
}

TEST(FieldNames, LaterTablesDecideAnew)
{
    const struct
    {
        const char *table;
        const char *name;
        const char *expected;
    } cases[] = {
        {"[mpn]\nPart Number\n", "PartNo", "mpn"},
        {"[maker]\nVendor\n", "VENDOR", "maker"},
        {"- manf#\n", "manf no", "nothing"},
        {"[shelf] where it lies\r\nRegal\r\n", "regal", "shelf"},
        {"[mpn]\n\"# in all\"\n", "#in-all", "mpn"},
        {"[mpn]\nour*code\n", "Our Special Code", "mpn"},
        {"[house-number]\n? *datasheet*\n", "my datasheet", "? house-number"},
        {"[rs]\n@ Radiospares\n", "Radiospares Order No", "rs"},
        {"[maker]\n@ LCSC\n", "LCSC#", "maker"},
        {"\xEF\xBB\xBF[mpn]\nX1\n[mpn]\nX1\n", "x1", "mpn"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(sense(*names(c.table), QString::fromUtf8(c.name)), QLatin1String(c.expected)) << c.table;
    }
}

TEST(FieldNames, TellWhatIsWrongWithATable)
{
    FieldNames all;
    EXPECT_EQ(all.add(data("broken.txt").toUtf8(), QStringLiteral("t")).join(u'\n') + u'\n',
              data("broken.expected"));
    EXPECT_EQ(sense(all, QStringLiteral("part no")), QStringLiteral("mpn"));
    EXPECT_EQ(all.add("\n# no more\n", QStringLiteral("t")),
              QStringList{u"t: has no names of properties"_qs});
    EXPECT_EQ(all.add("[mpn]\n\xFF\n", QStringLiteral("t")),
              QStringList{u"t: is no UTF-8 text; nothing of it is read"_qs});
    QByteArray many = "[mpn]\n";
    for (int i = 0; i < 10'020; ++i) {
        many += "n" + QByteArray::number(i) + '\n';
    }
    EXPECT_EQ(all.add(many, QStringLiteral("t")).last(), u"t: 10 more lines are passed over"_qs);
}

TEST(FieldNames, AnswerForPartsThatHaveNothingUnderTheNameAskedFor)
{
    const struct
    {
        const char *what;
        TableDesign::Properties stored;
        const char *asked;
        const char *expected;
        const char *written;
    } cases[] = {
        {"another name", {{"manf#", "a"}}, "MPN", "a", "manf#"},
        {"the name itself comes first", {{"manf#", "a"}, {"mpn", "b"}}, "MPN", "b", "MPN"},
        {"blank says nothing", {{"MPN", " "}, {"manf#", "a"}}, "MPN", "a", "manf#"},
        {"nor does KiCad's tilde",
         {{"Datasheet", "~"}, {"Datasheet URL", "u"}},
         "Datasheet",
         "u",
         "Datasheet URL"},
        {"the best of several", {{"MNP", "c"}, {"MFR PN", "b"}, {"manf#", "a"}}, "MPN", "a", "manf#"},
        {"stored empty", {{"manf#", ""}}, "MPN", "", "manf#"},
        {"most parts decide", {}, "MPN", "-", "manf#"},
        {"not the letter case that was typed", {}, "TOLERANCE", "-", "tolerance"},
        {"no part has it", {}, "Supplier", "-", "Supplier"},
        {"the same name written differently", {{"Shelf_No", "7"}}, "shelf number", "7", "Shelf_No"},
        {"unless the design has the name itself", {{"Lot_No", "7"}}, "Lot number", "-", "Lot number"},
        {"signs before digits count", {{"V_5", "a"}, {"Rev 10", "b"}}, "V_-5", "-", "V_-5"},
        {"and between them", {{"Rev 10", "b"}, {"Rev_1_0", "c"}}, "Rev 1.0", "-", "Rev 1.0"},
        {"and at the end", {{"Rail", "b"}}, "Rail-", "-", "Rail-"},
        {"currencies count", {{"EUR_per_1", "1"}, {"USD_per_1", ""}}, "USD_per_1", "", "USD_per_1"},
        {"what may mean it is not read", {{"Part Number", "a"}}, "MPN", "-", "manf#"},
        {"nor another distributor's number", {{"mouser#", "a"}}, "LCSC", "-", "LCSC"},
        {"listed only", {{"nopop", "1"}}, "DNF", "-", "DNF"},
        {"CODE is exact", {{"IPN", "a"}}, "CODE", "-", "CODE"},
        {"COST is exact", {{"Price", "1"}}, "Cost", "-", "Cost"},
        {"but answers", {{"COST", "1"}}, "Price", "1", "COST"},
        {"the value is exact", {{"V", "a"}}, "VALUE", "1k", "VALUE"},
    };
    for (const auto &c : cases) {
        auto table = std::make_unique<TableDesign>();
        table->add("R1", "1k", c.stored);
        for (const char *reference : {"R2", "R3"}) {
            table->add(reference, "1k", {{"manf#", "x"}, {"tolerance", "1%"}});
        }
        table->add("R4", "1k", {{"MPN", "x"}, {"TOLERANCE", "1%"}, {"Lot number", "x"}});
        const LoadedDesign design(std::move(table), DnpChoice::Exclude, names());
        const auto text = design.components()[0]->properties->find(PROPNAME(c.asked));
        EXPECT_EQ(text ? text->toByteArray() : QByteArray("-"), c.expected) << c.what;
        EXPECT_EQ(design.properties().writtenName(design.design().components()[0], c.asked), c.written)
            << c.what;
    }
}

} // namespace
