// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/kicad/hierarchy.h"

#include "designs/kicad/sheetparser.h"
#include "designs/utf8.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace designs::kicad {

namespace {

int lineAt(std::string_view text, std::size_t offset)
{
    const auto before = text.substr(0, offset);
    return 1 + int(std::count(before.begin(), before.end(), '\n'));
}

} // namespace

Hierarchy::Hierarchy(TextArena *arena, PropertyNames *names)
    : m_arena(arena)
    , m_names(names)
{
}

bool Hierarchy::addRoot(const QString &path, const QString &rootUuid, Problem *problem)
{
    m_projectFolder = QFileInfo(path).absolutePath();
    HierarchyUse use;
    if (!loadFile(path, &use.file, problem)) {
        return false;
    }
    const std::string_view own = m_files[use.file].uuid;
    use.uuidPath = '/';
    use.uuidPath += rootUuid.isEmpty() ? std::string(own) : rootUuid.toStdString();
    use.namePath = QStringLiteral("/");
    use.parent = quint32(m_uses.size());
    return addUse(std::move(use), 0, problem);
}

bool Hierarchy::loadFile(const QString &path, quint32 *number, Problem *problem)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    const auto known = m_fileNumbers.constFind(canonical);
    if (known != m_fileNumbers.constEnd()) {
        *number = *known;
        return true;
    }
    if (!m_buffer.read(path, "(kicad_sch", problem)) {
        return false;
    }
    *number = quint32(m_files.size());
    SheetFile &sheet = m_files.emplace_back();
    sheet.path = path;
    sheet.modified = info.lastModified();
    sheet.fingerprint = m_buffer.fingerprint();
    m_fileNumbers.insert(canonical, *number);
    SheetParser parser(m_buffer.text(), &sheet, m_arena, m_names);
    if (!parser.parse()) {
        *problem = parser.problem();
        return false;
    }
    for (const std::size_t offset : parser.badTexts()) {
        m_warnings.push_back({path, lineAt(m_buffer.text(), offset),
                              QStringLiteral("the text is not UTF-8; what cannot be read shows as \uFFFD")});
    }
    return true;
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
    if (m_uses.size() >= maximumUses) {
        *problem = {m_files[use.file].path, 0,
                    QStringLiteral("the hierarchy uses sheets more than %1 times").arg(maximumUses)};
        return false;
    }
    m_symbolUses += m_files[use.file].symbols.size();
    if (m_symbolUses > maximumSymbols) {
        *problem = {m_files[use.file].path, 0,
                    QStringLiteral("the hierarchy holds more than %1 symbols").arg(maximumSymbols)};
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
    const QString path = childPath(parentFile, sheet);
    const auto refuse = [&](const QString &text) {
        *problem = {parentFile.path, lineOf(parentFile.path, sheet.offset),
                    QStringLiteral("sheet \"") + fromUtf8(sheet.name) + QStringLiteral("\" ") + text};
        return false;
    };
    if (sheet.file.empty()) {
        return refuse(QStringLiteral("names no file"));
    }
    if (depth > maximumDepth) {
        return refuse(QStringLiteral("is more than %1 sheets deep").arg(maximumDepth));
    }
    if (!QFileInfo::exists(path)) {
        return refuse(QStringLiteral("uses the file ") + path + QStringLiteral(", which does not exist"));
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

QString Hierarchy::childPath(const SheetFile &parent, const SheetSymbol &sheet) const
{
    QString name = fromUtf8(sheet.file);
    name.replace(QLatin1String("${KIPRJMOD}"), m_projectFolder);
    name.replace(u'\\', u'/');
    return QDir::cleanPath(QFileInfo(parent.path).absoluteDir().absoluteFilePath(name));
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
                QStringLiteral("sheet \"") + fromUtf8(sheet.name) +
                    QStringLiteral("\" makes the sheets contain themselves: ") +
                    chain.join(QStringLiteral(" > "))};
    return true;
}

int Hierarchy::lineOf(const QString &path, quint32 offset)
{
    Problem ignored;
    return m_buffer.read(path, "(kicad_sch", &ignored) ? lineAt(m_buffer.text(), offset) : 0;
}

quint32 Hierarchy::rootOf(quint32 use) const
{
    while (m_uses[use].symbol) {
        use = m_uses[use].parent;
    }
    return use;
}

} // namespace designs::kicad
