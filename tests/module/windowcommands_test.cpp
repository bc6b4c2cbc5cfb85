// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/module/bomviewerfixture.h"

#include "editors/bomtemplateimporter.h"
#include "editors/modaldialog.h"
#include "host/framework/hostsettings.h"
#include "module/dockwidget.h"
#include "templates/templatepaths.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>

namespace {

/// A module whose user has run it before.
class Window : public BomViewer
{
protected:
    Window()
    {
        HostSettings::install(&settings);
        settings.setValue(u"BOM"_s, u"BomScriptsImported"_s, u"true"_s);
    }
    ~Window() override
    {
        module().removewindow(module().getprimarywindow());
        flush();
        HostSettings::install(nullptr);
    }

    template<class Widget>
    Widget *child(const char *name)
    {
        return mainWindow()->findChild<Widget *>(QLatin1String(name));
    }
    QComboBox &templates() { return *child<QComboBox>("templatesComboBox"); }
    QCheckBox &box(const QString &text)
    {
        for (QCheckBox *found : host.frame.bars.constLast()->findChildren<QCheckBox *>()) {
            if (found->text() == text) {
                return *found;
            }
        }
        throw std::runtime_error("no such box");
    }
    void show()
    {
        module().onvalidate();
        (void)mainWindow();
        host.frame.window.show();
        makeActive(&host.frame.window);
    }
    static const BOMTemplate &working() { return BOMPartsDatabase::instance()->currentTemplate(); }

    MemoryHostSettings settings;
};

TEST_F(Window, AsksBeforeAnotherTemplateTakesThePlaceOfAChangedOne)
{
    show();
    const QString first = templates().currentText();
    EXPECT_EQ(first, u"Default"_s);
    EXPECT_GT(templates().count(), 1);
    EXPECT_FALSE(child<QToolButton>("deleteTemplateBtn")->isEnabled());
    child<QCheckBox>("suppressEmptyCatsCheckBx")->click();
    box(u"Full CSV"_s).click();
    EXPECT_TRUE(working().fullTextOuputs());
    EXPECT_EQ(child<QGroupBox>("templatesGroupBox")->title(), u"BOM Template *"_s);
    EXPECT_TRUE(host.frame.isModified);

    // The views hear of a template when the panel shows it already.
    QString shown;
    bool wasFull = true;
    QObject::connect(BOMPartsDatabase::instance(), &BOMPartsDatabase::dataChanged, mainWindow(), [&] {
        shown = templates().currentText();
        wasFull = box(u"Full CSV"_s).isChecked();
    });
    ui.saveAnswer = HostUi::SaveAnswer::Discard;
    templates().setCurrentText(u"Purchasing"_s);
    ASSERT_EQ(ui.saveQuestions.size(), 1);
    EXPECT_EQ(ui.saveQuestions[0].title, u"Unsaved BOM Template Changes"_s);
    EXPECT_EQ(std::pair(shown, wasFull), std::pair(u"Purchasing"_s, false));
    EXPECT_FALSE(host.frame.isModified);

    templates().setCurrentText(first);
    EXPECT_FALSE(working().fullTextOuputs());
    box(u"Append Project Notes"_s).click();
    ui.saveAnswer = HostUi::SaveAnswer::Save;
    templates().setCurrentText(u"Purchasing"_s);
    templates().setCurrentText(first);
    EXPECT_EQ(ui.saveQuestions.size(), 2);
    EXPECT_TRUE(working().appendNotes() && box(u"Append Project Notes"_s).isChecked());
}

TEST_F(Window, ShowsNothingAnyMoreOnceItIsTornDown)
{
    show();
    mainWindow()->destroywindow();
    BOMTemplate other = working();
    other.setAppendNotes(!other.appendNotes());
    EXPECT_TRUE(BOMPartsDatabase::instance()->setTemplateOptions(other));
    EXPECT_EQ(working().appendNotes(), other.appendNotes());
}

TEST_F(Window, MakesSavesAndDeletesTemplates)
{
    show();
    EXPECT_FALSE(inDialog([this] { trigger("&New Template"); },
                          [](QDialog &dialog) {
                              EXPECT_EQ(dialog.windowTitle(), u"New BOM Template"_s);
                              QTest::keyClicks(dialog.focusWidget(), u"  House "_s);
                              QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                          }));
    EXPECT_EQ(templates().currentText(), u"House"_s);
    EXPECT_TRUE(QFileInfo::exists(templateFilePath(u"House"_s)));

    inDialog([this] { trigger("&New Template"); },
             [](QDialog &dialog) {
                 QTest::keyClicks(dialog.focusWidget(), u"House"_s);
                 QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
             });
    ASSERT_EQ(ui.informations.size(), 1);
    EXPECT_EQ(ui.informations[0].text, u"The name must not be blank or used already"_s);

    child<QCheckBox>("suppressEmptyCatsCheckBx")->click();
    child<QToolButton>("saveTemplateBtn")->click();
    QString problem;
    const auto saved = BOMTemplate::fromFile(templateFilePath(u"House"_s), &problem);
    EXPECT_TRUE(saved && saved->suppressEmptyCategories() == working().suppressEmptyCategories());
    EXPECT_EQ(child<QGroupBox>("templatesGroupBox")->title(), u"BOM Template"_s);

    templates().setCurrentText(u"Purchasing"_s);
    EXPECT_FALSE(child<QToolButton>("deleteTemplateBtn")->isEnabled()) << "it comes with the program";
    child<QToolButton>("saveTemplateBtn")->click();
    EXPECT_TRUE(child<QToolButton>("deleteTemplateBtn")->isEnabled()) << "it is the user's own now";
    templates().setCurrentText(u"House"_s);

    ui.answer = true;
    child<QToolButton>("deleteTemplateBtn")->click();
    EXPECT_EQ(templates().findText(u"House"_s), -1);
    EXPECT_NE(templates().currentText(), QString());
    EXPECT_FALSE(QFileInfo::exists(templateFilePath(u"House"_s)));
}

TEST_F(Window, AdvancedSettingsReloadAndMarkTheTemplateOnlyWhenSomethingChanged)
{
    show();
    QSignalSpy changes(BOMPartsDatabase::instance(), &BOMPartsDatabase::dataChanged);
    EXPECT_FALSE(
        inDialog([this] { trigger("Advanced Settings"); }, [](QDialog &dialog) { dialog.accept(); }));
    EXPECT_GE(changes.size(), 1);
    EXPECT_FALSE(host.frame.isModified);
    inDialog([this] { trigger("Advanced Settings"); },
             [](QDialog &dialog) {
                 dialog.findChildren<QSpinBox *>().constLast()->stepUp();
                 dialog.accept();
             });
    EXPECT_TRUE(host.frame.isModified);
}

TEST_F(Window, UsesWhatTheHostOffers)
{
    QTemporaryDir help;
    show();
    EXPECT_EQ(host.frame.menuBar.calls, QStringList({u"APPLNMENU en"_s, u"256 0"_s, u"272 1"_s}));
    ASSERT_EQ(host.frame.bars.size(), 2);
    EXPECT_EQ(host.frame.bars[0]->windowTitle(), u"Host"_s);
    QTest::keyClick(mainWindow(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(host.frame.menuBar.calls.constLast(), u"command 7"_s);

    trigger("&Bill of Materials");
    EXPECT_EQ(ui.informations.size(), 1);
    host.helpFolder = help.path();
    QFile page(help.filePath(u"index.html"_s));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    trigger("&Bill of Materials");
    EXPECT_EQ(ui.openedUrls, QList<QUrl>{QUrl::fromLocalFile(page.fileName())});
}

TEST_F(Window, TellsWhenTheUserComesAndLetsGoOfItsBoxesWhenItIsTornDown)
{
    show();
    QSignalSpy activations(mainWindow(), &BOMMainWindow::activated);
    QWidget other;
    other.show();
    makeActive(&other);
    EXPECT_FALSE(mainWindow()->isactive());
    makeActive(&host.frame.window);
    EXPECT_EQ(activations.size(), 1);

    const QPointer<QCheckBox> full(&box(u"Full CSV"_s));
    module().removewindow(mainWindow());
    EXPECT_TRUE(full.isNull() && host.frame.bars.isEmpty());
}

TEST_F(Window, CtrlTabLeavesTheTabsAlone)
{
    show();
    auto &tabs = *child<QTabWidget>("tabWidget");
    QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), 0);
    QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs.currentIndex(), 1);
}

TEST_F(Window, ThePanelIsAsItWasInTheLastRun)
{
    show();
    child<DockWidget>("dockWidget")->setOpen(false);
    module().removewindow(mainWindow());
    flush();
    EXPECT_FALSE(child<DockWidget>("dockWidget")->isOpen());
    EXPECT_GT(settings.value(u"BOM"_s, u"OptionsWidth"_s).value_or(QString()).toInt(), 100);
}

TEST_F(BomViewer, OffersTheLegacyImportOnceBehindTheFirstWindow)
{
    MemoryHostSettings settings;
    HostSettings::install(&settings);
    module().onvalidate();
    (void)mainWindow();
    host.frame.window.show();
    int offers = 0;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] {
        if (auto *importer = qobject_cast<BOMTemplateImporter *>(QApplication::activeModalWidget())) {
            offers += settings.value(u"BOM"_s, u"BomScriptsImported"_s) ? 100 : 1;
            importer->reject();
        }
    });
    closing.start(20);
    const auto isDone = [&] { return bool(settings.value(u"BOM"_s, u"BomScriptsImported"_s)); };
    EXPECT_TRUE(QTest::qWaitFor(isDone));
    EXPECT_EQ(offers, 1);
    module().removewindow(mainWindow());
    flush();
    HostSettings::install(nullptr);
}

} // namespace
