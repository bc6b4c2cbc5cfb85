// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

// What users are told, by subject; each class is a context of the translations.

/// The design that is open and the notes beside it.
class SessionTexts
{
    Q_DECLARE_TR_FUNCTIONS(DesignSession)
};

/// What is wrong with a script of changes, or with what it asks for.
class ScriptTexts
{
    Q_DECLARE_TR_FUNCTIONS(ChangeScript)
};

/// What is wrong with a table of names of properties, or with a description of an assembly service.
class TableTexts
{
    Q_DECLARE_TR_FUNCTIONS(FieldTable)
};
