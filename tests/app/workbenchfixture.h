// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/workbench.h"

#include "app/countslabel.h"
#include "app/statusfields.h"
#include "host/framework/hostsettings.h"
#include "host/netlist/cdbcore.h"
#include "richtext/editor/textedit.h"
#include "standalone/loadeddesign.h"
#include "support/scriptedui.h"
#include "support/testpaths.h"

#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QSaveFile>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>

/// Milliseconds that a test waits for the system.
constexpr int patience = 20000;

/// A running program, with designs in a folder of its own.
class WorkbenchTest : public testing::Test
{
protected:
    WorkbenchTest()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
        HostSettings::install(&settings);
        // Not the first run, in which a dialog opens by itself.
        settings.setValue(QStringLiteral("BOM"), QStringLiteral("BomScriptsImported"),
                          QStringLiteral("true"));
        bench = std::make_unique<Workbench>();
        EXPECT_TRUE(bench->start(QStringLiteral(BOM_BINARY_DIR "/lib/libbom.so")))
            << bench->error().toStdString();
        bench->watcher().setDelay(0);
    }
    ~WorkbenchTest() override
    {
        bench.reset();
        HostSettings::install(nullptr);
        QDir::setCurrent(m_before);
    }

    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    /// In one step, as editors do.
    QString write(const char *name, const QByteArray &text) const
    {
        QSaveFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit());
        return path(name);
    }
    QString partList(const char *name = "parts.csv") const
    {
        return write(name, "Reference,Value,DNP\nR1,10k,\nR2,22k,1\n");
    }
    /// The same file with another value of R1 and nothing else.
    QString writeValue(const char *value) const
    {
        return write("parts.csv", QByteArray("Reference,Value\nR1,") + value + '\n');
    }
    /// A schematic with R1, and a board that does not place it yet.
    QString schematic(const QByteArray &variants = {}) const
    {
        write("amp.kicad_pcb", "(kicad_pcb (version 20240108))");
        return write("amp.kicad_sch", R"((kicad_sch (version 20260306) (generator "eeschema")
  (uuid "root") (paper "A4") (lib_symbols)
  (symbol (lib_id "Device:R") (at 0 0 0) (unit 1) (in_bom yes) (on_board yes) (dnp no) (uuid "s1")
    (property "Reference" "R1" (at 0 0 0)) (property "Value" "10k" (at 0 0 0))
    (instances (project "amp" (path "/root" (reference "R1") (unit 1) )" +
                                          variants + ")))))");
    }
    /// Writes into the open design, as the module does.
    static void setProperty(const char *reference, const char *name, const char *text)
    {
        std::istringstream script(std::string("DATA NAME : ") + reference + "-\n\"" + name + "\"   :   \"" +
                                  text + "\"\nEND\n\n");
        std::ostringstream answer;
        getcdb()->beginbatch();
        getcdb()->adi(script, answer, 0);
        EXPECT_TRUE(getcdb()->commitbatch()) << answer.str();
    }

    /// Does something to the files and waits until the program has looked at them and `isDone`.
    bool waitFor(const std::function<void()> &change, const std::function<bool()> &isDone)
    {
        QSignalSpy looks(bench.get(), &Workbench::filesChecked);
        change();
        while (!isDone()) {
            if (!looks.wait(patience)) {
                return false;
            }
        }
        return true;
    }
    /// The same until the program has looked at the files once.
    bool waitForLook(const std::function<void()> &change)
    {
        QSignalSpy looks(bench.get(), &Workbench::filesChecked);
        return waitFor(change, [&looks] { return !looks.isEmpty(); });
    }
    /// Whether the program gets to show the value once it is written.
    bool waitForValue(const char *value)
    {
        return waitFor([&] { writeValue(value); }, [&] { return isReported(value); });
    }
    bool isReported(const char *text) const
    {
        const auto *edit = bench->window().findChild<TextEdit *>();
        return edit && edit->document()->getHtml().contains(QLatin1String(text));
    }
    /// Grows by one with each reading of a design.
    quint64 stamp() const { return bench->session().design()->properties().stamp(); }
    std::string problem() const { return bench->window().status().problem().toStdString(); }
    std::string account() const
    {
        const auto *bar = bench->window().statusBar();
        return static_cast<CountsLabel *>(bar->findChild<QWidget *>(QStringLiteral("account")))
            ->text()
            .toStdString();
    }
    QAction *action(const char *text) const
    {
        for (QAction *found : bench->window().findChildren<QAction *>()) {
            if (found->text() == QString::fromUtf8(text)) {
                return found;
            }
        }
        ADD_FAILURE() << "no action " << text;
        return nullptr;
    }
    /// Up to date, as when the File menu is seen.
    QAction *undo() const
    {
        QAction *found = action("&Undo Last Write…");
        Q_EMIT qobject_cast<QMenu *>(found->associatedObjects().constFirst())->aboutToShow();
        return found;
    }
    std::string statusText() const { return bench->window().statusBar()->currentMessage().toStdString(); }

    ScriptedUi ui;
    MemoryHostSettings settings;
    std::unique_ptr<Workbench> bench;

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_home;
    QString m_before = QDir::currentPath();
};
