// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "host/propdefs/propdefsfile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const PROPTEXT text = PROPTEXT::fromBytes(bytes);
    QStringList problems;
    const DIDX definitions = text.definitions(&problems);
    promise(definitions.definitions().size() <= text.lines().size() && problems.size() <= text.lines().size(),
            "a line is at most one definition and one problem");
    const PROPTEXT again = PROPTEXT::fromBytes(text.toBytes());
    promise(again.lines() == text.lines(), "a text reads as it was written");

    PROPTEXT changed = text;
    const PROPDEF added{QStringLiteral("Fuzz_Added"), PropType::Int, QStringLiteral("\u00e4 (\u03a9)")};
    changed.add(QStringLiteral("PROPDEFS"), format_propdefs(added));
    const DIDX now = PROPTEXT::fromBytes(changed.toBytes()).definitions();
    promise(now.find(added.name), "what was added is found");
    for (const PROPDEF &definition : definitions.definitions()) {
        const PROPDEF *kept = now.find(definition.name);
        promise(kept && *kept == definition, "the others stay as they were");
        const QStringList lines{QStringLiteral("[PROPDEFS]"), format_propdefs(definition)};
        promise(PROPTEXT(lines).definitions().definitions() == QList<PROPDEF>{definition},
                "a definition reads as it was written");
    }
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {"; mine\r\n[PROPDEFS]\r\n\"A\",INT\r\n\"B\",FLOAT,\"of \xFC\"\r\n\r\n[Other]\r\nx=1\r\n",
            "[PROPDEFS]\n\"A\",YESNO\n\"a\",INT\n\"C\",STRING,\"x, \"\"y\"\"\"\n#\n",
            "[PROPDEFS]\n\"D\",STRING,\"a\",\"C0G|X7R\"\n\"E\",INT,\"\",\"1|2\"\n\"F\",STRING,\"x\",\"|\"\n",
            "\xEF\xBB\xBF\xEF\xBB\xBF[PP", "\xEF\xBB\xBF\n\"\xC3\r\xBC\nx\r"};
}

std::vector<std::string> fuzzWords()
{
    return {"\"", ",",      "|", "\",\"", "[PROPDEFS]\n", "[Other]",      "\n",
            "\r", "\",INT", ";", "#",     "\xC3\xBC",     "\xEF\xBB\xBF", " "};
}
