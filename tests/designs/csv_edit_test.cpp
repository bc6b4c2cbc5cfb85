// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/csv/csvfile.h"
#include "designs/editfixture.h"
#include "support/datatable.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace designs;
using testing::HasSubstr;

namespace {

class CsvEdit : public EditTest
{
protected:
    CsvEdit() { m_file = QStringLiteral("list.csv"); }

    /// The list after the edits; the messages where they are refused, "unchanged" where nothing is to do.
    [[nodiscard]] std::string edited(const std::string &text, const std::vector<AskedEdit> &asked) const
    {
        write(text);
        const EditPlan plan = planned(*load(), asked);
        return !plan.problems.empty() ? problemsOf(plan)
               : plan.files.empty()   ? "unchanged"
                                      : contentAfter(text, plan.files.front());
    }
};

/// Lists of parts at random.
class RandomList
{
public:
    explicit RandomList(RandomInputs *random)
        : m_random(*random)
    {
    }

    static const std::string &text(RandomInputs *random)
    {
        // clang-format off
        static const std::vector<std::string> texts = {
            "", "10k", "1,5", "a;b", "say \"5%1\"", "\"", "two\nlines", "\r", " blank ", " front", "back ", "\t", "'",
            "=1+1", "R1-R4", "0603", "\xC2\xB5", "a|b\tc", "\r\n", "~", "Ref", "\xC3\x84;\"\n"};
        // clang-format on
        return random->oneOf(texts);
    }

    std::string list()
    {
        static const std::vector<std::string> ends = {"\n", "\r\n", "\r"};
        m_delimiter = m_random.oneOf(std::string_view(",;\t|"));
        const std::string common = m_random.oneOf(ends);
        std::string out = m_random.flag() ? "\xEF\xBB\xBF" : "";
        out += "Ref,Qty,Value,Footprint,MPN" + common;
        std::ranges::replace(out, ',', m_delimiter);
        int number = 1;
        for (int row = 0; row < 12; ++row) {
            const int count = m_random.below(6) + 1;
            out += references(number, count) + m_delimiter + std::to_string(count);
            for (int column = 0; column < 3; ++column) {
                out += m_delimiter + quoted(text(&m_random));
            }
            out += row < 11 ? (m_random.once(5) ? m_random.oneOf(ends) : common) : "";
            number += count;
        }
        return out;
    }

private:
    std::string references(int first, int count)
    {
        if (m_random.once(3) && count > 1) {
            return "R" + std::to_string(first) + "-R" + std::to_string(first + count - 1);
        }
        std::string text;
        for (int number = first; number < first + count; ++number) {
            text += (text.empty() ? "R" : ", R") + std::to_string(number);
        }
        return quoted(text);
    }

    [[nodiscard]] std::string quoted(const std::string &text) const
    {
        const bool isPlain = text.find_first_of("\"\r\n\t ") == std::string::npos &&
                             text.find(m_delimiter) == std::string::npos;
        std::string out;
        for (const char c : text) {
            out.append(c == '"' ? 2 : 1, c);
        }
        return isPlain ? out : '"' + out + '"';
    }

    RandomInputs &m_random;
    char m_delimiter = ',';
};

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

/// Whether all records but those of the changes stand in the new text as they were.
void expectOthersUntouched(const std::string &before, const Design &design, const EditPlan &plan)
{
    const std::vector<std::string> records = recordsOf(before);
    std::vector<bool> touched(records.size(), false);
    for (const Change &change : plan.changes) {
        const auto at = std::ranges::find(design.components(), quint32(change.line), &Component::line);
        touched[at->origin] = true;
    }
    const std::vector<std::string> after = recordsOf(contentAfter(before, plan.files.front()));
    auto next = after.begin();
    for (std::size_t row = 0; row < touched.size(); ++row) {
        if (!touched[row]) {
            next = std::find(next, after.end(), records[row]);
            ASSERT_NE(next++, after.end()) << records[row];
        }
    }
}

} // namespace

TEST_F(CsvEdit, ChangesOnlyWhatIsAskedAndKeepsTheManner)
{
    for (const auto &[list, edits, expected] : dataTable<3>("csv/edits.txt")) {
        std::vector<AskedEdit> asked;
        for (const QString &edit : QString::fromStdString(edits).split(QStringLiteral(" + "))) {
            const std::string reference = edit.section(u' ', 0, 0).toStdString();
            const QString rest = edit.section(u' ', 1);
            asked.push_back({reference, rest.section(u'=', 0, 0).toStdString()});
            if (rest.contains(u'=')) {
                asked.back().value = rest.section(u'=', 1).toStdString();
            }
        }
        EXPECT_EQ(edited(list, asked), expected) << edits;
    }
}

TEST_F(CsvEdit, RefusesByNameAndReason)
{
    const std::string list = "Ref,Qty,Value,Footprint\nR1,1,1k,0603\n";
    const std::vector<std::pair<AskedEdit, const char *>> refused = {
        {{"R1", "ref", "R2"}, "reference of a part cannot be changed"},
        {{"R1", "Qty", "2"}, "quantity cannot be changed"},
        {{"R1", "qty", {}}, "quantity cannot be changed"},
        {{"R1", "Comment", "x"}, "meaning of its own"},
        {{"R1", "a\nb", "x"}, "line break"},
        {{"R1", " a", "x"}, "blanks around it"},
        {{"R1", "DNP", "perhaps"}, "can be Yes or No"},
        {{"R1", "BOMPART1", " "}, "blanks alone"},
        {{"R1", "A", std::string("a\0b", 3)}, "no valid text"},
        {{"R1", "A", "\xFF"}, "no valid text"},
    };
    for (const auto &[asked, why] : refused) {
        const std::string messages = edited(list, {{"R1", "Value", "2k"}, asked});
        EXPECT_THAT(messages, testing::AllOf(HasSubstr("list.csv:2: "), HasSubstr(why)));
    }
    EXPECT_THAT(edited("Ref\nR1\n", {{"R1", "Qty", "1"}}), HasSubstr("no column \"Qty\""));
    EXPECT_THAT(edited("Ref,Value,Maker\nR1,1k,M\xFCller\n", {{"R1", "Value", "1k\xCE\xA9"}}),
                HasSubstr("list.csv:2: the text \"1k\xCE\xA9\" has characters"));
    // The only letter that tells the encoding would be read as UTF-8 then.
    EXPECT_THAT(edited("Ref,Value\nR1,\xFC\n", {{"R1", "Value", "\xC3\x83\xC2\xA4"}}),
                HasSubstr("would not be read as it is meant"));
    write(list);
    const auto design = load();
    write(list + "R2,1,1k,0603\n");
    EXPECT_THAT(problemsOf(planned(*design, {{"R1", "Value", "2k"}})),
                testing::EndsWith("list.csv: was changed since it was read\n"));
}

TEST_F(CsvEdit, TellsWhatEachEditDoes)
{
    const QString file = write("Ref,Value,Dnp,BOMSKIP\nR1,1k,,\n\"R2,R3\",2k,Yes,x\n");
    const EditPlan plan = planned(*load(), {{"R3", "DNP", {}},
                                            {"R1", "Value", "9k"},
                                            {"R2", "value", "2k"},
                                            {"R1", "VALUE", "3k"},
                                            {"R2", "BOMSKIP", "No"},
                                            {"R1", "New", "n"}});
    EXPECT_EQ(changesOf(plan), "Dnp: Yes > -; Value: 1k > 3k; BOMSKIP: x > -; New: - > n");
    std::vector<std::pair<std::size_t, int>> editsAndLines;
    for (const Change &change : plan.changes) {
        editsAndLines.emplace_back(change.edit, change.line);
        EXPECT_EQ(change.file, file);
    }
    EXPECT_THAT(editsAndLines, testing::ElementsAre(testing::Pair(0, 3), testing::Pair(3, 2),
                                                    testing::Pair(4, 3), testing::Pair(5, 2)));
}

TEST_F(CsvEdit, RandomEditsReadBack)
{
    const std::vector<std::string> names = {"Value", "Footprint", "MPN", "New", "BOMPART1", "A;,\"\t|"};
    RandomInputs random{20};
    int written = 0;
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const std::string text = RandomList(&random).list();
        write(text);
        const auto design = load();
        const EditPlan plan =
            makeRandom(&random, random.below(12) + 1, names, [&] { return RandomList::text(&random); });
        if (plan.files.empty()) {
            continue;
        }
        ++written;
        EXPECT_EQ(warnings(*load()), warnings(*design));
        const auto isOld = [&](const Change &change) {
            return !design->names().candidates(change.name).empty();
        };
        if (std::ranges::all_of(plan.changes, isOld)) {
            expectOthersUntouched(text, *design, plan);
        }
    }
    EXPECT_GT(written, 300);
}
