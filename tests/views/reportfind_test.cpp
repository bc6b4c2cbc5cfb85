// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostsettings.h"
#include "report/reportfixture.h"
#include "richtext/editor/textedit.h"
#include "views/bomhtmlview.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class ReportLook : public ReportFixture
{
protected:
    ReportLook() { HostSettings::install(&settings); }
    ~ReportLook() override { HostSettings::install(nullptr); }

    void show(int lines)
    {
        for (int i = 1; i <= lines; ++i) {
            netlist.add("R" + QByteArray::number(i), QByteArray::number(i) + "k", {{"CODE", "part"}});
        }
        database.load();
        view.setPartsDatabase(&database);
        view.handleBOMDataUpdate();
        view.resize(700, 400);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        view.setFocus();
    }
    [[nodiscard]] QAction *action(const char *name) const
    {
        return view.findChild<QAction *>(QLatin1String(name));
    }
    void find(const QString &text)
    {
        action("findInReport")->trigger();
        auto *edit = view.findChild<QLineEdit *>(u"findText"_s);
        EXPECT_TRUE(edit->hasFocus());
        edit->clear();
        QTest::keyClicks(edit, text);
    }
    [[nodiscard]] QString state() const { return view.findChild<QLabel *>(u"findState"_s)->text(); }
    [[nodiscard]] QString selected() { return view.textEdit()->textCursor().selectedText(); }
    [[nodiscard]] int place() { return view.textEdit()->verticalScrollBar()->value(); }

    MemoryHostSettings settings;
    BOMHTMLView view;
};

TEST_F(ReportLook, FindsTextsOfTheReportRoundItsEnds)
{
    netlist.add("C1", "PART");
    netlist.add("C3", "PART");
    show(3);
    // As while a long report grows.
    QTimer grows;
    QScrollBar *bar = view.textEdit()->verticalScrollBar();
    QObject::connect(&grows, &QTimer::timeout, bar, [bar] { Q_EMIT bar->rangeChanged(0, bar->maximum()); });
    grows.start(5);
    find(u"part"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"1 of 5"_s; })) << qPrintable(state());
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.textEdit()->extraSelections().size() == 5; }));
    action("findPrevious")->trigger();
    EXPECT_EQ(state(), u"5 of 5, continued from the bottom"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(state(), u"1 of 5, continued from the top"_s);
    action("findNext")->trigger();
    EXPECT_EQ(state(), u"2 of 5"_s);
    view.handleBOMDataUpdate();
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"5 hits"_s; })) << qPrintable(state());
    // References may be wrapped behind the comma.
    find(u"c1,c3"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"1 of 1"_s; })) << qPrintable(state());
    find(u"absent"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"Not found"_s; }));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(view.textEdit()->hasFocus());
    EXPECT_TRUE(view.textEdit()->extraSelections().isEmpty());
    QTest::keyClick(view.textEdit(), Qt::Key_Slash);
    EXPECT_TRUE(QApplication::focusWidget()->inherits("QLineEdit"));
    find(u"part"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"2 of 5"_s; })) << qPrintable(state());
    // Content is made anew when the report is shown again, before the bar is.
    view.hide();
    netlist.add("R4", "4k", {{"CODE", "part"}});
    database.load();
    view.handleBOMDataUpdate();
    view.show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"6 hits"_s; })) << qPrintable(state());
}

TEST_F(ReportLook, FindsWhatALongReportShowsLater)
{
    show(3000);
    EXPECT_FALSE(view.textEdit()->document()->isComplete());
    find(u"R2999"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return state() == u"1 of 1"_s; }, 60'000)) << qPrintable(state());
    EXPECT_EQ(selected(), u"R2999"_s);
    EXPECT_GT(place(), 0);
    EXPECT_TRUE(view.textEdit()->viewport()->rect().contains(view.textEdit()->cursorRect()));
    QTest::keyClick(view.textEdit(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(place(), 0);
}

TEST_F(ReportLook, IsZoomedInItsPlaceAndWrittenAsEver)
{
    show(300);
    TextEdit &edit = *view.textEdit();
    const QString html = view.html();
    const auto topText = [&edit] { return edit.cursorForPosition({0, 0}).block().text(); };
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum() / 2);
    const QString top = topText();
    const double height = edit.document()->size().height();
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&edit, Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_EQ(topText(), top);
    EXPECT_NEAR(edit.document()->size().height() / height, 1.25, 0.1);
    EXPECT_EQ(edit.document()->getHtml(), html);
    EXPECT_EQ(settings.value(u"BOM"_s, u"ReportZoom"_s), u"125"_s);
    BOMHTMLView another;
    another.show();
    EXPECT_TRUE(another.zoomActions().constLast()->isEnabled());
    another.hide();
    view.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    QTest::keyClick(&edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(edit.document()->size().height(), height);
    QWheelEvent turned({10, 10}, edit.viewport()->mapToGlobal(QPointF(10, 10)), {}, {0, -240}, Qt::NoButton,
                       Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit.viewport(), &turned);
    EXPECT_EQ(settings.value(u"BOM"_s, u"ReportZoom"_s), u"80"_s);
}

} // namespace
