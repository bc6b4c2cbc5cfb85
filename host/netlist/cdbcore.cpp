// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/netlist/cdbcore.h"

#include <QCoreApplication>
#include <QStringList>

#include <ostream>

namespace {
CDBCORE *theDatabase = nullptr;
}

QString CDBPROBLEM::message() const
{
    QStringList parts;
    if (!file.isEmpty()) {
        parts << (line > 0 ? file + u':' + QString::number(line) : file);
    }
    if (!reference.isEmpty()) {
        parts << (property.isEmpty() ? reference : reference + QStringLiteral(", ") + property);
    }
    parts << reason;
    return parts.join(QStringLiteral(": "));
}

void CDBCORE::adi(std::istream &, std::ostream &report, int)
{
    report
        << QCoreApplication::translate("CDBCORE", "This component database cannot be written").toStdString()
        << '\n';
}

CDBCORE *getcdb()
{
    return theDatabase;
}

void setcdb(CDBCORE *database)
{
    theDatabase = database;
}
