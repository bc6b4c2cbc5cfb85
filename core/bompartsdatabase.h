// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/categorygroups.h"
#include "core/definedparts.h"
#include "core/groupedlines.h"
#include "core/partstore.h"
#include "core/propertytypes.h"
#include "core/referencenumbers.h"
#include "core/reportlines.h"
#include "host/netlist/proplist.h"
#include "templates/bomtemplate.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class APPLNDOCUMENT;
class NETCACHE;

/// The parts of the current design, sorted into the categories and lines of the current template.
/// Every change ends in one dataChanged(), however much it changed.
class BOMPartsDatabase final : public QObject
{
    Q_OBJECT

public:
    BOMPartsDatabase();
    ~BOMPartsDatabase() override;

    /// The one of the module, made at the first request.
    [[nodiscard]] static BOMPartsDatabase *instance();
    /// Destroys it; a later request makes a new one.
    static void destroyInstance();

    /// The netlist to load from, null for none. Not owned; it must stay until it is replaced.
    void setNetlist(NETCACHE *netlist) { m_netlist = netlist; }
    /// Tells whether the module's window can be seen; without it none can.
    void setWindowVisibleQuery(std::function<bool()> query) { m_isWindowVisible = std::move(query); }

    /// Lets go of all parts. Categories stay, and are empty.
    void clear();
    /// Adds the components of the netlist, except those marked BOMSKIP, then the BOM-only parts that they
    /// define. A reference that is held already becomes a duplicate.
    void load();
    /// What a changed design asks for: clears, loads and groups, and resumes notices that were suspended.
    void reload();
    /// Clears and sends no notices until reload().
    void clearAndSuspend();
    [[nodiscard]] bool isUpdating() const { return m_isUpdating; }
    /// While the design is being written, what the host tells of changes is to be ignored. The end of it asks
    /// the module "BOM" for one full reload.
    void setWriting(bool isWriting);
    [[nodiscard]] bool isWriting() const { return m_isWriting; }
    /// Emits dataChanged() unless notices are held back.
    void notify();

    /// Null when no part has that reference. Parts live until clear().
    [[nodiscard]] Part *part(const QString &reference) const { return m_parts.find(reference); }
    /// All parts in the order of the netlist, BOM-only parts behind.
    [[nodiscard]] std::span<Part *const> parts() const { return m_parts.parts(); }
    /// Empty for an unknown reference.
    [[nodiscard]] QString property(const QString &reference, const QString &name) const;
    /// References that came again, once per extra occurrence.
    [[nodiscard]] const QStringList &duplicateReferences() const { return m_duplicateReferences; }

    /// The texts of all properties that define BOM-only parts, in the order of the property list.
    [[nodiscard]] static QStringList bomPartDefinitions(const COMPONENT &component);
    /// Makes the parts of these definitions, in the order of their texts.
    void createBOMParts(const QString &parentReference, const QStringList &definitions);
    /// Defines and makes further parts of a placed part. In the two texts a single quote is written as \'.
    /// Gives the property to be written into the design; nothing, and nothing was made, when there is no such
    /// placed part, the count is not from 1 to mostPartsOfADefinition or a text cannot be written.
    std::optional<DefinitionProperty> addBOMParts(const QString &parentReference, int count,
                                                  const QString &escapedPrefix, const QString &escapedValue);
    /// Changes a property or the value of a BOM-only part; an empty text takes the property away. What the
    /// design is to hold then, rewrittenDefinitions() of the parent tells. False for any other part, and for
    /// a name or text that cannot be written.
    bool setBOMPartProperty(const QString &reference, const QString &name, const QString &text);
    /// Lets go of a BOM-only part; what the design is to hold then, rewrittenDefinitions() tells. False for
    /// one that the parent does not have, or whose definitions cannot be written.
    bool removeBOMPart(const QString &parentReference, const QString &reference);
    /// In the order in which they were made.
    [[nodiscard]] QList<BOMPart *> bomParts(const QString &parentReference) const;
    /// The properties that define the parts now. All of them give way to rewrittenDefinitions().
    [[nodiscard]] QStringList bomPartPropertyNames(const QString &parentReference) const;
    /// What defines the parts as they are, from BOMPART0 on. Nothing when a text cannot be written.
    [[nodiscard]] std::optional<QList<DefinitionProperty>>
    rewrittenDefinitions(const QString &parentReference) const;
    /// Definitions that make no parts, or not as said, in the order of loading.
    [[nodiscard]] const QList<DefinitionProblem> &definitionProblems() const { return m_definitionProblems; }
    /// Those of the duplicates that are BOM-only parts.
    [[nodiscard]] const QStringList &duplicateBOMParts() const { return m_duplicateBOMParts; }

    /// Takes the links of a part from the text of its property BOMLINKS; a text without any changes nothing.
    void setLinks(const QString &reference, const QString &text);
    /// The URLs by property name.
    [[nodiscard]] QMap<QString, QString> links(const QString &reference) const
    {
        return m_links.value(reference);
    }
    /// The URL for one property, whatever the letter case of its name; empty when there is none.
    [[nodiscard]] QString link(const QString &reference, const QString &propertyName) const;

    [[nodiscard]] const PropertyTypes &propertyTypes() const { return m_propertyTypes; }
    /// What changed property definitions ask for: reads them and groups anew.
    void updatePropertyTypes();
    /// A stored value as people see it.
    [[nodiscard]] QString displayValue(const QString &name, const QString &stored) const;
    [[nodiscard]] bool isNumeric(const QString &name) const { return m_propertyTypes.isNumeric(name); }
    /// One property prepared for being asked of many parts.
    [[nodiscard]] PropertyQuery propertyQuery(const QString &name) const;
    /// ".Placed" and ".Name" with the names that people see.
    [[nodiscard]] static QMap<QString, QString> pseudoPropertyNames();
    /// The properties that are offered for every design.
    [[nodiscard]] static QStringList standardPropertyNames();

    [[nodiscard]] QString designInfo(const char *key) const;
    [[nodiscard]] QString designTitle() const;
    [[nodiscard]] QString designAuthor() const;
    [[nodiscard]] QString designDocumentNumber() const;
    [[nodiscard]] QString designRevision() const;
    [[nodiscard]] QString designCreated() const;
    [[nodiscard]] QString designModified() const;
    [[nodiscard]] QString designVariant() const;
    /// The proposed absolute path of a report, `extension` with its dot.
    [[nodiscard]] QString defaultOutputPath(const QString &extension) const;
    /// The notes that the design had when it was loaded.
    [[nodiscard]] const QString &notes() const { return m_notes; }
    /// Writes the notes into the design when they differ. When that fails they stay as they were and
    /// notesError() says why.
    bool setNotes(const QString &text);
    [[nodiscard]] const QString &notesError() const { return m_notesError; }

    [[nodiscard]] const BOMTemplate &currentTemplate() const { return m_template; }
    /// Takes a copy as the working template, completes it (see templateRepairs()), and groups anew.
    void setCurrentTemplate(const BOMTemplate &settings);
    /// Takes over style sheet, header, footer and old HTML file of another template, which change no line.
    void setTemplateLook(const BOMTemplate &settings);
    /// Takes over the column widths, ManualPrettyLayout, AlwaysQuoteRefs, ExcludeValueField and
    /// CaseSensitiveGrouping of another template; only a change of the last one groups anew. A column takes
    /// the widths of the field of its name. False, and no notice, when nothing differs.
    bool setTemplateLayout(const BOMTemplate &settings);
    /// The same to go back to what was there before, with a notice of whether that was modified.
    void restoreTemplateLayout(const BOMTemplate &settings, bool wasModified);
    /// What the working template lacked when it was set, one sentence each.
    [[nodiscard]] const QStringList &templateRepairs() const { return m_templateRepairs; }
    [[nodiscard]] const BOMFields &fields() const { return m_fields; }
    /// The properties of the fields, in column order.
    [[nodiscard]] const QStringList &groupingFieldNames() const { return m_groupingFieldNames; }
    [[nodiscard]] const QString &miscCategoryName() const { return m_miscCategoryName; }

    /// The heading of the category that a reference belongs to.
    [[nodiscard]] QString categoryOf(const QString &reference) const;
    /// The headings that a report lists, in its order.
    [[nodiscard]] QStringList categoryNames() const;
    [[nodiscard]] int partCount(const QString &category) const;
    [[nodiscard]] int lineCount(const QString &category) const;
    [[nodiscard]] QStringList categoryValues(const QString &category) const;
    [[nodiscard]] QStringList categoryReferences(const QString &category) const;
    [[nodiscard]] QStringList valueReferences(const QString &category, const QString &value) const;
    /// The lines of a value, in the order of their grouping keys.
    [[nodiscard]] QList<QStringList> groupLines(const QString &category, const QString &value) const;
    /// The lines of a value as texts, see formatReferences().
    [[nodiscard]] QStringList formattedLines(const QString &category, const QString &value, int width,
                                             int lines) const;
    /// First reference and quantity of every line.
    [[nodiscard]] QList<QPair<QString, int>> lineSummaries(const QString &category) const;
    [[nodiscard]] QString groupingKey(const QString &reference) const;

    /// The references as the template lists them, within `lines` text lines of `width` characters.
    [[nodiscard]] QString formatReferences(const QStringList &references, int width, int lines) const;
    [[nodiscard]] QString formatReferences(BomLine line, int width, int lines) const;

    /// All lines of a category, values in order, or null for an unknown one. Valid until the next change.
    [[nodiscard]] const GroupedLines *categoryLines(const QString &category) const;
    /// The lines of a category, or its parts one by one, in the order of a report.
    [[nodiscard]] ReportLines reportLines(const QString &category, bool grouped) const;
    /// The lines that a report leaves out because another one begins with an equal reference, such as R01
    /// and R1, in all categories that it lists.
    [[nodiscard]] QList<ReplacedLine> replacedLines(bool grouped) const;

Q_SIGNALS:
    void dataChanged();
    void currentTemplateModified(bool modified);

public Q_SLOTS:
    void updateBOMFields(const BOMFields &fields);
    void updateBOMCategories(const QList<BOMCategory> &categories);
    void updateFieldGrouping();
    void nimProjectChanged(APPLNDOCUMENT *document);

private:
    class BulkChange;
    friend class CategoryGroups;
    friend class PropertyAssignments;

    /// Takes links and definitions of BOM-only parts from components. Parts are made when all components are
    /// there.
    class ComponentReader
    {
    public:
        explicit ComponentReader(BOMPartsDatabase *database);
        void read(const COMPONENT &component);
        void makeBOMParts() const;

    private:
        struct Collected
        {
            QString reference;
            QList<DefinitionProperty> definitions;
        };

        BOMPartsDatabase *m_database;
        PROPPREFIX m_definitions;
        PROPNAME m_links;
        QList<Collected> m_collected;
        QHash<QString, qsizetype> m_indices;
    };

    /// The last number given to each prefix while the definitions of one part are worked through.
    using LastNumbers = QHash<QString, int>;

    void makeDefinedParts(const QString &parentReference, QList<DefinitionProperty> definitions);
    /// Makes all parts, or none and says why.
    [[nodiscard]] std::optional<DefinitionFault> makeBOMParts(const QString &parentReference,
                                                              const BOMPartDefinition &definition,
                                                              LastNumbers *lastNumbers);
    BOMPart *addBOMPart(std::unique_ptr<BOMPart> part);
    [[nodiscard]] ReferenceNumbers &referenceNumbers();
    void takeLinks(const QString &reference, const QMap<QString, QString> &links);
    void clearBOMParts();

    void addPart(const COMPONENT &component);
    void putIntoCategory(Part &part);
    void putPartsIntoCategories();
    void applyFields(const BOMFields &fields);
    void applyCategories(const QList<BOMCategory> &categories);
    void addCategory(const BOMCategory &category);
    CategoryGroups &miscCategory();
    [[nodiscard]] const CategoryGroups *category(const QString &heading) const;
    /// The heading under which a prefix is listed, the miscellaneous one when it is listed nowhere.
    [[nodiscard]] QString headingOfPrefix(QStringView prefix) const;
    [[nodiscard]] CategoryGroups &storeOfPart(const Part &part);
    [[nodiscard]] Qt::CaseSensitivity caseRule() const;
    [[nodiscard]] GroupingRule groupingRule() const;
    [[nodiscard]] GroupedLines groupParts(std::span<Part *const> parts) const;

    NETCACHE *m_netlist = nullptr;
    std::function<bool()> m_isWindowVisible;
    PartStore m_parts;
    QStringList m_duplicateReferences;
    std::map<QString, CategoryGroups> m_categories;
    QMap<QString, QString> m_headingOfPrefix;
    /// By the number of a reference prefix, filled as they are met.
    std::vector<CategoryGroups *> m_storeOfPrefix;
    bool m_isUpdating = false;
    bool m_isWriting = false;
    QString m_miscCategoryName;
    BOMFields m_fields;
    QStringList m_groupingFieldNames;
    QStringList m_categoryOrder;
    BOMTemplate m_template;
    QStringList m_templateRepairs;
    QString m_notes;
    QString m_notesError;
    QHash<QString, DefinedParts> m_definedParts;
    QList<DefinitionProblem> m_definitionProblems;
    QStringList m_duplicateBOMParts;
    int m_bomPartCount = 0;
    /// Of all parts that are held; made when a definition asks for it.
    std::optional<ReferenceNumbers> m_referenceNumbers;
    QHash<QString, QMap<QString, QString>> m_links;
    PropertyTypes m_propertyTypes;
};
