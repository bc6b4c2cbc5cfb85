// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/imodule.h"

#include <QCoreApplication>

#include <memory>

class LoadedDesign;

namespace designs {
struct Component;
}

/// Shows parts of the open design in KiCad: its schematic editor, started on its own, listens on a port of
/// this machine, and so does its board editor. Each is told one line with the reference, and does not answer.
/// Under the project manager neither listens; then, and for a part list, the text says where the part stands
/// and the reference goes to the clipboard.
class PartNavigator final : public INAVIGATOR
{
    Q_DECLARE_TR_FUNCTIONS(PartNavigator)

public:
    /// Where the editors listen.
    struct Ports
    {
        quint16 schematic = 4243;
        quint16 board = 4242;
    };

    PartNavigator() = default;
    PartNavigator(const PartNavigator &) = delete;
    PartNavigator &operator=(const PartNavigator &) = delete;
    virtual ~PartNavigator();

    void setDesign(std::shared_ptr<const LoadedDesign> design);
    void setPorts(const Ports &ports) { m_ports = ports; }

    IMODULE *queryinterface(unsigned id) override;
    NAVIGATION showpart(const QString &reference, quint64 identifier) override;

private:
    /// "sheet /Power, power.kicad_sch:123, X 50.8 Y 60.96 mm", or file and line of a list.
    [[nodiscard]] QString placeOf(const designs::Component &component) const;

    std::shared_ptr<const LoadedDesign> m_design;
    Ports m_ports;
};
