// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvfile.h"
#include "designs/designfolder.h"
#include "designs/formats/designreader.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace designs;

namespace {

/// Lists and edits by chance, always the same ones.
class Chance
{
public:
    std::size_t below(std::size_t end) { return std::size_t(m_random() % end); }

    const std::string &text()
    {
        static const std::vector<std::string> texts = {
            "",         "10k",    "1,5",   "a;b", "say \"5%1\"", "\"",           "two\nlines", "\r",
            " blank ",  " front", "back ", "\t",  "'",           "=1+1",         "R1-R4",      "0603",
            "\xC2\xB5", "a|b\tc", "\r\n",  "~",   "Ref",         "\xC3\x84;\"\n"};
        return texts[below(texts.size())];
    }

    std::string list()
    {
        static const std::vector<std::string> ends = {"\n", "\r\n", "\r"};
        m_delimiter = ",;\t|"[below(4)];
        const std::string common = ends[below(3)];
        std::string out = below(2) == 0 ? "\xEF\xBB\xBF" : "";
        out += "Ref" + std::string(1, m_delimiter) + "Qty" + m_delimiter + "Value" + m_delimiter +
               "Footprint" + m_delimiter + "MPN" + common;
        int number = 1;
        for (std::size_t row = 0; row < 12; ++row) {
            const int count = int(below(6)) + 1;
            out += references(number, count) + m_delimiter + std::to_string(count);
            for (std::size_t column = 0; column < 3; ++column) {
                out += m_delimiter + quoted(text());
            }
            out += row < 11 ? (below(5) == 0 ? ends[below(3)] : common) : "";
            number += count;
        }
        return out;
    }

private:
    std::string references(int first, int count)
    {
        if (below(3) == 0 && count > 1) {
            return "R" + std::to_string(first) + "-R" + std::to_string(first + count - 1);
        }
        std::string text;
        for (int number = first; number < first + count; ++number) {
            text += (text.empty() ? "R" : ", R") + std::to_string(number);
        }
        return quoted(text);
    }

    std::string quoted(const std::string &text) const
    {
        const bool plain = text.find_first_of("\"\r\n\t ") == std::string::npos &&
                           text.find(m_delimiter) == std::string::npos;
        std::string out;
        for (const char c : text) {
            out.append(c == '"' ? 2 : 1, c);
        }
        return plain ? out : '"' + out + '"';
    }

    std::mt19937 m_random{20};
    char m_delimiter = ',';
};

using PartTexts = std::map<std::string, std::string>;

/// What the parts say, by reference; empty texts left out.
std::map<std::string, PartTexts> textsOf(const Design &design)
{
    std::map<std::string, PartTexts> all;
    for (const Component &part : design.components()) {
        PartTexts &texts = all[std::string(part.reference)];
        texts["Value"] = part.value;
        for (const Property &property : part.properties) {
            texts[std::string(design.names().name(property.name))] = property.value;
        }
        std::erase_if(texts, [](const auto &text) { return text.second.empty(); });
    }
    return all;
}

/// The records, each with its line end.
std::vector<std::string> recordsOf(const std::string &text)
{
    Problem problem;
    const auto file = CsvFile::parse(QByteArray::fromStdString(text), &problem);
    std::vector<std::string> records;
    for (std::size_t row = 0; file && row < file->rows().size(); ++row) {
        const bool isLast = row + 1 == file->rows().size();
        const std::size_t end = isLast ? text.size() : file->rows()[row + 1].begin;
        records.push_back(text.substr(file->rows()[row].begin, end - file->rows()[row].begin));
    }
    return records;
}

/// Whether all records but those that change stand in the new text as they were.
void expectOthersUntouched(const std::string &before, const Design &design, const EditPlan &plan)
{
    const std::vector<std::string> records = recordsOf(before);
    std::vector<bool> touched(records.size(), false);
    for (const Change &change : plan.changes) {
        const auto at = std::ranges::find(design.components(), quint32(change.line), &Component::line);
        touched[at->origin] = true;
    }
    const std::vector<std::string> after = recordsOf(plan.files.front().after.toStdString());
    auto next = after.begin();
    for (std::size_t row = 0; row < touched.size(); ++row) {
        if (!touched[row]) {
            next = std::find(next, after.end(), records[row]);
            ASSERT_NE(next++, after.end()) << records[row];
        }
    }
}

TEST(CsvEditByChance, ReadingAgainGivesWhatWasAsked)
{
    static const std::vector<std::string> names = {"Value", "Footprint", "MPN",
                                                   "New",   "BOMPART1",  "A;,\"\t|"};
    const DesignFolder folder;
    const auto read = [&folder](const std::string &text) {
        ReadResult result = readDesign(folder.write(QStringLiteral("list.csv"), text));
        EXPECT_TRUE(result.design) << result.error.message().toStdString();
        return result.design ? std::move(result.design) : std::make_unique<Design>();
    };
    Chance chance;
    int written = 0;
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const std::string text = chance.list();
        const auto design = read(text);
        auto expected = textsOf(*design);
        std::vector<Edit> edits;
        for (std::size_t edit = chance.below(12) + 1; edit > 0; --edit) {
            const std::size_t part = chance.below(design->components().size());
            const std::string name = names[chance.below(names.size())];
            const Edit asked{part, name, chance.below(6) == 0 ? std::nullopt : std::optional(chance.text())};
            if (!design->checkEdit(asked)) {
                edits.push_back(asked);
                expected[std::string(design->components()[part].reference)][name] = asked.value.value_or("");
            }
        }
        for (auto &[reference, texts] : expected) {
            std::erase_if(texts, [](const auto &one) { return one.second.empty(); });
        }
        const EditPlan plan = design->planEdits(edits);
        for (const EditProblem &problem : plan.problems) {
            ADD_FAILURE() << problem.problem.message().toStdString() << '\n' << text;
        }
        if (!plan.files.empty()) {
            const auto changed = read(plan.files.front().after.toStdString());
            EXPECT_EQ(textsOf(*changed), expected) << plan.files.front().after.toStdString();
            EXPECT_EQ(changed->warnings(), design->warnings());
            const auto isOld = [&](const Change &change) {
                return !design->names().candidates(change.name).empty();
            };
            if (std::ranges::all_of(plan.changes, isOld)) {
                expectOthersUntouched(text, *design, plan);
            }
            ++written;
        } else {
            EXPECT_EQ(textsOf(*design), expected);
        }
    }
    EXPECT_GT(written, 300);
}

} // namespace
