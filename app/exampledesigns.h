// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

/// A design that comes with the program.
struct ExampleDesign
{
    /// The folder's name.
    QString name;
    /// What is to be opened: the project, else the schematic or part list of the folder; absolute.
    QString file;

    bool operator==(const ExampleDesign &) const = default;
};

/// The examples of the folder that is found first beside the program: installed, or of the sources.
[[nodiscard]] QList<ExampleDesign> exampleDesigns();
/// Those of one folder, one in each folder in it, by their names.
[[nodiscard]] QList<ExampleDesign> exampleDesignsIn(const QString &folder);

/// The user's copy of an example.
struct ExampleCopy
{
    /// What is to be opened; empty when it could not be made.
    QString file;
    /// Why not.
    QString problem;
    /// There was one from before, which is left as it is.
    bool isOld = false;
};

/// Copies an example into a folder of the user's documents, "BOM Examples", so that people may change it.
[[nodiscard]] ExampleCopy copyOfExample(const ExampleDesign &example);
