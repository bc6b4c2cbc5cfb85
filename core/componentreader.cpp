// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/componentreader.h"

#include "core/bomlinks.h"
#include "core/bompartdefinition.h"
#include "host/framework/hosttext.h"
#include "host/netlist/component.h"

namespace {

PROPPREFIX definitionPrefix()
{
    return PROPPREFIX(toHostText(bomPartPropertyStart()));
}

} // namespace

ComponentReader::ComponentReader(LinkTable *links)
    : m_links(links)
    , m_linksName(toHostText(bomLinksProperty()))
    , m_definitionPrefix(definitionPrefix())
{
}

void ComponentReader::read(const COMPONENT &component)
{
    if (!component.properties) {
        return;
    }
    const std::vector<PROPERTY> definitions = component.properties->startingwith(m_definitionPrefix);
    const auto links = component.properties->find(m_linksName);
    if (definitions.empty() && !links) {
        return;
    }
    const QString reference = fromHostText(component.reference);
    if (links) {
        m_links->insert(reference, readBOMLinks(fromHostText(*links)));
    }
    if (!definitions.empty()) {
        collect(reference, definitions);
    }
}

void ComponentReader::collect(const QString &reference, const std::vector<PROPERTY> &definitions)
{
    const auto known = m_indices.constFind(reference);
    const qsizetype index = known == m_indices.cend() ? m_parents.size() : *known;
    if (known == m_indices.cend()) {
        m_indices.insert(reference, index);
        m_parents.append({reference, {}});
    }
    for (const PROPERTY &property : definitions) {
        m_parents[index].definitions.append({fromHostText(property.name), fromHostText(property.value)});
    }
}

QStringList ComponentReader::definitionTexts(const COMPONENT &component)
{
    QStringList texts;
    if (component.properties) {
        for (const PROPERTY &property : component.properties->startingwith(definitionPrefix())) {
            texts.append(fromHostText(property.value));
        }
    }
    return texts;
}
