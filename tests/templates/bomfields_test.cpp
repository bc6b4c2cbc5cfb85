// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "templates/bomfields.h"

#include "templates/bomcategory.h"

#include <gtest/gtest.h>

namespace {
BOMField field(const QString &name, const QString &property = {})
{
    BOMField made;
    made.fieldName = name;
    made.propertyName = property;
    return made;
}

BOMFields fields(const QStringList &names)
{
    BOMFields made;
    for (const QString &name : names)
        made.add(field(name, name.toUpper()));
    return made;
}

TEST(BomFields, ANameOfItsOwnOrderCanBeRemoved)
{
    for (qsizetype at = 0; at < 3; ++at) {
        BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        QStringList expected = made.names();
        expected.removeAt(at);
        made.remove(made.names().at(at));
        EXPECT_EQ(made.names(), expected);
        for (const QString &name : expected)
            EXPECT_EQ(made.get(name).propertyName, name.toUpper());
    }
}

TEST(BomFields, DefaultsReplaceWhatWasThere)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("Value")});
    made.setDefaults();
    const QStringList expected{QStringLiteral("Value"), QStringLiteral("Stock Code"),
                               QStringLiteral("Unit Cost")};
    EXPECT_EQ(made.names(), expected);
    EXPECT_EQ(made.get(QStringLiteral("Value")).propertyName, QStringLiteral("VALUE"));
    const BOMField code = made.get(QStringLiteral("Stock Code"));
    EXPECT_EQ(code.propertyName, QStringLiteral("CODE"));
    EXPECT_TRUE(code.enableLinks && !code.generateTotals);
    const BOMField cost = made.get(QStringLiteral("Unit Cost"));
    EXPECT_EQ(cost.propertyName, QStringLiteral("COST"));
    EXPECT_TRUE(cost.generateTotals && !cost.enableLinks);
    EXPECT_EQ(cost.precision, 2);
}

TEST(BomFields, AddRefusesATakenNameOnlyInTheSameCase)
{
    BOMFields made;
    made.setDefaults();
    const BOMFields before = made;
    EXPECT_FALSE(made.add(field(QStringLiteral("Value"), QStringLiteral("OTHER"))));
    EXPECT_EQ(made, before);
    EXPECT_TRUE(made.add(field(QStringLiteral("value"), QStringLiteral("OTHER"))));
    EXPECT_EQ(made.names().last(), QStringLiteral("value"));
    EXPECT_EQ(made.get(QStringLiteral("Value")).propertyName, QStringLiteral("VALUE"));
}

TEST(BomFields, SetKeepsThePositionOfAKnownNameAndAppendsANewOne)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    made.set(field(QStringLiteral("b"), QStringLiteral("NEW")));
    made.set(field(QStringLiteral("d")));
    EXPECT_EQ(made.names().join(u','), QStringLiteral("a,b,c,d"));
    EXPECT_EQ(made.fields().at(1).propertyName, QStringLiteral("NEW"));
}

TEST(BomFields, RemoveForgetsOrderAndRecord)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b")});
    made.remove(QStringLiteral("a"));
    made.remove(QStringLiteral("unknown"));
    EXPECT_EQ(made.names().join(u','), QStringLiteral("b"));
    EXPECT_EQ(made.get(QStringLiteral("a")), BOMField());
    made.setOrder({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(made.names().join(u','), QStringLiteral("b"));
    EXPECT_TRUE(made.add(field(QStringLiteral("a"))));
}

TEST(BomFields, SetOrderTakesKnownNamesOnceAndDropsTheRest)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    made.setOrder({QStringLiteral("c"), QStringLiteral("x"), QStringLiteral("a"), QStringLiteral("c")});
    EXPECT_EQ(made.names().join(u','), QStringLiteral("c,a"));
    EXPECT_EQ(made.fields().size(), 2);
    EXPECT_FALSE(made.contains(QStringLiteral("b")));
}

TEST(BomFields, ADroppedRecordComesBackWhenNamedAndIsReplacedWhenAdded)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b")});
    made.setOrder({QStringLiteral("a")});
    made.setOrder({QStringLiteral("b"), QStringLiteral("a")});
    EXPECT_EQ(made.fields().first().propertyName, QStringLiteral("B"));

    made.setOrder({QStringLiteral("a")});
    EXPECT_TRUE(made.add(field(QStringLiteral("b"), QStringLiteral("NEW"))));
    EXPECT_EQ(made.fields().last().propertyName, QStringLiteral("NEW"));
}

TEST(BomFields, SetOrderWithItsOwnNamesChangesNothing)
{
    BOMFields made = fields({QStringLiteral("a"), QStringLiteral("b")});
    made.setOrder(made.names());
    EXPECT_EQ(made.names().join(u','), QStringLiteral("a,b"));
}

TEST(BomField, MissingWidthsAreDefaultsAndAZeroWidthStays)
{
    BOMField read = BOMField::fromVariantMap({{QStringLiteral("fieldName"), QStringLiteral("n")}});
    EXPECT_EQ(read, field(QStringLiteral("n")));
    EXPECT_EQ(read.asciiWidth, 16);
    EXPECT_EQ(read.manualWidth, 12);
    read = BOMField::fromVariantMap({{QStringLiteral("asciiWidth"), 0}, {QStringLiteral("manualWidth"), 0}});
    EXPECT_EQ(read.asciiWidth, 0);
    EXPECT_EQ(read.manualWidth, 0);
}

TEST(BomField, EveryMemberSurvivesTheMap)
{
    const BOMField full{QStringLiteral("n"),
                        QStringLiteral("p"),
                        QStringLiteral("<"),
                        QStringLiteral(">"),
                        true,
                        true,
                        true,
                        3,
                        20,
                        4,
                        9,
                        8};
    EXPECT_EQ(full.toVariantMap().size(), 12);
    EXPECT_EQ(BOMField::fromVariantMap(full.toVariantMap()), full);
}

TEST(BomCategory, DefaultsEndWithTheOnlyMiscellaneousOne)
{
    const QList<BOMCategory> list = BOMCategory::defaults();
    ASSERT_EQ(list.size(), 7);
    QStringList shown;
    for (const BOMCategory &category : list)
        shown << category.heading + u'=' + category.references.join(u'|') +
                     (category.isMiscCategory ? u'!' : u';');
    EXPECT_EQ(shown.join(QString()),
              QStringLiteral("Modules=M;Capacitors=C;Resistors=R;Integrated Circuits=U;"
                             "Transistors=Q;Diodes=D;Miscellaneous=*!"));
}

TEST(BomCategory, MissingKeysAreEmpty)
{
    EXPECT_EQ(BOMCategory::fromVariantMap({}), BOMCategory());
    const BOMCategory full{QStringLiteral("h"), {QStringLiteral("R"), QStringLiteral("RN")}, true};
    EXPECT_EQ(BOMCategory::fromVariantMap(full.toVariantMap()), full);
}
} // namespace
