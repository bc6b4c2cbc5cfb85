// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/physicalpropertycreator.h"

#include "core/bompartsdatabase.h"
#include "editors/dialogfixture.h"
#include "host/propdefs/propdefsfile.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

namespace {

class PropertyCreator : public DialogFixture
{
protected:
    PropertyCreator()
    {
        setpropdefsfile(file());
        open(creator);
    }
    ~PropertyCreator() override { setpropdefsfile({}); }

    [[nodiscard]] QString file() const { return path(u"PROPDEFS.INI"_s); }
    [[nodiscard]] QByteArray definitions() const { return readFile(file()); }

    static void type(QWidget *widget, const QString &text)
    {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
    }
    void type(const QString &text) { type(child<QLineEdit>("nameEdit"), text); }
    [[nodiscard]] QString name() const { return child<QLineEdit>("nameEdit")->text(); }
    /// The only warning so far.
    [[nodiscard]] QString warning()
    {
        const Messages told = std::exchange(ui.warnings, {});
        return told.size() == 1 && told[0].title == u"Failed to create property"_s ? told[0].text : QString();
    }

    BOMPartsDatabase database;
    PhysicalPropertyCreator creator{&database};
};

TEST_F(PropertyCreator, AddsALineAndKeepsTheRestOfTheFile)
{
    writeFile(file(), "; mine\n[PROPDEFS]\n\"A\",INT\n\n[Other]\nx=1\n");
    QSignalSpy changed(&database, &BOMPartsDatabase::dataChanged);
    QTest::keyClicks(creator.focusWidget(), u"Weight_1"_s);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Tab);
    type(creator.focusWidget(), u"Gewicht \u00e4 (kg/m)"_s);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Down);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_EQ(definitions(), "; mine\n[PROPDEFS]\n\"A\",INT\n\"Weight_1\",FLOAT,\"Gewicht \xC3\xA4 (kg/m)\"\n"
                             "\n[Other]\nx=1\n");
    EXPECT_TRUE(database.propertyTypes().isNumeric(u"WEIGHT_1"_s));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(ui.warnings.isEmpty());
}

TEST_F(PropertyCreator, WritesTheKeywordOfEachType)
{
    auto *types = child<QComboBox>("propertyTypeComboBox");
    for (int i = 0; i < types->count(); ++i) {
        creator.open();
        child<QLineEdit>("nameEdit")->setText(u'P' + QString::number(i));
        types->setCurrentIndex(i);
        click(QDialogButtonBox::Ok);
    }
    EXPECT_TRUE(definitions().startsWith("[PROPDEFS]\n\"PACKAGE\",STRING\n"))
        << "the shipped ones come along";
    EXPECT_TRUE(
        definitions().endsWith("\n\"P0\",STRING\n\"P1\",FLOAT\n\"P2\",INT\n\"P3\",YESNO\n\"P4\",TRUEFALSE\n"))
        << definitions().constData();
}

TEST_F(PropertyCreator, TakesNamesOf63CharactersThatBeginWithALetter)
{
    for (const char *refused : {"1", "_", " ", "\xC3\xA9", "-"}) {
        type(QString::fromUtf8(refused));
        EXPECT_EQ(name(), QString());
    }
    type(QString(64, u'x'));
    EXPECT_EQ(name(), QString(63, u'x'));
    type(child<QLineEdit>("descEdit"), u"a\"b,c;\u03a9_-./()"_s);
    EXPECT_EQ(child<QLineEdit>("descEdit")->text(), u"abc\u03a9_-./()"_s);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_TRUE(definitions().contains('"' + QByteArray(63, 'x') + "\",STRING,\"abc"));
}

TEST_F(PropertyCreator, TellsWhatIsWrongAndStaysOpen)
{
    writeFile(file(), "[PROPDEFS]\n\"COST\",FLOAT\n");
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), u"You must enter a valid property name"_s);
    type(u"Cost"_s);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), u"Physical Property already defined"_s);
    type(u"2"_s);
    ASSERT_TRUE(QFile::setPermissions(file(), QFile::ReadOwner | QFile::ReadUser));
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), u"Creation failed.  Please ensure 'PROPDEFS.INI' is writeable."_s);
    EXPECT_TRUE(creator.isVisible());
    EXPECT_EQ(name(), u"Cost2"_s);
    EXPECT_EQ(definitions(), "[PROPDEFS]\n\"COST\",FLOAT\n");
    click(QDialogButtonBox::Cancel);
    EXPECT_EQ(creator.result(), QDialog::Rejected);
}

TEST_F(PropertyCreator, CanDoNothingWithoutADatabase)
{
    PhysicalPropertyCreator without(nullptr);
    without.addPropertyName(u"A"_s);
    without.createNewPhysicalProperty();
    EXPECT_EQ(warning(), u"Unknown error"_s);
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(PropertyCreator, AsksForOneNameAfterTheOther)
{
    for (const char *name : {"MPN", "no name", "Maker"}) {
        creator.addPropertyName(QLatin1String(name));
    }
    child<QComboBox>("propertyTypeComboBox")->setCurrentIndex(2);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(name(), u"no name"_s);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), u"You must enter a valid property name"_s);
    click("skipButton");
    EXPECT_EQ(name(), u"Maker"_s);
    EXPECT_FALSE(child<QPushButton>("skipButton")->isVisible());
    EXPECT_TRUE(creator.isVisible());
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_TRUE(definitions().endsWith("\"MPN\",INT\n\"Maker\",STRING\n")) << definitions().constData();
}

} // namespace
