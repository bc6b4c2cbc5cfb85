// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "tests/app/workbenchfixture.h"

#include "host/netlist/cdbcore.h"
#include "host/netlist/netcache.h"
#include "standalone/loadeddesign.h"

#include <QMenu>
#include <QStatusBar>

#include <sstream>

namespace {

/// Counts how often the design is said to be another one.
class CountingClient final : public INETCLIENT
{
public:
    explicit CountingClient(INETSERVER &server)
    {
        m_cache.attach(this);
        m_cache.setsource(&server);
        m_cache.validate(1);
        reloads = 0;
    }
    IMODULE *queryinterface(unsigned) override { return nullptr; }
    bool isvisible() override { return true; }
    void designChanged(bool) override { ++reloads; }

    int reloads = 0;

private:
    NETCACHE m_cache;
};

} // namespace

class WorkbenchUndo : public WorkbenchTest
{
protected:
    QAction *undo() const
    {
        QAction *found = action(QStringLiteral("&Undo Last Write…"));
        for (QObject *menu : found->associatedObjects()) {
            Q_EMIT qobject_cast<QMenu *>(menu)->aboutToShow();
        }
        return found;
    }
    void setValue(const char *value) const
    {
        std::istringstream script(std::string("DATA NAME : R1-\n\"VALUE\"   :   \"") + value + "\"\nEND\n\n");
        std::ostringstream answer;
        getcdb()->beginbatch();
        getcdb()->adi(script, answer, 0);
        EXPECT_TRUE(getcdb()->commitbatch()) << answer.str();
    }
};

TEST_F(WorkbenchUndo, TakesTheLastWriteBackAndReadsOnce)
{
    EXPECT_FALSE(undo()->isEnabled());
    ASSERT_TRUE(bench->open(partList()));
    EXPECT_FALSE(undo()->isEnabled());
    setValue("68k");
    ASSERT_TRUE(undo()->isEnabled());

    undo()->trigger();
    ASSERT_EQ(ui.questions.size(), 1);
    EXPECT_TRUE(ui.questions[0].text.contains(QStringLiteral("parts.csv")));
    EXPECT_EQ(bench->session().design()->design().changedFiles(), QStringList());

    ui.answer = true;
    CountingClient client(bench->session().netlist());
    int looks = 0;
    QObject::connect(bench.get(), &Workbench::filesChecked, [&looks] { ++looks; });
    EXPECT_TRUE(waitFor([&] { undo()->trigger(); }, [&] { return looks > 0; }));
    EXPECT_EQ(client.reloads, 1);
    EXPECT_TRUE(isReported("10k"));
    EXPECT_EQ(bench->window().statusBar()->currentMessage(), QStringLiteral("Restored: parts.csv"));
    EXPECT_TRUE(ui.warnings.isEmpty());
    EXPECT_FALSE(undo()->isEnabled());
}

TEST_F(WorkbenchUndo, SaysWhyAWriteCannotBeTakenBack)
{
    ASSERT_TRUE(bench->open(partList()));
    setValue("68k");
    bench->watcher().setDelay(patience);
    const QString file = write(QStringLiteral("parts.csv"), "Reference,Value\nR1,91k\n");
    ui.answer = true;
    undo()->trigger();
    ASSERT_EQ(ui.warnings.size(), 1);
    EXPECT_TRUE(ui.warnings[0].text.contains(file)) << ui.warnings[0].text.toStdString();
    EXPECT_TRUE(bench->window().statusBar()->currentMessage().isEmpty());
    EXPECT_EQ(bench->session().changedFiles(), QStringList{file});
}
