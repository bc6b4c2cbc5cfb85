// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "standalone/adiscript.h"

#include <sstream>

namespace {

/// Writes assignments in the plainest way, each as a record of its own.
std::string scriptOf(const std::vector<AdiAssignment> &assignments)
{
    std::string text;
    for (const AdiAssignment &assignment : assignments) {
        text += "DATA NAME : " + assignment.reference + "-\n\"" + assignment.property + "\"   :   \"" +
                assignment.value.value_or("[REMOVE]") + "\"\nEND\n\n";
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::istringstream input(std::string(reinterpret_cast<const char *>(data), size));
    const AdiScript script = readAdiScript(input);
    promise(script.assignments.empty() || script.error.isEmpty(), "a script with an error assigns nothing");
    std::istringstream again(scriptOf(script.assignments));
    const AdiScript same = readAdiScript(again);
    promise(same.error.isEmpty() && same.assignments == script.assignments, "what was read can be written");
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {
        "DATA NAME : R1-\n\"MPN\"   :   \"4711\"\n\"A \"b\" c\"   :   \"x\"y\"\nEND\n\n",
        "DATA NAME : X-1-\n\"COST\"   :   \"[REMOVE]\"\nEND\n\nDATA NAME : R2-\n\"V\"   :   \"\"\nEND\n\n"};
}

std::vector<std::string> fuzzWords()
{
    return {"DATA NAME : ", "-\n",  "\"   :   \"", "[REMOVE]", "\nEND\n\n", "END",
            "\n",           "\r\n", "\"",          "\xFF",     " "};
}
