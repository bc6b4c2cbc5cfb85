// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include <host/framework/applnmodule.h>
#include <host/framework/applnprocess.h>
#include <host/netlist/netlist.h>
#include <host/propdefs/propdefsfile.h>
#include <host/widgets/qthostui.h>
#include <module/ibomviewer.h>

#include <QApplication>
#include <QDir>
#include <QLibrary>
#include <QTextStream>

namespace {

/// A process that has nothing open.
class EmptyProcess final : public APPLNPROCESS
{
public:
    APPLNDOCUMENT *currentdocument(int, const char *) const override { return nullptr; }
    APPLNOBJECT *currentobject(const char *, int) override { return nullptr; }
    QString getbinpath() const override { return QCoreApplication::applicationDirPath(); }
    QString getdatapath(const char *) const override { return QDir::tempPath(); }
    IMODULE *getmoduleinterface(const char *, unsigned) override { return nullptr; }
};

} // namespace

/// Loads the module and prints what it calls itself and how many parts it has.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QtHostUi ui;
    HostUi::install(&ui);
    EmptyProcess process;
    setapplnprocess(&process);
    const QLibrary library(QStringLiteral(MODULE));
    const auto create =
        reinterpret_cast<CREATEMODULEINSTANCE>(QLibrary::resolve(library.fileName(), MODULE_CREATE));
    const auto end =
        reinterpret_cast<DELETEMODULEINSTANCE>(QLibrary::resolve(library.fileName(), MODULE_DELETE));
    APPLNMODULE *module = create && end ? create(&process) : nullptr;
    auto *viewer = module ? static_cast<IBOMVIEWER *>(module->queryinterface(INTERFACE_BOMVIEWER)) : nullptr;
    if (!viewer) {
        return 1;
    }
    QTextStream(stdout) << module->getapplnname() << ' '
                        << viewer->reportcounts().value_or(REPORTCOUNTS()).parts << '\n';
    end(module);
    setapplnprocess(nullptr);
    HostUi::install(nullptr);
    return 0;
}
