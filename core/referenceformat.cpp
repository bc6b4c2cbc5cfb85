// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/referenceformat.h"

#include "core/reference.h"

#include <algorithm>

namespace {

/// Lists references one after the other. A reference is pending until the next one tells whether it ends a
/// range.
class ReferenceWriter final
{
public:
    ReferenceWriter(const QList<QStringView> &references, const ReferenceStyle &style)
        : m_references(references)
        , m_style(style)
    {
    }

    QString write();

private:
    void fillLine(qint64 width);
    void take(QStringView reference);
    void putPending();
    /// The text after the last reference puts what is still pending.
    [[nodiscard]] qsizetype end() const { return m_references.size() + 1; }
    [[nodiscard]] QStringView at(qsizetype index) const
    {
        return index < m_references.size() ? m_references.at(index) : QStringView();
    }

    const QList<QStringView> &m_references;
    const ReferenceStyle m_style;
    qsizetype m_next = 0;
    QString m_line;
    QStringView m_pending;
    QStringView m_prefix;
    // Far enough apart not to look like neighbours before the first number.
    qint64 m_previousNumber = -2;
    qint64 m_number = -1;
    bool m_inRange = false;
};

QString ReferenceWriter::write()
{
    QString text;
    qint64 width = m_style.width;
    for (int line = 1; line <= m_style.lines; ++line) {
        if (line == m_style.lines) {
            width -= 3;
        }
        fillLine(width);
        if (line > 1 && !m_line.isEmpty()) {
            text += u'\n';
        }
        text += m_line;
        if (m_next == end()) {
            text.chop(1);
            return text;
        }
    }
    text.chop(1);
    return text + QLatin1String("...");
}

void ReferenceWriter::fillLine(qint64 width)
{
    m_line.clear();
    while (m_next < end() && width - m_pending.size() > m_line.size()) {
        take(at(m_next));
        ++m_next;
    }
    if (m_line.isEmpty() && !m_pending.isEmpty()) {
        m_line += m_pending.left(std::clamp<qint64>(width - 4, 0, m_pending.size()));
        m_line += QLatin1String("...,");
        m_pending = {};
    }
}

void ReferenceWriter::take(QStringView reference)
{
    const SplitReference split = splitReference(reference);
    const bool hasSamePrefix = split.prefix == m_prefix;
    m_prefix = split.prefix;
    if (split.hasNumber) {
        m_number = split.number;
    }
    if (!m_inRange) {
        putPending();
    }
    if (m_style.ranges && split.hasNumber && hasSamePrefix && m_number - m_previousNumber == 1) {
        if (!m_line.isEmpty()) {
            m_line.back() = u'-';
        }
        m_inRange = true;
    } else {
        putPending();
        m_inRange = false;
    }
    m_pending = reference;
    m_previousNumber = split.hasNumber ? m_number : -2;
}

void ReferenceWriter::putPending()
{
    if (!m_pending.isEmpty()) {
        m_line += m_pending;
        m_line += u',';
        m_pending = {};
    }
}

bool isPlainList(const ReferenceStyle &style)
{
    return (!style.ranges && style.lines < 2) || style.width < 1;
}

} // namespace

QString formatReferences(const QStringList &references, const ReferenceStyle &style)
{
    if (isPlainList(style)) {
        return references.join(u',');
    }
    QStringList sorted = references;
    sortReferences(sorted);
    return formatSortedReferences(QList<QStringView>(sorted.cbegin(), sorted.cend()), style);
}

QString formatSortedReferences(const QList<QStringView> &references, const ReferenceStyle &style)
{
    if (!isPlainList(style)) {
        return ReferenceWriter(references, style).write();
    }
    QString text;
    for (const QStringView reference : references) {
        text += reference;
        text += u',';
    }
    text.chop(1);
    return text;
}
