// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnmodule.h"
#include "support/scopedvariable.h"
#include "support/scriptedui.h"
#include "support/testfiles.h"
#include "support/testpaths.h"
#include "tests/module/modulehost.h"

#include <QAction>
#include <QCoreApplication>
#include <QLibrary>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

QString library()
{
    return QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so");
}

/// Whether the library's code is in this process.
bool isMapped()
{
    return readFile(u"/proc/self/maps"_s).contains("/libbom.so");
}

} // namespace

TEST(ModuleEntry, SpeaksTheLanguageOfTheUserWhereTheHostDoesNot)
{
    const ScopedVariable locale("LC_ALL", "de_DE.UTF-8");
    const ScriptedUi ui;
    ModuleHost host;
    QLibrary plugin(library());
    const auto create = reinterpret_cast<CREATEMODULEINSTANCE>(plugin.resolve(MODULE_CREATE));
    const auto remove = reinterpret_cast<DELETEMODULEINSTANCE>(plugin.resolve(MODULE_DELETE));
    ASSERT_TRUE(create && remove);
    APPLNMODULE *module = create(&host);
    EXPECT_NE(module->getstringtranslator(), nullptr);
    APPLNWINDOW *window = module->createwindow(&host.frame, 0);
    QStringList texts;
    for (const QAction *action : host.frame.window.findChildren<QAction *>()) {
        texts << action->text();
    }
    EXPECT_TRUE(texts.contains(u"Stückliste neu &laden"_s)) << texts.join(u'|').toStdString();
    module->removewindow(window);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    remove(module);
    EXPECT_TRUE(plugin.unload());
    EXPECT_EQ(QCoreApplication::translate("BOMMainWindow", "Print BOM"), u"Print BOM"_s);
}

TEST(ModuleEntry, ExportsItsTwoFunctionsOnly)
{
    QProcess nm;
    nm.start(u"nm"_s, {u"-D"_s, u"--defined-only"_s, u"--format=just-symbols"_s, library()});
    ASSERT_TRUE(nm.waitForFinished());
    EXPECT_EQ(nm.readAllStandardOutput().toStdString(), "createmoduleinstance\ndeletemoduleinstance\n");
}

TEST(ModuleEntry, LivesFromTheOneToTheOther)
{
    const ScriptedUi ui;
    ModuleHost host;
    host.server.netlist.add("R1", "10k");
    QLibrary plugin(library());
    ASSERT_TRUE(plugin.load()) << plugin.errorString().toStdString();
    const auto create = reinterpret_cast<CREATEMODULEINSTANCE>(plugin.resolve(MODULE_CREATE));
    const auto remove = reinterpret_cast<DELETEMODULEINSTANCE>(plugin.resolve(MODULE_DELETE));
    ASSERT_TRUE(create && remove);

    for (int life = 0; life < 2; ++life) {
        APPLNMODULE *module = create(&host);
        ASSERT_NE(module, nullptr);
        EXPECT_EQ(host.findmodule("BOM"), module);
        EXPECT_NE(module->getmoduleinstance(), nullptr);
        module->onvalidate();
        APPLNWINDOW *window = module->createwindow(&host.frame, 0);
        ASSERT_NE(window, nullptr);
        EXPECT_NE(host.frame.window.findChild<QWidget *>(u"bomHTMLView"_s), nullptr);
        module->removewindow(window);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(host.frame.widgets, 0);
        remove(module);
        EXPECT_EQ(host.findmodule("BOM"), nullptr);
        EXPECT_EQ(host.server.cache, nullptr);
    }
    remove(nullptr);
    EXPECT_TRUE(isMapped());
    EXPECT_TRUE(plugin.unload());
    EXPECT_FALSE(isMapped());
}
