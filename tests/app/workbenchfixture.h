// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/workbench.h"

#include "app/statusnotes.h"
#include "host/framework/hostsettings.h"
#include "richtext/editor/textedit.h"
#include "support/scriptedui.h"
#include "support/testpaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

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

    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// In one step, as editors do.
    QString write(const QString &name, const QByteArray &text) const
    {
        QSaveFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit());
        return path(name);
    }
    QString partList(const QString &name = QStringLiteral("parts.csv")) const
    {
        return write(name, "Reference,Value,DNP\nR1,10k,\nR2,22k,1\n");
    }
    /// A schematic with U1, and a board that does not place it yet.
    QString schematic() const
    {
        write(QStringLiteral("amp.kicad_pcb"), "(kicad_pcb (version 20240108))");
        return write(QStringLiteral("amp.kicad_sch"), R"((kicad_sch (version 20231120) (generator "eeschema")
  (uuid "root") (paper "A4") (lib_symbols)
  (symbol (lib_id "Amp:LM358") (at 0 0 0) (unit 1) (in_bom yes) (on_board yes) (dnp no) (uuid "s1")
    (property "Reference" "U1" (at 0 0 0)) (property "Value" "LM358" (at 0 0 0))
    (instances (project "amp" (path "/root" (reference "U1") (unit 1))))))
)");
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
    QString report() const
    {
        const auto *edit = bench->window().findChild<TextEdit *>();
        return edit ? edit->document()->getHtml() : QString();
    }
    bool isReported(const char *text) const { return report().contains(QLatin1String(text)); }
    StatusNotes &notes() { return bench->window().notes(); }
    QString account() const { return bench->window().findChild<QLabel *>(QStringLiteral("account"))->text(); }
    QAction *action(const QString &text) const
    {
        for (QAction *found : bench->window().menuBar()->findChildren<QAction *>()) {
            if (found->text() == text) {
                return found;
            }
        }
        ADD_FAILURE() << "no action " << text.toStdString();
        return nullptr;
    }

    ScriptedUi ui;
    MemoryHostSettings settings;
    std::unique_ptr<Workbench> bench;

private:
    QTemporaryDir m_folder;
    QTemporaryDir m_home;
    QString m_before = QDir::currentPath();
};
