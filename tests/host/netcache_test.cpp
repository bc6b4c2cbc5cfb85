// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/netlist/netcache.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Log = std::vector<std::string>;

class Server final : public INETSERVER
{
public:
    explicit Server(Log &log)
        : m_log(log)
    {
    }
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool sendnetlist(NETCACHE &cache, int context, int detail) override
    {
        m_log.push_back("send " + std::to_string(context) + ' ' + std::to_string(detail));
        cache.propertyNames = {"A"};
        return succeeds;
    }
    void addcache(NETCACHE *) override { m_log.emplace_back("add"); }
    void removecache(NETCACHE *) override { m_log.emplace_back("remove"); }

    bool succeeds = true;

private:
    Log &m_log;
};

class Client final : public INETCLIENT
{
public:
    Client(Log &log, NETCACHE &cache)
        : m_log(log)
        , m_cache(cache)
    {
    }
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool isvisible() override { return true; }
    void designChanged(bool reload) override
    {
        m_log.push_back(std::string(reload ? "reloaded" : "changed") + (m_cache.isstale() ? ", stale" : ""));
    }

private:
    Log &m_log;
    NETCACHE &m_cache;
};

class NetCacheTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_cache.setcontext(3, 5);
        m_cache.attach(&m_client);
        m_cache.setsource(&m_server);
        m_log.clear();
    }

    Log m_log;
    Server m_server{m_log};
    NETCACHE m_cache;
    Client m_client{m_log, m_cache};
};

TEST_F(NetCacheTest, ReadsBeforeItTellsAndOnlyOnce)
{
    m_cache.validate(1);
    m_cache.validate(1);
    EXPECT_EQ(m_log, (Log{"send 3 5", "reloaded"}));
}

TEST_F(NetCacheTest, ReadsAgainAfterEveryKindOfChange)
{
    m_cache.validate(1);
    m_cache.invalidate();
    m_cache.validate(1);
    m_cache.setcontext(4, 5);
    m_cache.validate(1);
    EXPECT_EQ(m_log, (Log{"send 3 5", "reloaded", "send 3 5", "reloaded", "send 4 5", "reloaded"}));
}

TEST_F(NetCacheTest, OnlyTellsWhenItMayNotWait)
{
    m_cache.validate(0);
    EXPECT_EQ(m_log, Log{"changed, stale"});
    m_cache.validate(1);
    EXPECT_EQ(m_log, (Log{"changed, stale", "send 3 5", "reloaded"}));
}

TEST_F(NetCacheTest, StaysStaleWhenTheServerFails)
{
    m_server.succeeds = false;
    m_cache.validate(1);
    EXPECT_EQ(m_log, (Log{"send 3 5", "changed, stale"}));
}

TEST_F(NetCacheTest, LeavesTheOldServerForTheNewOne)
{
    m_cache.validate(1);
    m_log.clear();
    Log other;
    Server second(other);
    m_cache.setsource(&second);
    EXPECT_EQ(m_log, Log{"remove"});
    m_cache.validate(1);
    EXPECT_EQ(other, (Log{"add", "send 3 5"}));
    m_cache.setsource(nullptr);
    EXPECT_EQ(other.back(), "remove");
    m_cache.validate(1);
    EXPECT_EQ(m_log.back(), "reloaded") << "nothing to tell without a server";
}

TEST(NetCache, LeavesItsServerWhenItGoesAway)
{
    Log log;
    Server server(log);
    {
        NETCACHE cache;
        cache.setsource(&server);
    }
    EXPECT_EQ(log, (Log{"add", "remove"}));
}

TEST(NetList, IsValidWhenTheMasksShareABit)
{
    NETLIST netlist;
    EXPECT_FALSE(netlist.isValid());
    netlist.validMask = 0b0110;
    netlist.wantedMask = 0b1001;
    EXPECT_FALSE(netlist.isValid());
    netlist.wantedMask = 0b1011;
    EXPECT_TRUE(netlist.isValid());
}

} // namespace
