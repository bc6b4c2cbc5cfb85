// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// show_part DESIGN REFERENCE: has KiCad's editors show a part as the window does, and prints what its status
// line would say. Exit status 0 when an editor was told, 1 when none was, 3 when the design or the part
// cannot be read.

#include "host/framework/imodule.h"
#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"

#include <QCoreApplication>

#include <iostream>

namespace {

const COMPONENT *find(const LoadedDesign &design, const QByteArray &reference)
{
    for (const COMPONENT *component : design.components()) {
        if (component->reference == reference) {
            return component;
        }
    }
    return nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: show_part DESIGN REFERENCE\n";
        return 2;
    }
    DesignSession session;
    if (!session.open(arguments.at(1))) {
        std::cerr << session.error().toStdString() << '\n';
        return 3;
    }
    const COMPONENT *component = find(*session.design(), arguments.at(2).toUtf8());
    if (!component) {
        std::cerr << "the design has no " << arguments.at(2).toStdString() << '\n';
        return 3;
    }
    auto *navigator =
        static_cast<INAVIGATOR *>(session.process().getmoduleinterface("ORIN", INTERFACE_NAVIGATOR));
    const NAVIGATION came = navigator->showpart(arguments.at(2), component->identifier);
    std::cout << came.text.toStdString() << '\n';
    return came.isShown ? 0 : 1;
}
