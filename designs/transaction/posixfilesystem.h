// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/transaction/filesystem.h"

namespace designs {

/// The file system of the machine.
class PosixFileSystem : public FileSystem
{
public:
    [[nodiscard]] int status(const QString &path, FileStatus *status) override;
    [[nodiscard]] int checkWritable(const QString &path) override;
    [[nodiscard]] int create(const QString &path, int *file) override;
    [[nodiscard]] int open(const QString &path, int *file) override;
    [[nodiscard]] int write(int file, std::string_view bytes, std::size_t *written) override;
    [[nodiscard]] int setAttributes(int file, const FileStatus &like) override;
    void startSync(int file) override;
    [[nodiscard]] int sync(int file) override;
    [[nodiscard]] int close(int file) override;
    [[nodiscard]] int link(const QString &file, const QString &name) override;
    [[nodiscard]] int rename(const QString &from, const QString &to) override;
    [[nodiscard]] int remove(const QString &path) override;
    [[nodiscard]] int makeFolder(const QString &path) override;
    [[nodiscard]] int removeFolder(const QString &path) override;
    [[nodiscard]] int syncFolder(const QString &path) override;
    [[nodiscard]] int lock(const QString &path, int *file) override;
    [[nodiscard]] int unlock(const QString &path, int file) override;
    void pause() override;
};

} // namespace designs
