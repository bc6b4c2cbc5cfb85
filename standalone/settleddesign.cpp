// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/settleddesign.h"

#include "designs/formats/designreader.h"
#include "designs/transaction/designfiles.h"
#include "standalone/designwriter.h"
#include "standalone/texts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

/// Each write that overlaps the reading costs one.
constexpr int attempts = 20;

/// The file that stands for a design that cannot be read: of a project its root sheet.
QString designFileOf(const QString &path)
{
    const QFileInfo info(path);
    return info.suffix().compare(QLatin1String("kicad_pro"), Qt::CaseInsensitive) == 0
               ? info.absoluteDir().absoluteFilePath(info.completeBaseName() + QStringLiteral(".kicad_sch"))
               : info.absoluteFilePath();
}

/// A design that lacks the variant that is asked for has its files all the same.
designs::DesignFiles recoverableFiles(const QString &path, const designs::Design *design,
                                      const OpenOptions &options, const DesignReader &reader)
{
    if (design) {
        return filesOf(*design);
    }
    const designs::ReadResult drawn = options.variant.isEmpty() ? designs::ReadResult() : reader(path, {});
    return drawn.design ? filesOf(*drawn.design) : designs::DesignFiles(designFileOf(path), {});
}

/// Puts right what was interrupted, also in other designs that have files in common with this one.
designs::RecoveryResult recoverAll(const QString &path, const designs::Design *design,
                                   const OpenOptions &options, const DesignReader &reader)
{
    designs::RecoveryResult all = recoverableFiles(path, design, options, reader).recover();
    const QStringList others =
        design ? designs::interruptedDesignsAround(design->info().file, design->files()) : QStringList();
    for (const QString &other : others) {
        const designs::ReadResult read = designs::readDesign(other);
        const designs::RecoveryResult recovered =
            read.design ? filesOf(*read.design).recover() : designs::DesignFiles(other, {}).recover();
        std::ranges::copy(recovered.actions, std::back_inserter(all.actions));
        std::ranges::copy(recovered.problems, std::back_inserter(all.problems));
        all.isSettled = all.isSettled && recovered.isSettled;
    }
    return all;
}

/// One attempt; false when another one may find more.
bool readOnce(const QString &path, const OpenOptions &options, const DesignReader &reader,
              SettledDesign *result)
{
    designs::ReadResult read = reader(path, {options.variant});
    // In this order: when no write is under way after the reading, then one that overlapped it has ended, and
    // left other contents than were read.
    const designs::RecoveryResult recovered = recoverAll(path, read.design.get(), options, reader);
    result->notices += messagesOf(recovered.actions);
    const QStringList problems = messagesOf(recovered.problems);
    if (!recovered.isSettled && !options.readsAsIs) {
        result->errors = problems;
        return true;
    }
    if (read.design && !read.design->changedFiles().isEmpty()) {
        return false;
    }
    result->notices += problems;
    if (!read.design) {
        result->errors = result->notices << read.error.message();
        return recovered.actions.empty();
    }
    result->design = std::move(read.design);
    return true;
}

} // namespace

SettledDesign readSettledDesign(const QString &path, const OpenOptions &options, const std::stop_token &stop)
{
    return readSettledDesign(path, options, [&stop](const QString &file, designs::ReadOptions wanted) {
        wanted.stop = stop;
        return designs::readDesign(file, wanted);
    });
}

SettledDesign readSettledDesign(const QString &path, const OpenOptions &options, const DesignReader &reader)
{
    SettledDesign result;
    bool isDone = false;
    for (int attempt = 0; attempt < attempts && !isDone; ++attempt) {
        result.errors.clear();
        isDone = readOnce(path, options, reader, &result);
    }
    if (!isDone && result.errors.isEmpty()) {
        result.errors
            << path + QStringLiteral(": ") +
                   SessionTexts::tr(
                       "is written again and again while it is read: try again when that has ended");
    }
    result.notices.removeDuplicates();
    return result;
}
