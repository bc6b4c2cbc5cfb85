// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/stylepanel.h"

#include "editor/ui_stylepanel.h"
#include "richtext/css/cssvalue.h"
#include "richtext/css/stylerule.h"
#include "richtext/editor/stylefields.h"

#include <QLineEdit>

using cssbox::Aspect;
using cssbox::Family;
using cssbox::Side;
using namespace stylefields;

namespace {

constexpr double usualSize = 12;
/// What percentages of a margin are taken of when the sheet names no paper.
constexpr double usualWidth = 595;

} // namespace

StylePanel::StylePanel(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::StylePanel>())
{
    m_ui->setupUi(this);
    prepareFields();
    prepareSpins();
    connectFont();
    connectBorder();
    for (QComboBox *combo : findChildren<QComboBox *>()) {
        guardFromWheel(combo);
    }
    refresh();
}

StylePanel::~StylePanel() = default;

void StylePanel::prepareFields()
{
    m_ui->familyCombo->setInsertPolicy(QComboBox::NoInsert);
    m_ui->familyCombo->lineEdit()->setPlaceholderText(tr("inherited"));
    m_ui->familyCombo->setMinimumContentsLength(10);
    m_ui->familyCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_ui->sizeSpin->setOpenText(tr("inherited"));
    m_ui->colorField->setOpenText(tr("inherited"));
    m_ui->colorField->setSubject(tr("Text color"));
    m_ui->backgroundField->setSubject(tr("Background color"));
    m_ui->backgroundField->setNoneAllowed(true);
    m_ui->borderColorField->setSubject(tr("Border color"));
    setEntries(m_ui->alignCombo, {QString(), QStringLiteral("left"), QStringLiteral("center"),
                                  QStringLiteral("right"), QStringLiteral("justify")});
    setEntries(m_ui->verticalCombo,
               {QString(), QStringLiteral("top"), QStringLiteral("middle"), QStringLiteral("bottom"),
                QStringLiteral("baseline"), QStringLiteral("super"), QStringLiteral("sub")});
    setEntries(m_ui->borderStyleCombo,
               {QString(), QStringLiteral("none"), QStringLiteral("solid"), QStringLiteral("dashed"),
                QStringLiteral("dotted"), QStringLiteral("double")});
}

void StylePanel::prepareSpins()
{
    m_boxes = {{m_ui->marginTopSpin, Family::Margin, Side::Top},
               {m_ui->marginRightSpin, Family::Margin, Side::Right},
               {m_ui->marginBottomSpin, Family::Margin, Side::Bottom},
               {m_ui->marginLeftSpin, Family::Margin, Side::Left},
               {m_ui->paddingTopSpin, Family::Padding, Side::Top},
               {m_ui->paddingRightSpin, Family::Padding, Side::Right},
               {m_ui->paddingBottomSpin, Family::Padding, Side::Bottom},
               {m_ui->paddingLeftSpin, Family::Padding, Side::Left}};
    for (const BoxSpin &box : m_boxes) {
        if (box.family == Family::Margin) {
            box.spin->setBounds(-500, 500);
        }
        connect(box.spin, &LengthSpin::lengthChanged, this, [this, box] {
            const std::optional<double> length = box.spin->length();
            edit([&](StyleRule &rule) {
                rule.setBoxValue(box.family, {{Aspect::Width, box.side}},
                                 length ? css::inPoints(*length) : QString());
            });
        });
    }
    m_ui->sizeSpin->setBounds(1, 500);
    m_ui->sizeSpin->setFirstStep(usualSize);
    m_ui->borderWidthSpin->setBounds(0, 100);
    m_ui->borderWidthSpin->setSingleStep(0.5);
    m_ui->borderWidthSpin->setFirstStep(1);
}

void StylePanel::connectFont()
{
    connect(m_ui->familyCombo, qOverload<int>(&QComboBox::activated), this, &StylePanel::takeFamily);
    connect(m_ui->familyCombo->lineEdit(), &QLineEdit::editingFinished, this, &StylePanel::takeFamily);
    connect(m_ui->sizeSpin, &LengthSpin::lengthChanged, this, [this] {
        const std::optional<double> size = m_ui->sizeSpin->length();
        setSimple("font-size", size ? css::inPoints(*size) : QString());
    });
    const auto bindTrait = [this](QCheckBox *box, const char *property, const char *on) {
        connect(box, &QCheckBox::clicked, this, [this, box, property, on] {
            const bool open = box->checkState() == Qt::PartiallyChecked;
            setSimple(property, open               ? QString()
                                : box->isChecked() ? QString::fromLatin1(on)
                                                   : QStringLiteral("normal"));
        });
    };
    bindTrait(m_ui->boldBox, "font-weight", "bold");
    bindTrait(m_ui->italicBox, "font-style", "italic");
    connect(m_ui->underlineBox, &QCheckBox::clicked, this, &StylePanel::takeUnderline);
    const auto bindColor = [this](ColorField *field, const char *property) {
        connect(field, &ColorField::valueChanged, this,
                [this, field, property] { setSimple(property, field->value()); });
    };
    bindColor(m_ui->colorField, "color");
    bindColor(m_ui->backgroundField, "background-color");
    const auto bindCombo = [this](QComboBox *combo, const char *property) {
        connect(combo, qOverload<int>(&QComboBox::activated), this,
                [this, combo, property] { setSimple(property, combo->currentData().toString()); });
    };
    bindCombo(m_ui->alignCombo, "text-align");
    bindCombo(m_ui->verticalCombo, "vertical-align");
}

void StylePanel::connectBorder()
{
    connect(m_ui->borderSideCombo, qOverload<int>(&QComboBox::activated), this, &StylePanel::refresh);
    connect(m_ui->borderStyleCombo, qOverload<int>(&QComboBox::activated), this,
            [this] { setBorder(Aspect::Style, m_ui->borderStyleCombo->currentData().toString()); });
    connect(m_ui->borderWidthSpin, &LengthSpin::lengthChanged, this, [this] {
        const std::optional<double> width = m_ui->borderWidthSpin->length();
        setBorder(Aspect::Width, width ? css::inPoints(*width) : QString());
    });
    connect(m_ui->borderColorField, &ColorField::valueChanged, this,
            [this] { setBorder(Aspect::Color, m_ui->borderColorField->value()); });
}

void StylePanel::setColorChooser(const ColorChooser &chooser)
{
    for (ColorField *field : findChildren<ColorField *>()) {
        field->setChooser(chooser);
    }
}

void StylePanel::showRule(const StyleSheet &sheet, const QString &selector)
{
    const bool another = selector != m_selector;
    m_sheet = sheet;
    m_selector = selector;
    if (another) {
        chooseBorderSide();
    }
    refresh();
}

void StylePanel::commit()
{
    for (LengthSpin *spin : findChildren<LengthSpin *>()) {
        spin->interpretText();
    }
    takeFamily();
}

template<typename Change>
void StylePanel::edit(Change change)
{
    if (m_selector.isEmpty()) {
        return;
    }
    const QString before = m_sheet.text();
    StyleRule rule(&m_sheet, m_selector);
    change(rule);
    refresh();
    if (m_sheet.text() != before) {
        Q_EMIT edited(m_sheet.text());
    }
}

void StylePanel::setSimple(const char *property, const QString &value)
{
    const QString name = QString::fromLatin1(property);
    edit([&](StyleRule &rule) {
        if (rule.value(name) != value) {
            rule.setValue(name, value);
        }
    });
}

void StylePanel::setBorder(Aspect aspect, const QString &value)
{
    edit([&](StyleRule &rule) {
        if (const QString now = rule.boxValue(Family::Border, borderSlots(aspect));
            now.isNull() || now != value) {
            rule.setBoxValue(Family::Border, borderSlots(aspect), value);
        }
    });
}

/// Leaves the property open only when no other line would be lost with it.
void StylePanel::takeUnderline()
{
    const QString now = StyleRule(&m_sheet, m_selector).value(QStringLiteral("text-decoration"));
    const bool open = m_ui->underlineBox->checkState() == Qt::PartiallyChecked;
    const bool otherLines = decoration(now, false) != QLatin1String("none");
    const bool underline = m_ui->underlineBox->isChecked();
    setSimple("text-decoration", open && !otherLines ? QString() : decoration(now, underline));
}

void StylePanel::takeFamily()
{
    const QString names = m_ui->familyCombo->currentText();
    const QString now = StyleRule(&m_sheet, m_selector).value(QStringLiteral("font-family"));
    if (names != css::shownFamilies(now)) {
        setSimple("font-family", css::writtenFamilies(names));
    }
}

void StylePanel::refresh()
{
    m_ui->contents->setEnabled(!m_selector.isEmpty());
    const StyleRule rule(&m_sheet, m_selector);
    showFont(rule);
    showBoxes(rule);
    showBorder(rule);
}

void StylePanel::showFont(const StyleRule &rule)
{
    const auto value = [&](const char *property) { return rule.value(QString::fromLatin1(property)); };
    m_ui->familyCombo->setEditText(css::shownFamilies(value("font-family")));
    const QString base = m_sheet.value(QStringLiteral("body"), QStringLiteral("font-size"));
    const double inherited = css::points(base, usualSize, usualSize).value_or(usualSize);
    const QString size = value("font-size");
    const std::optional<double> points = css::points(size, inherited, inherited);
    m_ui->sizeSpin->showLength(points, size);
    m_em = points.value_or(inherited);
    showTrait(m_ui->boldBox, value("font-weight"), isBold(value("font-weight")));
    const QString slant = value("font-style");
    showTrait(m_ui->italicBox, slant, slant.compare(QLatin1String("normal"), Qt::CaseInsensitive) != 0);
    const QString line = value("text-decoration");
    showTrait(m_ui->underlineBox, line, line.contains(QLatin1String("underline"), Qt::CaseInsensitive));
    m_ui->colorField->showValue(value("color"));
    m_ui->backgroundField->showValue(value("background-color"));
    showEntry(m_ui->alignCombo, value("text-align"));
    showEntry(m_ui->verticalCombo, value("vertical-align"));
}

void StylePanel::showBoxes(const StyleRule &rule)
{
    const QString paper = m_sheet.value(QStringLiteral("body"), QStringLiteral("paper-width"));
    const double width = css::points(paper, m_em, usualWidth).value_or(usualWidth);
    for (const BoxSpin &box : m_boxes) {
        const QString value = rule.boxValue(box.family, {Aspect::Width, box.side});
        box.spin->showLength(css::points(value, m_em, width), value);
    }
}

QList<cssbox::Slot> StylePanel::borderSlots(Aspect aspect) const
{
    const int chosen = m_ui->borderSideCombo->currentIndex();
    if (chosen > 0) {
        return {{aspect, cssbox::allSides[chosen - 1]}};
    }
    return cssbox::everySide(aspect);
}

void StylePanel::showBorder(const StyleRule &rule)
{
    const auto openText = [](const QString &value) { return value.isNull() ? tr("various") : tr("not set"); };
    const QString style = rule.boxValue(Family::Border, borderSlots(Aspect::Style));
    showEntry(m_ui->borderStyleCombo, style.isNull() ? tr("Various") : style);
    const QString width = rule.boxValue(Family::Border, borderSlots(Aspect::Width));
    m_ui->borderWidthSpin->setOpenText(openText(width));
    m_ui->borderWidthSpin->showLength(css::points(width, m_em, 0), width);
    const QString color = rule.boxValue(Family::Border, borderSlots(Aspect::Color));
    m_ui->borderColorField->setOpenText(openText(color));
    m_ui->borderColorField->showValue(color);
}

void StylePanel::chooseBorderSide()
{
    const StyleRule rule(&m_sheet, m_selector);
    m_ui->borderSideCombo->setCurrentIndex(0);
    for (const Aspect aspect : {Aspect::Width, Aspect::Style, Aspect::Color}) {
        if (!rule.boxValue(Family::Border, borderSlots(aspect)).isNull()) {
            continue;
        }
        for (const Side side : cssbox::allSides) {
            if (!rule.boxValue(Family::Border, {aspect, side}).isEmpty()) {
                m_ui->borderSideCombo->setCurrentIndex(int(side) + 1);
                return;
            }
        }
    }
}
