// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/pictures.h"

#include "app/emptypage.h"
#include "app/programmenus.h"
#include "app/readingpanel.h"
#include "app/statusfields.h"
#include "app/workbench.h"
#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/advancedsettings.h"
#include "editors/bomdataview.h"
#include "editors/bomtemplateimporter.h"
#include "editors/pendingreview.h"
#include "editors/physicalpropertycreator.h"
#include "editors/propsfindandreplace.h"
#include "looks/iconsheet.h"
#include "looks/panelpictures.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "support/fakecdb.h"
#include "support/fakenetlist.h"
#include "support/testpaths.h"
#include "templates/bomtemplate.h"
#include "templates/templatestore.h"
#include "views/bomtemplateeditor.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A few parts and the template that a new design gets.
struct SampleDesign
{
    SampleDesign()
    {
        netlist.add("C1", "100nF", {{"CODE", "C-0805-104"}, {"COST", "0.02"}});
        netlist.add("C2", "100nF", {{"CODE", "C-0805-104"}, {"COST", "0.02"}});
        netlist.add("R1", "10k", {{"CODE", "R-0603-103"}, {"COST", "0.01"}});
        netlist.add("R2", "4k7", {{"CODE", "R-0603-472"}, {"COST", "0.01"}});
        netlist.add("U1", "LM358", {{"CODE", "IC-0358"}, {"COST", "0.45"}});
        database.setNetlist(netlist.cache());
        database.load();
    }

    FakeNetlist netlist;
    BOMPartsDatabase database;
};

std::shared_ptr<QWidget> icons()
{
    return std::make_shared<IconSheet>();
}

std::shared_ptr<QWidget> advancedSettings(int tab)
{
    struct Scene
    {
        SampleDesign design;
        AdvancedSettings dialog{&design.database, false};
    };
    const auto scene = std::make_shared<Scene>();
    scene->dialog.findChild<QTabWidget *>()->setCurrentIndex(tab);
    return {scene, &scene->dialog};
}

std::shared_ptr<QWidget> propertyCreator()
{
    struct Scene
    {
        SampleDesign design;
        PhysicalPropertyCreator dialog{&design.database};
    };
    const auto scene = std::make_shared<Scene>();
    return {scene, &scene->dialog};
}

std::shared_ptr<QWidget> templateImporter()
{
    struct Scene
    {
        SampleDesign design;
        TemplateStore store;
        BOMTemplateImporter dialog{&store, &design.database};
    };
    const auto scene = std::make_shared<Scene>();
    return {scene, &scene->dialog};
}

std::shared_ptr<QWidget> templateEditor()
{
    struct Scene
    {
        TextEdit report;
        BOMTemplateEditor dialog{&report, nullptr};
    };
    const auto scene = std::make_shared<Scene>();
    return {scene, &scene->dialog};
}

std::shared_ptr<QWidget> styleEditor()
{
    const auto dialog = std::make_shared<TextStyleEditor>();
    dialog->loadCSS(BOMTemplate().css());
    return dialog;
}

/// The property editor with parts of all kinds, after the design was changed under a pending edit.
struct EditorScene
{
    EditorScene()
    {
        BOMTemplate settings;
        BOMFields fields;
        for (const auto &[heading, property] :
             {std::pair("Value", "VALUE"), std::pair("Footprint", "PACKAGE"), std::pair("MPN", "MPN"),
              std::pair("Manufacturer", "MAKER"), std::pair("Unit Cost", "COST"),
              std::pair("Side", ".Placed")}) {
            BOMField field;
            field.fieldName = QLatin1String(heading);
            field.propertyName = QLatin1String(property);
            fields.add(field);
        }
        settings.setFields(fields);
        database.setCurrentTemplate(settings);
        database.setNetlist(netlist.cache());
        load("GRM188R71H104KA93D");
        view.setPartsDatabase(&database);
        view.setAssignments(&assignments);
        view.resize(900, 480);
    }
    void load(const QByteArray &mpn)
    {
        netlist.clear();
        netlist.add("C1", "100nF", {{"PACKAGE", "Capacitor_SMD:C_0603_1608Metric"}, {"MPN", mpn}});
        netlist.add("C2", "100nF", {{"PACKAGE", "Capacitor_SMD:C_0603_1608Metric"}, {"MPN", mpn}});
        netlist.add("R1", "10k",
                    {{"PACKAGE", "Resistor_SMD:R_0603_1608Metric"},
                     {"MPN", "RC0603FR-0710KL"},
                     {"COST", "0.01"},
                     {"MAKER", "Yageo"},
                     {"BOMLINKS", "MPN=https%3A%2F%2Fexample.com%2Frc0603"}});
        netlist.add("R2", "4k7", {{"PACKAGE", "Resistor_SMD:R_0603_1608Metric"}, {"MPN", "RC0603FR-074K7L"}});
        netlist.add("R10", "4k7", {{"MPN", "RC0603FR-074K7L"}});
        netlist.add("U1", "LM358", {{"PACKAGE", "Package_SO:SOIC-8"}, {"BOMPART1", "'2','SCR','M3x8'"}});
        database.reload();
    }
    template<class Widget>
    Widget *child(const char *name) const
    {
        return view.findChild<Widget *>(QLatin1String(name));
    }

    FakeCdb cdb;
    FakeNetlist netlist;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
    BOMDataView view;
};

std::shared_ptr<QWidget> propertyEditor()
{
    const auto scene = std::make_shared<EditorScene>();
    scene->assignments.assign(QStringLiteral("C1"), QStringLiteral("MPN"), QStringLiteral("CL10B104KB8NNNC"));
    scene->assignments.assign(QStringLiteral("R2"), QStringLiteral("MAKER"), QStringLiteral("Yageo"));
    scene->assignments.assign(QStringLiteral("U1"), QStringLiteral("COST"), QStringLiteral("0.45"));
    scene->load("GCM188R71H104KA57D");
    scene->child<QCheckBox>("showLinksCheckBox")->click();
    return {scene, &scene->view};
}

std::shared_ptr<QWidget> groupedPropertyEditor()
{
    const auto scene = std::make_shared<EditorScene>();
    scene->assignments.assign(QStringLiteral("C1"), QStringLiteral("MPN"), QStringLiteral("CL10B104KB8NNNC"));
    scene->child<QCheckBox>("groupingCheckbox")->click();
    scene->child<QLineEdit>("filterEdit")->setText(QStringLiteral("smd"));
    scene->child<QTableWidget>("partsView")->setCurrentCell(1, 3);
    return {scene, &scene->view};
}

std::shared_ptr<QWidget> emptyPropertyEditor()
{
    const auto view = std::make_shared<BOMDataView>();
    view->resize(900, 300);
    view->handleBOMDataUpdate();
    return view;
}

/// At the end of a search that did not replace all.
std::shared_ptr<QWidget> findAndReplace()
{
    struct Scene
    {
        SampleDesign design;
        PropertyAssignments assignments{&design.database};
        BOMDataView view;
    };
    const auto scene = std::make_shared<Scene>();
    scene->design.database.setCurrentTemplate(BOMTemplate());
    scene->view.setPartsDatabase(&scene->design.database);
    scene->view.setAssignments(&scene->assignments);
    scene->view.handleBOMDataUpdate();
    auto *table = scene->view.findChild<QTableWidget *>(QStringLiteral("partsView"));
    table->setCurrentCell(0, 0);
    table->hideRow(1);
    scene->view.showReplaceDialogue();
    auto *dialog = scene->view.findChild<PropsFindAndReplace *>();
    dialog->findChild<QLineEdit *>(QStringLiteral("replaceEdit"))->setText(QStringLiteral("R-0603-103"));
    dialog->findChild<QAbstractButton *>(QStringLiteral("replaceAllBtn"))->click();
    return {scene, dialog};
}

/// Edits of all kinds against a design in files that another program has changed since.
struct ReviewScene
{
    [[nodiscard]] bool open()
    {
        const QString examples = QStringLiteral(BOM_SOURCE_DIR "/examples/audio-amplifier/");
        for (const QString &name : QDir(examples).entryList(QDir::Files)) {
            QFile::copy(examples + name, folder.filePath(name));
        }
        if (!session.open(folder.filePath(QStringLiteral("audio-amplifier.kicad_pro")))) {
            return false;
        }
        cache.setsource(&session.netlist());
        database.setNetlist(&cache);
        return true;
    }
    void load()
    {
        cache.validate(1);
        database.reload();
    }

    QTemporaryDir folder;
    DesignSession session;
    NETCACHE cache;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
    std::unique_ptr<PendingReview> dialog;
};

std::shared_ptr<QWidget> pendingReview(bool isRefused)
{
    const auto scene = std::make_shared<ReviewScene>();
    if (!scene->open()) {
        return nullptr;
    }
    scene->load();
    const auto assign = [&scene](const char *reference, const char *property, const char *value) {
        scene->assignments.assign(QString::fromUtf8(reference), QString::fromUtf8(property),
                                  QString::fromUtf8(value));
    };
    assign("R1", "CODE", "R-0603-103");
    assign("R2", "VALUE", "47k");
    assign("HS2", "COST", "0.41");
    assign("C1", "MPN", "GRM188R71H104KA93D");
    assign("C2", "CODE", "");
    assign("Q99", "CODE", "T-3904");
    assign("R101", "CODE", "R-0603-472");
    if (isRefused) {
        assign("R201", "CODE", "R-0603-222");
    }
    // What KiCad does meanwhile.
    QFile file(scene->folder.filePath(QStringLiteral("power_supply.kicad_sch")));
    if (!file.open(QIODevice::ReadWrite)) {
        return nullptr;
    }
    const QByteArray changed = file.readAll().replace("\"R06-0007\"", "\"R06-0008\"");
    file.seek(0);
    file.write(changed);
    file.close();
    if (!scene->session.reread()) {
        return nullptr;
    }
    scene->load();
    scene->dialog = std::make_unique<PendingReview>(&scene->assignments, &scene->database);
    return {scene, scene->dialog.get()};
}

/// The program with the example open, as on a small screen; `act` is done with the window that is shown.
std::shared_ptr<QWidget> mainWindow(const std::function<void(QWidget &)> &act = {})
{
    constexpr QSize smallScreen(1366, 768);
    const auto bench = std::make_shared<Workbench>();
    if (!bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")) ||
        !bench->open(QStringLiteral(BOM_SOURCE_DIR "/examples/audio-amplifier/audio-amplifier.kicad_pro"))) {
        return nullptr;
    }
    bench->window().resize(smallScreen);
    if (act) {
        bench->window().show();
        act(bench->window());
    }
    return {bench, &bench->window()};
}

void showEditor(QWidget &window)
{
    window.findChild<QTabWidget *>(QStringLiteral("tabWidget"))->setCurrentIndex(1);
}

/// The report with a text that was looked for, somewhat larger.
void findInReport(QWidget &window)
{
    window.findChild<QAction *>(QStringLiteral("zoomIn"))->trigger();
    window.findChild<QAction *>(QStringLiteral("findInReport"))->trigger();
    window.findChild<QLineEdit *>(QStringLiteral("findText"))->setText(QStringLiteral("smd"));
    constexpr int untilMarked = 300;
    QTest::qWait(untilMarked);
}

std::shared_ptr<QWidget> startPage(QSize size)
{
    struct Scene
    {
        QAction open;
        EmptyPage page{&open};
    };
    const auto scene = std::make_shared<Scene>();
    scene->page.setUnwrittenEdits(
        {{QStringLiteral("/home/ada/amplifier/amplifier.kicad_sch"), QStringLiteral("Lite"), 3}});
    scene->page.setRecentFiles(
        {QStringLiteral(BOM_SOURCE_DIR "/examples/audio-amplifier/audio-amplifier.kicad_pro"),
         QStringLiteral("/home/ada/boards/of the year 2026/a folder with a long name/another "
                        "folder with a long name/R&D board.kicad_pro")});
    scene->page.setExamples(exampleDesignsIn(QStringLiteral(BOM_SOURCE_DIR "/examples")));
    scene->page.resize(size);
    return {scene, &scene->page};
}

std::shared_ptr<QWidget> readingPanel()
{
    struct Scene
    {
        QWidget window;
        ReadingPanel panel{&window};
    };
    const auto scene = std::make_shared<Scene>();
    scene->window.resize(600, 300);
    scene->panel.showText(QStringLiteral("Reading a-rather-large-design.kicad_pro…"));
    return {scene, &scene->window};
}

/// With all fields of the status bar, in little room.
std::shared_ptr<QWidget> narrowWindow()
{
    struct Scene
    {
        QTemporaryDir folder;
        std::unique_ptr<Workbench> bench = std::make_unique<Workbench>();
    };
    const auto scene = std::make_shared<Scene>();
    const QString file = scene->folder.filePath(QStringLiteral("list.csv"));
    QFile list(file);
    if (!list.open(QIODevice::WriteOnly) ||
        list.write(
            "Reference,Value,MPN,DNP,BOMSKIP\nR1,1k,A,,\nR2,1k,B,,\nR1,3k,,,\nR3,1k,,1,\nR4,1k,,,1\n") < 0) {
        return nullptr;
    }
    list.close();
    if (!scene->bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")) || !scene->bench->open(file)) {
        return nullptr;
    }
    FrameWindow &window = scene->bench->window();
    window.status().setWritten(QStringLiteral("amplifier bill of materials.xlsx"),
                               window.menus().outputActions());
    window.status().setProblem(QStringLiteral("list.csv: there is no such file"));
    window.resize(window.minimumSizeHint().width(), 500);
    return {scene, &window};
}

} // namespace

QList<Picture> pictures()
{
    const QList<Picture> own = {
        {QStringLiteral("icons"), icons},
        {QStringLiteral("main-window"), [] { return mainWindow(); }},
        {QStringLiteral("advanced-settings-widths"), [] { return advancedSettings(0); }},
        {QStringLiteral("advanced-settings-ascii"), [] { return advancedSettings(1); }},
        {QStringLiteral("advanced-settings-data"), [] { return advancedSettings(2); }},
        {QStringLiteral("advanced-settings-other"), [] { return advancedSettings(3); }},
        {QStringLiteral("property-creator"), propertyCreator},
        {QStringLiteral("property-editor"), propertyEditor},
        {QStringLiteral("property-editor-grouped"), groupedPropertyEditor},
        {QStringLiteral("property-editor-empty"), emptyPropertyEditor},
        {QStringLiteral("template-importer"), templateImporter},
        {QStringLiteral("template-editor"), templateEditor},
        {QStringLiteral("style-editor"), styleEditor},
        {QStringLiteral("find-and-replace"), findAndReplace},
        {QStringLiteral("pending-review"), [] { return pendingReview(false); }},
        {QStringLiteral("pending-review-refused"), [] { return pendingReview(true); }},
        {QStringLiteral("main-window-editor"), [] { return mainWindow(showEditor); }},
        {QStringLiteral("main-window-find"), [] { return mainWindow(findInReport); }},
        {QStringLiteral("start-page"),
         [] {
             return startPage({900, 700});
         }},
        {QStringLiteral("start-page-small"),
         [] {
             return startPage({500, 360});
         }},
        {QStringLiteral("reading-panel"), readingPanel},
        {QStringLiteral("main-window-narrow"), narrowWindow},
    };
    return own + panelPictures();
}
