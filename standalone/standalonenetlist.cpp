// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/standalonenetlist.h"

#include "standalone/loadeddesign.h"

#include <algorithm>
#include <utility>

namespace {

constexpr quint32 usable = 1;

void clear(NETCACHE &cache)
{
    cache.validMask = 0;
    cache.components = {};
    cache.fitting = nullptr;
    cache.marksnotfitted = false;
    cache.samemeaning = nullptr;
    cache.identityof = nullptr;
    cache.propertyNames.clear();
}

} // namespace

StandaloneNetlist::~StandaloneNetlist()
{
    while (!m_clients.empty()) {
        m_clients.back().cache->setsource(nullptr);
    }
}

void StandaloneNetlist::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
    invalidateCaches();
}

void StandaloneNetlist::invalidateCaches()
{
    for (const Client &client : m_clients) {
        client.cache->invalidate();
    }
}

void StandaloneNetlist::refreshCaches()
{
    // Filling a cache calls its client, which may add or remove caches.
    std::vector<NETCACHE *> caches;
    for (const Client &client : m_clients) {
        caches.push_back(client.cache);
    }
    for (NETCACHE *cache : caches) {
        if (find(*cache)) {
            cache->validate(1);
        }
    }
}

IMODULE *StandaloneNetlist::queryinterface(unsigned id)
{
    return id == INTERFACE_NETSERVER ? this : nullptr;
}

bool StandaloneNetlist::sendnetlist(NETCACHE &cache, int, int)
{
    Client *client = find(cache);
    if (!m_design || !client) {
        return false;
    }
    cache.validMask = usable;
    cache.wantedMask = usable;
    cache.components = m_design->components();
    cache.fitting = [design = m_design](QByteArrayView dnp) { return design->properties().fitting(dnp); };
    cache.marksnotfitted = m_design->properties().dnpChoice() == DnpChoice::Include;
    cache.samemeaning = [design = m_design](const QByteArray &asked, const QByteArray &other) {
        return design->properties().fields().rank(asked, other);
    };
    cache.identityof = [design = m_design](quint64 identifier) {
        const designs::Component *component = design->component(identifier);
        return component ? QByteArray::fromStdString(design->design().identityOf(*component)) : QByteArray();
    };
    cache.propertyNames = m_design->properties().allNames();
    if (client->sent.empty() || client->sent.back() != m_design) {
        client->sent.push_back(m_design);
    }
    return true;
}

void StandaloneNetlist::releaseformer(NETCACHE &cache)
{
    if (Client *client = find(cache); client && !client->sent.empty()) {
        client->sent.erase(client->sent.begin(), client->sent.end() - 1);
    }
}

StandaloneNetlist::Client *StandaloneNetlist::find(const NETCACHE &cache)
{
    const auto found = std::find_if(m_clients.begin(), m_clients.end(),
                                    [&cache](const Client &known) { return known.cache == &cache; });
    return found == m_clients.end() ? nullptr : &*found;
}

void StandaloneNetlist::addcache(NETCACHE *cache)
{
    m_clients.push_back({cache, {}});
}

void StandaloneNetlist::removecache(NETCACHE *cache)
{
    clear(*cache);
    std::erase_if(m_clients, [cache](const Client &client) { return client.cache == cache; });
}
