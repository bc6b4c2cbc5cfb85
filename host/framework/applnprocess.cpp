// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnprocess.h"

#include "host/framework/hosttext.h"

#include <algorithm>

namespace {
APPLNPROCESS *theProcess = nullptr;
}

APPLNFRAME *APPLNPROCESS::getframe(APPLNMODULE *)
{
    return nullptr;
}

void APPLNPROCESS::popcontext()
{
    if (!m_contexts.isEmpty()) {
        m_contexts.removeLast();
    }
}

APPLNMODULE *APPLNPROCESS::getcontext() const
{
    return m_contexts.isEmpty() ? nullptr : m_contexts.constLast();
}

void APPLNPROCESS::namemodule(const APPLNMODULE *module, const QString &name)
{
    for (NamedModule &known : m_modules) {
        if (known.module == module) {
            known.name = name;
        }
    }
}

void APPLNPROCESS::removemodule(const APPLNMODULE *module)
{
    m_modules.removeIf([module](const NamedModule &known) { return known.module == module; });
}

APPLNMODULE *APPLNPROCESS::findmodule(const char *application) const
{
    if (!application) {
        return nullptr;
    }
    const QString name = fromHostText(application);
    const auto found = std::find_if(m_modules.cbegin(), m_modules.cend(),
                                    [&name](const NamedModule &known) { return known.name == name; });
    return found == m_modules.cend() ? nullptr : found->module;
}

APPLNPROCESS *getapplnprocess()
{
    return theProcess;
}

void setapplnprocess(APPLNPROCESS *process)
{
    theProcess = process;
}
