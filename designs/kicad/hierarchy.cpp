// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/hierarchy.h"

#include "designs/kicad/hierarchylimits.h"
#include "designs/linenumbers.h"
#include "designs/texts.h"
#include "designs/utf8.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace designs::kicad {

namespace {

int lineOf(const QString &path, quint32 offset)
{
    return LineNumbers("(kicad_sch").line(path, offset);
}

void renumber(std::span<Property> properties, const std::vector<NameId> &ids)
{
    for (Property &property : properties) {
        property.name = ids[property.name];
    }
}

void renumber(std::span<const InstanceRecord> records, const std::vector<NameId> &ids)
{
    for (const InstanceRecord &record : records) {
        for (const VariantRecord &variant : record.variants) {
            renumber(variant.fields, ids);
        }
    }
}

} // namespace

Hierarchy::Hierarchy(PropertyNames *names, int threads, std::stop_token stop)
    : m_names(names)
    , m_loader(threads, *names, std::move(stop))
{
}

bool Hierarchy::read(const std::vector<RootSheet> &roots, Problem *problem)
{
    std::vector<QString> paths;
    paths.reserve(roots.size());
    for (const RootSheet &root : roots) {
        paths.push_back(root.path);
    }
    m_loader.readAhead(paths);
    const bool isRead = std::all_of(roots.begin(), roots.end(),
                                    [&](const RootSheet &root) { return addRoot(root, problem); });
    m_loader.finish();
    return isRead;
}

bool Hierarchy::addRoot(const RootSheet &root, Problem *problem)
{
    m_projectFolder = QFileInfo(root.path).absolutePath();
    HierarchyUse use;
    if (!loadFile(root.path, &use.file, problem)) {
        return false;
    }
    const std::string_view own = m_files[use.file].uuid;
    use.uuidPath = '/';
    use.uuidPath += root.uuid.isEmpty() ? std::string(own) : root.uuid.toStdString();
    use.namePath = QStringLiteral("/");
    use.parent = quint32(m_uses.size());
    return addUse(std::move(use), 0, problem);
}

bool Hierarchy::loadFile(const QString &path, quint32 *number, Problem *problem)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const auto known = m_fileNumbers.constFind(canonical);
    if (known != m_fileNumbers.constEnd()) {
        *number = *known;
        return true;
    }
    LoadedSheet loaded = m_loader.take(path);
    if (loaded.problem) {
        *problem = *loaded.problem;
        return false;
    }
    *number = quint32(m_files.size());
    m_fileNumbers.insert(canonical, *number);
    takeOverNames(loaded.names, &loaded.sheet);
    if (loaded.sheet.formatVersion > version::latest && !std::exchange(m_hasLaterVersion, true)) {
        m_warnings.push_back(
            {path, 0,
             KicadTexts::tr("the schematic is of version %1, later than that of KiCad 10; look at the report "
                            "with care, and keep a copy before values are written")
                 .arg(loaded.sheet.formatVersion)});
    }
    m_files.push_back(std::move(loaded.sheet));
    for (const int line : loaded.badTextLines) {
        m_warnings.push_back(
            {path, line, KicadTexts::tr("the text is not UTF-8; what cannot be read shows as �")});
    }
    return true;
}

/// The sheet's names get the numbers that they have in the design. Most sheets meet the same names in the
/// same order, so that nothing changes.
void Hierarchy::takeOverNames(const PropertyNames &own, SheetFile *sheet)
{
    std::vector<NameId> ids;
    bool isSame = true;
    for (NameId id = 0; id < own.size(); ++id) {
        ids.push_back(m_names->intern(own.name(id)));
        isSame &= ids.back() == id;
    }
    if (isSame) {
        return;
    }
    for (const PlacedSymbol &symbol : sheet->symbols) {
        renumber(symbol.properties, ids);
        renumber(symbol.instances, ids);
    }
    for (const SheetSymbol &symbol : sheet->sheets) {
        renumber(symbol.properties, ids);
        renumber(symbol.instances, ids);
    }
}

const InstanceRecord *Hierarchy::instanceOf(const HierarchyUse &use) const
{
    if (!use.symbol) {
        return nullptr;
    }
    const HierarchyUse &parent = m_uses[use.parent];
    const SheetFile &file = m_files[parent.file];
    const auto number = file.pathNumber(parent.uuidPath);
    return number ? findInstance(use.symbol->instances, *number) : nullptr;
}

bool Hierarchy::addUse(HierarchyUse use, int depth, Problem *problem)
{
    if (m_uses.size() >= hierarchylimits::uses) {
        *problem = {
            m_files[use.file].path, 0,
            KicadTexts::tr("the hierarchy uses sheets more than %1 times").arg(hierarchylimits::uses)};
        return false;
    }
    m_symbolUses += m_files[use.file].symbols.size();
    if (m_symbolUses > hierarchylimits::symbols) {
        *problem = {m_files[use.file].path, 0,
                    KicadTexts::tr("the hierarchy holds more than %1 symbols").arg(hierarchylimits::symbols)};
        return false;
    }
    use.instance = instanceOf(use);
    const auto number = quint32(m_uses.size());
    const quint32 file = use.file;
    m_uses.push_back(std::move(use));
    for (const SheetSymbol &sheet : m_files[file].sheets) {
        if (!addChild(number, sheet, depth + 1, problem)) {
            return false;
        }
    }
    return true;
}

bool Hierarchy::addChild(quint32 parent, const SheetSymbol &sheet, int depth, Problem *problem)
{
    const SheetFile &parentFile = m_files[m_uses[parent].file];
    const QString path = sheetPath(parentFile.path, sheet, m_projectFolder);
    const auto name = [&] { return fromUtf8(sheet.name); };
    const auto refuse = [&](const QString &text) {
        *problem = {parentFile.path, lineOf(parentFile.path, sheet.offset), text};
        return false;
    };
    if (sheet.file.empty()) {
        return refuse(KicadTexts::tr("sheet \"%1\" names no file").arg(name()));
    }
    if (depth > hierarchylimits::depth) {
        return refuse(KicadTexts::tr("sheet \"%1\" is more than %2 sheets deep")
                          .arg(name(), QString::number(hierarchylimits::depth)));
    }
    if (!QFileInfo::exists(path)) {
        return refuse(
            KicadTexts::tr("sheet \"%1\" uses the file %2, which does not exist").arg(name(), path));
    }
    HierarchyUse use;
    if (!loadFile(path, &use.file, problem) || refuseLoop(parent, sheet, use.file, problem)) {
        return false;
    }
    const HierarchyUse &above = m_uses[parent];
    use.parent = parent;
    use.symbol = &sheet;
    use.uuidPath = above.uuidPath;
    use.uuidPath += '/';
    use.uuidPath += sheet.uuid;
    use.namePath = (above.symbol ? above.namePath : QString()) + u'/' + fromUtf8(sheet.name);
    return addUse(std::move(use), depth, problem);
}

/// True, with the chain of files as the problem, when `file` stands above the sheet already.
bool Hierarchy::refuseLoop(quint32 parent, const SheetSymbol &sheet, quint32 file, Problem *problem)
{
    quint32 above = parent;
    while (m_uses[above].file != file && m_uses[above].symbol) {
        above = m_uses[above].parent;
    }
    if (m_uses[above].file != file) {
        return false;
    }
    const auto nameOf = [this](quint32 number) { return QFileInfo(m_files[number].path).fileName(); };
    QStringList chain{nameOf(file)};
    for (quint32 use = parent; use != above; use = m_uses[use].parent) {
        chain.prepend(nameOf(m_uses[use].file));
    }
    chain.prepend(nameOf(file));
    const QString &path = m_files[m_uses[parent].file].path;
    *problem = {path, lineOf(path, sheet.offset),
                KicadTexts::tr("sheet \"%1\" makes the sheets contain themselves: %2")
                    .arg(fromUtf8(sheet.name), chain.join(QStringLiteral(" > ")))};
    return true;
}

quint32 Hierarchy::rootOf(quint32 use) const
{
    while (m_uses[use].symbol) {
        use = m_uses[use].parent;
    }
    return use;
}

} // namespace designs::kicad
