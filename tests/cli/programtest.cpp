// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/cli/programtest.h"
#include "support/testfiles.h"
#include "support/testpaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace {

constexpr int longestRun = 60 * 1000;

const QString bomProgram = QStringLiteral(BOM_BINARY_DIR "/bin/bom");

const char *const head = R"((kicad_sch
	(version 20231120)
	(generator "eeschema")
	(generator_version "8.0")
	(uuid "10000000-0000-0000-0000-000000000000")
	(paper "A4")
	(title_block
		(title "Amp")
		(date "2026-01-02")
		(rev "B")
		(company "Ada")
		(comment 1 "D-7")
	)
	(lib_symbols
		(symbol "Device:R" (in_bom yes) (on_board yes))
		(symbol "Amplifier:Dual" (in_bom yes) (on_board yes) (symbol "Dual_1_1") (symbol "Dual_2_1"))
		(symbol "power:GND" (power) (in_bom yes) (on_board yes))
	)
)";

} // namespace

ProgramTest::ProgramTest()
{
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.filePath(QStringLiteral("config")));
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.filePath(QStringLiteral("data")));
    m_environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    m_environment.remove(QStringLiteral("SOURCE_DATE_EPOCH"));
    m_environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
}

void ProgramTest::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(file.fileName());
    ASSERT_EQ(file.write(bytes), bytes.size());
}

std::string ProgramTest::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "no file";
}

std::string ProgramTest::copyData(const char *folder, const char *file) const
{
    const QDir data(QStringLiteral(BOM_SOURCE_DIR "/tests/data/") + QString::fromUtf8(folder));
    const QString name = QFileInfo(QString::fromUtf8(file)).completeBaseName();
    for (const QString &copied : data.entryList({name + QStringLiteral(".*")}, QDir::Files)) {
        EXPECT_TRUE(QFile::copy(data.filePath(copied), path(copied))) << qPrintable(copied);
    }
    return name.toStdString();
}

std::string ProgramTest::data(const char *folder, const std::string &file)
{
    const std::string path = std::string(BOM_SOURCE_DIR "/tests/data/") + folder + '/' + file;
    return readFile(QString::fromStdString(path)).toStdString();
}

ProgramRun ProgramTest::run(const char *arguments, const QString &output) const
{
    QStringList words = QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts);
    words.replaceInStrings(QStringLiteral("\"\""), QString());
    return run(bomProgram, words, output);
}

ProgramRun ProgramTest::runInShell(const QByteArray &command) const
{
    const QString script = QStringLiteral("command.sh");
    write(script, "BOM=" + bomProgram.toUtf8() + '\n' + command + '\n');
    return run(QStringLiteral("/bin/sh"), {script}, {});
}

ProgramRun ProgramTest::run(const QString &program, const QStringList &words, const QString &output) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder.path());
    if (!output.isEmpty()) {
        process.setStandardOutputFile(output);
    }
    process.start(program, words);
    if (!process.waitForFinished(longestRun) || process.exitStatus() != QProcess::NormalExit) {
        ADD_FAILURE() << "bom " << qPrintable(words.join(u' ')) << ": " << qPrintable(process.errorString());
        return {};
    }
    const auto text = [this](QByteArray bytes) {
        return bytes.replace(QDir(m_folder.path()).canonicalPath().toUtf8(), "DIR").toStdString();
    };
    return {process.exitCode(), text(process.readAllStandardOutput()), text(process.readAllStandardError())};
}

QByteArray kicadSchematic(const std::vector<KicadSymbol> &symbols)
{
    QByteArray text = head;
    int number = 0;
    for (const KicadSymbol &symbol : symbols) {
        const QByteArray unit = QByteArray::number(symbol.unit);
        text += "\t(symbol (lib_id \"" + symbol.library + "\") (at 10 10 0) (unit " + unit + ") " +
                symbol.flags + "\n\t\t(uuid \"20000000-0000-0000-0000-" +
                QByteArray::number(++number).rightJustified(12, '0') + "\")\n\t\t(property \"Reference\" \"" +
                symbol.reference + "\" (at 0 0 0))\n\t\t(property \"Value\" \"" + symbol.value +
                "\" (at 0 0 0))\n\t\t" + symbol.extra +
                "\n\t\t(instances (project \"amp\" (path \"/10000000-0000-0000-0000-000000000000\" "
                "(reference \"" +
                symbol.reference + "\") (unit " + unit + "))))\n\t)\n";
    }
    return text + ")\n";
}
