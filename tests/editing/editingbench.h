// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/bompartsdatabase.h"
#include "core/propertyassignments.h"
#include "designs/kicadtext.h"
#include "editors/pendingundo.h"
#include "host/framework/applnmodule.h"
#include "host/netlist/netcache.h"
#include "standalone/designsession.h"
#include "support/scopeddefinitions.h"
#include "support/scriptedui.h"
#include "support/testfiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

/// The module that the host tells of changes, as far as editing needs it: it has the database load again.
class EditingModule final : public APPLNMODULE, public INETCLIENT
{
public:
    explicit EditingModule(BOMPartsDatabase *database)
        : APPLNMODULE(::getapplnprocess())
        , m_database(database)
    {
        setapplnname(u"BOM"_s, u"Bill of Materials"_s);
    }
    IMODULE *queryinterface(unsigned) override { return static_cast<INETCLIENT *>(this); }
    bool isvisible() override { return true; }
    void designChanged(bool) override
    {
        if (!m_database->isWriting()) {
            m_database->reload();
        }
    }

private:
    BOMPartsDatabase *m_database;
};

/// A KiCad design in files, open for editing: R1, R2, not fitted R3, C1, and U1 with two screws and a washer
/// as BOM-only parts; and a sheet that is there twice, with R10 and C10 and as R20 and C20.
class EditingBench : public testing::Test
{
protected:
    EditingBench()
    {
        writeDesign();
        EXPECT_TRUE(session.open(path(u"amp.kicad_sch"_s))) << session.error().toStdString();
        cache.attach(&module);
        cache.setsource(&session.netlist());
        database.setNetlist(&cache);
        cache.validate(1);
        database.setCurrentTemplate(BOMTemplate());
        store = std::make_unique<PropertyAssignments>(&database);
        undo = std::make_unique<PendingUndo>(store.get());
    }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Changes a file as another program does, and has the host notice it.
    void replaceInFile(const QString &name, const QByteArray &text, const QByteArray &by)
    {
        const QByteArray content = readFile(path(name));
        EXPECT_TRUE(content.contains(text)) << text.constData();
        writeFile(path(name), QByteArray(content).replace(text, by));
        readAgain();
    }
    void readAgain() { EXPECT_TRUE(session.reread()) << session.error().toStdString(); }
    /// "R1 MPN=x" each, with what keeps it from being written.
    [[nodiscard]] std::string pending() const
    {
        QStringList all;
        for (const PendingEdit &edit : store->edits()) {
            const char *conflicts[] = {"", " changed", " left out", " gone"};
            all << edit.reference + u' ' + edit.property + u'=' + edit.value +
                       QLatin1String(conflicts[int(edit.conflict)]);
        }
        return all.join(u" | "_s).toStdString();
    }
    [[nodiscard]] std::string text(const QString &reference, const QString &property) const
    {
        return database.property(reference, property).toStdString();
    }

private:
    void writeDesign() const
    {
        using namespace kicadtext;
        const auto part = [](const char *reference, const char *value, const Fields &fields = {},
                             const char *dnp = "no") {
            kicadtext::Part made;
            made.reference = reference;
            made.value = value;
            made.uuid = std::string("uuid-") + reference;
            made.dnp = dnp;
            made.fields = fields;
            made.uses = {{"/top", reference}};
            return symbol(v8, made);
        };
        const auto shared = [](const char *one, const char *other, const char *value) {
            kicadtext::Part made;
            made.reference = one;
            made.value = value;
            made.uuid = std::string("uuid-") + one;
            made.uses = {{"/top/left", one}, {"/top/right", other}};
            return symbol(v8, made);
        };
        const auto channel = [](const char *uuid) {
            kicadtext::Sheet made;
            made.name = made.uuid = uuid;
            made.file = "channel.kicad_sch";
            made.uses = {{"/top"}};
            return sheet(v8, made);
        };
        const std::string top =
            part("R1", "10k", {{"MPN", "A"}}) + part("R2", "22k") + part("R3", "33k", {}, "yes") +
            part("C1", "1u") +
            part("U1", "TL074", {{"BOMPART1", "2,SCR,M3"}, {"BOMPART2", "1,WSH,M3,MPN=w"}}) +
            channel("left") + channel("right");
        writeFile(path(u"amp.kicad_sch"_s), schematic(v8, "top", top));
        writeFile(path(u"channel.kicad_sch"_s),
                  schematic(v8, "channel", shared("R10", "R20", "1k") + shared("C10", "C20", "2u")));
    }

    QTemporaryDir m_folder;

protected:
    ScriptedUi ui;
    ScopedDefinitions definitions{"\"COST\",FLOAT\n\"DNP\",YESNO"};
    DesignSession session;
    BOMPartsDatabase database;
    EditingModule module{&database};
    NETCACHE cache;
    std::unique_ptr<PropertyAssignments> store;
    std::unique_ptr<PendingUndo> undo;
};
