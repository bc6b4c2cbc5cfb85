// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/imodule.h"
#include "host/netlist/netlist.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>
#include <optional>

class NETCACHE;

/// A design with edits that a client keeps and has not written into it.
struct UNWRITTENEDITS
{
    QString file;
    QString variant;
    qsizetype edits = 0;

    bool operator==(const UNWRITTENEDITS &) const = default;
};

/// What a client counts in its report of the design.
struct REPORTCOUNTS
{
    qsizetype lines = 0;
    /// Its own parts, which the design does not have, included.
    qsizetype parts = 0;
    /// Edits that are not written yet.
    qsizetype pending = 0;

    bool operator==(const REPORTCOUNTS &) const = default;
};

/// Who wants to know that the design behind a cache has changed.
class INETCLIENT : public IMODULE
{
public:
    [[nodiscard]] virtual bool isvisible() = 0;

    /// Whether the user is in the middle of something that a changed design would pull away: an open editor,
    /// a menu, a drag. The server waits with a changed design until it is over.
    [[nodiscard]] virtual bool isbusy() const { return false; }

    /// What the client's report counts; nothing when it does not count.
    [[nodiscard]] virtual std::optional<REPORTCOUNTS> reportcounts() const { return std::nullopt; }
    /// Who is to hear of changes at once: with true when the report changed, with false when nothing but the
    /// number of pending edits can have. Null for nobody.
    virtual void setreportlistener(const std::function<void(bool isReport)> &) {}

    /// The designs, other ones too, for which the client keeps edits.
    [[nodiscard]] virtual QList<UNWRITTENEDITS> unwrittenedits() const { return {}; }

    /// The lines of its report, in words, whose parts differ in one of these properties. Of the first list a
    /// part without the property differs from one that has it, of the second it goes with any.
    [[nodiscard]] virtual QStringList differinglines(const QStringList &always,
                                                     const QStringList &whereFilled) const
    {
        Q_UNUSED(always)
        Q_UNUSED(whereFilled)
        return {};
    }

    /// The design changed; `reload` tells whether the cache holds the new one already.
    virtual void designChanged(bool reload) = 0;

protected:
    ~INETCLIENT() = default;
};

/// An application that owns a design and fills caches with its netlist.
class INETSERVER : public IMODULE
{
public:
    /// Fills the cache's netlist; false leaves it as it is.
    virtual bool sendnetlist(NETCACHE &cache, int context, int detail) = 0;
    virtual void addcache(NETCACHE *cache) = 0;
    virtual void removecache(NETCACHE *cache) = 0;

    /// The cache's client points into nothing any more that the cache held before what it holds now. Until
    /// then the server keeps all that it sent.
    virtual void releaseformer(NETCACHE &) {}

    /// Reads the files of the design again and tells the clients. False when that is not possible: the
    /// design then is as it was.
    virtual bool rereaddesign() { return false; }

protected:
    ~INETSERVER() = default;
};

/// A module's copy of the design's netlist, kept up to date on demand: the server invalidates it, the module
/// validates it when the host gives it time.
class NETCACHE final : public NETLIST
{
public:
    NETCACHE() = default;
    NETCACHE(const NETCACHE &) = delete;
    NETCACHE &operator=(const NETCACHE &) = delete;
    ~NETCACHE();

    /// The client that hears of changes; not owned.
    void attach(INETCLIENT *client) { m_client = client; }

    /// The server to read from; null detaches. Not owned.
    void setsource(INETSERVER *server);
    void setcontext(int context, int detail);

    /// Reads the netlist again when it is stale and tells the client, in that order. With `wait` 0 a stale
    /// cache only tells the client that the design changed.
    void validate(int wait);

    /// Has the server read the design again, see INETSERVER::rereaddesign().
    bool rereaddesign() { return m_server && m_server->rereaddesign(); }

    /// To be called by the client when it points into nothing any more that the cache held before.
    void releaseformer();

    /// Marks the content stale.
    void invalidate() { m_stale = true; }
    [[nodiscard]] bool isstale() const { return m_stale; }

private:
    INETCLIENT *m_client = nullptr;
    INETSERVER *m_server = nullptr;
    int m_context = 0;
    int m_detail = 0;
    bool m_stale = true;
};
