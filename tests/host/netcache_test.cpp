// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/netlist/netcache.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Log = std::vector<std::string>;

struct Server final : INETSERVER
{
    Log log;
    bool succeeds = true;

    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool sendnetlist(NETCACHE &, int context, int detail) override
    {
        log.push_back("send " + std::to_string(context) + ' ' + std::to_string(detail));
        return succeeds;
    }
    void addcache(NETCACHE *) override { log.emplace_back("add"); }
    void removecache(NETCACHE *) override { log.emplace_back("remove"); }
};

/// Writes into the server's log what it is told and in which state the cache is then.
struct Client final : INETCLIENT
{
    Server &server;
    NETCACHE &cache;

    Client(Server &itsServer, NETCACHE &itsCache)
        : server(itsServer)
        , cache(itsCache)
    {
    }
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool isvisible() override { return true; }
    void designChanged(bool reload) override
    {
        server.log.push_back(std::string(reload ? "reloaded" : "changed") +
                             (cache.isstale() ? ", stale" : ""));
    }
};

class NetCacheTest : public testing::Test
{
protected:
    NetCacheTest()
    {
        cache.setcontext(3, 5);
        cache.attach(&client);
        cache.setsource(&server);
        server.log.clear();
    }

    Server server;
    NETCACHE cache;
    Client client{server, cache};
};

TEST_F(NetCacheTest, ReadsBeforeItTellsAndOnceAfterEveryKindOfChange)
{
    cache.validate(1);
    cache.validate(1);
    cache.invalidate();
    cache.validate(1);
    cache.setcontext(4, 5);
    cache.validate(1);
    EXPECT_EQ(server.log, (Log{"send 3 5", "reloaded", "send 3 5", "reloaded", "send 4 5", "reloaded"}));
}

TEST_F(NetCacheTest, StaysStaleWhenItMayNotWaitOrTheServerFails)
{
    cache.validate(0);
    server.succeeds = false;
    cache.validate(1);
    server.succeeds = true;
    cache.validate(1);
    EXPECT_EQ(server.log, (Log{"changed, stale", "send 3 5", "changed, stale", "send 3 5", "reloaded"}));
}

TEST_F(NetCacheTest, LeavesTheOldServerForTheNewOne)
{
    Server second;
    cache.setsource(&second);
    EXPECT_EQ(server.log, Log{"remove"});
    cache.validate(1);
    EXPECT_EQ(second.log, (Log{"add", "send 3 5"}));
    cache.setsource(nullptr);
    EXPECT_EQ(second.log.back(), "remove");
    cache.validate(1);
    EXPECT_EQ(server.log, (Log{"remove", "reloaded"})) << "nothing to tell without a server";
}

TEST(NetCache, LeavesItsServerWhenItGoesAway)
{
    Server server;
    NETCACHE().setsource(&server);
    EXPECT_EQ(server.log, (Log{"add", "remove"}));
}

} // namespace
