// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/kicaddesign.h"

#include "designs/kicad/sexprscanner.h"
#include "designs/kicad/symbolrecount.h"
#include "designs/kicad/textvariables.h"
#include "designs/notfitted.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <charconv>
#include <span>

namespace designs::kicad {

namespace {

QString siblingPath(const QString &path, QLatin1String extension)
{
    const QFileInfo info(path);
    return info.absoluteDir().absoluteFilePath(info.completeBaseName() + extension);
}

void addNames(std::span<const InstanceRecord> records, QStringList *names)
{
    for (const InstanceRecord &record : records) {
        for (const VariantRecord &variant : record.variants) {
            names->append(fromUtf8(variant.name));
        }
    }
}

/// What the list of a symbol, with which the text begins, says where it is drawn.
std::optional<Position> positionAt(std::string_view text)
{
    SexprScanner scanner(text);
    (void)scanner.next();
    SexprScanner::Token token = scanner.next();
    while (token == SexprScanner::Token::Open && scanner.keyword() != "at" && scanner.skipList()) {
        token = scanner.next();
    }
    if (token != SexprScanner::Token::Open || scanner.failed()) {
        return std::nullopt;
    }
    Position position;
    for (double *coordinate : {&position.x, &position.y}) {
        const std::string_view number = scanner.takeText() ? scanner.raw() : std::string_view();
        if (std::from_chars(number.data(), number.data() + number.size(), *coordinate).ec != std::errc()) {
            return std::nullopt;
        }
    }
    return position;
}

} // namespace

KicadDesign::KicadDesign()
{
    m_referenceName = m_names.intern("Reference");
    m_valueName = m_names.intern("Value");
    m_names.setAlias("VALUE", m_valueName);
    m_names.setAlias("PACKAGE", m_names.intern("Footprint"));
}

bool KicadDesign::read(const QString &path, const ReadOptions &options, Problem *problem)
{
    if (!findProject(QFileInfo(path).absoluteFilePath(), problem) || !readSheets(options, problem)) {
        return false;
    }
    collectVariants();
    if (!chooseVariant(options.variant, problem)) {
        return false;
    }
    collectSheets();
    m_variant = options.variant.toStdString();
    if (options.stop.stop_requested()) {
        *problem = stoppedProblem(path);
        return false;
    }
    BuiltComponents built = ComponentBuilder(*m_hierarchy, m_variant, &m_arena, &m_names, &m_lines).build();
    m_components = std::move(built.components);
    m_symbolUses = std::move(built.symbols);
    m_symbols = built.count;
    m_warnings.insert(m_warnings.end(), m_hierarchy->warnings().begin(), m_hierarchy->warnings().end());
    m_warnings.insert(m_warnings.end(), built.warnings.begin(), built.warnings.end());
    TextVariables variables(*m_hierarchy, m_project, m_names, m_info.variant);
    variables.resolve(&m_components, m_symbolUses, &m_arena);
    if (variables.leftSome()) {
        m_warnings.push_back(
            {m_roots.front().path, 0,
             KicadTexts::tr(
                 "text variables name each other in a circle or too often; some stay as they stand")});
    }
    markNotFittedByProperty(&m_components, m_names);
    fillInfo();
    return true;
}

/// The project gives variables, variants and, from version 10 on, several roots; a schematic does without
/// one.
bool KicadDesign::findProject(const QString &path, Problem *problem)
{
    const bool isProject = path.endsWith(QLatin1String(".kicad_pro"), Qt::CaseInsensitive);
    const QString projectPath = isProject ? path : siblingPath(path, QLatin1String(".kicad_pro"));
    const QString rootPath = isProject ? siblingPath(path, QLatin1String(".kicad_sch")) : path;
    if (isProject || QFileInfo::exists(projectPath)) {
        Problem broken;
        if (!readProjectFile(projectPath, &m_project, &broken)) {
            if (isProject) {
                *problem = broken;
                return false;
            }
            m_warnings.push_back(broken);
        }
    }
    m_projectBom = m_project.bom;
    for (const auto &sheet : m_project.topLevelSheets) {
        const QString file = QFileInfo(projectPath).absoluteDir().absoluteFilePath(sheet.fileName);
        const RootSheet root{QDir::cleanPath(file), sheet.uuid};
        if (std::find(m_roots.begin(), m_roots.end(), root) == m_roots.end()) {
            m_roots.push_back(root);
        }
    }
    const bool listed = std::any_of(m_roots.begin(), m_roots.end(), [&](const RootSheet &root) {
        return isProject || QFileInfo(root.path) == QFileInfo(rootPath);
    });
    if (!listed) {
        m_roots = {{rootPath, QString()}};
    }
    return true;
}

bool KicadDesign::readSheets(const ReadOptions &options, Problem *problem)
{
    m_threads = options.threads;
    m_hierarchy = std::make_unique<Hierarchy>(&m_names, options.threads, options.stop);
    return m_hierarchy->read(m_roots, problem);
}

void KicadDesign::collectVariants()
{
    m_variants = m_project.variants;
    for (const SheetFile &file : m_hierarchy->files()) {
        for (const PlacedSymbol &symbol : file.symbols) {
            addNames(symbol.instances, &m_variants);
        }
        for (const SheetSymbol &sheet : file.sheets) {
            addNames(sheet.instances, &m_variants);
        }
    }
    m_variants.removeDuplicates();
    m_variants.sort();
}

bool KicadDesign::chooseVariant(const QString &wanted, Problem *problem)
{
    m_info.variant = wanted.isEmpty() ? m_project.textVariables.value(QStringLiteral("VARIANT")) : wanted;
    if (wanted.isEmpty() || m_variants.contains(wanted)) {
        return true;
    }
    *problem = {m_roots.front().path, 0,
                m_variants.isEmpty()
                    ? KicadTexts::tr("the design has no variant \"%1\"; it has none").arg(wanted)
                    : KicadTexts::tr("the design has no variant \"%1\"; it has %2")
                          .arg(wanted, m_variants.join(QStringLiteral(", ")))};
    return false;
}

void KicadDesign::collectSheets()
{
    for (const SheetFile &file : m_hierarchy->files()) {
        m_files << file.path;
        m_fingerprints.push_back(file.fingerprint);
        m_stamps.push_back(file.stamp);
    }
    for (const HierarchyUse &use : m_hierarchy->uses()) {
        m_sheets.push_back({use.namePath, use.file});
    }
}

void KicadDesign::fillInfo()
{
    const SheetFile &root = m_hierarchy->files().front();
    const TextVariables variables(*m_hierarchy, m_project, m_names, m_info.variant);
    const auto resolved = [&](std::string_view text) { return fromUtf8(variables.titleText(text)); };
    const auto fromProject = [this](QLatin1String name, const QString &otherwise) {
        const QString text = m_project.textVariables.value(name);
        return text.isEmpty() ? otherwise : text;
    };
    m_info.file = root.path;
    m_info.title = resolved(root.title.title);
    m_info.revision = resolved(root.title.revision);
    m_info.created = resolved(root.title.date);
    m_info.author = fromProject(QLatin1String("AUTHOR"), resolved(root.title.company));
    m_info.documentNumber = fromProject(QLatin1String("DOCNO"), resolved(root.title.comments[0]));
    constexpr qint64 nanosecondsPerMillisecond = 1'000'000;
    qint64 modified = 0;
    for (const SheetFile &file : m_hierarchy->files()) {
        modified = std::max(modified, file.stamp.modified);
    }
    m_info.modified = QDateTime::fromMSecsSinceEpoch(modified / nanosecondsPerMillisecond);
}

Side KicadDesign::placement(std::string_view reference) const
{
    if (!m_boardRead) {
        m_boardRead = true;
        const QString board = siblingPath(m_info.file, QLatin1String(".kicad_pcb"));
        Problem problem;
        if (QFileInfo::exists(board) && !readBoardSides(board, &m_sides, &problem)) {
            m_sides.clear();
            m_warnings.push_back(problem);
        }
    }
    const auto found = m_sides.find(std::string(reference));
    return found == m_sides.end() ? Side::NotPlaced : found->second;
}

int KicadDesign::lineOf(const Component &component) const
{
    const SymbolUse &place = m_symbolUses[component.origin];
    const SheetFile &file = fileOf(place);
    return m_lines.line(file.path, file.symbols[place.symbol].offset);
}

std::string KicadDesign::identityOf(const Component &component) const
{
    std::string least;
    for (const SymbolUse &place : std::span(m_symbolUses).subspan(component.origin, component.units)) {
        const HierarchyUse &use = m_hierarchy->uses()[place.use];
        const std::string_view uuid = m_hierarchy->files()[use.file].symbols[place.symbol].uuid;
        if (uuid.empty()) {
            return {};
        }
        const std::string path = use.uuidPath + '/' + std::string(uuid);
        if (least.empty() || path < least) {
            least = path;
        }
    }
    return least;
}

std::optional<Position> KicadDesign::positionOf(const Component &component) const
{
    const SymbolUse &place = m_symbolUses[component.origin];
    const SheetFile &file = fileOf(place);
    FileBuffer buffer;
    Problem problem;
    const bool isAsRead =
        buffer.read(file.path, fileStart, &problem) && buffer.fingerprint() == file.fingerprint;
    return isAsRead ? positionAt(buffer.text().substr(file.symbols[place.symbol].offset)) : std::nullopt;
}

const SheetFile &KicadDesign::fileOf(const SymbolUse &place) const
{
    return m_hierarchy->files()[m_hierarchy->uses()[place.use].file];
}

SymbolCount KicadDesign::recount(Problem *error) const
{
    QStringList roots;
    for (const RootSheet &root : m_roots) {
        roots << root.path;
    }
    SymbolCount count;
    Problem problem;
    if (!SymbolRecount(m_threads).count(roots, &count, &problem) && error) {
        *error = problem;
    }
    return count;
}

} // namespace designs::kicad
