// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/categorygroups.h"
#include "core/grouping.h"
#include "core/reportlines.h"

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

struct BOMCategory;
class BOMTemplate;
class PartStore;
class PropertyTypes;

/// A category of the template that can hold no part.
struct BlockedCategory
{
    QString heading;
    /// The prefix that an earlier category has already, and that category; empty where the headings are
    /// equal.
    QString prefix;
    QString holder;

    bool operator==(const BlockedCategory &) const = default;
};

/// The categories of the current template, with the parts and lines of each.
class BOMCategories final
{
public:
    /// None is owned; all must outlive the categories.
    BOMCategories(const BOMTemplate *settings, const PartStore *parts, const PropertyTypes *types);
    BOMCategories(const BOMCategories &) = delete;
    BOMCategories &operator=(const BOMCategories &) = delete;

    /// Makes the categories that the template has now, and sorts all parts into them.
    void rebuild();
    /// Puts a part into the category of its reference.
    void add(Part &part) { groupsOf(part).add(part); }
    void remove(Part &part) { groupsOf(part).remove(part); }
    /// Lets go of all parts. Categories stay, and are empty.
    void clear();
    /// Groups the parts of all categories anew.
    void regroup();

    /// The heading of the category that a reference belongs to.
    [[nodiscard]] QString categoryOf(const QString &reference) const;
    /// The headings that a report lists, in its order.
    [[nodiscard]] QStringList names() const;

    /// The categories that can hold no part, in the order of the template.
    [[nodiscard]] const QList<BlockedCategory> &blocked() const { return m_blocked; }

    [[nodiscard]] int partCount(const QString &category) const;
    [[nodiscard]] int lineCount(const QString &category) const;
    [[nodiscard]] QStringList values(const QString &category) const;
    [[nodiscard]] QStringList references(const QString &category) const;
    [[nodiscard]] QStringList references(const QString &category, const QString &value) const;
    /// The lines of a value, in the order of their grouping keys.
    [[nodiscard]] QList<QStringList> lines(const QString &category, const QString &value) const;
    /// First reference and quantity of every line.
    [[nodiscard]] QList<QPair<QString, int>> lineSummaries(const QString &category) const;
    [[nodiscard]] QString groupingKey(const QString &reference) const;

    /// The references as the template lists them, within `lines` text lines of `width` characters.
    [[nodiscard]] QString formatReferences(const QStringList &references, int width, int lines) const;
    [[nodiscard]] QString formatReferences(BomLine line, int width, int lines) const;

    /// All lines of a category, values in order, or null for an unknown one. Valid until the next change.
    [[nodiscard]] const GroupedLines *groupedLines(const QString &category) const;
    /// The lines of a category, or its parts one by one, in the order of a report.
    [[nodiscard]] ReportLines reportLines(const QString &category, bool grouped) const;
    /// The lines that a report leaves out because another one begins with an equal reference, such as R01
    /// and R1, in all categories that it lists.
    [[nodiscard]] QList<ReplacedLine> replacedLines(bool grouped) const;

private:
    /// The lines of one value; lines is null where category or value are unknown.
    struct ValueLines
    {
        const GroupedLines *lines = nullptr;
        size_t first = 0;
        size_t end = 0;
    };

    void addCategory(const BOMCategory &category);
    CategoryGroups &miscGroups();
    /// Null for an unknown heading.
    [[nodiscard]] const CategoryGroups *groups(const QString &heading) const;
    [[nodiscard]] CategoryGroups &groupsOf(const Part &part);
    /// The heading under which a prefix is listed, the miscellaneous one when it is listed nowhere.
    [[nodiscard]] QString headingOfPrefix(QStringView prefix) const;
    [[nodiscard]] ValueLines valueLines(const QString &category, const QString &value) const;

    const BOMTemplate *m_settings;
    const PartStore *m_parts;
    Grouping m_grouping;
    std::map<QString, CategoryGroups> m_groups;
    QMap<QString, QString> m_headingOfPrefix;
    /// By the number of a reference prefix, filled as prefixes are met; null where it is not known.
    std::vector<CategoryGroups *> m_groupsOfPrefix;
    QString m_miscName;
    QStringList m_order;
    QList<BlockedCategory> m_blocked;
};
