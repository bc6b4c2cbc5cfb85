// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// What must be pending and what must be in the files of a design, worked out in the plainest way: maps of
/// texts by parts and properties.
class EditModel
{
public:
    /// What is drawn once, or a BOM-only part.
    struct Symbol
    {
        QMap<QString, QString> texts;
        bool isFitted = true;
        bool isThere = true;
    };
    struct Component
    {
        QString symbol;
        /// Empty for a BOM-only part.
        QString reference;
    };
    struct Edit
    {
        QString value;
        QString before;
        QString present;
        bool isConfirmed = false;

        bool operator==(const Edit &) const = default;
    };
    using Key = std::pair<QString, QString>;
    using Edits = std::map<Key, Edit>;

    std::map<QString, Symbol> symbols;
    std::map<QString, Component> components;
    Edits pending;

    [[nodiscard]] Symbol &symbolOf(const QString &component) { return symbols[components[component].symbol]; }
    [[nodiscard]] QString text(const Key &key) { return symbolOf(key.first).texts.value(key.second); }
    [[nodiscard]] bool isReachable(const QString &component)
    {
        return symbolOf(component).isThere && symbolOf(component).isFitted;
    }
    [[nodiscard]] bool isChanged(const Edit &edit) const
    {
        return edit.present != edit.before && edit.value != edit.present;
    }
    [[nodiscard]] QString shown(const Key &key)
    {
        const auto edit = pending.find(key);
        return edit == pending.end() ? text(key) : edit->second.value;
    }

    /// The user enters a text.
    void enter(const Key &key, const QString &value)
    {
        if (value == shown(key)) {
            return;
        }
        if (value == text(key)) {
            pending.erase(key);
        } else {
            pending[key] = {value, text(key), text(key)};
        }
    }
    /// The design was read again.
    void follow()
    {
        for (auto &[key, edit] : pending) {
            followOne(key, edit);
        }
    }

    /// What the user did since this was last called, or since settle(), is one step.
    void endAction()
    {
        Step step;
        for (const Edits *edits : {&m_settled, &pending}) {
            for (const auto &[key, edit] : *edits) {
                const auto was = find(m_settled, key);
                const auto is = find(pending, key);
                if (was != is) {
                    step[key] = {was, is};
                }
            }
        }
        if (!step.empty()) {
            m_steps.resize(m_done);
            m_steps.push_back(step);
            ++m_done;
        }
        settle();
    }
    /// What changed is none of the user's actions.
    void settle() { m_settled = pending; }
    void endHistory()
    {
        m_steps.clear();
        m_done = 0;
    }
    void undo()
    {
        if (m_done > 0) {
            --m_done;
            for (const auto &[key, change] : m_steps[m_done]) {
                put(key, change.first);
            }
        }
        settle();
    }
    void redo()
    {
        if (m_done < m_steps.size()) {
            for (const auto &[key, change] : m_steps[m_done]) {
                put(key, change.second);
            }
            ++m_done;
        }
        settle();
    }
    [[nodiscard]] std::size_t done() const { return m_done; }
    [[nodiscard]] std::size_t undone() const { return m_steps.size() - m_done; }

    /// Writes what can be written, all or nothing.
    void apply()
    {
        std::map<Key, QString> writes;
        std::vector<Key> written;
        for (const auto &[key, edit] : pending) {
            if (isReachable(key.first) && (!isChanged(edit) || edit.isConfirmed)) {
                const Key place{components[key.first].symbol, key.second};
                const auto [known, isNew] = writes.try_emplace(place, edit.value);
                if (!isNew && known->second != edit.value) {
                    return;
                }
                written.push_back(key);
            }
        }
        for (const auto &[place, value] : writes) {
            symbols[place.first].texts[place.second] = value;
        }
        for (const Key &key : written) {
            pending.erase(key);
        }
        if (!written.empty()) {
            endHistory();
        }
        follow();
        settle();
    }

private:
    using Step = std::map<Key, std::pair<std::optional<Edit>, std::optional<Edit>>>;

    static std::optional<Edit> find(const Edits &edits, const Key &key)
    {
        const auto found = edits.find(key);
        return found == edits.end() ? std::nullopt : std::optional(found->second);
    }
    void followOne(const Key &key, Edit &edit)
    {
        if (isReachable(key.first) && text(key) != edit.present) {
            edit.isConfirmed = false;
            edit.present = text(key);
        }
    }
    void put(const Key &key, const std::optional<Edit> &edit)
    {
        pending.erase(key);
        if (edit) {
            followOne(key, pending[key] = *edit);
        }
    }

    Edits m_settled;
    std::vector<Step> m_steps;
    std::size_t m_done = 0;
};
