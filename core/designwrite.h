// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class BOMPartsDatabase;
class CDBCORE;

/// One write into the design. While it lives, the host collects what scripts write, and the database ignores
/// what the host tells of changes (see BOMPartsDatabase::setWriting()): half of a write must not replace
/// parts that the other half is about. Both end with it, and the module then reloads once. A write within
/// another one of the same database is a part of that one.
class DesignWrite final
{
public:
    /// The database must outlive the write. Without a component database of the host nothing can be written.
    explicit DesignWrite(BOMPartsDatabase *database);
    DesignWrite(const DesignWrite &) = delete;
    DesignWrite &operator=(const DesignWrite &) = delete;
    /// What was not committed is dropped.
    ~DesignWrite();

    /// Has something done as soon as the files are written, and not at all when they are not.
    void whenWritten(const std::function<void()> &action);
    /// Writes what was collected, all of it or nothing; the host's database has the problems. True when it is
    /// written, or waits for the write that this one is a part of. To be called once.
    [[nodiscard]] bool commit();

private:
    BOMPartsDatabase *m_database;
    CDBCORE *m_host;
    /// Whether this one set the writing flag, and so is no part of another.
    bool m_isOutermost;
    bool m_isOpen;
};
