// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <iosfwd>
#include <optional>

/// Where a component stands on the board.
class CDBLAYOUT
{
public:
    /// The side as host text, "Top" or "Bottom".
    [[nodiscard]] QByteArrayView name() const { return m_name; }
    void setname(const QByteArray &name) { m_name = name; }

private:
    QByteArray m_name;
};

/// A record of the component database.
class CDBPART
{
public:
    /// The placement, null while the component is not placed.
    [[nodiscard]] const CDBLAYOUT *layout() const { return m_layout; }
    void setlayout(const CDBLAYOUT *layout) { m_layout = layout; }

private:
    const CDBLAYOUT *m_layout = nullptr;
};

/// One thing that keeps properties from being written.
struct CDBPROBLEM
{
    /// Empty where a file as a whole is the trouble.
    QString reference;
    QString property;
    /// Empty when no file is concerned; the line counts from 1, 0 when it is not known.
    QString file;
    int line = 0;
    QString reason;

    /// "FILE:LINE: REFERENCE, PROPERTY: reason", as far as these are known.
    [[nodiscard]] QString message() const;

    bool operator==(const CDBPROBLEM &) const = default;
};

/// What was done to a property, or would be.
struct CDBCHANGE
{
    QString reference;
    /// As it is stored then.
    QString name;
    /// Nothing where the component lacks the property before or after.
    std::optional<QString> before;
    std::optional<QString> after;
    /// Where it stands, the line counted from 1 in the file as it was before.
    QString file;
    int line = 0;
    /// The other references that share what is changed.
    QStringList alsoChanges;
    /// The variant that it is made in; empty for the design as drawn.
    QString variant = {};
    /// The name that was asked for, where the property is stored under another one of the same meaning.
    QString askedName = {};

    bool operator==(const CDBCHANGE &) const = default;
};

/// What a batch would do.
struct CDBPREVIEW
{
    QList<CDBCHANGE> changes;
    /// The files that would be replaced.
    QStringList files;

    bool operator==(const CDBPREVIEW &) const = default;
};

/// The host's component database.
class CDBCORE
{
public:
    CDBCORE() = default;
    CDBCORE(const CDBCORE &) = delete;
    CDBCORE &operator=(const CDBCORE &) = delete;
    virtual ~CDBCORE() = default;

    /// The record of a component by its identifier; null for an unknown one. Owned by the database.
    [[nodiscard]] virtual const CDBPART *getpart(quint64 identifier) = 0;

    /// Runs a script that writes properties, host text, and reports "No Errors" or one line per problem.
    /// `mode` is 0. Inside a batch it only checks and collects. The default reports that nothing can be
    /// written.
    virtual void adi(std::istream &script, std::ostream &report, int mode);

    /// Collects what the scripts until commitbatch() write, to be written in one go. Batches nest; the
    /// outermost counts. A host without batches writes at once.
    virtual void beginbatch() {}
    /// Writes what was collected, all of it or nothing; true when it is written, or the batch is an inner
    /// one.
    virtual bool commitbatch() { return true; }
    /// Ends a batch without writing it. Gives what commitbatch() would have done; problems() has what
    /// would have kept it from being written. Nothing where the host cannot tell, or the batch is an inner
    /// one.
    virtual std::optional<CDBPREVIEW> previewbatch()
    {
        dropbatch();
        return std::nullopt;
    }
    /// Ends a batch and forgets what it collected; dropping an inner one makes the outer one fail.
    virtual void dropbatch() {}
    /// Has something done once the outermost batch is written; it is forgotten when that batch is dropped or
    /// refused. Outside of a batch, and in a host without batches, it is done at once.
    virtual void afterbatch(const std::function<void()> &action) { action(); }
    /// All that kept the last batch, or the last script outside of one, from being written; the host keeps
    /// the list until the next begins.
    [[nodiscard]] virtual QList<CDBPROBLEM> problems() const { return {}; }
};

/// The installed database, null when the host has none.
[[nodiscard]] CDBCORE *getcdb();

/// Installs the database; it stays owned by the caller.
void setcdb(CDBCORE *database);
