// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/clipboardblock.h"

#include <algorithm>

namespace {

bool isBreak(QChar c)
{
    return c == u'\n' || c == u'\r';
}

QString quoted(const QString &cell)
{
    const auto isSpecial = [](QChar c) { return isBreak(c) || c == u'\t' || c == u'"'; };
    if (std::none_of(cell.cbegin(), cell.cend(), isSpecial)) {
        return cell;
    }
    return u'"' + QString(cell).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// Reads cell after cell.
class BlockReader final
{
public:
    explicit BlockReader(const QString &text)
        : m_text(text)
    {
    }

    ClipboardBlock read()
    {
        ClipboardBlock block;
        while (m_next < m_text.size()) {
            QStringList row{cell()};
            while (takes(u'\t')) {
                row.append(cell());
            }
            block.append(row);
            const bool isPair = takes(u'\r');
            (void)(takes(u'\n') || isPair);
        }
        return block;
    }

private:
    bool takes(QChar c)
    {
        const bool isThere = m_next < m_text.size() && m_text.at(m_next) == c;
        m_next += isThere ? 1 : 0;
        return isThere;
    }

    QString cell()
    {
        const qsizetype close = closingQuote();
        if (close >= 0) {
            const QString inner = m_text.mid(m_next + 1, close - m_next - 1);
            m_next = close + 1;
            return QString(inner).replace(QStringLiteral("\"\""), QStringLiteral("\""));
        }
        const qsizetype start = m_next;
        while (m_next < m_text.size() && !endsCell(m_next)) {
            ++m_next;
        }
        return m_text.mid(start, m_next - start);
    }

    [[nodiscard]] bool endsCell(qsizetype at) const
    {
        return at == m_text.size() || m_text.at(at) == u'\t' || isBreak(m_text.at(at));
    }

    /// Where the quote stands that closes the cell; -1 for a cell without quotes around it.
    [[nodiscard]] qsizetype closingQuote() const
    {
        if (m_next >= m_text.size() || m_text.at(m_next) != u'"') {
            return -1;
        }
        qsizetype at = m_text.indexOf(u'"', m_next + 1);
        while (at >= 0 && at + 1 < m_text.size() && m_text.at(at + 1) == u'"') {
            at = m_text.indexOf(u'"', at + 2);
        }
        return at >= 0 && endsCell(at + 1) ? at : -1;
    }

    const QString &m_text;
    qsizetype m_next = 0;
};

} // namespace

QString clipboardText(const ClipboardBlock &block)
{
    QString text;
    for (const QStringList &row : block) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            text += (i > 0 ? QStringLiteral("\t") : QString()) + quoted(row.at(i));
        }
        text += u'\n';
    }
    return text;
}

ClipboardBlock readClipboardText(const QString &text)
{
    ClipboardBlock block = BlockReader(text).read();
    qsizetype width = 0;
    for (const QStringList &row : block) {
        width = std::max(width, row.size());
    }
    for (QStringList &row : block) {
        row.resize(width);
    }
    return block;
}
