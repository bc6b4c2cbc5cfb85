// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "bench/generate/sheetcontent.h"

#include <algorithm>
#include <utility>

namespace bench {

namespace {

constexpr std::uint32_t columns = 36;
constexpr Length columnWidth = 15240_um;
constexpr Length rowHeight = 20320_um;
constexpr int supplyUnit = 3;

class Drawing final
{
public:
    Drawing(std::uint32_t firstPower, Random &random)
        : m_nextPower(firstPower)
        , m_random(random)
    {
    }

    void place(const Part &part, int unit)
    {
        const Point at = nextPlace();
        m_content.symbols.push_back({{}, at, part.kind, unit, part.number, part.line});
        decorate(at);
    }

    SheetContent finish()
    {
        sortByNewUuid(m_content.symbols);
        sortByNewUuid(m_content.junctions);
        sortByNewUuid(m_content.wires);
        sortByNewUuid(m_content.texts);
        sortByNewUuid(m_content.labels);
        return std::move(m_content);
    }

private:
    Point nextPlace()
    {
        const auto column = static_cast<int>(m_place % columns);
        const auto row = static_cast<int>(m_place / columns);
        ++m_place;
        return {20320_um + columnWidth * column, 25400_um + rowHeight * row};
    }

    void decorate(Point at)
    {
        const Point top{at.x, at.y - 3810_um};
        const Point bottom{at.x, at.y + 3810_um};
        m_content.wires.push_back({{}, bottom, {at.x, at.y + 6350_um}});
        if (m_random.below(3) == 0) {
            m_content.wires.push_back({{}, top, {at.x + columnWidth, top.y}});
            m_content.junctions.push_back({{}, top, {}});
        }
        if (m_random.below(5) < 2) {
            m_content.labels.push_back({{}, top, {}, m_random.below(4000)});
        }
        if (m_random.below(8) == 0) {
            const Kind kind = m_random.below(3) == 0 ? Kind::Supply : Kind::Ground;
            m_content.symbols.push_back({{}, {at.x, at.y + 6350_um}, kind, 1, m_nextPower++, 0});
            ++m_content.powerSymbols;
        }
        if (m_random.below(60) == 0) {
            m_content.texts.push_back({{}, {at.x, at.y - 7620_um}, {}, m_random.below(1000)});
        }
    }

    template<typename Item>
    void sortByNewUuid(std::vector<Item> &items)
    {
        for (Item &item : items) {
            item.uuid = Uuid::random(m_random);
        }
        std::ranges::sort(items, {}, &Item::uuid);
    }

    SheetContent m_content;
    std::uint32_t m_place = 0;
    std::uint32_t m_nextPower = 0;
    Random &m_random;
};

} // namespace

SheetContent drawSheet(std::span<const Part> parts, std::span<const Part> before, std::uint32_t firstPower,
                       Random &random)
{
    Drawing drawing(firstPower, random);
    for (const Part &part : parts) {
        drawing.place(part, 1);
        if (part.kind == Kind::OpAmp) {
            drawing.place(part, 2);
        }
    }
    for (const Part &part : before) {
        if (part.kind == Kind::OpAmp) {
            drawing.place(part, supplyUnit);
        }
    }
    return drawing.finish();
}

} // namespace bench
