// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/othernames.h"

#include "host/framework/hosttext.h"

void OtherNames::setRank(const Rank &rank)
{
    m_rank = rank;
    m_known.clear();
}

QString OtherNames::find(const QString &asked, const QMap<QString, QString> &properties) const
{
    if (!m_rank) {
        return {};
    }
    QString best;
    std::optional<std::size_t> bestRank;
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const auto rank = rankOf(asked, it.key());
        const QString text = it.value().trimmed();
        if (rank && (!bestRank || *rank < *bestRank) && !text.isEmpty() && text != u'~') {
            best = it.key();
            bestRank = rank;
        }
    }
    return best;
}

std::optional<std::size_t> OtherNames::rankOf(const QString &asked, const QString &other) const
{
    auto &known = m_known[asked];
    const auto found = known.constFind(other);
    return found != known.cend() ? *found
                                 : *known.insert(other, m_rank(toHostText(asked), toHostText(other)));
}
