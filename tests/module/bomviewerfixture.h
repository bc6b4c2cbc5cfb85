// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "module/bomviewer.h"

#include "core/bompartsdatabase.h"
#include "module/bommainwindow.h"
#include "richtext/editor/textedit.h"
#include "support/scriptedui.h"
#include "tests/module/modulehost.h"

#include <QAction>
#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

/// A module that runs in a host whose design has R1 and C3.
class BomViewer : public testing::Test
{
protected:
    BomViewer()
    {
        host.server.netlist.add("R1", "10k");
        host.server.netlist.add("C3", "1u");
    }
    ~BomViewer() override
    {
        if (m_module) {
            m_module->removewindow(m_module->getprimarywindow());
        }
        flush();
    }

    BOMVIEWER &module()
    {
        if (!m_module) {
            m_module = std::make_unique<BOMVIEWER>(&host);
        }
        return *m_module;
    }
    void endModule() { m_module.reset(); }
    IBOMVIEWER &viewer() { return *static_cast<IBOMVIEWER *>(module().queryinterface(INTERFACE_BOMVIEWER)); }
    BOMMainWindow *mainWindow()
    {
        return static_cast<BOMMainWindow *>(module().createwindow(&host.frame, 0));
    }
    QString report() { return mainWindow()->findChild<TextEdit *>()->document()->getHtml(); }
    QAction *action(const QString &text)
    {
        for (QAction *found : mainWindow()->findChildren<QAction *>()) {
            if (found->text() == text) {
                return found;
            }
        }
        return nullptr;
    }
    void trigger(const char *text) { action(QLatin1String(text))->trigger(); }
    static void flush() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    ScriptedUi ui;
    ModuleHost host;

private:
    std::unique_ptr<BOMVIEWER> m_module;
};
