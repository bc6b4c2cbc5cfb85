// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/definedparts.h"

#include "core/bompart.h"

#include <QHash>

namespace {

QString numberedName(qsizetype number)
{
    return bomPartPropertyStart() + QString::number(number);
}

/// Counts parts that agree in all that a definition says, in the order of the first of each.
class AgreeingParts
{
public:
    /// False when a text cannot be written.
    [[nodiscard]] bool add(const BOMPartDefinition &definition)
    {
        const auto text = changedBOMPartDefinition(definition);
        if (!text) {
            return false;
        }
        const auto known = m_indices.constFind(*text);
        if (known != m_indices.cend()) {
            m_last = *known;
        } else {
            m_last = m_texts.size();
            m_indices.insert(*text, m_last);
            m_texts.append(*text);
            m_counts.append(0);
        }
        m_counts[m_last] += definition.count;
        return true;
    }
    /// One more like the last one.
    void addAnother() { ++m_counts[m_last]; }

    [[nodiscard]] QStringList definitions() const
    {
        QStringList texts;
        for (qsizetype i = 0; i < m_texts.size(); ++i) {
            texts.append(QString::number(m_counts.at(i)) + m_texts.at(i));
        }
        return texts;
    }

private:
    QHash<QString, qsizetype> m_indices;
    QStringList m_texts;
    QList<qint64> m_counts;
    qsizetype m_last = 0;
};

/// Fast for parts of one definition, which share its properties.
bool agree(const BOMPart &left, const BOMPart &right)
{
    return left.prefix() == right.prefix() && left.value() == right.value() &&
           left.properties() == right.properties();
}

} // namespace

void DefinedParts::addName(const QString &name)
{
    if (!m_nameSet.contains(name)) {
        m_nameSet.insert(name);
        m_names.append(name);
    }
}

QString DefinedParts::freeName() const
{
    qsizetype number = m_names.size() + 1;
    while (m_nameSet.contains(numberedName(number))) {
        ++number;
    }
    return numberedName(number);
}

void DefinedParts::addRepeated(const BOMPartDefinition &definition, int count)
{
    m_repeated.append(definition);
    m_repeated.last().count = count;
}

std::optional<QList<DefinitionProperty>> DefinedParts::rewritten() const
{
    AgreeingParts agreeing;
    const BOMPart *last = nullptr;
    for (const BOMPart *part : m_parts) {
        if (last && agree(*last, *part)) {
            agreeing.addAnother();
        } else if (!agreeing.add({1, part->prefix(), part->value(), part->properties()})) {
            return std::nullopt;
        }
        last = part;
    }
    for (const BOMPartDefinition &repeated : m_repeated) {
        if (!agreeing.add(repeated)) {
            return std::nullopt;
        }
    }
    QList<DefinitionProperty> properties;
    for (const QString &text : agreeing.definitions() + m_unmade) {
        properties.append({numberedName(properties.size()), text});
    }
    return properties;
}
