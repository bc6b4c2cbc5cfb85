// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/applnwidget.h"
#include "support/testfiles.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Gives the program another palette, and its own back at the end.
class Icons : public testing::Test
{
protected:
    ~Icons() override { QGuiApplication::setPalette(m_before); }

    static void setText(const QColor &colour, const QColor &disabled = Qt::gray)
    {
        QPalette palette;
        palette.setColor(QPalette::ButtonText, colour);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabled);
        palette.setColor(QPalette::HighlightedText, Qt::yellow);
        QGuiApplication::setPalette(palette);
    }
    static QImage draw(const QIcon &icon, QIcon::Mode mode = QIcon::Normal, qreal scale = 1)
    {
        return icon.pixmap({24, 24}, scale, mode).toImage();
    }
    /// The colours of all pixels that are covered whole.
    static QList<QColor> inks(const QImage &image)
    {
        QList<QColor> found;
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const QColor colour = image.pixelColor(i % image.width(), i / image.width());
            if (colour.alpha() == 255 && !found.contains(colour)) {
                found.append(colour);
            }
        }
        return found;
    }

private:
    QPalette m_before = QGuiApplication::palette();
};

TEST_F(Icons, ArePresentFollowTheThemeAndAreSharpAtTwiceTheScale)
{
    const QString module =
        u"up down add editItem delete sendLeft sendRight find replace html csv ascii excel paper_setup save "
        u"undo redo "
        "apply clear review link filter notes part_add part_remove columns conflict reload settings open import export"_s;
    QStringList paths;
    for (const QString &name : module.split(u' ')) {
        paths.append(u":/bom/icons/"_s + name + u".png"_s);
    }
    for (const QString &name : {u"pdf"_s, u"print"_s, u"help"_s}) {
        paths.append(u":/quorvel/icons/"_s + name + u".png"_s);
    }
    for (const QString &path : paths) {
        SCOPED_TRACE(path.toStdString());
        const QIcon icon = APPLNWIDGET::makeIcon(path);
        setText(Qt::black);
        const QImage light = draw(icon);
        const QImage large = draw(icon, QIcon::Normal, 2);
        setText(Qt::white);
        EXPECT_TRUE(inks(light).contains(Qt::black));
        EXPECT_TRUE(inks(draw(icon)).contains(Qt::white)) << "the same icon in another theme";
        EXPECT_EQ(large.size(), QSize(48, 48));
        EXPECT_EQ(large.devicePixelRatio(), 2);
        EXPECT_NE(large.convertToFormat(light.format()), light.scaled(large.size()));
    }
}

TEST_F(Icons, HaveOneColourWhereTheyAreNotOrdinary)
{
    const QIcon icon = APPLNWIDGET::makeIcon(u":/bom/icons/excel.png"_s);
    setText(Qt::black, Qt::red);
    EXPECT_GT(inks(draw(icon)).size(), 1);
    EXPECT_EQ(inks(draw(icon, QIcon::Disabled)), QList<QColor>{Qt::red});
    EXPECT_EQ(inks(draw(icon, QIcon::Selected)), QList<QColor>{Qt::yellow});
    EXPECT_EQ(inks(draw(icon, QIcon::Active)), QList<QColor>{Qt::black});
}

TEST_F(Icons, OfAButtonAreDrawnAnewInAnotherTheme)
{
    QToolButton button;
    button.setStyleSheet(u"QToolButton { background: green; border: none }"_s);
    button.setIcon(APPLNWIDGET::makeIcon(u":/bom/icons/up.png"_s));
    setText(Qt::black);
    EXPECT_TRUE(inks(button.grab().toImage()).contains(Qt::black));
    setText(Qt::white);
    EXPECT_FALSE(inks(button.grab().toImage()).contains(Qt::black));
    EXPECT_TRUE(inks(button.grab().toImage()).contains(Qt::white));
}

TEST_F(Icons, KeepAPaletteThatTheyAreGiven)
{
    setText(Qt::white);
    const QIcon icon = APPLNWIDGET::makeIcon(u":/bom/icons/up.png"_s, QPalette(Qt::blue));
    const QList<QColor> before = inks(draw(icon));
    setText(Qt::black);
    EXPECT_EQ(inks(draw(icon)), before);
}

TEST_F(Icons, OfFilesAreWhatTheFilesHold)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(u"picture.png"_s);
    QImage red(24, 24, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(picture));
    EXPECT_EQ(inks(draw(APPLNWIDGET::makeIcon(picture))), QList<QColor>{Qt::red});
    const QString broken = writeFile(folder.filePath(u"broken.png"_s), "no picture");
    EXPECT_TRUE(draw(APPLNWIDGET::makeIcon(broken)).isNull());
    EXPECT_TRUE(APPLNWIDGET::makeIcon(u":/bom/icons/none.png"_s).isNull());
    EXPECT_TRUE(APPLNWIDGET::makeIcon({}).isNull());
}

} // namespace
