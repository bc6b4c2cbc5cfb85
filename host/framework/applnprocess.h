// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class APPLNDOCUMENT;
class APPLNFRAME;
class APPLNMODULE;
class IMODULE;
class QPainter;

/// The kinds of document that a process is asked for.
constexpr int DOCUMENT_KIND_DESIGN = 2;

/// The kinds of object that a process is asked for.
constexpr int OBJECT_KIND_PROJECT_NOTES = 34;

/// How an object paints itself.
constexpr int PAINT_MODE_APPEND = 2;

/// Something of the host's that can show itself on a module's output.
class APPLNOBJECT
{
public:
    APPLNOBJECT() = default;
    APPLNOBJECT(const APPLNOBJECT &) = delete;
    APPLNOBJECT &operator=(const APPLNOBJECT &) = delete;
    virtual ~APPLNOBJECT() = default;

    /// With PAINT_MODE_APPEND: on pages of its own after what the painter has painted, on the same device.
    virtual void paint(QPainter &painter, int mode) = 0;
};

/// The application that hosts the modules. A program makes exactly one and installs it with
/// setapplnprocess().
class APPLNPROCESS
{
public:
    APPLNPROCESS() = default;
    APPLNPROCESS(const APPLNPROCESS &) = delete;
    APPLNPROCESS &operator=(const APPLNPROCESS &) = delete;
    virtual ~APPLNPROCESS() = default;

    /// The current document of that kind; a null name takes whichever is open. Null when none is.
    [[nodiscard]] virtual APPLNDOCUMENT *currentdocument(int kind, const char *name) const = 0;

    /// The current object of that name and kind, such as the project's notes; null when there is none. It
    /// stays the process's.
    [[nodiscard]] virtual APPLNOBJECT *currentobject(const char *name, int kind) = 0;

    /// The folder of the program, as the process was started (it may be relative).
    [[nodiscard]] virtual QString getbinpath() const = 0;

    /// The folder in which the process keeps the user's files for an application such as "BOM".
    [[nodiscard]] virtual QString getdatapath(const char *application) const = 0;

    /// The folders that the user keeps templates in, separated by ";", ahead of getdatapath("Templates").
    [[nodiscard]] virtual QString gettemplatepaths() const { return {}; }

    /// The folder with the help of a module; empty when there is none.
    [[nodiscard]] virtual QString gethelppath(const QString &) const { return {}; }

    /// An interface of another application or module; null when there is none.
    [[nodiscard]] virtual IMODULE *getmoduleinterface(const char *application, unsigned id) = 0;

    /// The frame that a module's window goes into; null when the host has none for it.
    [[nodiscard]] virtual APPLNFRAME *getframe(APPLNMODULE *module);

    /// The module that works now is the one pushed last; null when it is the host itself.
    virtual void pushcontext(APPLNMODULE *module) { m_contexts.append(module); }
    virtual void popcontext();
    [[nodiscard]] APPLNMODULE *getcontext() const;

    /// The modules that live in the process enter, take a name and leave by themselves.
    void addmodule(APPLNMODULE *module) { m_modules.append(NamedModule{module, {}}); }
    void namemodule(const APPLNMODULE *module, const QString &name);
    void removemodule(const APPLNMODULE *module);
    /// The first one of that name, null when there is none.
    [[nodiscard]] APPLNMODULE *findmodule(const char *application) const;

private:
    struct NamedModule
    {
        APPLNMODULE *module;
        QString name;
    };

    QList<APPLNMODULE *> m_contexts;
    QList<NamedModule> m_modules;
};

/// The installed process, null before a program has installed one.
[[nodiscard]] APPLNPROCESS *getapplnprocess();

/// Installs the process; it stays owned by the caller. Null takes it away.
void setapplnprocess(APPLNPROCESS *process);
