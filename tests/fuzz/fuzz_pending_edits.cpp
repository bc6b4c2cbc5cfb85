// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "core/pendingjournal.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <set>

namespace {

const EditedDesign design{QStringLiteral("/designs/amp.kicad_sch"), {}};

/// The folder of a journal and the file in it.
struct Place
{
    Place()
    {
        PendingJournal journal(folder.path(), design);
        const PendingEdit edit{{"s1"}, QStringLiteral("R1"), QStringLiteral("MPN"), QStringLiteral("x"), {}};
        promise(journal.record({}, {edit}, 1, [&edit] { return QList{edit}; }), "a journal can be written");
        path = folder.filePath(
            QDir(folder.path()).entryList({QStringLiteral("*.pending")}, QDir::Files).value(0));
    }

    QTemporaryDir folder;
    QString path;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Place place;
    QFile file(place.path);
    promise(file.open(QIODevice::WriteOnly) &&
                file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size),
            "the input can be written");
    file.close();
    PendingJournal journal(place.folder.path(), design);
    const QList<PendingEdit> read = journal.read();
    promise(read.isEmpty() || journal.unreadable().isEmpty(), "what cannot be read holds no edits");
    std::set<EditKey> keys;
    for (const PendingEdit &edit : read) {
        promise(keys.insert(EditKey::of(edit)).second, "one edit for each property of a part");
    }
    // Each write waits for the disk.
    static int written = 0;
    if (!read.isEmpty() && ++written % 50 == 0) {
        promise(journal.record({}, read, read.size(), [&read] { return read; }), "edits can be written");
        promise(journal.read() == read, "what was written is read again");
    }
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    const std::string first = R"({"pendingEdits":{"file":"/designs/amp.kicad_sch","variant":"","version":1}})"
                              "\n";
    const std::string set =
        R"({"set":{"before":"a","component":"/r/s1","property":"MPN","reference":"R1","value":"b"}})"
        "\n";
    return {first + set + R"({"drop":{"component":"/r/s1","property":"MPN"}})" + "\n" + set,
            first +
                R"({"set":{"before":"","component":"/r/s2","definition":"'SCR','M3'","place":2,)"
                R"("property":"LEN","reference":"SCR3","value":"\u00e4\ud800"}})" +
                "\n{\"set\":{\"compon"};
}

std::vector<std::string> fuzzWords()
{
    return {"{",    "}",          "\"set\":", "\"drop\":",   "\"component\":",  "\"property\":", "\"value\":",
            "\n",   "\"place\":", "-1",       "99999999999", "\"definition\":", "\"version\":",  "\\u0000",
            "null", "[[[[[[[["};
}
