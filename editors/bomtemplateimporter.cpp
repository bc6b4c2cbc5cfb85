// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomtemplateimporter.h"

#include "editors/physicalpropertycreator.h"
#include "host/framework/hostui.h"
#include "templates/legacytemplate.h"
#include "templates/templatestore.h"
#include "ui_bomtemplateimporter.h"

#include <QDir>
#include <QSignalBlocker>

BOMTemplateImporter::BOMTemplateImporter(TemplateStore *store, BOMPartsDatabase *database, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::BOMTemplateImporter>())
    , m_store(store)
    , m_database(database)
{
    m_ui->setupUi(this);
    // Return belongs to the line edits.
    for (QAbstractButton *button : m_ui->buttonBox->buttons()) {
        static_cast<QPushButton *>(button)->setAutoDefault(false);
    }
    setUpRegistry();
    connectWidgets();
    setImportMode();
}

BOMTemplateImporter::~BOMTemplateImporter() = default;

void BOMTemplateImporter::setUpRegistry()
{
#ifdef Q_OS_WIN
    m_ui->regRadioBtn->setChecked(true);
#else
    const QString reason = tr("This system has no registry: export the scripts into a file.");
    m_ui->regRadioBtn->setEnabled(false);
    m_ui->regRadioBtn->setToolTip(reason);
    m_ui->regRadioBtn->setAccessibleDescription(reason);
#endif
}

void BOMTemplateImporter::explain()
{
    m_ui->offerLabel->show();
}

void BOMTemplateImporter::connectWidgets()
{
    using This = BOMTemplateImporter;
    connect(m_ui->fileRadioBtn, &QRadioButton::toggled, this, &This::setImportMode);
    connect(m_ui->reloadBtn, &QPushButton::clicked, this, &This::reloadScripts);
    connect(m_ui->pathLineEdit, &QLineEdit::returnPressed, this, &This::reloadScripts);
    connect(m_ui->fileBrowseBtn, &QPushButton::clicked, this, &This::browseForFile);
    connect(m_ui->scriptsCombo, &QComboBox::currentIndexChanged, this, &This::setOutputName);
    connect(m_ui->templateNameEdit, &QLineEdit::returnPressed, this, &This::importBomScript);
    connect(m_ui->importBtn, &QPushButton::clicked, this, &This::importBomScript);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &This::reject);
}

void BOMTemplateImporter::setImportMode()
{
    const bool isFile = m_ui->fileRadioBtn->isChecked();
    if (isFile) {
        m_ui->pathLineEdit->setText(m_filePath);
    } else {
        m_filePath = m_ui->pathLineEdit->text();
        m_ui->pathLineEdit->clear();
    }
    m_ui->pathLineEdit->setReadOnly(!isFile);
    m_ui->fileBrowseBtn->setEnabled(isFile);
    reloadScripts();
}

QList<LegacyScript> BOMTemplateImporter::readScripts(QString *problem)
{
#ifdef Q_OS_WIN
    if (m_ui->regRadioBtn->isChecked()) {
        QString path;
        QList<LegacyScript> scripts = registryLegacyScripts(&path);
        m_ui->pathLineEdit->setText(path);
        return scripts;
    }
#endif
    const QString path = QDir::fromNativeSeparators(m_ui->pathLineEdit->text().trimmed());
    if (path.isEmpty()) {
        return {};
    }
    QStringList problems;
    QList<LegacyScript> scripts = readLegacyScripts(path, &problems);
    *problem = problems.value(0);
    return scripts;
}

void BOMTemplateImporter::reloadScripts()
{
    QString problem;
    m_scripts = readScripts(&problem);
    QStringList names;
    for (const LegacyScript &script : std::as_const(m_scripts)) {
        names.append(script.name);
    }
    QComboBox &combo = *m_ui->scriptsCombo;
    {
        const QSignalBlocker blocker(combo);
        combo.clear();
        combo.addItems(names);
        combo.setCurrentIndex(names.isEmpty() ? -1 : 0);
    }
    combo.setEnabled(!names.isEmpty());
    combo.setToolTip(problem.toHtmlEscaped());
    m_ui->importBtn->setEnabled(!names.isEmpty());
    setOutputName();
}

void BOMTemplateImporter::browseForFile()
{
    const QString path =
        HostUi::current().openFileName(this, tr("Legacy BOM Script Export"), m_ui->pathLineEdit->text(),
                                       tr("BOM Script File (*.BSF);;Text File (*.txt)"));
    if (!path.isEmpty()) {
        m_ui->pathLineEdit->setText(QDir::toNativeSeparators(path));
        reloadScripts();
    }
}

void BOMTemplateImporter::setOutputName()
{
    m_ui->templateNameEdit->clear();
    const int index = m_ui->scriptsCombo->currentIndex();
    if (index >= 0) {
        m_ui->templateNameEdit->setText(proposedTemplateName(m_scripts.at(index).name, m_store->templates()));
    }
}

void BOMTemplateImporter::importBomScript()
{
    const int index = m_ui->scriptsCombo->currentIndex();
    if (index < 0) {
        return;
    }
    BOMTemplate made = legacyTemplate(m_scripts.at(index));
    const QString name = m_ui->templateNameEdit->text().trimmed();
    if (m_store->templates().contains(name)) {
        HostUi::current().warning(this, tr("Import Failed"),
                                  tr("A template named '%1' already exists!").arg(name));
        return;
    }
    // Before anything is defined for it.
    if (const QString problem = m_store->creationProblem(name); !problem.isEmpty()) {
        HostUi::current().information(this, TemplateStore::tr("Could not create template"), problem);
        return;
    }
    defineProperties(made);
    made.setName(name);
    if (m_store->add(made)) {
        HostUi::current().information(
            this, tr("Import Succeeded"),
            tr("The legacy BOM script imported successfully as '%1'").arg(made.name()));
    }
}

void BOMTemplateImporter::defineProperties(const BOMTemplate &made)
{
    const QStringList undefined = undefinedProperties(made);
    if (undefined.isEmpty() ||
        !HostUi::current().question(this, tr("Undefined Physical Properties"),
                                    tr("Define the %1 undefined physical properties?").arg(undefined.size()),
                                    true)) {
        return;
    }
    PhysicalPropertyCreator creator(m_database, this);
    for (const QString &name : undefined) {
        creator.addPropertyName(name);
    }
    creator.exec();
}
