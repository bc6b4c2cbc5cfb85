// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/lastoutput.h"

#include "app/framewindow.h"
#include "app/programmenus.h"
#include "app/statusfields.h"
#include "host/framework/hostui.h"

#include <QFileInfo>
#include <QUrl>

LastOutput::LastOutput(FrameWindow *window)
    : m_window(window)
{
    HostUi::current().setFileListener([this](const QString &path) { set(path); });
    connect(&window->menus(), &ProgramMenus::outputRequested, this, &LastOutput::openFile);
    connect(&window->menus(), &ProgramMenus::outputFolderRequested, this, &LastOutput::openFolder);
    forget();
}

LastOutput::~LastOutput()
{
    HostUi::current().setFileListener(nullptr);
}

void LastOutput::set(const QString &path)
{
    m_path = path;
    const QString name = QFileInfo(path).fileName();
    m_window->menus().setOutput(name);
    m_window->status().setWritten(name, m_window->menus().outputActions());
}

void LastOutput::openFile()
{
    open(m_path);
}

void LastOutput::openFolder()
{
    open(QFileInfo(m_path).path());
}

void LastOutput::open(const QString &path)
{
    HostUi &ui = HostUi::current();
    if (!QFileInfo::exists(path)) {
        ui.warning(m_window, tr("Open Failed"), tr("%1 is not there any more.").arg(path));
    } else if (!ui.openUrl(QUrl::fromLocalFile(path))) {
        ui.warning(m_window, tr("Open Failed"), tr("The desktop knows no program that opens %1.").arg(path));
    }
}
