// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

using Parts = ProgramTest;

QByteArray design()
{
    return kicadSchematic(
        {{"R10", "10k",
          "(property \"MPN\" \"tab\\t \\\"q\\\" ä\" (at 0 0 0)) (property \"mpn\" \"\" (at 0 0 0))"},
         {"R2", "10k", "(property \"DNP\" \"0\" (at 0 0 0))"},
         {"R3", "10k", {}, "(in_bom no) (on_board yes) (dnp no)"},
         {"R4", "10k", {}, "(in_bom yes) (on_board yes) (dnp yes)"},
         {"R2", "47k"}});
}

QStringList references(const QJsonObject &root, const char *list)
{
    QStringList found;
    for (const QJsonValue &part : root.value(QLatin1String(list)).toArray()) {
        found.append(part.toObject().value(QLatin1String("reference")).toString());
    }
    return found;
}

TEST_F(Parts, AsJsonHoldEveryComponentOnce)
{
    write(QStringLiteral("amp.kicad_sch"), design());
    setEnvironment(QStringLiteral("SOURCE_DATE_EPOCH"), QStringLiteral("1000000000"));
    const ProgramRun result = run("parts amp.kicad_sch --json");
    EXPECT_EQ(result.status, 0);
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(QByteArray::fromStdString(result.out), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << result.out;
    EXPECT_EQ(root.keys(), (QStringList{QStringLiteral("design"), QStringLiteral("duplicates"),
                                        QStringLiteral("parts"), QStringLiteral("skipped")}));
    EXPECT_EQ(references(root, "parts"), (QStringList{QStringLiteral("R2"), QStringLiteral("R10")}));
    EXPECT_EQ(references(root, "skipped"), (QStringList{QStringLiteral("R3"), QStringLiteral("R4")}));
    EXPECT_EQ(references(root, "duplicates"), QStringList{QStringLiteral("R2")});

    const QJsonObject expected{{QStringLiteral("title"), QStringLiteral("Amp")},
                               {QStringLiteral("author"), QStringLiteral("Ada")},
                               {QStringLiteral("docno"), QStringLiteral("D-7")},
                               {QStringLiteral("rev"), QStringLiteral("B")},
                               {QStringLiteral("created"), QStringLiteral("2026-01-02")},
                               {QStringLiteral("modified"), QStringLiteral("2001-09-09 01:46")},
                               {QStringLiteral("variant"), QString()},
                               {QStringLiteral("file"), QStringLiteral("DIR/amp.kicad_sch")}};
    EXPECT_EQ(root.value(QLatin1String("design")).toObject(), expected) << result.out;
}

TEST_F(Parts, AsJsonKeepNamesAndTextsAsStored)
{
    write(QStringLiteral("amp.kicad_sch"), design());
    const std::string out = run("parts amp.kicad_sch --json").out;
    EXPECT_THAT(out, HasSubstr(R"({"reference":"R10","value":"10k","name":"R","placed":"Not placed",)"
                               R"("category":"Resistors","bomPartOf":"","properties":)"
                               R"({"MPN":"tab\u0009 \"q\" ä","mpn":""}})"));
    EXPECT_THAT(out,
                HasSubstr(R"("properties":{"BOMSKIP":"1"},"reason":"excluded from the BOM on the symbol"})"));
    EXPECT_THAT(out, HasSubstr(R"j("properties":{"DNP":"1"},"reason":"not fitted: marked on the symbol"})j"));
    EXPECT_THAT(out, HasSubstr(R"({"reference":"R2","value":"10k","name":"R","placed":"Not placed",)"
                               R"("category":"Resistors","bomPartOf":"","properties":{}})"))
        << "a DNP that says no reads as absent";
}

TEST_F(Parts, AsJsonTellWhomBomOnlyPartsBelongTo)
{
    write(QStringLiteral("amp.kicad_sch"),
          kicadSchematic(
              {{"U1", "reg", "(property \"BOMPART1\" \"'2','SCR','Bob\\\\'s','mpn=x'\" (at 0 0 0))"}}));
    const std::string out = run("parts amp.kicad_sch --json").out;
    EXPECT_THAT(out, HasSubstr(R"({"reference":"SCR2","value":"Bob's","name":"","placed":"Not placed",)"
                               R"("category":"Miscellaneous","bomPartOf":"U1","properties":{"MPN":"x"}})"));
    EXPECT_THAT(out, HasSubstr(R"("reference":"U1","value":"reg")"));
}

TEST_F(Parts, AsTextAreBlocksOfReadableLines)
{
    write(QStringLiteral("list.csv"),
          "Reference,Value,Manufacturer,DNP\nR1,10k,\"Two\nlines\",\nR2,47k,,x\n");
    const ProgramRun result = run("parts list.csv");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("R1\n"
                                      "  Value         10k\n"
                                      "  Placed        Not placed\n"
                                      "  Category      Resistors\n"
                                      "  Manufacturer  Two\\nlines\n"));
    EXPECT_THAT(result.out, HasSubstr("R2 (skipped: not fitted: property DNP=x)\n"));
}

TEST_F(Parts, OfNothingIsStillADocument)
{
    write(QStringLiteral("amp.kicad_sch"), kicadSchematic({}));
    const ProgramRun result = run("parts amp.kicad_sch --json");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("\"parts\":[],\n\"skipped\":[],\n\"duplicates\":[]\n}\n"));
    EXPECT_EQ(run("parts amp.kicad_sch").out, "");
}

} // namespace
