// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomcategory.h"
#include "templates/bomfields.h"

#include <QList>
#include <QString>

class QSettings;

/// The data of a template. Member names are the names that files use.
struct BOMTemplateRecord
{
    /// The format version that templates have in memory and are written in.
    static constexpr qint32 CurrentVersion = 5;

    qint32 version = CurrentVersion;
    bool suppressEmptyCategories = false;
    bool groupReferences = true;
    bool fullTextOuputs = false;
    QList<BOMCategory> categories;
    BOMFields fields;
    QString CSS;
    QString DocumentHeader;
    QString DocumentFooter;
    QString PageHeader;
    QString PageFooter;
    bool AppendNotes = false;
    int AsciiQuantityWidth = 5;
    int AsciiRefWidth = 30;
    int PrettyQuantityWidth = 7;
    int PrettyRefWidth = 15;
    bool ManualPrettyLayout = false;
    bool AlwaysQuoteRefs = false;
    bool ExcludeValueField = false;
    bool CaseSensitiveGrouping = true;
    QString name;
    QSettings *legacySettings = nullptr;
    QString htmlTemplateFileName;
    QString filePath;
};
