// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/bomviewer.h"

#include "core/bompartsdatabase.h"
#include "core/joinedlines.h"
#include "core/propertyassignments.h"
#include "editors/pendingundo.h"
#include "host/framework/applndocument.h"
#include "host/framework/applnprocess.h"
#include "host/framework/imodule.h"
#include "module/bommainwindow.h"
#include "module/moduletemplates.h"

#include <QCoreApplication>

#include <utility>

namespace {

BOMVIEWER *theModule = nullptr;

/// What this module asks the netlist server for; the server gives the numbers their meaning.
constexpr int netlistContext = 1;
constexpr int netlistDetail = 35;

/// The module is the process's current one while this lives.
class Context final
{
public:
    explicit Context(APPLNMODULE &module)
        : m_module(module)
    {
        m_module.pushcontext();
    }
    Context(const Context &) = delete;
    Context &operator=(const Context &) = delete;
    ~Context() { m_module.popcontext(); }

private:
    APPLNMODULE &m_module;
};

IMODULE *interfaceOf(APPLNPROCESS *process, const char *application, unsigned id)
{
    return process ? process->getmoduleinterface(application, id) : nullptr;
}

} // namespace

BOMVIEWER::BOMVIEWER(APPLNPROCESS *process)
    : APPLNMODULE(process)
{
    setapplnname(QStringLiteral("BOM"), QCoreApplication::translate("BOMVIEWER", "Bill of Materials"));
    m_database = BOMPartsDatabase::instance();
    m_assignments = std::make_unique<PropertyAssignments>(m_database);
    m_undo = std::make_unique<PendingUndo>(m_assignments.get());
    if (process) {
        m_assignments->setJournalFolder(process->getdatapath("BOM") + QStringLiteral("/pending"));
    }
    m_templates = std::make_unique<ModuleTemplates>(process, *m_database);
    IMODULE *server = interfaceOf(process, "ORIN", INTERFACE_NETSERVER);
    m_cache.attach(this);
    m_cache.setsource(static_cast<INETSERVER *>(server));
    m_cache.setcontext(netlistContext, netlistDetail);
    m_database->setNetlist(&m_cache);
    m_database->setWindowVisibleQuery([this] { return isvisible(); });
    connectProject();
    connectReportListener();
    theModule = this;
}

BOMVIEWER::~BOMVIEWER()
{
    theModule = nullptr;
    m_templates.reset();
    m_undo.reset();
    m_assignments.reset();
    BOMPartsDatabase::destroyInstance();
    m_database = nullptr;
}

BOMVIEWER *BOMVIEWER::instance()
{
    return theModule;
}

void BOMVIEWER::connectProject()
{
    IMODULE *project = interfaceOf(getapplnprocess(), nullptr, INTERFACE_PROJECT);
    APPLNDOCUMENT *document = project ? static_cast<IPROJECT *>(project)->getprojectdocument() : nullptr;
    if (document) {
        QObject::connect(document, &APPLNDOCUMENT::modified, m_database,
                         &BOMPartsDatabase::nimProjectChanged);
    }
}

void BOMVIEWER::connectReportListener()
{
    const auto tell = [this](bool isReport) {
        if (m_reportListener) {
            m_reportListener(isReport);
        }
    };
    QObject::connect(m_database, &BOMPartsDatabase::dataChanged, [tell] { tell(true); });
    QObject::connect(m_assignments.get(), &PropertyAssignments::changed, [tell] { tell(false); });
}

IMODULE *BOMVIEWER::queryinterface(unsigned id)
{
    if (id == INTERFACE_NETCLIENT || id == INTERFACE_BOMVIEWER) {
        return static_cast<IBOMVIEWER *>(this);
    }
    return APPLNMODULE::queryinterface(id);
}

APPLNWINDOW *BOMVIEWER::createwindow(APPLNFRAME *frame, unsigned)
{
    if (m_mainWindow) {
        return m_mainWindow;
    }
    m_mainWindow = new BOMMainWindow(m_database, {m_assignments.get(), m_undo.get(), &m_templates->store()});
    m_mainWindow->setowner(this);
    if (!m_mainWindow->createwindow(frame)) {
        delete m_mainWindow;
        m_mainWindow = nullptr;
        return nullptr;
    }
    m_templates->show(m_mainWindow);
    m_mainWindow->fillViews();
    return m_mainWindow;
}

void BOMVIEWER::removewindow(APPLNWINDOW *window)
{
    if (m_mainWindow && window == m_mainWindow) {
        m_templates->setDialogParent(nullptr);
        m_mainWindow->deleteLater();
        m_mainWindow = nullptr;
    }
    APPLNMODULE::removewindow(window);
}

void BOMVIEWER::onvalidate()
{
    const Context context(*this);
    m_cache.validate(1);
    if (m_templates) {
        m_templates->refresh();
    }
}

bool BOMVIEWER::isvisible()
{
    return m_mainWindow && m_mainWindow->isvisible();
}

bool BOMVIEWER::isbusy() const
{
    return m_mainWindow && m_mainWindow->isBusy();
}

std::optional<REPORTCOUNTS> BOMVIEWER::reportcounts() const
{
    REPORTCOUNTS counts{0, qsizetype(m_database->parts().size()), m_assignments->size()};
    const BOMCategories &categories = m_database->categories();
    for (const QString &category : categories.names()) {
        counts.lines += categories.lineCount(category);
    }
    return counts;
}

void BOMVIEWER::setreportlistener(const std::function<void(bool isReport)> &listener)
{
    m_reportListener = listener;
}

QList<UNWRITTENEDITS> BOMVIEWER::unwrittenedits() const
{
    QList<UNWRITTENEDITS> unwritten;
    for (const UnwrittenDesign &found : m_assignments->unwritten()) {
        unwritten.append({found.design.file, found.design.variant, found.edits});
    }
    return unwritten;
}

QStringList BOMVIEWER::differinglines(const QStringList &always, const QStringList &whereFilled) const
{
    QStringList texts;
    for (const JoinedLine &line : joinedLines(*m_database, always, whereFilled)) {
        texts << joinedLineText(line);
    }
    return texts;
}

void BOMVIEWER::designChanged(bool reload)
{
    const Context context(*this);
    if (m_database->isWriting()) {
        return;
    }
    if (reload) {
        m_database->reload();
    } else {
        m_database->clearAndSuspend();
    }
}

void BOMVIEWER::show()
{
    const Context context(*this);
    showprimarywindow();
}
