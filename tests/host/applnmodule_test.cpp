// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/applnmodule.h"

#include "host/framework/hostsettings.h"
#include "support/fakeprocess.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Window final : public APPLNWINDOW
{
public:
    unsigned state = WINDOW_HIDDEN;
    int updates = 0;

    bool createwindow(APPLNFRAME *) override { return true; }
    bool isvisible() const override { return state != WINDOW_HIDDEN; }
    void showwindow(unsigned wanted) override { state = wanted; }
    void updatewindow() override { ++updates; }
    void addctrlbar(QToolBar *, unsigned, unsigned) override {}
};

class Module final : public APPLNMODULE
{
public:
    using APPLNMODULE::APPLNMODULE;

    int firstRuns = 0;
    bool canInitialise = true;
    bool system_init() override { return canInitialise; }
    void onfirstrun() override { ++firstRuns; }
    std::span<const CMDINFO> getcmdinfotable() const override
    {
        static constexpr CMDINFO table[] = {{7, "reload"}};
        return table;
    }
};

} // namespace

TEST(ApplnModule, ContextsNest)
{
    FakeProcess process;
    Module outer(&process);
    Module inner(&process);
    outer.pushcontext();
    inner.pushcontext();
    EXPECT_EQ(process.getcontext(), &inner);
    inner.popcontext();
    EXPECT_EQ(process.getcontext(), &outer);
    outer.popcontext();
    outer.popcontext();
    EXPECT_EQ(process.getcontext(), nullptr);
}

TEST(ApplnModule, KnowsItsWindowsUntilTheyGo)
{
    Module module(nullptr);
    Module other(nullptr);
    Window first;
    {
        Window second;
        second.setowner(&module);
        first.setowner(&module);
        first.setowner(&module);
        EXPECT_EQ(module.getprimarywindow(), &second);
        module.updatewindows();
        EXPECT_EQ(first.updates + second.updates, 2);
    }
    EXPECT_EQ(module.getprimarywindow(), &first);
    module.showprimarywindow(WINDOW_MAXIMISED);
    EXPECT_EQ(first.state, WINDOW_MAXIMISED);
    first.setowner(&other);
    EXPECT_EQ(module.getprimarywindow(), nullptr);
    other.removewindow(&first);
    EXPECT_EQ(first.getowner(), nullptr);
    {
        Module shortLived(nullptr);
        first.setowner(&shortLived);
    }
    EXPECT_EQ(first.getowner(), nullptr);
}

TEST(ApplnModule, RunsForTheFirstTimeOnce)
{
    MemoryHostSettings settings;
    HostSettings::install(&settings);
    Module module(nullptr);
    Window window;
    window.setowner(&module);
    module.setapplnname(u"ABC"_s, {});
    module.canInitialise = false;
    EXPECT_FALSE(module.run());
    EXPECT_FALSE(window.isvisible());
    module.canInitialise = true;
    EXPECT_TRUE(module.run() && module.run());
    EXPECT_EQ(module.firstRuns, 1);
    EXPECT_TRUE(window.isvisible());
    HostSettings::install(nullptr);
}

TEST(ApplnModule, EnablesTheCommandsThatItHas)
{
    const Module module(nullptr);
    EXPECT_EQ(module.getuistate(7), UISTATE_ENABLED);
    EXPECT_EQ(module.getuistate(8), UISTATE_DISABLED);
}
