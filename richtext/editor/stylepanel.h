// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "richtext/css/cssbox.h"
#include "richtext/css/stylesheet.h"
#include "richtext/editor/colorfield.h"

#include <QWidget>

#include <memory>

class LengthSpin;
class StyleRule;

namespace Ui {
class StylePanel;
}

/// The controls with which one rule of a style sheet is read and changed.
class StylePanel : public QWidget
{
    Q_OBJECT

public:
    explicit StylePanel(QWidget *parent = nullptr);
    ~StylePanel() override;

    /// Shows a rule; nothing for an empty selector.
    void showRule(const StyleSheet &sheet, const QString &selector);
    /// Takes in what was typed into a field and not confirmed yet.
    void commit();

    void setColorChooser(const ColorChooser &chooser);

Q_SIGNALS:
    /// The user changed the rule; the text is that of the whole style sheet.
    void edited(const QString &css);

private:
    struct BoxSpin
    {
        LengthSpin *spin;
        cssbox::Family family;
        cssbox::Side side;
    };

    void prepareFields();
    void prepareSpins();
    void connectFont();
    void connectBorder();

    /// Changes the rule with `change`, which gets a StyleRule.
    template<typename Change>
    void edit(Change change);
    void setSimple(const char *property, const QString &value);
    void setBorder(cssbox::Aspect aspect, const QString &value);
    void takeFamily();
    void takeUnderline();

    void refresh();
    void showFont(const StyleRule &rule);
    void showBoxes(const StyleRule &rule);
    void showBorder(const StyleRule &rule);
    /// Chooses a side that has a border, or all sides when they are alike.
    void chooseBorderSide();
    [[nodiscard]] QList<cssbox::Slot> borderSlots(cssbox::Aspect aspect) const;

    std::unique_ptr<Ui::StylePanel> m_ui;
    QList<BoxSpin> m_boxes;
    StyleSheet m_sheet;
    QString m_selector;
    double m_em = 12;
};
