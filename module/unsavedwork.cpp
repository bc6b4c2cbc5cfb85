// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/unsavedwork.h"

#include "core/propertyassignments.h"
#include "editors/bomdataview.h"
#include "editors/pendingundo.h"
#include "host/framework/hostui.h"
#include "templates/templatestore.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(BOMMainWindow)

public:
    [[nodiscard]] static QString pending(qsizetype count)
    {
        return count == 1 ? tr("One change of a property is pending.")
                          : tr("%1 changes of properties are pending.").arg(count);
    }
    [[nodiscard]] static QString choice(bool isKept)
    {
        return isKept
                   ? tr("Save writes into the design, Discard keeps what is pending for the next time that "
                        "the design is opened.")
                   : tr("Save writes into the design. Discard loses what is pending: it could not be kept "
                        "beside the program's settings.");
    }
};

QString pendingText(const PropertyAssignments *assignments)
{
    return assignments && !assignments->isEmpty() ? Texts::pending(assignments->size()) + u' ' +
                                                        Texts::choice(assignments->journalError().isEmpty())
                                                  : QString();
}

bool isTemplateModified(const EditStores &stores)
{
    return stores.templates && stores.templates->isModified();
}

bool save(const EditStores &stores, BOMDataView *view)
{
    if (isTemplateModified(stores) && !stores.templates->saveCurrent()) {
        return false;
    }
    if (view->hasPendingAssignments()) {
        view->applyPropertyValues();
    }
    return !stores.assignments || stores.assignments->isEmpty();
}

} // namespace

bool EditStores::hasUnsaved() const
{
    return isTemplateModified(*this) || (assignments && !assignments->isEmpty());
}

bool settleUnsavedWork(const EditStores &stores, BOMDataView *view)
{
    if (!stores.templates || !stores.hasUnsaved()) {
        return true;
    }
    switch (stores.templates->askToSave(true, pendingText(stores.assignments))) {
    case HostUi::SaveAnswer::Save:
        return save(stores, view);
    case HostUi::SaveAnswer::Discard:
        // The window may stay, and one that is made anew shows what is being worked on.
        if (isTemplateModified(stores)) {
            stores.templates->discardChanges();
        }
        return true;
    case HostUi::SaveAnswer::Cancel:
        break;
    }
    return false;
}
