// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "designs/transaction/designfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>

namespace {

using designs::DesignFiles;

const QByteArray oldContent = "old";
const QByteArray newContent = "new content";

std::string fingerprint(const QByteArray &content)
{
    return designs::fingerprintOf({content.constData(), std::size_t(content.size())})
        .toString()
        .toStdString();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
            "a file can be written");
}

/// Every file by its path, with its content.
QHash<QString, QByteArray> filesIn(const QString &folder)
{
    QHash<QString, QByteArray> found;
    QDirIterator all(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        found.insert(file.fileName(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return found;
}

/// A design of two sheets beside files that are none of it, with the copies of an interrupted write.
class Fixture
{
public:
    Fixture()
    {
        QDir().mkpath(m_folder.filePath(QStringLiteral("d/a-backup")));
        for (const char *name : {"d/a.kicad_sch", "d/b.kicad_sch", "d/c.kicad_sch", "e.kicad_sch"}) {
            write(path(name), oldContent);
        }
        for (const char *name : {"d/.bom-0123456789abcdef-0.new", "d/.bom-0123456789abcdef-1.new",
                                 ".bom-0123456789abcdef-0.new"}) {
            write(path(name), newContent);
        }
        for (const char *name : {"d/.bom-0123456789abcdef-0.old", "d/a-backup/.bom-0123456789abcdef-0.old",
                                 "d/a-backup/.bom-0123456789abcdef-1.old", "d/a-backup/a.kicad_sch.bak",
                                 "d/a-backup/b.kicad_sch.bak"}) {
            write(path(name), oldContent);
        }
    }
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] QHash<QString, QByteArray> files() const { return filesIn(m_folder.path()); }
    [[nodiscard]] DesignFiles design() const
    {
        return {path("d/a.kicad_sch"), {path("d/a.kicad_sch"), path("d/b.kicad_sch")}};
    }

private:
    QTemporaryDir m_folder{QStringLiteral("/dev/shm/bom-XXXXXX")};
};

/// Sheets hold one of the contents that there were, and nothing but them and the program's own files changed.
void checkUntouched(const Fixture &fixture, const QHash<QString, QByteArray> &before)
{
    const QHash<QString, QByteArray> after = fixture.files();
    for (const char *name : {"d/a.kicad_sch", "d/b.kicad_sch"}) {
        const QByteArray content = after.value(fixture.path(name));
        promise(content == oldContent || content == newContent, "a sheet has its old or its new content");
    }
    for (const char *name : {"d/c.kicad_sch", "e.kicad_sch", ".bom-0123456789abcdef-0.new"}) {
        promise(after.value(fixture.path(name)) == before.value(fixture.path(name)), "other files stay");
    }
}

} // namespace

/// The first byte says what the rest is: a journal or the record for taking back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const Fixture fixture;
    const bool isJournal = data[0] % 2 == 0;
    const char *name = isJournal ? "d/.a.kicad_sch.bom-journal" : "d/a-backup/a.kicad_sch.undo";
    write(fixture.path(name), QByteArray(reinterpret_cast<const char *>(data) + 1, qsizetype(size - 1)));
    const auto before = fixture.files();
    const designs::RecoveryResult recovered = fixture.design().recover();
    promise(recovered.isSettled || !recovered.problems.empty(), "what is not settled is told");
    checkUntouched(fixture, before);
    const designs::RecoveryResult again = fixture.design().recover();
    promise(again.actions.empty() && again.isSettled == recovered.isSettled, "recovery comes to an end");
    const designs::TransactionResult undone = fixture.design().undo();
    promise(undone.replaced.isEmpty() != undone.problems.empty(), "taking back is done, or told why not");
    checkUntouched(fixture, before);
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    const std::string contents =
        R"(","before":")" + fingerprint(oldContent) + R"(","after":")" + fingerprint(newContent) + R"("})";
    std::vector<std::string> seeds;
    for (const char *state : {"preparing", "committed", "taking back"}) {
        for (const char *second : {"b.kicad_sch", "c.kicad_sch", "../e.kicad_sch"}) {
            seeds.push_back(
                std::string(R"(b{"version":1,"state":")") + state +
                R"(","token":"0123456789abcdef","backups":true,"makesFolder":false,"files":[{"file":"a.kicad_sch)" +
                contents + R"(,{"file":")" + second + contents + "]}");
        }
    }
    const std::string undone =
        R"(","before":")" + fingerprint(oldContent) + R"(","after":")" + fingerprint(oldContent) + R"("})";
    seeds.push_back(R"(a{"version":1,"files":[{"file":"a.kicad_sch)" + undone + R"(,{"file":"b.kicad_sch)" +
                    undone + "]}");
    return seeds;
}

std::vector<std::string> fuzzWords()
{
    return {"\"",
            "{",
            "}",
            "[",
            "]",
            ",",
            "..",
            "/",
            "\\u0000",
            "\"backups\":false,",
            "\"makesFolder\":true,",
            "committed",
            "taking back",
            "preparing",
            "c.kicad_sch",
            "../e.kicad_sch",
            "a.kicad_sch",
            "../d/a.kicad_sch",
            "/dev/null",
            fingerprint(newContent),
            fingerprint(oldContent),
            "0123456789abcdef",
            "\xFF"};
}
