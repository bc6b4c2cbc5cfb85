// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/cdbcore.h"

#include <QStringList>

#include <deque>
#include <iterator>
#include <ostream>
#include <unordered_map>
#include <utility>
#include <vector>

/// A component database, installed while it lives, that knows the placements a test gives it and notes the
/// scripts that it is to run.
class FakeCdb final : public CDBCORE
{
public:
    FakeCdb() { setcdb(this); }
    ~FakeCdb() override { setcdb(nullptr); }

    void place(quint64 identifier, const QByteArray &side)
    {
        CDBLAYOUT &layout = m_layouts.emplace_back();
        layout.setname(side);
        m_parts[identifier].setlayout(&layout);
    }
    /// A record without a placement.
    void addUnplaced(quint64 identifier) { m_parts[identifier].setlayout(nullptr); }

    const CDBPART *getpart(quint64 identifier) override
    {
        const auto found = m_parts.find(identifier);
        return found == m_parts.end() ? nullptr : &found->second;
    }

    /// The reports of the next scripts; afterwards there are no errors.
    QStringList reports;
    /// What a commit finds; it is then refused.
    QList<CDBPROBLEM> refusal;
    /// The scripts as they came, with "begin", "commit" and "drop".
    QStringList calls;

    void adi(std::istream &script, std::ostream &report, int) override
    {
        calls << QString::fromUtf8(QByteArray::fromStdString({std::istreambuf_iterator<char>(script), {}}));
        report << (reports.isEmpty() ? "No Errors\n" : reports.takeFirst().toStdString());
        // What a host may leave behind.
        report.setstate(std::ios::failbit);
    }
    void beginbatch() override
    {
        ++m_depth;
        calls << QStringLiteral("begin");
    }
    bool commitbatch() override
    {
        calls << QStringLiteral("commit");
        if (--m_depth > 0) {
            return true;
        }
        for (const auto &action : std::exchange(m_actions, {})) {
            if (refusal.isEmpty()) {
                action();
            }
        }
        return refusal.isEmpty();
    }
    void dropbatch() override
    {
        --m_depth;
        calls << QStringLiteral("drop");
        m_actions.clear();
    }
    void afterbatch(const std::function<void()> &action) override { m_actions.push_back(action); }
    QList<CDBPROBLEM> problems() const override { return refusal; }

private:
    int m_depth = 0;
    std::vector<std::function<void()>> m_actions;
    std::deque<CDBLAYOUT> m_layouts;
    std::unordered_map<quint64, CDBPART> m_parts;
};
