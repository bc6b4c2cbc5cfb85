// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/categorygroups.h"

#include "core/grouping.h"
#include "core/part.h"

#include <QDebug>

void CategoryGroups::add(Part &part)
{
    if (part.m_category == this) {
        return;
    }
    part.m_category = this;
    m_parts.push_back(&part);
    m_isGrouped = false;
}

void CategoryGroups::remove(Part &part)
{
    if (part.m_category == this) {
        part.m_category = nullptr;
        std::erase(m_parts, &part);
        m_lines = {};
        m_isGrouped = false;
    }
}

void CategoryGroups::clear()
{
    for (Part *part : m_parts) {
        part->m_category = nullptr;
    }
    m_parts = {};
    m_lines = {};
    m_isGrouped = false;
}

void CategoryGroups::regroup()
{
    if (!m_grouping) {
        qDebug("BOM: Use of bad CatParts with null database");
        return;
    }
    m_isGrouped = false;
}

const GroupedLines &CategoryGroups::lines() const
{
    if (!m_isGrouped && m_grouping) {
        m_lines = m_grouping->lines(m_parts);
        m_isGrouped = true;
    }
    return m_lines;
}
