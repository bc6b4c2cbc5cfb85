// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/textstyleeditorfixture.h"

#include <QApplication>
#include <QColorDialog>

TEST_F(TextStyleEditorTest, FontControlsWriteOneDeclaration)
{
    EXPECT_EQ(after("", [this] { type("familyCombo", "Some Font, serif"); }),
              "font-family: \"Some Font\", serif;");
    EXPECT_EQ(after("font-family: 'Liberation Sans'", [this] { type("familyCombo", ""); }), "");
    EXPECT_EQ(after("", [this] { type("sizeSpin", "10.5"); }), "font-size: 10.5pt;");
    EXPECT_EQ(after("", [this] { QTest::keyClick(find<QWidget>("sizeSpin"), Qt::Key_Up); }),
              "font-size: 12pt;");
    EXPECT_EQ(after("font-size: 16px", [this] { QTest::keyClick(find<QWidget>("sizeSpin"), Qt::Key_Up); }),
              "font-size: 13pt");
    EXPECT_EQ(after("font-size: 1em; color: red", [this] { type("sizeSpin", ""); }), "color: red");
    EXPECT_EQ(after("", [this] { click("boldBox"); }), "font-weight: bold;");
    EXPECT_EQ(after("font-weight: 700", [this] { click("boldBox"); }), "font-weight: normal");
    EXPECT_EQ(after("font-weight: normal;", [this] { click("boldBox"); }), "");
    EXPECT_EQ(after("", [this] { click("italicBox"); }), "font-style: italic;");
    EXPECT_EQ(after("text-decoration: line-through", [this] { click("underlineBox"); }),
              "text-decoration: underline line-through");
    EXPECT_EQ(after("", [this] { click("underlineBox"); }), "text-decoration: underline;");
    EXPECT_EQ(after("font: bold 10pt serif", [this] { type("sizeSpin", "11"); }),
              "font: bold 10pt serif; font-size: 11pt;");
    EXPECT_EQ(after("font-weight: bold !important", [this] { click("boldBox"); }),
              "font-weight: normal !important");
}

TEST_F(TextStyleEditorTest, ColorControls)
{
    EXPECT_EQ(after("", [this] { click("colorField/chooseButton"); }), "color: #123456;");
    EXPECT_EQ(after("color: red", [this] { click("colorField/clearButton"); }), "");
    EXPECT_EQ(after("background: red", [this] { click("backgroundField/chooseButton"); }),
              "background: #123456");
    EXPECT_EQ(after("background: url(a) red", [this] { click("backgroundField/chooseButton"); }),
              "background: url(a) red; background-color: #123456;");
    EXPECT_EQ(after("", [this] { click("backgroundField/noneButton"); }), "background-color: transparent;");
    m_answer = QColor(1, 2, 3, 51);
    EXPECT_EQ(after("", [this] { click("backgroundField/chooseButton"); }),
              "background-color: rgba(1, 2, 3, 0.2);");
    m_answer = QColor();
    EXPECT_TRUE(run(u("/*_HOne*/ p {}"), [this] { click("colorField/chooseButton"); }));
    EXPECT_EQ(m_editor.getCSS(), u("/*_HOne*/ p {}"));
}

TEST(ColorField, AsksWithTheColorDialog)
{
    ColorField field;
    field.setSubject(u("Subject"));
    field.showValue(u("transparent"));
    field.show();
    QTimer::singleShot(0, &field, [&] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowTitle(), u("Subject"));
        EXPECT_EQ(dialog->currentColor().alpha(), 255);
        dialog->setCurrentColor(QColor(u("#00ff80")));
        dialog->accept();
    });
    QTest::mouseClick(field.findChild<QPushButton *>(), Qt::LeftButton);
    EXPECT_EQ(field.value(), u("#00ff80"));
    field.showValue(u("rgba(255, 200, 0, 0.5)"));
    EXPECT_EQ(field.findChild<QPushButton *>()->text(), u("#ffc800 50%"));
}

TEST_F(TextStyleEditorTest, ChosenColorsAreSeenInThePreviewAndInADocument)
{
    const auto holds = [](const QImage &image, const QColor &color) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count > 100;
    };
    QImage preview;
    std::ignore = after("font-size: 30pt", [&] {
        click("backgroundField/chooseButton");
        preview = find<QWidget>("preview")->grab().toImage();
    });
    EXPECT_TRUE(holds(preview, m_answer));
    QTextDocument document;
    document.setHtml(u("<style>") + m_editor.getCSS() + u("</style><p>text</p>"));
    QImage page(200, 100, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    document.drawContents(&painter);
    painter.end();
    EXPECT_TRUE(holds(page, m_answer));
}

TEST_F(TextStyleEditorTest, AlignmentMarginsAndPadding)
{
    EXPECT_EQ(after("", [this] { pick("alignCombo", 1); }), "text-align: left;");
    EXPECT_EQ(after("text-align: right", [this] { pick("alignCombo", 1); }), "text-align: justify");
    EXPECT_EQ(after("", [this] { pick("verticalCombo", 1); }), "vertical-align: top;");
    const std::pair<const char *, const char *> sides[] = {
        {"Top", "top"}, {"Right", "right"}, {"Bottom", "bottom"}, {"Left", "left"}};
    for (const char *family : {"margin", "padding"}) {
        for (const auto &[name, side] : sides) {
            const QByteArray spin = QByteArray(family) + name + "Spin";
            const std::string property = std::string(family) + "-" + side;
            EXPECT_EQ(after("", [&] { type(spin, "2.5"); }), property + ": 2.5pt;");
            EXPECT_EQ(after((property + ": 5mm").c_str(), [&] { type(spin, ""); }), "");
        }
    }
    EXPECT_EQ(after("margin: 5mm", [this] { type("marginLeftSpin", "-3"); }), "margin: 5mm 5mm 5mm -3pt");
    EXPECT_EQ(after("padding: 1pt 3pt 2pt 4pt", [this] { type("paddingTopSpin", "2"); }),
              "padding: 2pt 3pt 2pt 4pt");
    EXPECT_EQ(after("margin: 1pt 2em", [this] { type("marginTopSpin", ""); }),
              "margin-right: 2em; margin-bottom: 1pt; margin-left: 2em;");
    EXPECT_EQ(after("margin-top: 1pt; margin: 2pt; margin-top: 3pt", [this] { type("marginTopSpin", "4"); }),
              "margin: 2pt; margin-top: 4pt");
}

TEST_F(TextStyleEditorTest, Borders)
{
    EXPECT_EQ(after("", [this] { pick("borderStyleCombo", 1); }), "border-style: none;");
    EXPECT_EQ(after("border-style: none", [this] { pick("borderStyleCombo", 1); }), "border-style: solid");
    EXPECT_EQ(after("border: 1pt solid red", [this] { type("borderWidthSpin", "2"); }),
              "border: 2pt solid red");
    EXPECT_EQ(after("", [this] { click("borderColorField/chooseButton"); }), "border-color: #123456;");
    EXPECT_EQ(after("border-bottom: 1pt solid #000099", [this] { click("borderColorField/chooseButton"); }),
              "border-bottom: 1pt solid #123456"); // the side that has a border is chosen at first
    EXPECT_EQ(after("border: 1pt solid red",
                    [this] {
                        pick("borderSideCombo", 3);
                        pick("borderStyleCombo", 1);
                    }),
              "border: 1pt solid red; border-bottom-style: dashed;");
    EXPECT_EQ(after("border-top-width: 1pt; border-left-width: 3pt",
                    [this] {
                        QTest::keyClick(find<QWidget>("borderSideCombo"), Qt::Key_Home);
                        type("borderWidthSpin", "2");
                    }),
              "border-width: 2pt;");
    EXPECT_EQ(after("border: 1pt solid red", [this] { type("borderWidthSpin", ""); }), "border: solid red");
}

TEST_F(TextStyleEditorTest, EarlierRulesOfASelectorCountAndStay)
{
    EXPECT_EQ(after("color: red; margin: 1pt } p {", [this] { click("colorField/clearButton"); }),
              "color: inherit;");
    EXPECT_EQ(after("margin: 1pt } p {", [this] { type("marginTopSpin", ""); }), "margin-top: initial;");
    EXPECT_EQ(after("font-size: 9pt; margin: 1pt } p { color: red",
                    [this] {
                        EXPECT_EQ(find<QAbstractSpinBox>("sizeSpin")->text(), u("9 pt"));
                        type("marginTopSpin", "2");
                    }),
              "color: red; margin-top: 2pt;");
}

TEST_F(TextStyleEditorTest, OpenPropertiesShowAsOpen)
{
    m_editor.loadCSS(u("/*_HOne*/ p { margin: 5mm; color: rgb(0,0,153) }"));
    EXPECT_EQ(find<QAbstractSpinBox>("sizeSpin")->text(), u("inherited"));
    EXPECT_EQ(find<QAbstractSpinBox>("paddingTopSpin")->text(), u("not set"));
    EXPECT_EQ(find<QAbstractSpinBox>("marginTopSpin")->text(), u("14.17 pt"));
    EXPECT_EQ(find<QAbstractSpinBox>("marginTopSpin")->toolTip(), u("Written as 5mm"));
    EXPECT_EQ(find<QCheckBox>("boldBox")->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(find<QComboBox>("familyCombo")->currentText(), QString());
    EXPECT_EQ(find<QComboBox>("alignCombo")->currentText(), u("Inherited"));
    EXPECT_EQ(find<QPushButton>("backgroundField/chooseButton")->text(), u("not set"));
    EXPECT_EQ(find<QPushButton>("colorField/chooseButton")->text(), u("rgb(0,0,153)"));
}
