// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bomcategories.h"
#include "core/bomlinks.h"
#include "core/bomonlyparts.h"
#include "core/designnotes.h"
#include "core/othernames.h"
#include "core/partstore.h"
#include "core/propertytypes.h"
#include "templates/bomtemplate.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>

class APPLNDOCUMENT;
class NETCACHE;
struct NETLIST;

/// The parts of the current design, sorted into the categories and lines of the current template.
/// Every change ends in one dataChanged(), however much it changed.
class BOMPartsDatabase final : public QObject, public PartDatabase
{
    Q_OBJECT

public:
    /// Holds dataChanged() back while it lives. At the end of the outermost one it is emitted once, if
    /// anything changed meanwhile.
    class BulkChange final
    {
    public:
        explicit BulkChange(BOMPartsDatabase *database);
        BulkChange(const BulkChange &) = delete;
        BulkChange &operator=(const BulkChange &) = delete;
        ~BulkChange();

    private:
        BOMPartsDatabase *m_database;
    };

    BOMPartsDatabase();
    ~BOMPartsDatabase() override;

    /// The one of the module, made at the first request.
    [[nodiscard]] static BOMPartsDatabase *instance();
    /// Destroys it; a later request makes a new one.
    static void destroyInstance();

    /// The netlist to load from, null for none. Not owned; it must stay until it is replaced.
    void setNetlist(NETCACHE *netlist) { m_netlist = netlist; }
    /// What the parts are loaded from; null for none, and where it holds nothing that can be used.
    [[nodiscard]] const NETLIST *netlist() const;
    /// Grows whenever parts are let go of or loaded: pointers to parts of before are of no use then.
    [[nodiscard]] quint64 generation() const { return m_generation; }
    /// Tells whether the module's window can be seen; without it none can.
    void setWindowVisibleQuery(std::function<bool()> query) { m_isWindowVisible = std::move(query); }

    /// Lets go of all parts. Categories stay, and are empty.
    void clear();
    /// Adds the components of the netlist, except those marked BOMSKIP, then the BOM-only parts that they
    /// define. A reference that is held already becomes a duplicate.
    void load();
    /// What a changed design asks for: clears, loads and groups. Ends what clearAndSuspend() began.
    void reload();
    /// The same from the files: the host reads the design again. Where it cannot, what it holds is loaded.
    void reloadFromFiles();
    /// Clears and emits no dataChanged() until reload().
    void clearAndSuspend();
    [[nodiscard]] bool isUpdating() const { return m_bulkChanges > 0 || m_isSuspended; }
    /// While the design is being written, what the host tells of changes is to be ignored. The end of it asks
    /// the module "BOM" for one full reload. See DesignWrite, which sets it together with the host's batch.
    void setWriting(bool isWriting);
    [[nodiscard]] bool isWriting() const { return m_isWriting; }
    /// Emits dataChanged(), at the end of the outermost BulkChange where there is one; nothing while
    /// suspended.
    void notify();

    /// Null when no part has that reference. Parts live until clear().
    [[nodiscard]] Part *part(const QString &reference) const override { return m_parts.find(reference); }
    [[nodiscard]] QString otherName(const QString &asked,
                                    const QMap<QString, QString> &properties) const override
    {
        return m_otherNames.find(asked, properties);
    }
    /// All parts in the order of the netlist, BOM-only parts behind.
    [[nodiscard]] std::span<Part *const> parts() const { return m_parts.parts(); }
    /// The names of the properties that the parts have, sorted, without those that hold BOM-only parts and
    /// links.
    [[nodiscard]] QStringList propertyNames() const;
    /// Empty for an unknown reference.
    [[nodiscard]] QString property(const QString &reference, const QString &name) const;
    /// References that came again, once per extra occurrence.
    [[nodiscard]] const QStringList &duplicateReferences() const { return m_parts.duplicates(); }
    [[nodiscard]] const PropertyTypes &propertyTypes() const override { return m_propertyTypes; }
    /// What changed property definitions ask for: reads them and groups anew.
    void updatePropertyTypes();

    /// The texts of all properties that define BOM-only parts, in the order of the property list.
    [[nodiscard]] static QStringList bomPartDefinitions(const COMPONENT &component);
    /// Makes the parts of these definitions, in the order of their texts.
    void createBOMParts(const QString &parentReference, const QStringList &definitions);
    /// Defines and makes further parts of a placed part. In the two texts a single quote is written as \'.
    /// Gives the property to be written into the design; nothing, and nothing was made, when there is no such
    /// placed part, the count is not from 1 to mostPartsOfADefinition or a text cannot be written.
    std::optional<DefinitionProperty> addBOMParts(const QString &parentReference, int count,
                                                  const QString &escapedPrefix, const QString &escapedValue);
    /// Changes a property or the value of a BOM-only part; an empty text takes the property away. The design
    /// is then to hold bomOnlyParts().rewritten() of the parent. False for any other part, and for a name or
    /// text that cannot be written.
    bool setBOMPartProperty(const QString &reference, const QString &name, const QString &text);
    /// Lets go of a BOM-only part; the design is then to hold bomOnlyParts().rewritten() of the parent. False
    /// for one that the parent does not have, or whose definitions cannot be written.
    bool removeBOMPart(const QString &parentReference, const QString &reference);
    /// In the order in which they were made.
    [[nodiscard]] QList<BOMPart *> bomParts(const QString &parentReference) const;
    /// The BOM-only parts with their definitions.
    [[nodiscard]] const BOMOnlyParts &bomOnlyParts() const { return m_bomOnlyParts; }

    /// Takes the links of a part from the text of its property BOMLINKS; a text without any changes nothing.
    void setLinks(const QString &reference, const QString &text);
    /// The URLs by property name.
    [[nodiscard]] QMap<QString, QString> links(const QString &reference) const;
    /// The URL for one property, whatever the letter case of its name; empty when there is none.
    [[nodiscard]] QString link(const QString &reference, const QString &propertyName) const;

    /// What the design document says of itself, see core/designinfo.h.
    [[nodiscard]] QString designInfo(const char *key) const;
    [[nodiscard]] QString designTitle() const;
    [[nodiscard]] QString designAuthor() const { return designInfo("AUTHOR"); }
    [[nodiscard]] QString designDocumentNumber() const { return designInfo("DOCNO"); }
    [[nodiscard]] QString designRevision() const { return designInfo("REV"); }
    [[nodiscard]] QString designCreated() const { return designInfo("WL_CDATE"); }
    [[nodiscard]] QString designModified() const { return designInfo("WL_MDATE"); }
    [[nodiscard]] QString designVariant() const;
    /// The proposed absolute path of a report, `extension` with its dot.
    [[nodiscard]] QString defaultOutputPath(const QString &extension) const;
    /// The notes that the design had when it was loaded.
    [[nodiscard]] const QString &notes() const { return m_notes; }
    /// Writes the notes into the design when they differ, see setDesignNotes(). Unless they were written, or
    /// those of the design taken over, they stay as they were.
    NotesResult setNotes(const QString &text, const NotesQuestion &ask = {});

    [[nodiscard]] const BOMTemplate &currentTemplate() const { return m_template; }
    /// Takes a copy as the working template, completes it (see templateRepairs()), and groups anew.
    void setCurrentTemplate(const BOMTemplate &settings);
    /// The columns of a bill: the fields of the working template, and where parts are marked as not fitted a
    /// column that says so, unless there is one.
    [[nodiscard]] BOMFields columns() const;
    /// Whether parts are listed that are not fitted and do not count, see Part::isNotFitted().
    [[nodiscard]] bool hasNotFitted() const { return m_parts.hasNotFitted(); }
    /// What the working template lacked when it was set, one sentence each.
    [[nodiscard]] const QStringList &templateRepairs() const { return m_templateRepairs; }
    /// See takeLook(). Emits nothing.
    void setTemplateLook(const BOMTemplate &settings);
    /// See takeLayout(); only a change of the case rule groups anew. False, and nothing is emitted, when
    /// nothing differs.
    bool setTemplateLayout(const BOMTemplate &settings);
    /// The same to go back to what was there before; emits currentTemplateModified(wasModified) and no other
    /// one.
    void restoreTemplateLayout(const BOMTemplate &settings, bool wasModified);
    /// See takeOptions(). False, and nothing is emitted, when nothing differs.
    bool setTemplateOptions(const BOMTemplate &settings);

    /// The categories with their lines. The functions below give the same by references and texts.
    [[nodiscard]] const BOMCategories &categories() const { return m_categories; }
    [[nodiscard]] QString categoryOf(const QString &reference) const
    {
        return m_categories.categoryOf(reference);
    }
    [[nodiscard]] QStringList categoryNames() const { return m_categories.names(); }
    [[nodiscard]] int partCount(const QString &category) const { return m_categories.partCount(category); }
    [[nodiscard]] int lineCount(const QString &category) const { return m_categories.lineCount(category); }
    [[nodiscard]] QStringList categoryValues(const QString &category) const;
    [[nodiscard]] QStringList categoryReferences(const QString &category) const;
    [[nodiscard]] QStringList valueReferences(const QString &category, const QString &value) const;
    [[nodiscard]] QList<QStringList> groupLines(const QString &category, const QString &value) const;
    /// The lines of a value as texts, see BOMCategories::formatReferences().
    [[nodiscard]] QStringList formattedLines(const QString &category, const QString &value, int width,
                                             int lines) const;
    [[nodiscard]] QList<QPair<QString, int>> lineSummaries(const QString &category) const;
    [[nodiscard]] QString groupingKey(const QString &reference) const;

Q_SIGNALS:
    void dataChanged();
    void currentTemplateModified(bool modified);

public Q_SLOTS:
    void updateBOMFields(const BOMFields &fields);
    void updateBOMCategories(const QList<BOMCategory> &categories);
    void updateFieldGrouping();
    void nimProjectChanged(APPLNDOCUMENT *document);

private:
    void readNetlist();
    void markNotFitted();
    [[nodiscard]] bool applyLayout(const BOMTemplate &settings);
    void applyFields(const BOMFields &fields);
    void applyCategories(const QList<BOMCategory> &categories);

    NETCACHE *m_netlist = nullptr;
    std::function<bool()> m_isWindowVisible;
    quint64 m_generation = 0;
    int m_bulkChanges = 0;
    /// A notice was held back by a BulkChange.
    bool m_isNoticeDue = false;
    bool m_isSuspended = false;
    bool m_isWriting = false;
    BOMTemplate m_template;
    QStringList m_templateRepairs;
    QString m_notes;
    PropertyTypes m_propertyTypes;
    PartStore m_parts;
    OtherNames m_otherNames;
    LinkTable m_links;
    BOMCategories m_categories;
    BOMOnlyParts m_bomOnlyParts;
};
