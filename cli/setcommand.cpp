// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/setcommand.h"

#include "cli/console.h"
#include "cli/designedits.h"
#include "cli/opendesign.h"

#include <CLI/Validators.hpp>

#include <algorithm>

void SetCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand("set", "Give properties of parts new values in the design");
    m_options.design.addDesign(*m_app);
    m_app->add_option("REF", m_references, "References, such as R1 or R1,R4-R7")
        ->required()
        ->check(CLI::Validator(isGiven, ""));
    m_app
        ->add_option("NAME=VALUE", m_assignments,
                     "Property with its new value; NAME= takes the property away")
        ->required();
    m_options.addTo(*m_app);
}

ExitStatus SetCommand::run()
{
    const auto locale = m_options.locale.locale();
    const auto wanted = assignments();
    if (!locale || !wanted) {
        return ExitStatus::WrongUsage;
    }
    OpenDesign design(*locale);
    if (const ExitStatus status = design.open(m_options.design, true); status != ExitStatus::Done) {
        return status;
    }
    DesignEdits edits(design);
    QString error;
    QStringList references = namedReferences(
        QString::fromStdString(m_references),
        [&edits](const QString &reference) { return edits.isKnown(reference); }, &error);
    references.removeDuplicates();
    if (references.isEmpty()) {
        edits.refuse(error);
    }
    for (const QString &reference : std::as_const(references)) {
        if (!edits.isKnown(reference)) {
            edits.refuse(reference + QStringLiteral(": the design has no part of this reference"));
            continue;
        }
        for (const Assignment &assignment : *wanted) {
            edits.add(reference, assignment.property, assignment.value);
        }
    }
    return edits.write(m_options);
}

std::optional<QList<SetCommand::Assignment>> SetCommand::assignments() const
{
    QList<Assignment> found;
    for (const std::string &argument : m_assignments) {
        const QString text = QString::fromStdString(argument);
        if (text.toStdString() != argument) {
            console::message(u'"' + text + QStringLiteral("\" is no text in UTF-8"));
            return std::nullopt;
        }
        const qsizetype sign = text.indexOf(u'=');
        if (sign <= 0) {
            console::message(u'"' + text + QStringLiteral("\" is no NAME=VALUE (bom set --help tells more)"));
            return std::nullopt;
        }
        const QString name = text.left(sign);
        const bool isNamed = std::any_of(found.cbegin(), found.cend(), [&name](const Assignment &other) {
            return other.property.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (isNamed) {
            console::message(QStringLiteral("the property ") + name + QStringLiteral(" is named twice"));
            return std::nullopt;
        }
        found.append({name, text.mid(sign + 1)});
    }
    return found;
}
