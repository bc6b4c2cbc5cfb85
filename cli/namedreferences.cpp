// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/namedreferences.h"

#include "core/reference.h"
#include "standalone/referencerange.h"

namespace {

using Known = std::function<bool(const QString &)>;

/// The reference between the ends of a range: with as many digits as the first has, else without zeros in
/// front.
QString between(const QString &first, const SplitReference &from, int number, const Known &isKnown)
{
    const auto digits = int(first.size() - from.prefix.size());
    const QString padded = from.prefix.toString() + QString::number(number).rightJustified(digits, u'0');
    return isKnown(padded) ? padded : from.prefix.toString() + QString::number(number);
}

/// The references of a range whose ends are references of the design, hyphens in them or not: "X1-1-X1-3".
QStringList rangeBetween(const QString &text, const Known &isKnown)
{
    constexpr int longestRange = 100'000;
    for (qsizetype hyphen = text.indexOf(u'-', 1); hyphen > 0; hyphen = text.indexOf(u'-', hyphen + 1)) {
        const QString first = text.left(hyphen);
        const QString last = text.mid(hyphen + 1);
        const SplitReference from = splitReference(first);
        const SplitReference to = splitReference(last);
        if (!from.hasNumber || !to.hasNumber || from.prefix != to.prefix || from.number > to.number ||
            to.number - from.number >= longestRange || !isKnown(first) || !isKnown(last)) {
            continue;
        }
        QStringList references{first};
        for (int number = from.number + 1; number < to.number; ++number) {
            references << between(first, from, number, isKnown);
        }
        return from.number == to.number ? references : references << last;
    }
    return {};
}

} // namespace

QStringList namedReferences(const QString &text, const Known &isKnown, QString *error)
{
    if (isKnown(text)) {
        return {text};
    }
    QStringList references;
    for (const QString &part : text.split(u',')) {
        const QString piece = part.trimmed();
        if (isKnown(piece)) {
            references << piece;
            continue;
        }
        if (const QStringList range = rangeBetween(piece, isKnown); !range.isEmpty()) {
            references << range;
            continue;
        }
        const auto read = readReferences(piece, error);
        if (!read) {
            return {};
        }
        references << *read;
    }
    return references;
}
