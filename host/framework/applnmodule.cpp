// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnmodule.h"

#include "host/framework/applnprocess.h"
#include "host/framework/hostsettings.h"
#include "host/framework/hostui.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTranslator>
#include <QUrl>

#include <algorithm>

APPLNWINDOW::~APPLNWINDOW()
{
    setowner(nullptr);
}

void APPLNWINDOW::setowner(APPLNMODULE *module)
{
    if (m_owner == module) {
        return;
    }
    if (m_owner) {
        m_owner->forgetwindow(this);
    }
    m_owner = module;
    if (m_owner) {
        m_owner->addwindow(this);
    }
}

KEYTRANSLATOR *APPLNWINDOW::getkeytranslator() const
{
    return m_owner ? m_owner->getkeytranslator() : nullptr;
}

APPLNMODULE::APPLNMODULE(APPLNPROCESS *process)
    : m_process(process)
{
    if (m_process) {
        m_process->addmodule(this);
    }
}

APPLNMODULE::~APPLNMODULE()
{
    for (APPLNWINDOW *window : std::as_const(m_windows)) {
        window->m_owner = nullptr;
    }
    if (m_process) {
        m_process->removemodule(this);
    }
}

IMODULE *APPLNMODULE::queryinterface(unsigned id)
{
    return m_interfaces.value(id);
}

APPLNWINDOW *APPLNMODULE::getprimarywindow()
{
    return m_windows.isEmpty() ? nullptr : m_windows.constFirst();
}

void APPLNMODULE::showprimarywindow()
{
    if (!getprimarywindow() && m_process) {
        if (APPLNFRAME *frame = m_process->getframe(this)) {
            (void)createwindow(frame, 0);
        }
    }
    showprimarywindow(WINDOW_NORMAL);
}

void APPLNMODULE::setapplnname(const QString &name, const QString &title)
{
    m_name = name;
    m_title = title;
    if (m_process) {
        m_process->namemodule(this, name);
    }
}

void APPLNMODULE::pushcontext()
{
    if (m_process) {
        m_process->pushcontext(this);
    }
}

void APPLNMODULE::popcontext()
{
    if (m_process) {
        m_process->popcontext();
    }
}

bool APPLNMODULE::run()
{
    if (!system_init() || !load()) {
        return false;
    }
    const QString key = QStringLiteral("HasRun");
    if (!HostSettings::current().value(getregistrykey(), key)) {
        onfirstrun();
        HostSettings::current().setValue(getregistrykey(), key, QStringLiteral("1"));
    }
    showprimarywindow();
    return true;
}

bool APPLNMODULE::load()
{
    if (!loadcmdinfo() || !loadcbftable() || !loadconfig()) {
        return false;
    }
    loadsettings();
    return true;
}

void APPLNMODULE::pumpmessages()
{
    QCoreApplication::processEvents();
}

bool APPLNMODULE::launchhelp(const QString &topic)
{
    const QString folder = m_process ? m_process->gethelppath(m_name) : QString();
    const QString page = (topic.isEmpty() ? QStringLiteral("index") : topic) + QStringLiteral(".html");
    const QString translated = folder + u'/' + getapplnlanguageinstance(this) + u'/' + page;
    const QString path = QFileInfo::exists(translated) ? translated : folder + u'/' + page;
    return !folder.isEmpty() && QFileInfo::exists(path) &&
           HostUi::current().openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
}

void APPLNMODULE::setinterface(unsigned id, IMODULE *object)
{
    if (object) {
        m_interfaces.insert(id, object);
    } else {
        m_interfaces.remove(id);
    }
}

APPLNWINDOW *APPLNMODULE::createwindow(APPLNFRAME *, unsigned)
{
    return nullptr;
}

void APPLNMODULE::showprimarywindow(unsigned state)
{
    if (APPLNWINDOW *window = getprimarywindow()) {
        window->showwindow(state);
    }
}

void APPLNMODULE::restorewindow(APPLNWINDOW *window)
{
    if (window) {
        window->showwindow(WINDOW_NORMAL);
    }
}

void APPLNMODULE::addwindow(APPLNWINDOW *window)
{
    if (window && !m_windows.contains(window)) {
        m_windows.append(window);
    }
}

void APPLNMODULE::removewindow(APPLNWINDOW *window)
{
    if (window && window->getowner() == this) {
        window->destroywindow();
        window->setowner(nullptr);
    } else {
        forgetwindow(window);
    }
}

void APPLNMODULE::updatewindows()
{
    for (APPLNWINDOW *window : std::as_const(m_windows)) {
        window->updatewindow();
    }
}

bool APPLNMODULE::onwantkey(int)
{
    return false;
}

bool APPLNMODULE::oncommand(unsigned)
{
    return false;
}

unsigned APPLNMODULE::getuistate(unsigned id) const
{
    const std::span<const CMDINFO> table = getcmdinfotable();
    const bool isKnown =
        std::any_of(table.begin(), table.end(), [id](const CMDINFO &info) { return info.id == id; });
    return isKnown ? UISTATE_ENABLED : UISTATE_DISABLED;
}

QByteArray APPLNMODULE::getdialogform(const char *)
{
    return {};
}

QObject *APPLNMODULE::getdialogcbf(const char *)
{
    return nullptr;
}

QObject *APPLNMODULE::getdialogctrl(const char *, QObject *)
{
    return nullptr;
}

QByteArray APPLNMODULE::getdialogctrltypename(unsigned)
{
    return {};
}

std::optional<quint32> APPLNMODULE::getcolour(unsigned) const
{
    return std::nullopt;
}

QString getapplnlanguageinstance(APPLNMODULE *module)
{
    const QTranslator *translator = module ? module->getstringtranslator() : nullptr;
    const QString language = translator ? translator->language().section(u'_', 0, 0) : QString();
    return language.isEmpty() ? QStringLiteral("en") : language;
}
