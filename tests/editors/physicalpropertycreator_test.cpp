// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/physicalpropertycreator.h"

#include "core/bompartsdatabase.h"
#include "host/propdefs/propdefsfile.h"
#include "support/scriptedui.h"
#include "support/testfiles.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

class PropertyCreator : public testing::Test
{
protected:
    PropertyCreator() { setpropdefsfile(path()); }
    ~PropertyCreator() override { setpropdefsfile({}); }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("PROPDEFS.INI")); }
    [[nodiscard]] QByteArray definitions() const { return readFile(path()); }

    template<class Widget>
    Widget *child(const char *name)
    {
        return creator.findChild<Widget *>(QLatin1String(name));
    }
    void open()
    {
        creator.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&creator));
    }
    static void type(QWidget *widget, const QString &text)
    {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
    }
    void type(const char *name, const QString &text) { type(child<QLineEdit>(name), text); }
    void click(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(child<QDialogButtonBox>("buttonBox")->button(button), Qt::LeftButton);
    }
    /// The only warning so far.
    [[nodiscard]] QString warning()
    {
        const auto told = std::exchange(ui.warnings, {});
        return told.size() == 1 && told[0].title == QStringLiteral("Failed to create property") ? told[0].text
                                                                                                : QString();
    }

    QTemporaryDir m_folder;
    ScriptedUi ui;
    BOMPartsDatabase database;
    PhysicalPropertyCreator creator{&database};
};

TEST_F(PropertyCreator, AddsALineAndKeepsTheRestOfTheFile)
{
    writeFile(path(), "; mine\n[PROPDEFS]\n\"A\",INT\n\n[Other]\nx=1\n");
    open();
    QSignalSpy changed(&database, &BOMPartsDatabase::dataChanged);
    QTest::keyClicks(creator.focusWidget(), QStringLiteral("Weight_1"));
    QTest::keyClick(creator.focusWidget(), Qt::Key_Tab);
    type(creator.focusWidget(), QStringLiteral("Gewicht \u00e4 (kg/m)"));
    QTest::keyClick(creator.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Down);
    QTest::keyClick(creator.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_EQ(
        definitions(),
        "; mine\n[PROPDEFS]\n\"A\",INT\n\"Weight_1\",FLOAT,\"Gewicht \xC3\xA4 (kg/m)\"\n\n[Other]\nx=1\n");
    EXPECT_TRUE(database.propertyTypes().isNumeric(QStringLiteral("WEIGHT_1")));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(ui.warnings.isEmpty());
}

TEST_F(PropertyCreator, WritesTheKeywordOfEachType)
{
    auto *types = child<QComboBox>("propertyTypeComboBox");
    const QStringList keywords{QStringLiteral("STRING"), QStringLiteral("FLOAT"), QStringLiteral("INT"),
                               QStringLiteral("YESNO"), QStringLiteral("TRUEFALSE")};
    ASSERT_EQ(types->count(), keywords.size());
    for (int i = 0; i < types->count(); ++i) {
        open();
        child<QLineEdit>("nameEdit")->clear();
        type("nameEdit", u'P' + QString::number(i));
        types->setCurrentIndex(i);
        click(QDialogButtonBox::Ok);
        const QString line = QStringLiteral("\n\"P%1\",%2\n").arg(QString::number(i), keywords[i]);
        EXPECT_TRUE(QString::fromUtf8(definitions()).contains(line)) << qPrintable(line);
    }
    EXPECT_TRUE(definitions().startsWith("[PROPDEFS]\n\"PACKAGE\",STRING\n"))
        << "the shipped definitions come along";
}

TEST_F(PropertyCreator, TakesNamesOf63CharactersThatBeginWithALetter)
{
    open();
    auto *name = child<QLineEdit>("nameEdit");
    for (const char *refused : {"1", "_", " ", "\xC3\xA9", "-"}) {
        type("nameEdit", QString::fromUtf8(refused));
        EXPECT_EQ(name->text(), QString());
    }
    type("nameEdit", QString(64, u'x'));
    EXPECT_EQ(name->text(), QString(63, u'x'));
    type("descEdit", QStringLiteral("a\"b,c;\u03a9_-./()"));
    EXPECT_EQ(child<QLineEdit>("descEdit")->text(), QStringLiteral("abc\u03a9_-./()"));
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_TRUE(definitions().contains('"' + QByteArray(63, 'x') + "\",STRING,\"abc"));
}

TEST_F(PropertyCreator, TellsWhatIsWrongAndStaysOpen)
{
    writeFile(path(), "[PROPDEFS]\n\"COST\",FLOAT\n");
    open();
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), QStringLiteral("You must enter a valid property name"));
    type("nameEdit", QStringLiteral("Cost"));
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), QStringLiteral("Physical Property already defined"));
    type("nameEdit", QStringLiteral("2"));
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadUser));
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), QStringLiteral("Creation failed.  Please ensure 'PROPDEFS.INI' is writeable."));
    EXPECT_TRUE(creator.isVisible());
    EXPECT_EQ(child<QLineEdit>("nameEdit")->text(), QStringLiteral("Cost2"));
    EXPECT_EQ(definitions(), "[PROPDEFS]\n\"COST\",FLOAT\n");
    click(QDialogButtonBox::Cancel);
    EXPECT_EQ(creator.result(), QDialog::Rejected);
}

TEST_F(PropertyCreator, CanDoNothingWithoutADatabase)
{
    PhysicalPropertyCreator without(nullptr);
    without.addPropertyName(QStringLiteral("A"));
    without.createNewPhysicalProperty();
    EXPECT_EQ(warning(), QStringLiteral("Unknown error"));
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(PropertyCreator, AsksForOneNameAfterTheOther)
{
    for (const char *name : {"MPN", "no name", "Maker"}) {
        creator.addPropertyName(QLatin1String(name));
    }
    open();
    auto *name = child<QLineEdit>("nameEdit");
    auto *skip = child<QPushButton>("skipButton");
    child<QComboBox>("propertyTypeComboBox")->setCurrentIndex(2);
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(name->text(), QStringLiteral("no name"));
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(warning(), QStringLiteral("You must enter a valid property name"));
    QTest::mouseClick(skip, Qt::LeftButton);
    EXPECT_EQ(name->text(), QStringLiteral("Maker"));
    EXPECT_FALSE(skip->isVisible());
    EXPECT_TRUE(creator.isVisible());
    click(QDialogButtonBox::Ok);
    EXPECT_EQ(creator.result(), QDialog::Accepted);
    EXPECT_TRUE(definitions().endsWith("\"MPN\",INT\n\"Maker\",STRING\n")) << definitions().constData();
}

} // namespace
