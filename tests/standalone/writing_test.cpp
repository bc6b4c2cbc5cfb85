// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What a module holds of the design while it writes into it.
#include "core/designwrite.h"
#include "standalone/moduleonfiles.h"
#include "tests/standalone/tabledesign.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A part list that is open.
class Writing : public ModuleOnFiles
{
protected:
    Writing()
    {
        open(writeFile(path("list.csv"), "Reference,Value,MPN,BOMPART1\nR1,10k,old,\"1,'SCR','M3'\"\n"));
        QObject::connect(&database, &BOMPartsDatabase::dataChanged, &database, [this] { ++notices; });
    }

    [[nodiscard]] std::string mpn() const { return database.property(u"R1"_s, u"MPN"_s).toStdString(); }
    /// How many notices applying an edit gives.
    int noticesOf(const QString &reference, const QString &property, const QString &value)
    {
        notices = 0;
        assignments.assign(reference, property, value);
        EXPECT_EQ(assignments.apply(), u"Applied successfully"_s);
        return notices;
    }

    int notices = 0;
};

TEST_F(Writing, KeepsThePartsUntilTheyAreMadeAnew)
{
    notices = 0;
    database.setWriting(true);
    for (const QString &value : {u"one"_s, u"two"_s, u"three"_s}) {
        assignments.assignNow(u"R1"_s, u"MPN"_s, value);
        EXPECT_EQ(mpn(), "old");
    }
    EXPECT_EQ(notices, 0);
    database.setWriting(false);
    EXPECT_EQ(mpn(), "three");
    EXPECT_EQ(notices, 1);
}

TEST_F(Writing, EndsBatchAndFlagTogetherInOneReload)
{
    notices = 0;
    {
        DesignWrite write(&database);
        assignments.assignNow(u"R1"_s, u"MPN"_s, u"one"_s);
        const DesignWrite part(&database);
        EXPECT_TRUE(database.isWriting());
    }
    EXPECT_FALSE(database.isWriting());
    EXPECT_EQ(mpn(), "old") << "what is not committed is dropped";
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(noticesOf(u"R1"_s, u"MPN"_s, u"two"_s), 1);
    EXPECT_EQ(noticesOf(u"SCR1"_s, u"LEN"_s, u"8"_s), 1);
    EXPECT_EQ(database.property(u"SCR1"_s, u"LEN"_s), u"8"_s);
}

TEST_F(Writing, IsRefusedWhileTheSameStoreWrites)
{
    QString refused;
    whileWriting = [&] {
        assignments.assign(u"R1"_s, u"MPN"_s, u"two"_s);
        refused = assignments.apply();
    };
    EXPECT_EQ(noticesOf(u"R1"_s, u"MPN"_s, u"one"_s), 1);
    EXPECT_EQ(refused, u"The design is being written already"_s);
    EXPECT_EQ(mpn(), "one");
    EXPECT_FALSE(assignments.isEmpty()) << "it can be applied now";
}

/// A design that tells when it is gone.
class MortalDesign final : public TableDesign
{
public:
    explicit MortalDesign(QStringList *gone, const QString &name)
        : m_gone(gone)
        , m_name(name)
    {
    }
    ~MortalDesign() override { *m_gone << m_name; }

private:
    QStringList *m_gone;
    QString m_name;
};

TEST(NetlistServer, KeepsDesignsUntilTheirClientHasLetGo)
{
    QStringList gone;
    DesignSession session;
    NETCACHE cache;
    cache.setsource(&session.netlist());
    for (const QString &name : {u"first"_s, u"second"_s, u"third"_s}) {
        session.open(std::make_unique<MortalDesign>(&gone, name));
        cache.validate(1);
    }
    EXPECT_EQ(gone, QStringList());
    cache.releaseformer();
    EXPECT_EQ(gone, QStringList({u"first"_s, u"second"_s}));
    session.open(std::make_unique<MortalDesign>(&gone, u"fourth"_s));
    cache.releaseformer();
    EXPECT_EQ(gone.size(), 2) << "the cache still holds it";
}

} // namespace
