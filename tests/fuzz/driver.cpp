// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"
#include "support/randominputs.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace {

constexpr int mutations = 10'000;
const char *const failingInput = "fuzz-failing-input";

std::string current;

/// Leaves the input that made the target fail in the current folder.
extern "C" void keepInput(int signal)
{
    std::signal(signal, SIG_DFL);
    if (std::FILE *file = std::fopen(failingInput, "wb")) {
        std::fwrite(current.data(), 1, current.size(), file);
        std::fclose(file);
        std::fprintf(stderr, "the input is kept in %s\n", failingInput);
    }
    std::raise(signal);
}

void run(std::string input)
{
    current = std::move(input);
    // An input that takes that long hangs the reader, also under sanitizers on a busy machine.
    alarm(60);
    // Exactly as large as the input, so that a sanitizer sees a read behind its end.
    const std::vector<std::uint8_t> bytes(current.begin(), current.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

/// Changes an input at random; the same sequence on every machine.
class Mutator
{
public:
    Mutator(std::vector<std::string> seeds, std::vector<std::string> words)
        : m_seeds(std::move(seeds))
        , m_words(std::move(words))
    {
    }

    std::string next()
    {
        std::string text = m_random.oneOf(m_seeds);
        for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
            change(&text);
        }
        return text;
    }

private:
    std::size_t below(std::size_t limit) { return m_random.below(limit); }

    std::string part(const std::string &text, std::size_t length)
    {
        return text.substr(below(text.size() + 1), length);
    }

    void change(std::string *text)
    {
        const std::size_t at = below(text->size() + 1);
        const std::size_t length = std::min(below(100), text->size() - at);
        switch (below(8)) {
        case 0:
            text->resize(at);
            break;
        case 1:
            text->erase(at, length);
            break;
        case 2:
            text->insert(at, text->substr(at, length));
            break;
        case 3:
            text->insert(at, std::string(1, char(below(256))));
            break;
        case 4:
            text->insert(at, std::string(below(3000), m_random.oneOf(m_words).front()));
            break;
        case 5:
            text->replace(at, length, part(m_random.oneOf(m_seeds), length));
            break;
        case 6:
            if (at < text->size()) {
                (*text)[at] = char(below(256));
            }
            break;
        default:
            text->insert(at, m_random.oneOf(m_words));
            break;
        }
    }

    RandomInputs m_random{20261};
    std::vector<std::string> m_seeds;
    std::vector<std::string> m_words;
};

int runFiles(int count, char **names)
{
    for (int i = 0; i < count; ++i) {
        std::ifstream file(names[i], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "%s: cannot be read\n", names[i]);
            return 1;
        }
        run(std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return 0;
}

} // namespace

/// Runs the files named on the command line; without any, a fixed number of mutations of the seeds.
int main(int argc, char **argv)
{
    std::signal(SIGABRT, keepInput);
    std::signal(SIGSEGV, keepInput);
    std::signal(SIGALRM, keepInput);
    if (argc > 1) {
        return runFiles(argc - 1, argv + 1);
    }
    Mutator mutator(fuzzSeeds(), fuzzWords());
    for (const std::string &seed : fuzzSeeds()) {
        run(seed);
    }
    for (int i = 0; i < mutations; ++i) {
        run(mutator.next());
    }
    return 0;
}
