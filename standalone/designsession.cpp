// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/designsession.h"

#include "standalone/loadeddesign.h"

DesignSession::DesignSession()
    : m_process(m_document, m_netlist)
{
    setapplnprocess(&m_process);
    setcdb(&m_cdb);
}

DesignSession::~DesignSession()
{
    setcdb(nullptr);
    setapplnprocess(nullptr);
}

bool DesignSession::open(const QString &path, const QString &variant)
{
    designs::ReadOptions options;
    options.variant = variant;
    designs::ReadResult result = designs::readDesign(path, options);
    if (!result.design) {
        m_error = result.error.message();
        return false;
    }
    open(std::move(result.design));
    return true;
}

void DesignSession::open(std::unique_ptr<const designs::Design> design)
{
    m_error.clear();
    m_design = std::make_shared<LoadedDesign>(std::move(design), m_dnpChoice);
    m_document.setDesign(m_design);
    m_cdb.setDesign(m_design);
    m_process.setOpen(true);
    m_netlist.setDesign(m_design);
}

QStringList DesignSession::warnings() const
{
    QStringList texts;
    if (m_design) {
        for (const designs::Problem &warning : m_design->design().warnings()) {
            texts.append(warning.message());
        }
    }
    return texts;
}

QStringList DesignSession::files() const
{
    return m_design ? m_design->design().files() : QStringList();
}

QStringList DesignSession::variants() const
{
    return m_design ? m_design->design().variants() : QStringList();
}

void DesignSession::setDnpChoice(DnpChoice choice)
{
    if (choice == m_dnpChoice) {
        return;
    }
    m_dnpChoice = choice;
    if (m_design) {
        m_design->properties().setDnpChoice(choice);
        m_netlist.invalidateCaches();
    }
}
