// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "host/framework/applnmodule.h"
#include "standalone/designsession.h"
#include "support/scopeddefinitions.h"
#include "support/testfiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

/// A design that is open in a host, with a module that answers changes as the real one does.
class ModuleOnFiles : public testing::Test, protected INETCLIENT
{
protected:
    ModuleOnFiles()
    {
        module.setapplnname(QStringLiteral("BOM"), {});
        module.setinterface(INTERFACE_BOMVIEWER, this);
        cache.attach(this);
        cache.setsource(&session.netlist());
        database.setCurrentTemplate(BOMTemplate());
        database.setNetlist(&cache);
    }

    void open(const QString &path, const OpenOptions &options = {})
    {
        EXPECT_TRUE(session.open(path, options)) << session.error().toStdString();
        cache.validate(1);
    }
    IMODULE *queryinterface(unsigned) override { return this; }
    bool isvisible() override { return false; }
    void designChanged(bool) override
    {
        if (!database.isWriting()) {
            database.reload();
        } else if (whileWriting) {
            whileWriting();
        }
    }
    [[nodiscard]] QString path(const char *name) const { return folder.filePath(QLatin1String(name)); }

    ScopedDefinitions definitions{"\"BOMLINKS\",STRING"};
    QTemporaryDir folder;
    DesignSession session;
    APPLNMODULE module{&session.process()};
    NETCACHE cache;
    BOMPartsDatabase database;
    PropertyAssignments assignments{&database};
    /// What happens when the host tells of a change meanwhile.
    std::function<void()> whileWriting;
};
