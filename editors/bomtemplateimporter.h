// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/widgets/applndialog.h"
#include "templates/legacyscripts.h"

#include <QList>
#include <QString>

#include <memory>

class BOMPartsDatabase;
class BOMTemplate;
class TemplateStore;

namespace Ui {
class BOMTemplateImporter;
}

/// Makes templates of the BOM scripts of earlier versions.
class BOMTemplateImporter final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// The store takes the templates; the database is told about properties that the user defines on the way.
    /// Neither is owned.
    BOMTemplateImporter(TemplateStore *store, BOMPartsDatabase *database, QWidget *parent = nullptr);
    ~BOMTemplateImporter() override;

    /// Says what the dialog is for, to a user who has not asked for it.
    void explain();

public Q_SLOTS:
    /// Follows the choice between registry and file.
    void setImportMode();
    /// Reads the scripts anew. When there are none, a tool tip of their list says why.
    void reloadScripts();
    void browseForFile();
    /// Proposes a name for the chosen script.
    void setOutputName();
    /// Adds the chosen script to the store as a template.
    void importBomScript();

private:
    void setUpRegistry();
    void connectWidgets();
    [[nodiscard]] QList<LegacyScript> readScripts(QString *problem);
    void defineProperties(const BOMTemplate &made);

    std::unique_ptr<Ui::BOMTemplateImporter> m_ui;
    TemplateStore *m_store;
    BOMPartsDatabase *m_database;
    QList<LegacyScript> m_scripts;
    /// As the user chose it, while the line edit shows the registry's path.
    QString m_filePath;
};
