// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnprocess.h"
#include "host/framework/imodule.h"
#include "support/fakedocument.h"

/// A host process, installed while it lives, with one design document unless `hasDesign` is cleared.
class FakeProcess final : public APPLNPROCESS
{
public:
    FakeProcess() { setapplnprocess(this); }
    ~FakeProcess() override { setapplnprocess(nullptr); }

    mutable FakeDocument design;
    bool hasDesign = true;
    QString binPath = QStringLiteral("/opt/host/bin");
    QString dataPath;
    APPLNOBJECT *projectNotes = nullptr;
    IMODULE *navigator = nullptr;

    APPLNDOCUMENT *currentdocument(int kind, const char *name) const override
    {
        return hasDesign && kind == DOCUMENT_KIND_DESIGN && !name ? &design : nullptr;
    }
    APPLNOBJECT *currentobject(const char *name, int kind) override
    {
        const bool isAsked = QByteArrayView(name) == "PROJNOTES" && kind == OBJECT_KIND_PROJECT_NOTES;
        return isAsked ? projectNotes : nullptr;
    }
    QString getbinpath() const override { return binPath; }
    QString getdatapath(const char *application) const override
    {
        return QByteArrayView(application) == "BOM" ? dataPath : QString();
    }
    IMODULE *getmoduleinterface(const char *application, unsigned id) override
    {
        return QByteArrayView(application) == "ORIN" && id == INTERFACE_NAVIGATOR ? navigator : nullptr;
    }
};
