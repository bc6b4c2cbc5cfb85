// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "looks/panelpictures.h"

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "editors/bomcategoriestable.h"
#include "editors/bomcategoryeditor.h"
#include "editors/bomfieldeditor.h"
#include "editors/bomfieldstable.h"
#include "editors/bompartcreator.h"
#include "editors/bompartremover.h"
#include "editors/noteseditor.h"
#include "support/fakenetlist.h"
#include "templates/bomtemplate.h"

#include <QTableWidget>

namespace {

using namespace Qt::StringLiterals;

struct PanelDesign
{
    PanelDesign()
    {
        netlist.cache()->propertyNames = {"Footprint", "MPN", "Manufacturer"};
        netlist.add("R1", "10k");
        netlist.add("RV1", "10k");
        netlist.add("U1", "LM317", {{"BOMPART1", "'2','SCR','M3 x 8'"}});
        database.setNetlist(netlist.cache());
        database.setCurrentTemplate(BOMTemplate());
        database.load();
    }

    [[nodiscard]] static BOMField longField()
    {
        BOMField field;
        field.fieldName = u"Part number of the manufacturer"_s;
        field.propertyName = u"Manufacturer_Part_Number"_s;
        field.suffix = u" EUR"_s;
        field.fieldWidth = 12;
        field.generateTotals = true;
        field.precision = 2;
        return field;
    }

    FakeNetlist netlist;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
};

template<class Widget>
struct Scene
{
    template<class... Arguments>
    explicit Scene(Arguments... arguments)
        : widget(&design.database, arguments...)
    {
    }

    PanelDesign design;
    Widget widget;
};

template<class Table>
struct TableScene
{
    TableScene() { table.resize(300, 190); }

    void choose(int row) { table.template findChild<QTableWidget *>()->setCurrentCell(row, 0); }

    PanelDesign design;
    Table table;
};

std::shared_ptr<QWidget> fieldsTable()
{
    const auto scene = std::make_shared<TableScene<BOMFieldsTable>>();
    BOMFields fields;
    fields.setDefaults();
    fields.add(PanelDesign::longField());
    scene->table.setFields(fields);
    scene->choose(3);
    return {scene, &scene->table};
}

std::shared_ptr<QWidget> categoriesTable()
{
    const auto scene = std::make_shared<TableScene<BOMCategoriesTable>>();
    QList<BOMCategory> categories = BOMCategory::defaults();
    categories[2].references = {u"R"_s, u"RV"_s, u"RN"_s};
    scene->table.setCategories(categories);
    scene->choose(2);
    return {scene, &scene->table};
}

std::shared_ptr<QWidget> fieldEditor()
{
    const auto scene = std::make_shared<Scene<BOMFieldEditor>>(PanelDesign::longField());
    return {scene, &scene->widget};
}

std::shared_ptr<QWidget> narrowFieldEditor()
{
    std::shared_ptr<QWidget> editor = fieldEditor();
    editor->resize(editor->minimumSizeHint());
    return editor;
}

std::shared_ptr<QWidget> categoryEditor(const BOMCategory &category)
{
    const auto scene = std::make_shared<Scene<BOMCategoryEditor>>(category);
    return {scene, &scene->widget};
}

std::shared_ptr<QWidget> notesEditor()
{
    const auto editor = std::make_shared<NotesEditor>();
    editor->setText(u"All resistors 1 %.\nNo <substitutes> for U1."_s);
    return editor;
}

template<class Dialog>
std::shared_ptr<QWidget> partDialog()
{
    struct PartScene
    {
        PanelDesign design;
        Dialog dialog{&design.assignments, &design.database};
    };
    const auto scene = std::make_shared<PartScene>();
    return {scene, &scene->dialog};
}

} // namespace

QList<Picture> panelPictures()
{
    return {
        {u"fields-table"_s, fieldsTable},
        {u"categories-table"_s, categoriesTable},
        {u"field-editor"_s, fieldEditor},
        {u"field-editor-narrow"_s, narrowFieldEditor},
        {u"category-editor"_s,
         [] {
             return categoryEditor({u"Resistors"_s, {u"R"_s, u"RV"_s}, false});
         }},
        {u"category-editor-misc"_s,
         [] {
             return categoryEditor({u"Miscellaneous"_s, {}, true});
         }},
        {u"notes-editor"_s, notesEditor},
        {u"part-creator"_s, partDialog<BOMPartCreator>},
        {u"part-remover"_s, partDialog<BOMPartRemover>},
    };
}
