// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// The example designs through the real program: its files against the stored ones, and its account of the
// parts against a ledger that was made from the drawings and not by the program.
#include "support/testfiles.h"
#include "support/testpaths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Example
{
    const char *folder;
    const char *design;
};

constexpr Example examples[] = {
    {"audio-amplifier", "audio-amplifier.kicad_pro"},
    {"mixed-signal-board", "mixed-signal-board.kicad_sch"},
    {"contract-manufacturer", "partlist.csv"},
};

struct Outcome
{
    int status = -1;
    QByteArray out;
    QByteArray err;
};

Outcome runBom(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(BOM_BINARY_DIR "/bin/bom"), arguments);
    process.waitForFinished(60'000);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QStringList texts(const QJsonValue &array)
{
    QStringList list;
    for (const QJsonValue &value : array.toArray()) {
        list << value.toString();
    }
    return list;
}

/// Of components only.
QStringList references(const QJsonValue &parts)
{
    QStringList list;
    for (const QJsonValue &part : parts.toArray()) {
        if (part.toObject().value(QLatin1String("bomPartOf")).toString().isEmpty()) {
            list << part.toObject().value(QLatin1String("reference")).toString();
        }
    }
    return list;
}

/// BOM-only parts, each with the part that it belongs to.
QJsonObject bomParts(const QJsonValue &parts)
{
    QJsonObject owners;
    for (const QJsonValue &part : parts.toArray()) {
        const QString owner = part.toObject().value(QLatin1String("bomPartOf")).toString();
        if (!owner.isEmpty()) {
            owners.insert(part.toObject().value(QLatin1String("reference")).toString(), owner);
        }
    }
    return owners;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

class Examples : public testing::TestWithParam<Example>
{
protected:
    QString folder() const
    {
        return QStringLiteral(BOM_SOURCE_DIR "/examples/") + QLatin1String(GetParam().folder);
    }
    QString design() const { return folder() + u'/' + QLatin1String(GetParam().design); }
    QString expected(const char *name) const
    {
        return folder() + QStringLiteral("/expected/") + QLatin1String(name);
    }
    QJsonObject parts(const QString &dnp) const
    {
        const Outcome run = runBom(
            {QStringLiteral("parts"), design(), QStringLiteral("--json"), QStringLiteral("--dnp"), dnp});
        EXPECT_EQ(run.status, 0) << run.err.constData();
        return QJsonDocument::fromJson(run.out).object();
    }
    QJsonObject ledger() const { return QJsonDocument::fromJson(readFile(expected("ledger.json"))).object(); }
};

TEST_P(Examples, ReportsAreTheStoredOnes)
{
    QTemporaryDir folder;
    const QString csv = folder.filePath(QStringLiteral("report.csv"));
    const QString full = folder.filePath(QStringLiteral("report-full.csv"));
    const Outcome run =
        runBom({QStringLiteral("report"), design(), QStringLiteral("--template"), QStringLiteral("Default"),
                QStringLiteral("--csv"), csv, QStringLiteral("--full-csv"), full});
    ASSERT_EQ(run.status, 0) << run.err.constData();
    EXPECT_EQ(readFile(csv), readFile(expected("report.csv")));
    EXPECT_EQ(readFile(full), readFile(expected("report-full.csv")));
}

TEST_P(Examples, EveryReferenceOfTheLedgerIsListedOrSkipped)
{
    const QJsonObject account = ledger();
    const QStringList notInBom = texts(account.value(QLatin1String("notInBom")));
    const QStringList notFitted = texts(account.value(QLatin1String("notFitted")));
    QStringList leftOut = notInBom + notFitted;
    leftOut.removeDuplicates();

    const QJsonObject excluded = parts(QStringLiteral("exclude"));
    EXPECT_EQ(sorted(references(excluded.value(QLatin1String("skipped")))), sorted(leftOut));
    EXPECT_EQ(sorted(references(excluded.value(QLatin1String("parts"))) + leftOut),
              sorted(texts(account.value(QLatin1String("references")))));
    EXPECT_EQ(bomParts(excluded.value(QLatin1String("parts"))),
              account.value(QLatin1String("bomParts")).toObject());
    const QJsonObject included = parts(QStringLiteral("include"));
    EXPECT_EQ(sorted(references(included.value(QLatin1String("skipped")))), sorted(notInBom));
}

TEST_P(Examples, CheckFindsTheSymbolsOfTheLedger)
{
    const Outcome run = runBom({QStringLiteral("check"), design()});
    EXPECT_EQ(run.status, 0) << run.out.constData() << run.err.constData();
    EXPECT_EQ(run.out, readFile(expected("check.txt")));
}

TEST_P(Examples, PlacementIsWhatTheBoardSays)
{
    const QJsonObject account = ledger();
    if (!account.contains(QLatin1String("placedBottom"))) {
        GTEST_SKIP() << "no board beside this design";
    }
    const QStringList bottom = texts(account.value(QLatin1String("placedBottom")));
    const QStringList unplaced = texts(account.value(QLatin1String("notPlaced")));
    for (const QJsonValue &value : parts(QStringLiteral("include")).value(QLatin1String("parts")).toArray()) {
        const QJsonObject part = value.toObject();
        const QString reference = part.value(QLatin1String("reference")).toString();
        const QString placed = bottom.contains(reference)     ? QStringLiteral("Bottom")
                               : unplaced.contains(reference) ? QStringLiteral("Not placed")
                                                              : QStringLiteral("Top");
        EXPECT_EQ(part.value(QLatin1String("placed")).toString(), placed) << qPrintable(reference);
    }
}

TEST_P(Examples, AReportThatIsAppliedAsItIsChangesNothing)
{
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("report.csv"));
    const QByteArray templates = runBom({QStringLiteral("template"), QStringLiteral("list")}).out;
    ASSERT_GT(templates.count('\n'), 1) << templates.constData();
    for (const QByteArray &line : templates.trimmed().split('\n')) {
        const QString name = QString::fromUtf8(line.split('\t').first());
        for (const char *form : {"--csv", "--full-csv"}) {
            const QStringList options{QStringLiteral("--template"), name, QStringLiteral("--dnp"),
                                      QStringLiteral("include")};
            ASSERT_EQ(
                runBom(QStringList{QStringLiteral("report"), design(), QLatin1String(form), report} + options)
                    .status,
                0);
            const Outcome run =
                runBom(QStringList{QStringLiteral("apply"), design(), report, QStringLiteral("--dry-run")} +
                       options);
            EXPECT_EQ(run.out, "nothing to change\n") << qPrintable(name) << form << run.err.constData();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Examples, testing::ValuesIn(examples), [](const auto &info) {
    return QString::fromLatin1(info.param.folder).remove(u'-').toStdString();
});

} // namespace
