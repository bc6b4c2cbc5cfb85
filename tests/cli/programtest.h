// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What one run of the program left.
struct ProgramRun
{
    int status = -1;
    std::string out;
    std::string err;
};

/// Runs the built program in a folder of its own. In what it prints, the folder reads as "DIR".
class ProgramTest : public testing::Test
{
protected:
    ProgramTest();

    void write(const QString &name, const QByteArray &bytes) const;
    /// The content of a file, "no file" when there is none.
    [[nodiscard]] std::string read(const QString &name) const;
    /// Copies the files of tests/data/FOLDER that have the name of this one, whatever their suffixes; gives
    /// the name.
    [[nodiscard]] std::string copyData(const char *folder, const char *file) const;
    /// The content of a file of tests/data/FOLDER.
    [[nodiscard]] static std::string data(const char *folder, const std::string &file);
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void setEnvironment(const QString &name, const QString &value) { m_environment.insert(name, value); }

    /// Arguments are separated by blanks, "" is an empty one. Standard output may go to a file instead.
    [[nodiscard]] ProgramRun run(const char *arguments, const QString &output = {}) const;
    /// Runs a command of the shell, in which $BOM is the program: for arguments of any bytes.
    [[nodiscard]] ProgramRun runInShell(const QByteArray &command) const;

private:
    [[nodiscard]] ProgramRun run(const QString &program, const QStringList &words,
                                 const QString &output) const;

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

/// A symbol of a KiCad 8 schematic.
struct KicadSymbol
{
    QByteArray reference;
    QByteArray value;
    /// Further lists inside the symbol, such as properties.
    QByteArray extra = {};
    QByteArray flags = "(in_bom yes) (on_board yes) (dnp no)";
    QByteArray library = "Device:R";
    int unit = 1;
};

/// The text of a schematic with these symbols, titled "Amp".
[[nodiscard]] QByteArray kicadSchematic(const std::vector<KicadSymbol> &symbols);
