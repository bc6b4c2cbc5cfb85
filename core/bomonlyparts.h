// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/definedparts.h"
#include "core/referencenumbers.h"
#include "host/netlist/netlist.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class BOMCategories;
class LinkTable;
class PartDatabase;
class PartStore;

/// The definitions of BOM-only parts that one placed part has.
struct ParentDefinitions
{
    QString parentReference;
    QList<DefinitionProperty> definitions;
};

/// BOM-only parts of one definition that are not in the bill.
struct LeftOutBOMParts
{
    QString parentReference;
    /// The property that defines them.
    QString property;
    int count = 0;
    /// Marked BOMSKIP; otherwise the choice for parts that are not fitted leaves them out.
    bool isSkipped = false;
    bool isFitted = true;

    bool operator==(const LeftOutBOMParts &) const = default;
};

/// The BOM-only parts of the design by the placed parts that define them. They are held in the store of all
/// parts, sorted into categories and known to the links like placed ones.
class BOMOnlyParts final
{
public:
    /// None is owned; all must outlive the parts. `database` is what the parts ask.
    BOMOnlyParts(const PartDatabase *database, PartStore *store, BOMCategories *categories, LinkTable *links);

    /// What a property DNP says of a part, see NETLIST::fitting.
    using Fitting = std::function<FITTING(QByteArrayView)>;

    /// Makes the parts of a design whose placed parts were all added, parent by parent. Definitions with
    /// BOMSKIP or whose parts `fitting` does not list make none, and stay as they are. With `marksNotFitted`
    /// parts that are not fitted are marked, see Part::isNotFitted().
    void load(const QList<ParentDefinitions> &parents, const Fitting &fitting, bool marksNotFitted);
    /// Makes the parts of these definitions, in the order of their texts.
    void make(const ParentDefinitions &parent);
    /// Forgets all parts, which the store lets go of.
    void clear();

    /// Defines and makes further parts, see BOMPartsDatabase::addBOMParts().
    [[nodiscard]] std::optional<DefinitionProperty>
    add(const QString &parentReference, int count, const QString &escapedPrefix, const QString &escapedValue);
    /// Changes a property or the value, see BOMPartsDatabase::setBOMPartProperty().
    [[nodiscard]] bool setProperty(const QString &reference, const QString &name, const QString &text);
    /// Lets go of a part, see BOMPartsDatabase::removeBOMPart().
    [[nodiscard]] bool remove(const QString &parentReference, const QString &reference);

    /// In the order in which they were made.
    [[nodiscard]] QList<BOMPart *> parts(const QString &parentReference) const;
    /// The properties that define the parts now. All of them give way to rewritten().
    [[nodiscard]] QStringList propertyNames(const QString &parentReference) const;
    /// What defines the parts as they are, from BOMPART0 on. Nothing when a text cannot be written.
    [[nodiscard]] std::optional<QList<DefinitionProperty>> rewritten(const QString &parentReference) const;
    /// Definitions that make no parts, or not as they say, in the order of loading.
    [[nodiscard]] const QList<DefinitionProblem> &problems() const { return m_problems; }
    [[nodiscard]] const QList<LeftOutBOMParts> &leftOut() const { return m_leftOut; }
    /// The references of BOM-only parts that another part has already.
    [[nodiscard]] const QStringList &duplicates() const { return m_duplicates; }

private:
    /// The last number given to each prefix while the definitions of one part are worked through.
    using LastNumbers = QHash<QString, int>;

    /// Makes all parts, or none and says why.
    [[nodiscard]] std::optional<DefinitionFault>
    make(const QString &parentReference, const BOMPartDefinition &definition, LastNumbers *lastNumbers);
    /// Nothing for parts that are to be made.
    [[nodiscard]] std::optional<LeftOutBOMParts> leftOut(const QString &parentReference,
                                                         const BOMPartDefinition &definition) const;
    [[nodiscard]] FITTING fittingOf(const QString &parentReference,
                                    const BOMPartDefinition &definition) const;
    /// Whether the definition itself says so.
    [[nodiscard]] FITTING ownFittingOf(const BOMPartDefinition &definition) const;
    void markNotFitted(BOMPart *part, const BOMPartDefinition &definition);
    [[nodiscard]] BOMPart *hold(std::unique_ptr<BOMPart> part);
    /// Null for an unknown reference and a placed part.
    [[nodiscard]] BOMPart *find(const QString &reference) const;
    [[nodiscard]] ReferenceNumbers &referenceNumbers();

    const PartDatabase *m_database;
    PartStore *m_store;
    BOMCategories *m_categories;
    LinkTable *m_links;
    /// By the reference of the parent.
    QHash<QString, DefinedParts> m_defined;
    QList<DefinitionProblem> m_problems;
    QStringList m_duplicates;
    QList<LeftOutBOMParts> m_leftOut;
    Fitting m_fitting;
    bool m_marksNotFitted = false;
    int m_count = 0;
    /// Of all parts in the store; made when a definition asks for it.
    std::optional<ReferenceNumbers> m_referenceNumbers;
};
