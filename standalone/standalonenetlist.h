// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/netlist/netcache.h"

#include <memory>
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

    /// Takes a design, or none, and marks the caches stale. What a cache holds stays alive until it is filled
    /// for the second time from then: parts made of it may be used until their owner has made others.
    void setDesign(std::shared_ptr<const LoadedDesign> design);
    void invalidateCaches();
    /// Fills the caches that are stale; each calls its client.
    void refreshCaches();

    IMODULE *queryinterface(unsigned id) override;
    bool sendnetlist(NETCACHE &cache, int context, int detail) override;
    void addcache(NETCACHE *cache) override;
    void removecache(NETCACHE *cache) override;

private:
    struct Client
    {
        NETCACHE *cache = nullptr;
        std::shared_ptr<const LoadedDesign> sent;
        std::shared_ptr<const LoadedDesign> sentBefore;
    };

    std::shared_ptr<const LoadedDesign> m_design;
    std::vector<Client> m_clients;
};
