// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

namespace designs {

// What users are told, by subject; each class is a context of the translations. Most texts stand behind the
// name of a file, as in "FILE:LINE: cannot be read".

/// Files that are opened, of any format.
class FileTexts
{
    Q_DECLARE_TR_FUNCTIONS(DesignFile)
};

/// What stands in schematics, projects and boards of KiCad.
class KicadTexts
{
    Q_DECLARE_TR_FUNCTIONS(KicadDesign)
};

/// Why an edit of a KiCad design is refused.
class KicadEditTexts
{
    Q_DECLARE_TR_FUNCTIONS(KicadEdit)
};

/// What stands in part lists, and why an edit of one is refused.
class PartListTexts
{
    Q_DECLARE_TR_FUNCTIONS(PartList)
};

/// Locks, transactions and what was done about an interrupted one.
class WriteTexts
{
    Q_DECLARE_TR_FUNCTIONS(DesignWriting)
};

} // namespace designs
