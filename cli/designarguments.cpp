// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designarguments.h"

#include <CLI/Validators.hpp>

std::string isGiven(const std::string &text)
{
    return text.empty() ? "the text must not be empty" : "";
}

void DesignArguments::addTo(CLI::App &command)
{
    addDesign(command);
    addReading(command);
    addListing(command);
    addNames(command);
    addAsIs(command);
}

void DesignArguments::addAsIs(CLI::App &command)
{
    command.add_flag(
        "--as-is", readsAsIs,
        QT_TRANSLATE_NOOP(
            "Help", "Read a design whose files may not belong together, because a write was interrupted"));
}

void DesignArguments::addNames(CLI::App &command)
{
    command.add_flag(
        "--exact-names", hasExactNames,
        QT_TRANSLATE_NOOP(
            "Help",
            "Find properties by their own names only, not by names of the same meaning (bom fields)"));
}

void DesignArguments::addPath(CLI::App &command, std::string &design)
{
    command
        .add_option(
            "DESIGN", design,
            QT_TRANSLATE_NOOP(
                "Help", "KiCad schematic or project, or CSV part list, or a folder with one design in it"))
        ->required()
        ->check(CLI::Validator(isGiven, ""));
}

void DesignArguments::addReading(CLI::App &command)
{
    command
        .add_option("--variant", variant,
                    QT_TRANSLATE_NOOP("Help", "Apply the design's variant of this name"))
        ->type_name("V");
    command
        .add_option("--propdefs", propdefs,
                    QT_TRANSLATE_NOOP("Help", "Property definitions instead of the user's PROPDEFS.INI"))
        ->type_name("F");
}

void DesignArguments::addListing(CLI::App &command)
{
    command
        .add_option(
            "--dnp", dnp,
            QT_TRANSLATE_NOOP(
                "Help", "Leave out, list marked and not counted, or list only the parts that are not fitted"))
        ->type_name("exclude|include|only")
        ->check(CLI::IsMember({"exclude", "include", "only"}).description(""))
        ->default_str("exclude");
    command
        .add_option("--template", templateName,
                    QT_TRANSLATE_NOOP("Help", "Template, or a .bomt file; without it \"Default\""))
        ->type_name("NAME|FILE")
        ->check(CLI::Validator(isGiven, ""));
}

void DesignArguments::addColumns(CLI::App &command)
{
    isFitted = true;
    CLI::Option *named = command.get_option("--template");
    named->description(
        QT_TRANSLATE_NOOP("Help", "Template, or a .bomt file; without it one that fits the design"));
    CLI::Option *listed =
        command
            .add_option("--fields", fields,
                        QT_TRANSLATE_NOOP("Help", "Columns of these properties, such as Value,Footprint,MPN"))
            ->type_name("A,B,...")
            ->check(CLI::Validator(isGiven, ""))
            ->excludes(named);
    command
        .add_option("--labels", labels, QT_TRANSLATE_NOOP("Help", "Headings for --fields, in the same order"))
        ->type_name("A,B,...")
        ->needs(listed);
    command
        .add_option("--preset", preset,
                    QT_TRANSLATE_NOOP("Help", "Columns of a BOM preset of the KiCad project"))
        ->type_name("NAME")
        ->check(CLI::Validator(isGiven, ""))
        ->excludes(named)
        ->excludes(listed);
}

DnpChoice DesignArguments::dnpChoice() const
{
    if (dnp == "include") {
        return DnpChoice::Include;
    }
    return dnp == "only" ? DnpChoice::Only : DnpChoice::Exclude;
}
