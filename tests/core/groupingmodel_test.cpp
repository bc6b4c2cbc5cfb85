// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomstring.h"
#include "core/coredesign.h"
#include "core/propertyquery.h"
#include "core/reference.h"

#include <random>

namespace {

/// Grouping as plainly as it can be said: ordered maps, everything looked up by name.
using Lines = QMap<BomString, QMap<BomString, QStringList>>;

Lines plainLines(const BOMPartsDatabase &database, const QString &category)
{
    const auto rule =
        database.currentTemplate().caseSensitiveGrouping() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    QMap<BomString, QStringList> byValue;
    for (const Part *part : database.parts()) {
        if (database.categoryOf(part->reference()) == category) {
            byValue[BomString(part->value(), rule)] << part->reference();
        }
    }
    // Each text counts, besides the key that they make together.
    const auto keyOf = [&database](const QString &reference) {
        QString key = database.groupingKey(reference);
        for (const BOMField &field : database.currentTemplate().fields().fields()) {
            key += QChar(0) + (field.propertyName == valueProperty()
                                   ? QString()
                                   : database.property(reference, field.propertyName));
        }
        return key;
    };
    Lines lines;
    for (auto it = byValue.cbegin(); it != byValue.cend(); ++it) {
        for (const QString &reference : it.value()) {
            const QString key = it.value().size() > 1 ? keyOf(reference) : QString();
            QStringList &line = lines[it.key()][BomString(key, rule)];
            line << reference;
            sortReferences(line);
        }
    }
    return lines;
}

void expectPlainLines(const BOMPartsDatabase &database, const QString &category)
{
    const Lines lines = plainLines(database, category);
    QStringList values;
    QStringList all;
    QList<QPair<QString, int>> summaries;
    for (auto value = lines.cbegin(); value != lines.cend(); ++value) {
        values << value.key();
        EXPECT_EQ(database.groupLines(category, value.key()), value.value().values());
        QStringList references;
        for (const QStringList &line : value.value()) {
            references << line;
            summaries.append({line.first(), int(line.size())});
        }
        sortReferences(references);
        EXPECT_EQ(database.valueReferences(category, value.key()), references);
        all << references;
    }
    sortReferences(all);
    EXPECT_EQ(database.categoryReferences(category), all);
    EXPECT_EQ(database.categoryValues(category), values);
    EXPECT_EQ(database.lineSummaries(category), summaries);
    EXPECT_EQ(database.lineCount(category), int(summaries.size()));
}

/// Small sets of texts make collisions of every sort likely.
FakeProperties randomProperties(std::mt19937 &random)
{
    static const QByteArrayList texts{"",  "a", "A",        "a,b",      "b", ",",
                                      "1", "0", "\xc3\xa4", "\xc3\x84", "k", "\xff"};
    FakeProperties properties;
    for (const char *name : {"CODE", "COST", "DNP"}) {
        if (random() % 4 != 0) {
            properties.append({name, texts.at(int(random() % unsigned(texts.size())))});
        }
    }
    return properties;
}

void fill(FakeNetlist &netlist, std::mt19937 &random)
{
    static const QByteArrayList prefixes{"R", "C", "RN", "r", "U1A", "X", "\xc3\x84"};
    static const QByteArrayList values{"1k", "1K", "10k", "", "\xc3\xa4", "\xc3\x84", "\xfe", "\xff"};
    const auto count = unsigned(random() % 200);
    for (unsigned i = 0; i < count; ++i) {
        const QByteArray prefix = prefixes.at(int(random() % unsigned(prefixes.size())));
        netlist.add(prefix + QByteArray::number(uint(random() % 150)),
                    values.at(int(random() % unsigned(values.size()))), randomProperties(random));
    }
}

TEST(GroupingModel, AgreesWithThePlainOneOnRandomDesigns)
{
    std::mt19937 random(20261);
    BOMTemplate settings;
    BOMFields fields = settings.fields();
    BOMField fitted;
    fitted.fieldName = fitted.propertyName = u"DNP"_s;
    fields.add(fitted);
    settings.setFields(fields);
    for (int round = 0; round < 60; ++round) {
        FakeNetlist netlist;
        fill(netlist, random);
        BOMPartsDatabase database;
        database.setNetlist(netlist.cache());
        database.load();
        for (const bool isCaseSensitive : {round % 2 == 0, round % 2 != 0}) {
            settings.setCaseSensitiveGrouping(isCaseSensitive);
            database.setCurrentTemplate(settings);
            qsizetype held = 0;
            for (const QString &category : database.categoryNames()) {
                expectPlainLines(database, category);
                held += database.partCount(category);
            }
            EXPECT_EQ(held, qsizetype(database.parts().size()));
            EXPECT_EQ(held + database.duplicateReferences().size(),
                      qsizetype(netlist.cache()->components.size()));
        }
    }
}

} // namespace
