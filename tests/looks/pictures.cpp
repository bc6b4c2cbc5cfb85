// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/pictures.h"

#include "app/workbench.h"
#include "core/bompartsdatabase.h"
#include "editors/advancedsettings.h"
#include "editors/bomtemplateimporter.h"
#include "editors/physicalpropertycreator.h"
#include "looks/iconsheet.h"
#include "looks/panelpictures.h"
#include "richtext/editor/textedit.h"
#include "richtext/editor/textstyleeditor.h"
#include "support/fakenetlist.h"
#include "support/testpaths.h"
#include "templates/bomtemplate.h"
#include "templates/templatestore.h"
#include "views/bomtemplateeditor.h"

#include <QTabWidget>

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

std::shared_ptr<QWidget> mainWindow()
{
    const auto bench = std::make_shared<Workbench>();
    if (!bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")) ||
        !bench->open(QStringLiteral(BOM_SOURCE_DIR "/examples/audio-amplifier/audio-amplifier.kicad_pro"))) {
        return nullptr;
    }
    bench->window().resize(1000, 700);
    return {bench, &bench->window()};
}

} // namespace

QList<Picture> pictures()
{
    const QList<Picture> own = {
        {QStringLiteral("icons"), icons},
        {QStringLiteral("main-window"), mainWindow},
        {QStringLiteral("advanced-settings-widths"), [] { return advancedSettings(0); }},
        {QStringLiteral("advanced-settings-ascii"), [] { return advancedSettings(1); }},
        {QStringLiteral("advanced-settings-data"), [] { return advancedSettings(2); }},
        {QStringLiteral("advanced-settings-other"), [] { return advancedSettings(3); }},
        {QStringLiteral("property-creator"), propertyCreator},
        {QStringLiteral("template-importer"), templateImporter},
        {QStringLiteral("template-editor"), templateEditor},
        {QStringLiteral("style-editor"), styleEditor},
    };
    return own + panelPictures();
}
