// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/paper/textruler.h"

#include <QTextLayout>

#include <algorithm>

namespace {

/// As markup, and as what is left of it in a document.
constexpr QStringView breakPlace = u"&shy;&#8203;";
constexpr QChar breakCharacter(0x200b);

} // namespace

TextRuler::TextRuler(const QFont &font, QPaintDevice &device)
    : m_font(font)
    , m_device(&device)
    , m_metrics(font, &device)
    , m_isPlain(font.capitalization() == QFont::MixedCase && font.wordSpacing() == 0)
{
    m_widths.fill(-1);
}

std::optional<TextNeeds> TextRuler::bound(QStringView content)
{
    // Kerning and rounding; both are far smaller.
    constexpr double tolerance = 1.03;
    constexpr double fewPixels = 1;
    TextNeeds needs;
    double word = 0;
    for (qsizetype i = 0; i < content.size(); ++i) {
        const QChar c = content[i];
        const bool isMarkup = c == u'&' && content.sliced(i).startsWith(breakPlace);
        const bool isBreakPlace = isMarkup || c == breakCharacter;
        if (!m_isPlain || (!isBreakPlace && (c.unicode() >= m_widths.size() || c == u'&'))) {
            return std::nullopt;
        }
        const double width = isBreakPlace ? 0 : widthOf(c);
        i += isMarkup ? breakPlace.size() - 1 : 0;
        word = isBreakPlace || c == u' ' ? 0 : word + width;
        needs.letter = std::max(needs.letter, width);
        needs.word = std::max(needs.word, word);
        needs.line += width;
    }
    return TextNeeds{needs.letter * tolerance + fewPixels, needs.word * tolerance + fewPixels,
                     needs.line * tolerance + fewPixels};
}

TextNeeds TextRuler::measure(const QString &text, QTextOption option) const
{
    constexpr double anyWidth = 1e6;
    QTextLayout layout(text, m_font, m_device);
    const auto layOut = [&](QTextOption::WrapMode mode) {
        option.setWrapMode(mode);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(anyWidth);
        }
        layout.endLayout();
        return layout.minimumWidth();
    };
    const double word = layOut(QTextOption::WordWrap);
    // How tables are laid out.
    const double letter = layOut(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return {letter, word, layout.maximumWidth()};
}

double TextRuler::widthOf(QChar c)
{
    double &width = m_widths[c.unicode()];
    if (width < 0) {
        width = m_metrics.horizontalAdvance(c);
    }
    return width;
}
