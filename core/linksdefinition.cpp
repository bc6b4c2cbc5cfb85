// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/linksdefinition.h"

#include "core/bomlinks.h"
#include "host/framework/hostui.h"
#include "host/propdefs/propdefsfile.h"

#include <QCoreApplication>

void defineLinksProperty(bool writesLinks)
{
    if (!writesLinks && isreadonly_defaultdefs()) {
        return;
    }
    DIDX defined;
    PROPTEXT text;
    bool isKnown = load_defaultdefs(&defined, &text);
    if (isKnown && !defined.find(bomLinksProperty())) {
        text.add(QStringLiteral("PROPDEFS"),
                 format_propdefs({bomLinksProperty(), PropType::String,
                                  QStringLiteral("External links set in the BOM")}));
        isKnown = save_defaultdefs(text);
    }
    if (!isKnown) {
        HostUi::current().warning(
            nullptr, QCoreApplication::translate("PropertyAssignments", "Property Definitions"),
            QCoreApplication::translate(
                "PropertyAssignments",
                "The property BOMLINKS could not be defined.  Please ensure 'PROPDEFS.INI' is writeable."));
    }
}
