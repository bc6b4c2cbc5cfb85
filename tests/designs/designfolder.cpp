// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/designfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

QString DesignFolder::form()
{
    const QString memory = QStringLiteral("/dev/shm");
    const bool isUsable = QFileInfo(memory).isDir() && QFileInfo(memory).isWritable();
    return (isUsable ? memory : QDir::tempPath()) + QStringLiteral("/design-XXXXXX");
}

QString DesignFolder::write(const QString &name, std::string_view text) const
{
    const QString full = path(name);
    QDir().mkpath(QFileInfo(full).absolutePath());
    QFile file(full);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(text.data(), qint64(text.size())), qint64(text.size()));
    return full;
}

designs::ReadResult DesignFolder::read(const QString &name, const QString &variant) const
{
    return designs::kicad::readKicadDesign(path(name), {variant});
}

std::unique_ptr<designs::Design> DesignFolder::load(const QString &name, const QString &variant) const
{
    designs::ReadResult result = read(name, variant);
    EXPECT_TRUE(result.design) << result.error.message().toStdString();
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

std::string references(const designs::Design &design)
{
    std::string text;
    for (const designs::Component &component : design.components()) {
        text += text.empty() ? "" : " ";
        text += component.reference;
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

std::string warnings(const designs::Design &design)
{
    std::string text;
    for (const designs::Problem &warning : design.warnings()) {
        text += QFileInfo(warning.file).fileName().toStdString() + ':' + std::to_string(warning.line) + ": " +
                warning.text.toStdString() + '\n';
    }
    return text;
}
