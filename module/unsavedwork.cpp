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
    [[nodiscard]] static QString question(qsizetype pending)
    {
        return pending == 0
                   ? QString()
                   : tr("%1 changes of properties are pending. Save writes them into the design, Discard "
                        "keeps them for the next time that it is opened.")
                         .arg(pending);
    }
};

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
    const qsizetype pending = stores.assignments ? stores.assignments->size() : 0;
    switch (stores.templates->askToSave(true, Texts::question(pending))) {
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
