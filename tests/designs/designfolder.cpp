// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"

#include "designs/csv/edit/editablepartlist.h"
#include "designs/kicad/edit/editablekicaddesign.h"
#include "designs/kicadtext.h"
#include "support/testfiles.h"
#include "support/testpaths.h"

namespace {

designs::ReadResult readAny(const QString &path, const QString &variant)
{
    return path.endsWith(QLatin1String(".csv")) ? designs::readEditablePartList(path, {variant})
                                                : designs::kicad::readKicadDesign(path, {variant});
}

std::unique_ptr<designs::Design> counted(designs::ReadResult result)
{
    EXPECT_TRUE(result.design) << errorOf(result);
    if (!result.design) {
        return std::make_unique<designs::Design>();
    }
    const designs::SymbolCount &count = result.design->symbols();
    designs::Problem problem;
    const designs::SymbolCount again = result.design->recount(&problem);
    EXPECT_EQ(problem, designs::Problem()) << problem.message().toStdString();
    EXPECT_EQ(again.placed, count.placed);
    EXPECT_EQ(again.power, count.power);
    EXPECT_EQ(count.placed, count.power + count.mergedUnits + qsizetype(result.design->components().size()));
    return std::move(result.design);
}

} // namespace

QString DesignFolder::form()
{
    const QString memory = QStringLiteral("/dev/shm");
    const bool isUsable = QFileInfo(memory).isDir() && QFileInfo(memory).isWritable();
    return (isUsable ? memory : QDir::tempPath()) + QStringLiteral("/design-XXXXXX");
}

QString DesignFolder::write(const QString &name, std::string_view text) const
{
    return writeFile(path(name), text);
}

designs::ReadResult DesignFolder::read(const QString &name, const QString &variant) const
{
    return readAny(path(name), variant);
}

std::unique_ptr<designs::Design> DesignFolder::load(const QString &name, const QString &variant) const
{
    return counted(read(name, variant));
}

QString dataPath(const QString &name)
{
    return QStringLiteral(BOM_SOURCE_DIR "/tests/data/") + name;
}

std::string dataText(const QString &name)
{
    return readFile(dataPath(name)).toStdString();
}

designs::ReadResult readData(const QString &name, const QString &variant)
{
    return readAny(dataPath(name), variant);
}

std::unique_ptr<designs::Design> loadData(const QString &name, const QString &variant)
{
    return counted(readData(name, variant));
}

std::unique_ptr<designs::Design> designOf(int version, std::string_view body)
{
    const DesignFolder folder;
    folder.write(QStringLiteral("root.kicad_sch"), kicadtext::schematic(version, "top", body));
    return folder.load();
}

std::string references(const designs::Design &design)
{
    std::string text;
    for (const designs::Component &component : design.components()) {
        text += text.empty() ? "" : " ";
        text += component.reference;
    }
    return text;
}

std::string marks(const designs::Design &design)
{
    // In the order of designs::MarkedBy.
    static constexpr std::string_view letters = "-shap";
    std::string text;
    for (const designs::Component &component : design.components()) {
        text += text.empty() ? "" : " ";
        text += std::string(component.reference) + ':' + letters[std::size_t(component.notInBom)] +
                letters[std::size_t(component.notFitted)];
    }
    return text;
}

designs::Component part(const designs::Design &design, std::string_view reference)
{
    for (const designs::Component &component : design.components()) {
        if (component.reference == reference) {
            return component;
        }
    }
    ADD_FAILURE() << "no component " << reference << " among: " << references(design);
    return {};
}

std::optional<std::string> property(const designs::Design &design, std::string_view reference,
                                    std::string_view name)
{
    const designs::Component component = part(design, reference);
    for (designs::NameId id = 0; id < design.names().size(); ++id) {
        if (design.names().name(id) == name) {
            const auto value = design.stored(component, id);
            return value ? std::optional(std::string(*value)) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::string properties(const designs::Design &design, std::string_view reference,
                       std::initializer_list<std::string_view> names)
{
    std::string text;
    for (const std::string_view name : names) {
        text += (text.empty() ? "" : " ") + property(design, reference, name).value_or("-");
    }
    return text;
}

std::string warnings(const designs::Design &design)
{
    std::string text;
    for (const designs::Problem &warning : design.warnings()) {
        text += QFileInfo(warning.file).fileName().toStdString() + ':' + std::to_string(warning.line) + ": " +
                warning.text.toStdString() + '\n';
    }
    return text;
}

std::string errorOf(const designs::ReadResult &result)
{
    return result.design ? "read" : result.error.message().toStdString();
}
