// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/netcache.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class LoadedDesign;

/// The netlist server of the standalone host: sends the records of the open design to the caches.
class StandaloneNetlist final : public INETSERVER
{
public:
    StandaloneNetlist() = default;
    StandaloneNetlist(const StandaloneNetlist &) = delete;
    StandaloneNetlist &operator=(const StandaloneNetlist &) = delete;
    /// Empties and detaches the caches that are still attached.
    virtual ~StandaloneNetlist();

    /// Takes a design, or none, and marks the caches stale. What was sent to a cache stays alive until
    /// releaseformer(): a client that ignores changes while it writes still points into it, however often the
    /// cache is filled meanwhile.
    void setDesign(std::shared_ptr<const LoadedDesign> design);
    void invalidateCaches();
    /// What reads the design again for rereaddesign(); false when it cannot.
    void setReader(std::function<bool()> reader) { m_reader = std::move(reader); }
    /// Fills the caches that are stale; each calls its client.
    void refreshCaches();

    IMODULE *queryinterface(unsigned id) override;
    bool sendnetlist(NETCACHE &cache, int context, int detail) override;
    void addcache(NETCACHE *cache) override;
    void removecache(NETCACHE *cache) override;
    void releaseformer(NETCACHE &cache) override;
    bool rereaddesign() override { return m_design && m_reader && m_reader(); }

private:
    struct Client
    {
        NETCACHE *cache = nullptr;
        /// What the cache was filled with and its client may point into; the cache holds the last one.
        std::vector<std::shared_ptr<const LoadedDesign>> sent;
    };

    [[nodiscard]] Client *find(const NETCACHE &cache);

    std::shared_ptr<const LoadedDesign> m_design;
    std::function<bool()> m_reader;
    std::vector<Client> m_clients;
};
