// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/designedits.h"

#include "account/sentences.h"
#include "cli/console.h"
#include "cli/numbertext.h"
#include "cli/opendesign.h"
#include "cli/texts.h"
#include "core/bompart.h"
#include "core/propertyquery.h"
#include "host/framework/hosttext.h"
#include "host/framework/hostui.h"
#include "standalone/loadeddesign.h"

#include <QSet>

#include <algorithm>
#include <sstream>

namespace {

/// Of more references that the design does not have, only the number is told.
constexpr qsizetype mostNamedUnknown = 10;

/// "written under the names that the design has: MPN as "manf#" on 3 parts", nothing where all names are
/// those that were asked for.
QStringList otherNameNotices(const QList<CDBCHANGE> &changes)
{
    // Of parts that share a sheet each change names the others.
    QMap<std::pair<QString, QString>, QSet<QString>> parts;
    for (const CDBCHANGE &change : changes) {
        if (!change.askedName.isEmpty()) {
            QSet<QString> &references = parts[{change.askedName, change.name}];
            references.insert(change.reference);
            references.unite(QSet<QString>(change.alsoChanges.cbegin(), change.alsoChanges.cend()));
        }
    }
    QStringList texts;
    for (auto it = parts.cbegin(); it != parts.cend(); ++it) {
        const qsizetype count = it.value().size();
        texts << oneOrMany(count, CommandLine::tr("%1 as \"%2\" on %3 part"),
                           CommandLine::tr("%1 as \"%2\" on %3 parts"))
                     .arg(it.key().first, it.key().second, QString::number(count));
    }
    return texts.isEmpty() ? QStringList()
                           : QStringList(CommandLine::tr("written under the names that the design has: %1")
                                             .arg(texts.join(QStringLiteral(", "))));
}

} // namespace

DesignEdits::DesignEdits(OpenDesign &design)
    : m_design(design)
    , m_assignments(&design.database())
    , m_newProperties(design)
{
}

bool DesignEdits::isKnown(const QString &reference) const
{
    return m_design.database().part(reference) ||
           !m_design.design().references().find(reference.toStdString()).empty();
}

QStringList DesignEdits::writtenNames(const QString &reference, const QString &property) const
{
    QStringList names;
    const LoadedDesign &design = m_design.design();
    for (const std::size_t index : design.references().find(reference.toStdString())) {
        names << fromHostText(
            design.properties().writtenName(design.design().components()[index], toHostText(property)));
    }
    const Part *part = m_design.database().part(reference);
    if (part && part->isBOMPart()) {
        names << static_cast<const BOMPart *>(part)->storedName(property);
    }
    return names;
}

void DesignEdits::add(const QString &reference, const QString &property, const QString &typed,
                      const QString &origin)
{
    const QString front = (origin.isEmpty() ? QString() : origin + QStringLiteral(": ")) + reference +
                          QStringLiteral(", ") + property + QStringLiteral(": ");
    const QString fixed = fixedReason(reference, property);
    if (!fixed.isEmpty()) {
        refuse(front + fixed);
        return;
    }
    const auto type = m_design.database().propertyTypes().type(property);
    if (const QStringList forms = clearForms(typed); type == PropType::Float && !forms.isEmpty()) {
        refuse(front +
               CommandLine::tr("\"%1\" has a mark before three digits that may stand for thousands or "
                               "for decimals: write %2")
                   .arg(typed, forms.join(CommandLine::tr(" or "))));
        return;
    }
    const QString value =
        m_design.database().propertyTypes().isNumeric(property) ? withoutThousands(typed) : typed;
    const bool isNumber =
        value.isEmpty() || value == PropertyAssignments::removal() || !type || isNumberOf(*type, value);
    if (!isNumber || !m_assignments.accepts(property, value)) {
        const bool mayBeLocale = typed.contains(u',') && HostUi::current().locale() == QLocale::c() &&
                                 m_design.database().propertyTypes().isNumeric(property);
        const QString text =
            mayBeLocale ? CommandLine::tr("\"%1\" is no text that this property can have: %2 (--locale tells "
                                          "how numbers are written, such as de_DE)")
                        : CommandLine::tr("\"%1\" is no text that this property can have: %2");
        refuse(front + text.arg(typed, typeText(*type)));
        return;
    }
    if (isContradicted(reference, property, value)) {
        refuse(front + CommandLine::tr("two values are asked for"));
        return;
    }
    if (!origin.isEmpty()) {
        m_origins.insert({reference, property}, origin);
    }
    const Part *part = m_design.database().part(reference);
    if (part && part->isBOMPart()) {
        addToBOMPart(static_cast<const BOMPart &>(*part), property, value, front);
    } else if (part) {
        m_assignments.assign(reference, property, value);
    } else {
        addDirect(reference, property, value, front);
    }
}

void DesignEdits::refuseUnknown(const QString &reference, const QString &origin)
{
    if (++m_unknownReferences <= mostNamedUnknown) {
        refuse((origin.isEmpty() ? QString() : origin + QStringLiteral(": ")) + reference +
               QStringLiteral(": ") + CommandLine::tr("the design has no part of this reference"));
    }
}

QString DesignEdits::fixedReason(const QString &reference, const QString &property) const
{
    if (property == placedProperty() || property == nameProperty()) {
        return CommandLine::tr("this tells what cannot be changed here");
    }
    const Part *part = m_design.database().part(reference);
    return part && part->isBOMPart() && !m_design.design().references().find(reference.toStdString()).empty()
               ? CommandLine::tr("a symbol that is left out and a BOM-only part have this reference")
               : QString();
}

void DesignEdits::addToBOMPart(const BOMPart &part, const QString &property, const QString &value,
                               const QString &front)
{
    const QString &reference = part.reference();
    if (!m_bomPartProperties.contains(reference)) {
        m_bomPartProperties.insert(reference, part.properties());
    }
    QMap<QString, QString> &properties = m_bomPartProperties[reference];
    // The edits are made one after the other: one may give the part the name that the next is found by.
    const BOMPart edited(&m_design.database(), reference, part.value(), part.parentReference(), properties);
    const QString after = value == PropertyAssignments::removal() ? QString() : value;
    for (const QString &name : {part.storedName(property), edited.storedName(property)}) {
        const auto other = m_bomPartEdits.constFind({reference, name});
        if (other != m_bomPartEdits.cend() && other->text != after) {
            refuse(front +
                   CommandLine::tr("another text is asked for under the name %1").arg(other->askedName));
            return;
        }
    }
    const QString stored = edited.storedName(property);
    const QString before = part.property(stored);
    if (m_bomPartEdits.contains({reference, stored})) {
        return;
    }
    m_bomPartEdits.insert({reference, stored}, {property, after});
    if (before == after) {
        return;
    }
    m_assignments.assign(reference, property, value);
    if (after.isEmpty()) {
        m_bomPartRemovals.append({reference, property});
    } else {
        m_newProperties.add(reference, property);
    }
    after.isEmpty() ? (void)properties.remove(stored) : (void)properties.insert(stored, after);
    const QString &parent = part.parentReference();
    if (m_design.database().bomParts(parent).size() > 1) {
        m_isMoreRenumbered = m_isMoreRenumbered || (!m_renumbered.isEmpty() && m_renumbered != parent);
        m_renumbered = m_renumbered.isEmpty() ? parent : m_renumbered;
    }
    const QString name = stored == property.toUpper() ? property : stored;
    m_bomPartChanges.append(
        {reference, CommandLine::tr("%1: %2 -> %3 (a BOM-only part of %4)")
                        .arg(name, quotedText(before, {}), quotedText(after, {}), parent)});
}

bool DesignEdits::isContradicted(const QString &reference, const QString &property,
                                 const QString &value) const
{
    const auto contradicts = [&](const PropertyAssignments::Values &values, const QString &text) {
        return std::any_of(values.keyValueBegin(), values.keyValueEnd(), [&](const auto &other) {
            return other.first.compare(property, Qt::CaseInsensitive) == 0 && other.second != text;
        });
    };
    const QString stored = m_assignments.storedValue(property, value);
    return contradicts(m_assignments.pending().value(reference), value) ||
           contradicts(m_direct.value(reference), stored.isEmpty() ? PropertyAssignments::removal() : stored);
}

void DesignEdits::addDirect(const QString &reference, const QString &property, const QString &value,
                            const QString &front)
{
    const QString stored = m_assignments.storedValue(property, value);
    const QString problem = PropertyAssignments::scriptProblem(reference, property, stored);
    if (!problem.isEmpty()) {
        refuse(front + problem);
        return;
    }
    m_direct[reference].insert(property, stored.isEmpty() ? PropertyAssignments::removal() : stored);
}

ExitStatus DesignEdits::write(const WriteOptions &options)
{
    if (!m_refusals.isEmpty()) {
        return reportProblems(m_refusals, ExitStatus::DesignProblem);
    }
    const WriteResult result = writeBatch(options);
    QStringList messages;
    bool areFilesOnly = true;
    for (const CDBPROBLEM &problem : result.problems) {
        messages.append(messageOf(problem));
        areFilesOnly = areFilesOnly && problem.reference.isEmpty();
    }
    if (!messages.isEmpty()) {
        return reportProblems(messages,
                              areFilesOnly ? ExitStatus::UnwritableOutput : ExitStatus::DesignProblem,
                              result.isUndecided);
    }
    return reportChanges(result, options.isDryRun);
}

QString DesignEdits::messageOf(const CDBPROBLEM &problem) const
{
    const QString origin = m_origins.value({problem.reference, problem.property});
    if (origin.isEmpty()) {
        return problem.message();
    }
    QString text = origin + QStringLiteral(": ") +
                   CDBPROBLEM{problem.reference, problem.property, {}, 0, problem.reason}.message();
    if (!problem.file.isEmpty()) {
        text += QStringLiteral(" (") + problem.file +
                (problem.line > 0 ? u':' + QString::number(problem.line) : QString()) + u')';
    }
    return text;
}

WriteResult DesignEdits::writeBatch(const WriteOptions &options)
{
    QList<CDBPROBLEM> problems;
    const auto runScripts = [&] {
        for (auto it = m_direct.cbegin(); it != m_direct.cend(); ++it) {
            std::istringstream script(PropertyAssignments::script(it.key(), *it).toStdString());
            std::ostringstream report;
            getcdb()->adi(script, report, 0);
        }
        problems = m_assignments.apply({options.isDryRun}).problems;
        return problems.isEmpty();
    };
    WriteResult result = m_design.session().write(options, runScripts);
    result.problems = problems + result.problems;
    return result;
}

ExitStatus DesignEdits::reportProblems(const QStringList &messages, ExitStatus status, bool isUndecided) const
{
    for (const QString &message : messages) {
        console::message(message);
    }
    const qsizetype unnamed = std::max(m_unknownReferences - mostNamedUnknown, qsizetype(0));
    if (unnamed > 0) {
        console::message(oneOrMany(unnamed,
                                   CommandLine::tr("%1 more reference that the design does not have"),
                                   CommandLine::tr("%1 more references that the design does not have"))
                             .arg(unnamed));
    }
    const QString text = isUndecided ? CommandLine::tr("the files named above may be written in part: %1")
                                     : CommandLine::tr("nothing was written: %1");
    console::message(text.arg(
        counted(messages.size() + unnamed, CommandLine::tr("problem"), CommandLine::tr("problems"))));
    return status;
}

QStringList DesignEdits::newlyReadNotices(const QList<CDBCHANGE> &changes) const
{
    QStringList texts;
    const auto add = [&texts](const QString &reference, const QString &property, const QString &name,
                              const QString &text) {
        texts << CommandLine::tr("%1, %2 from \"%3\" (%4)")
                     .arg(reference, property, name, quotedText(text, {}));
    };
    for (const CDBCHANGE &change : changes) {
        if (change.after && DesignFields::isFilled(change.after->toStdString())) {
            continue;
        }
        const QString &asked = change.askedName.isEmpty() ? change.name : change.askedName;
        if (const auto read = readAfter(change.reference, asked, changes)) {
            add(change.reference, asked, read->first, read->second);
        }
    }
    for (const auto &[reference, property] : m_bomPartRemovals) {
        const QMap<QString, QString> properties = m_bomPartProperties.value(reference);
        const QString name = m_design.database().otherName(property, properties);
        if (!name.isEmpty() && properties.value(property.toUpper()).isEmpty()) {
            add(reference, property, name, properties.value(name));
        }
    }
    constexpr qsizetype mostNamed = 3;
    const qsizetype more = texts.size() - mostNamed;
    const QString first = texts.mid(0, mostNamed).join(QStringLiteral(", "));
    return texts.isEmpty()
               ? texts
               : QStringList(
                     CommandLine::tr("after this other names are read: %1")
                         .arg(more > 0 ? CommandLine::tr("%1 and %2 more").arg(first, QString::number(more))
                                       : first));
}

std::optional<std::pair<QString, QString>> DesignEdits::readAfter(const QString &reference,
                                                                  const QString &property,
                                                                  const QList<CDBCHANGE> &changes) const
{
    const LoadedDesign &design = m_design.design();
    const auto found = design.references().find(reference.toStdString());
    if (found.empty()) {
        return std::nullopt;
    }
    const designs::Component &component = design.design().components()[found.front()];
    for (const designs::NameId id : design.properties().filledNames(component, toHostText(property))) {
        const QString name = fromHostText(design.design().names().name(id));
        const bool isChanged = std::any_of(changes.cbegin(), changes.cend(), [&](const CDBCHANGE &change) {
            return change.name == name &&
                   (change.reference == reference || change.alsoChanges.contains(reference));
        });
        if (!isChanged) {
            return std::pair(name, fromHostText(*design.design().stored(component, id)));
        }
    }
    return std::nullopt;
}

ExitStatus DesignEdits::reportChanges(const WriteResult &result, bool isDryRun)
{
    if (result.changes.isEmpty()) {
        return console::write(CommandLine::tr("nothing to change").toUtf8() + '\n')
                   ? ExitStatus::Done
                   : ExitStatus::UnwritableOutput;
    }
    for (const CDBCHANGE &change : result.changes) {
        if (!change.before && change.after) {
            m_newProperties.add(change.reference, change.name);
            for (const QString &reference : change.alsoChanges) {
                m_newProperties.add(reference, change.name);
            }
        }
    }
    const QString text = changeLines(m_bomPartChanges) + changeLines(result.changes) +
                         m_newProperties.lines() +
                         changeSummary(result.changes, result.files.size(), isDryRun);
    console::notices(m_newProperties.notices() + otherNameNotices(result.changes) +
                     newlyReadNotices(result.changes));
    if (!m_renumbered.isEmpty()) {
        const QString text =
            m_isMoreRenumbered
                ? CommandLine::tr("BOM-only parts are numbered in the order of their definitions: those of "
                                  "%1 and others may change places (bom parts tells)")
                : CommandLine::tr("BOM-only parts are numbered in the order of their definitions: those of "
                                  "%1 may change places (bom parts tells)");
        console::notice(text.arg(m_renumbered));
    }
    if (console::write(text.toUtf8())) {
        return ExitStatus::Done;
    }
    if (!isDryRun) {
        console::message(CommandLine::tr("the design was written all the same"));
    }
    return ExitStatus::UnwritableOutput;
}
