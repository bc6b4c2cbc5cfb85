// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/linkhandler.h"

#include "support/fakeprocess.h"
#include "support/printtext.h"

#include <QMainWindow>
#include <QStatusBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FakeNavigator final : public INAVIGATOR
{
public:
    virtual ~FakeNavigator() = default;
    IMODULE *queryinterface(unsigned) override { return this; }
    NAVIGATION showpart(const QString &reference, quint64 identifier) override
    {
        return {true, reference + u'/' + QString::number(identifier)};
    }
};

TEST(LinkHandler, AsksTheHostAndSaysInTheStatusLineWhatCameOfIt)
{
    QMainWindow window;
    auto *inside = new QWidget(&window);
    window.setCentralWidget(inside);
    window.setStatusBar(new QStatusBar);
    EXPECT_FALSE(LinkHandler::navigateLink(u"R1"_s, 7, inside).isShown) << "without a host";
    FakeProcess process;
    EXPECT_FALSE(LinkHandler::navigateLink(u"R1"_s, 7, inside).isShown) << "without a navigator";
    EXPECT_EQ(window.statusBar()->currentMessage(), u"This program cannot show where parts are drawn"_s);
    FakeNavigator navigator;
    process.navigator = &navigator;
    EXPECT_EQ(LinkHandler::navigateLink(u"R1"_s, 7, inside), (NAVIGATION{true, u"R1/7"_s}));
    EXPECT_EQ(window.statusBar()->currentMessage(), u"R1/7"_s);
    EXPECT_TRUE(LinkHandler::navigateLink(u"R1"_s, 7, nullptr).isShown);
}

} // namespace
