// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/propdefs/propdef.h"
#include "host/widgets/applndialog.h"

#include <QString>
#include <QStringList>

#include <memory>

class BOMPartsDatabase;
class QPushButton;

namespace Ui {
class PhysicalPropertyCreator;
}

/// Defines a new property in the user's definitions file.
class PhysicalPropertyCreator final : public APPLNDIALOG
{
    Q_OBJECT

public:
    /// `database` is told about new definitions; it is not owned, and without it none can be made.
    explicit PhysicalPropertyCreator(BOMPartsDatabase *database, QWidget *parent = nullptr);
    ~PhysicalPropertyCreator() override;

    /// Proposes a name. Names that are added to a first one come one after the other.
    void addPropertyName(const QString &name);
    /// What stands in the field: once the dialog was accepted the name that was defined last.
    [[nodiscard]] QString propertyName() const;

public Q_SLOTS:
    /// Defines what was entered, then goes on to the next name or closes. A failure is shown in a
    /// box and changes nothing.
    void createNewPhysicalProperty();

private:
    void fillTypes();
    void setValidators();
    /// False when there is no further name.
    bool proposeNext();
    void skip();
    /// The message of what went wrong, empty when the property is defined.
    [[nodiscard]] QString define();

    std::unique_ptr<Ui::PhysicalPropertyCreator> m_ui;
    BOMPartsDatabase *m_database;
    QPushButton *m_skip;
    QStringList m_names;
    bool m_hasProposal = false;
};
