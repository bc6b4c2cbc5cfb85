// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/dockwidget.h"

#include "module/vlabel.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QTest>
#include <QToolButton>

namespace {

constexpr int slideTime = 320;

class Dock : public testing::Test
{
protected:
    Dock()
    {
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(53, 53, 53));
        dark.setColor(QPalette::WindowText, Qt::white);
        window.setPalette(dark);
        panel->setContents(new QLineEdit);
        window.setCentralWidget(new QWidget);
        window.addDockWidget(Qt::LeftDockWidgetArea, panel);
        window.resize(600, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.resizeDocks({panel}, {250}, Qt::Horizontal);
        EXPECT_TRUE(QTest::qWaitFor([this] { return width() == 250; }));
    }

    void toggle() const { QTest::mouseClick(panel->findChild<QToolButton *>(), Qt::LeftButton); }
    static void waitForSlide() { QTest::qWait(slideTime + 150); }
    [[nodiscard]] int width() const { return panel->widget()->width(); }

    QMainWindow window;
    DockWidget *panel = new DockWidget;
    VLabel *label = panel->findChild<VLabel *>();
};

TEST_F(Dock, FoldsToAStripAndOpensAsWideAsItWas)
{
    EXPECT_TRUE(label->isHidden());
    toggle();
    EXPECT_TRUE(panel->widget()->isVisible()) << "still sliding";
    waitForSlide();
    EXPECT_FALSE(panel->widget()->isVisible());
    EXPECT_LT(panel->width(), 40);
    EXPECT_TRUE(label->isVisible());
    EXPECT_GT(label->height(), label->width()) << "the text runs downwards";
    toggle();
    waitForSlide();
    EXPECT_EQ(width(), 250);
    EXPECT_EQ(panel->widget()->x(), 0);
    EXPECT_TRUE(label->isHidden());
    window.resizeDocks({panel}, {180}, Qt::Horizontal);
    EXPECT_TRUE(QTest::qWaitFor([this] { return width() == 180; })) << "it may be made narrower again";
}

TEST_F(Dock, KeepsItsWidthWhenTheButtonIsPressedWhileItSlides)
{
    for (int i = 0; i < 5; ++i) {
        toggle();
        QTest::qWait(60);
    }
    waitForSlide();
    EXPECT_FALSE(panel->isOpen());
    EXPECT_FALSE(panel->widget()->isVisible());
    toggle();
    waitForSlide();
    EXPECT_EQ(width(), 250);
    panel->setOpen(false);
    panel->setOpen(true);
    EXPECT_TRUE(QTest::qWaitFor([this] { return width() == 250; })) << "without sliding, too";
}

TEST_F(Dock, OpensInANarrowWindowWithoutEnlargingIt)
{
    toggle();
    waitForSlide();
    window.resize(200, 300);
    QTest::qWait(50);
    toggle();
    waitForSlide();
    EXPECT_TRUE(panel->isOpen());
    EXPECT_EQ(window.width(), 200);
}

TEST_F(Dock, KeepsTheWidthThatIsSetBeforeItIsShown)
{
    DockWidget hidden;
    hidden.setOpenWidth(250);
    hidden.setOpen(false);
    EXPECT_EQ(hidden.openWidth(), 250);
}

TEST_F(Dock, LabelIsTurnedOnceAndReadableOnItsLightBackground)
{
    toggle();
    waitForSlide();
    const qint64 turned = label->pixmap(Qt::ReturnByValue).cacheKey();
    label->repaint();
    const QImage strip = panel->grab().toImage();
    EXPECT_EQ(label->pixmap(Qt::ReturnByValue).cacheKey(), turned);
    int darkest = 255;
    for (int y = 0; y < label->height(); ++y) {
        for (int x = 0; x < label->width(); ++x) {
            const QPoint place = label->mapTo(panel, QPoint(x, y)) * strip.devicePixelRatio();
            darkest = std::min(darkest, qGray(strip.pixel(place)));
        }
    }
    EXPECT_EQ(strip.pixelColor(label->mapTo(panel, QPoint(0, 0)) * strip.devicePixelRatio()),
              QColor(0xdc, 0xdc, 0xdc));
    EXPECT_LT(darkest, 90);
}

} // namespace
