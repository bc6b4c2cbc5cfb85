// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/bomfieldstable.h"

#include "core/propertyquery.h"
#include "core/templatesettings.h"
#include "editors/bomfieldeditor.h"
#include "host/framework/hostui.h"
#include "templates/bomtemplate.h"

#include <QAction>
#include <QPointer>

#include <algorithm>

BOMFieldsTable::BOMFieldsTable(QWidget *parent)
    : BOMOptionsTable(parent)
{
    setTitle(tr("Fields"));
    setHeaders({tr("Field"), tr("Property")});
    connect(this, &BOMOptionsTable::addClicked, this, &BOMFieldsTable::addField);
    connect(this, &BOMOptionsTable::editClicked, this, &BOMFieldsTable::editField);
    connect(this, &BOMOptionsTable::deleteClicked, this, &BOMFieldsTable::removeField);
    connect(this, &BOMOptionsTable::orderChanged, this, &BOMFieldsTable::bomFieldOrderChanged);
    const QAction *editValues = addCommand(tr("Edit &Values of the Parts"));
    connect(editValues, &QAction::triggered, this, [this] {
        if (currentRow() >= 0) {
            Q_EMIT showGlobalPropertyEditor(m_fields.get(currentName()).propertyName);
        }
    });
}

void BOMFieldsTable::setFields(const BOMFields &fields)
{
    BOMTemplate settings;
    settings.setFields(fields);
    (void)repairTemplate(settings);
    m_fields = settings.fields();
    showFields(currentName());
}

void BOMFieldsTable::showFields(const QString &currentName)
{
    QList<Row> rows;
    for (const BOMField &field : m_fields.fields()) {
        rows.append({{field.fieldName, field.propertyName}});
    }
    showRows(rows, int(m_fields.names().indexOf(currentName)));
}

void BOMFieldsTable::change(const BOMFields &fields, const QString &currentName)
{
    m_fields = fields;
    showFields(currentName);
    Q_EMIT bomFieldsUpdated(m_fields);
}

QString BOMFieldsTable::currentName() const
{
    return text(currentRow(), 0);
}

bool BOMFieldsTable::isProtected(const QString &name) const
{
    return m_fields.get(name).propertyName == valueProperty();
}

void BOMFieldsTable::updateBtns(int row)
{
    BOMOptionsTable::updateBtns(row);
    if (isProtected(text(row, 0))) {
        protectRow();
    }
}

std::optional<Refusal> BOMFieldsTable::refusal(const BOMField &edited, const QString &replaced) const
{
    const QString notSaved = tr("Could not save field");
    if (edited.fieldName.isEmpty() || edited.propertyName.isEmpty()) {
        return Refusal{notSaved, tr("Field '%1' requires a valid name and its property '%2' to be defined.")
                                     .arg(edited.fieldName, edited.propertyName)};
    }
    if (edited.fieldName != replaced && m_fields.contains(edited.fieldName)) {
        return Refusal{replaced.isEmpty() ? tr("Could not add field") : tr("Could not rename field"),
                       tr("Field name '%1' already in use").arg(edited.fieldName)};
    }
    // A second one could be neither edited nor deleted again.
    if (edited.propertyName.compare(valueProperty(), Qt::CaseInsensitive) == 0) {
        return Refusal{notSaved, tr("The property '%1' has a field already.").arg(edited.propertyName)};
    }
    return std::nullopt;
}

std::optional<BOMField> BOMFieldsTable::run(const BOMField &field, const QString &replaced)
{
    const QPointer<BOMFieldEditor> editor = new BOMFieldEditor(m_database, field, this);
    editor->setCheck([this, replaced](const BOMField &edited) { return refusal(edited, replaced); });
    const bool isAccepted = editor->exec() == QDialog::Accepted;
    if (!editor) {
        return std::nullopt;
    }
    editor->deleteLater();
    return isAccepted ? std::optional(editor->field()) : std::nullopt;
}

void BOMFieldsTable::addField()
{
    const QString before = currentName();
    insertEmptyRow(rowCount());
    // The window may be closed while the editor is open.
    const QPointer<BOMFieldsTable> guard(this);
    const std::optional<BOMField> added = run(BOMField(), {});
    if (!guard) {
        return;
    }
    if (!added) {
        showFields(before);
        return;
    }
    BOMFields fields = m_fields;
    fields.add(*added);
    change(fields, added->fieldName);
}

void BOMFieldsTable::editField()
{
    const QString name = currentName();
    if (!m_fields.contains(name)) {
        return;
    }
    if (isProtected(name)) {
        HostUi::current().information(this, tr("Could not edit field"),
                                      tr("The 'VALUE' field is not editable"));
        return;
    }
    const QPointer<BOMFieldsTable> guard(this);
    const std::optional<BOMField> edited = run(m_fields.get(name), name);
    if (!guard || !edited || *edited == m_fields.get(name)) {
        return;
    }
    BOMFields fields = m_fields;
    QStringList order = fields.names();
    order.replace(order.indexOf(name), edited->fieldName);
    fields.remove(name);
    fields.set(*edited);
    fields.setOrder(order);
    change(fields, edited->fieldName);
}

void BOMFieldsTable::removeField()
{
    const QString name = currentName();
    if (!m_fields.contains(name)) {
        return;
    }
    if (isProtected(name)) {
        HostUi::current().information(this, tr("Could not remove field"),
                                      tr("The 'VALUE' field is required"));
        return;
    }
    const qsizetype row = m_fields.names().indexOf(name);
    BOMFields fields = m_fields;
    fields.remove(name);
    change(fields, fields.names().value(std::min(row, fields.size() - 1)));
}

void BOMFieldsTable::bomFieldOrderChanged()
{
    QStringList order;
    for (int row = 0; row < rowCount(); ++row) {
        order.append(text(row, 0));
    }
    if (order == m_fields.names()) {
        return;
    }
    m_fields.setOrder(order);
    Q_EMIT bomFieldsUpdated(m_fields);
}
