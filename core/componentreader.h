// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bomonlyparts.h"
#include "host/netlist/proplist.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <vector>

struct COMPONENT;
class LinkTable;

/// Takes from the components of a netlist what they say besides their parts: links, and definitions of
/// BOM-only parts.
class ComponentReader final
{
public:
    /// `links` gets the links that are read. It is not owned and must outlive the reader.
    explicit ComponentReader(LinkTable *links);

    void read(const COMPONENT &component);
    /// The definitions that were read; those of components with one reference stand together.
    [[nodiscard]] const QList<ParentDefinitions> &parents() const { return m_parents; }

    /// The texts of all properties that define BOM-only parts, in the order of the property list.
    [[nodiscard]] static QStringList definitionTexts(const COMPONENT &component);

private:
    void collect(const QString &reference, const std::vector<PROPERTY> &definitions);

    LinkTable *m_links;
    PROPNAME m_linksName;
    PROPPREFIX m_definitionPrefix;
    QList<ParentDefinitions> m_parents;
    QHash<QString, qsizetype> m_indices;
};
