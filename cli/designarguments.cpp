// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designarguments.h"

#include "core/reference.h"
#include "standalone/referenceindex.h"

#include <CLI/Validators.hpp>

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

std::string isGiven(const std::string &text)
{
    return text.empty() ? "the text must not be empty" : "";
}

void DesignArguments::addTo(CLI::App &command)
{
    addDesign(command);
    addReading(command);
    addListing(command);
    command.add_flag("--as-is", readsAsIs,
                     "Read a design whose files may not belong together, because a write was interrupted");
}

void DesignArguments::addDesign(CLI::App &command)
{
    command.add_option("DESIGN", design, "KiCad schematic or project, or CSV part list")
        ->required()
        ->check(CLI::Validator(isGiven, ""));
}

void DesignArguments::addReading(CLI::App &command)
{
    command.add_option("--variant", variant, "Apply the design's variant of this name")->type_name("V");
    command.add_option("--propdefs", propdefs, "Property definitions instead of the user's PROPDEFS.INI")
        ->type_name("F");
}

void DesignArguments::addListing(CLI::App &command)
{
    command.add_option("--dnp", dnp, "Leave out, list, or list only the parts that are not fitted")
        ->type_name("exclude|include|only")
        ->check(CLI::IsMember({"exclude", "include", "only"}).description(""))
        ->default_str("exclude");
    command.add_option("--template", templateName, "Template, or a .bomt file; without it \"Default\"")
        ->type_name("NAME|FILE")
        ->check(CLI::Validator(isGiven, ""));
}

DnpChoice DesignArguments::dnpChoice() const
{
    if (dnp == "include") {
        return DnpChoice::Include;
    }
    return dnp == "only" ? DnpChoice::Only : DnpChoice::Exclude;
}

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
