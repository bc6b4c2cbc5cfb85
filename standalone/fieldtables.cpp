// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/fieldtables.h"

#include "files/regularfile.h"
#include "standalone/environment.h"
#include "standalone/texts.h"

#include <QFileInfo>

#include <optional>

// A static library's resources are dropped by the linker unless something refers to them. The macro declares
// a function, which may not happen inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(fields);
}

namespace {

/// More than any table that people write; keeps a wrong file from filling the memory.
constexpr qint64 largestTable = 1024 * 1024;

} // namespace

QString fieldTableBeside(const QString &designFile)
{
    const QFileInfo file(designFile);
    return file.path() + u'/' + file.completeBaseName() + QStringLiteral(".bomfields.txt");
}

LoadedFieldNames loadFieldNames(const QString &designFile)
{
    const auto names = std::make_shared<FieldNames>();
    LoadedFieldNames loaded{names, {}};
    initResources();
    for (const QString &path :
         {QStringLiteral(":/bom/fields/bomfields.txt"), userFieldTable(), fieldTableBeside(designFile)}) {
        if (!QFileInfo::exists(path)) {
            continue;
        }
        QString reason;
        const std::optional<QByteArray> text = contentOfRegularFile(path, largestTable, &reason);
        if (!text || text->size() > largestTable) {
            const QString why =
                text ? TableTexts::tr("is larger than 1 MB; its names of properties are not known")
                     : TableTexts::tr("%1; its names of properties are not known").arg(reason);
            loaded.problems << path + QStringLiteral(": ") + why;
            continue;
        }
        loaded.problems += names->add(*text, path);
    }
    return loaded;
}
