// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "account/design/propertytwins.h"

#include "host/framework/hosttext.h"
#include "standalone/loadeddesign.h"

#include <QHash>

namespace {

using designs::Component;
using designs::NameId;

/// Numbers the names so that twins have the same number.
class Groups
{
public:
    explicit Groups(const designs::Design &design)
    {
        QHash<QString, quint32> known;
        const designs::PropertyNames &names = design.names();
        for (const char *alias : {"PACKAGE", "VALUE"}) {
            const quint32 group = m_count++;
            for (const NameId id : names.candidates(alias)) {
                known.insert(keyOf(names.name(id)), group);
            }
        }
        m_groups.reserve(names.size());
        for (NameId id = 0; id < names.size(); ++id) {
            const QString key = keyOf(names.name(id));
            const auto found = known.constFind(key);
            m_groups.push_back(found == known.constEnd() ? *known.insert(key, m_count++) : *found);
        }
    }

    [[nodiscard]] quint32 operator[](NameId id) const { return m_groups[id]; }
    [[nodiscard]] quint32 count() const { return m_count; }

private:
    /// Equal for names that the design takes for one, which a byte order mark in front does not tell apart.
    static QString keyOf(std::string_view name)
    {
        return QString::fromUtf8(name.data(), qsizetype(name.size())).toCaseFolded();
    }

    std::vector<quint32> m_groups;
    quint32 m_count = 0;
};

/// The last component on which a name of a group was met.
struct Sight
{
    qsizetype component = -1;
    std::string_view value;
    bool isReported = false;
};

bool differs(std::string_view a, std::string_view b)
{
    return !a.empty() && !b.empty() && a != b;
}

/// Goes through all components once. Each group remembers the number of the component on which one of its
/// names was met last, so that nothing has to be reset from one component to the next.
class TwinFinder
{
public:
    explicit TwinFinder(const designs::Design &design)
        : m_design(design)
        , m_groups(design)
        , m_uses(design.names().size(), 0)
        , m_seen(m_groups.count())
        , m_hiding(m_groups.count())
    {
        qsizetype index = 0;
        for (const Component &component : design.components()) {
            visit(component, design.valueName(), component.value, index);
            for (const designs::Property &property : component.properties) {
                visit(component, property.name, property.value, index);
            }
            ++index;
        }
    }

    [[nodiscard]] std::vector<PropertyTwins> result() const
    {
        std::vector<PropertyTwins> byGroup(m_groups.count());
        std::vector<quint32> order;
        for (NameId id = 0; id < m_uses.size(); ++id) {
            if (m_uses[id] == 0) {
                continue;
            }
            PropertyTwins &twins = byGroup[m_groups[id]];
            if (twins.names.isEmpty()) {
                order.push_back(m_groups[id]);
            }
            twins.names.append(fromHostText(m_design.names().name(id)));
            twins.counts.append(m_uses[id]);
        }
        std::vector<PropertyTwins> found;
        for (const quint32 group : order) {
            if (byGroup[group].names.size() > 1) {
                byGroup[group].hiding = m_hiding[group];
                found.push_back(byGroup[group]);
            }
        }
        return found;
    }

private:
    void visit(const Component &component, NameId name, std::string_view value, qsizetype index)
    {
        if (name >= m_uses.size()) {
            return;
        }
        ++m_uses[name];
        Sight &sight = m_seen[m_groups[name]];
        if (sight.component != index) {
            sight = {index, value, false};
        } else if (sight.value.empty()) {
            // An empty property hides none, but the next may.
            sight.value = value;
        } else if (!sight.isReported && differs(sight.value, value)) {
            sight.isReported = true;
            m_hiding[m_groups[name]].append(fromHostText(component.reference));
        }
    }

    const designs::Design &m_design;
    Groups m_groups;
    std::vector<qsizetype> m_uses;
    std::vector<Sight> m_seen;
    std::vector<QStringList> m_hiding;
};

} // namespace

std::vector<PropertyTwins> propertyTwins(const LoadedDesign &design)
{
    return TwinFinder(design.design()).result();
}
