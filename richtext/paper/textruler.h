// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QTextOption>

#include <array>
#include <optional>

class QPaintDevice;

/// What a column must give a text: room for its widest letter, for its longest word, and for all of it on one
/// line.
struct TextNeeds
{
    double letter = 0;
    double word = 0;
    double line = 0;

    [[nodiscard]] bool isWithin(const TextNeeds &other) const
    {
        return letter <= other.letter && word <= other.word && line <= other.line;
    }
};

/// Measures texts in one font. The device must outlive it.
class TextRuler final
{
public:
    TextRuler(const QFont &font, QPaintDevice &device);

    /// No less than a text needs, by the widths of its letters, which are added up faster than a text is laid
    /// out. Nothing when it has markup other than break places, or letters that may take part in shapes of
    /// their own.
    [[nodiscard]] std::optional<TextNeeds> bound(QStringView content);
    /// What the text, without markup, needs when it is laid out.
    [[nodiscard]] TextNeeds measure(const QString &text, QTextOption option) const;

private:
    [[nodiscard]] double widthOf(QChar c);

    QFont m_font;
    QPaintDevice *m_device;
    QFontMetricsF m_metrics;
    bool m_isPlain;
    /// Of Latin letters and signs, -1 for one that was not asked for yet. Marks that combine come behind
    /// them.
    std::array<double, 0x300> m_widths{};
};
