// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/netcache.h"
#include "host/netlist/proplist.h"

#include <QByteArray>
#include <QList>
#include <QPair>

#include <deque>
#include <vector>

using FakeProperties = QList<QPair<QByteArray, QByteArray>>;

/// Properties in the order given, names found exactly.
class FakePropertyList final : public PROPLIST
{
public:
    explicit FakePropertyList(FakeProperties properties = {})
        : m_properties(std::move(properties))
    {
    }

    std::optional<QByteArrayView> find(const PROPNAME &name) const override
    {
        for (const auto &[known, value] : m_properties) {
            if (known == name.name()) {
                return QByteArrayView(value);
            }
        }
        return std::nullopt;
    }
    std::vector<PROPERTY> startingwith(const PROPPREFIX &prefix) const override
    {
        std::vector<PROPERTY> found;
        for (const auto &[name, value] : m_properties) {
            if (name.startsWith(prefix.name())) {
                found.push_back({name, value});
            }
        }
        return found;
    }
    std::vector<PROPERTY> all() const override { return startingwith(PROPPREFIX({})); }

private:
    FakeProperties m_properties;
};

/// A netlist of the components that a test adds, valid unless the test says otherwise.
class FakeNetlist final
{
public:
    FakeNetlist()
    {
        m_cache.validMask = 1;
        m_cache.wantedMask = 1;
    }

    /// Identifiers count from 1 unless one is given.
    const COMPONENT *add(const QByteArray &reference, const QByteArray &value,
                         const FakeProperties &properties = {}, const QByteArray &name = {})
    {
        Entry &entry =
            m_entries.emplace_back(Entry{reference, value, name, FakePropertyList(properties), {}});
        entry.component = {entry.reference, entry.value, entry.name, m_entries.size(), &entry.properties};
        m_components.push_back(&entry.component);
        m_cache.components = m_components;
        return &entry.component;
    }
    void addNull()
    {
        m_components.push_back(nullptr);
        m_cache.components = m_components;
    }
    /// What the host does when the design changed: new records, the old ones are gone.
    void clear()
    {
        m_components.clear();
        m_cache.components = m_components;
        m_entries.clear();
    }

    NETCACHE *cache() { return &m_cache; }

private:
    struct Entry
    {
        QByteArray reference;
        QByteArray value;
        QByteArray name;
        FakePropertyList properties;
        COMPONENT component;
    };

    std::deque<Entry> m_entries;
    std::vector<const COMPONENT *> m_components;
    NETCACHE m_cache;
};
