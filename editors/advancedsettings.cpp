// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/advancedsettings.h"

#include "core/bompartsdatabase.h"
#include "editors/columnwidths.h"
#include "ui_advancedsettings.h"

#include <QSignalBlocker>
#include <QSpinBox>
#include <QWheelEvent>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

/// A column of a text file is no wider; one of width 0 is left out.
constexpr WidthRange asciiRange{0, 1000};

/// A spin box in a list that scrolls: the wheel turns it only while it has the focus. A typed number counts
/// when it is complete.
class WidthSpinBox final : public QSpinBox
{
public:
    WidthSpinBox()
    {
        setKeyboardTracking(false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus()) {
            QSpinBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

bool isSameReport(const BOMTemplate &left, const BOMTemplate &right)
{
    const QList<BOMField> leftFields = left.fields().fields();
    const QList<BOMField> rightFields = right.fields().fields();
    return left.prettyQuantityWidth() == right.prettyQuantityWidth() &&
           left.prettyRefWidth() == right.prettyRefWidth() &&
           left.manualPrettyLayout() == right.manualPrettyLayout() &&
           left.caseSensitiveGrouping() == right.caseSensitiveGrouping() &&
           left.layoutForReading() == right.layoutForReading() &&
           std::ranges::equal(leftFields, rightFields, {}, &BOMField::manualWidth, &BOMField::manualWidth);
}

bool isSameData(const BOMTemplate &left, const BOMTemplate &right)
{
    const QList<BOMField> leftFields = left.fields().fields();
    const QList<BOMField> rightFields = right.fields().fields();
    return left.asciiQuantityWidth() == right.asciiQuantityWidth() &&
           left.asciiRefWidth() == right.asciiRefWidth() &&
           left.alwaysQuoteRefs() == right.alwaysQuoteRefs() &&
           left.excludeValueField() == right.excludeValueField() &&
           left.caseSensitiveGrouping() == right.caseSensitiveGrouping() &&
           left.layoutForReading() == right.layoutForReading() &&
           std::ranges::equal(leftFields, rightFields, {}, &BOMField::asciiWidth, &BOMField::asciiWidth);
}

} // namespace

AdvancedSettings::AdvancedSettings(BOMPartsDatabase *database, bool isModified, QWidget *parent)
    : APPLNDIALOG(parent)
    , m_ui(std::make_unique<Ui::AdvancedSettings>())
    , m_database(database)
    , m_found(database->currentTemplate())
    , m_wasModified(isModified)
{
    m_ui->setupUi(this);
    showTemplate();
    setUpTabOrder();
    connectChanges();
}

AdvancedSettings::~AdvancedSettings() = default;

QSpinBox *AdvancedSettings::addRow(QFormLayout *form, const QString &title)
{
    auto *spin = new WidthSpinBox;
    // A title is no markup, and its ampersands are no mnemonics.
    auto *label = new QLabel(QString(title).replace(u'&', QLatin1String("&&")));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(spin);
    spin->setAccessibleName(title);
    form->addRow(label, spin);
    return spin;
}

void AdvancedSettings::addColumn(const QString &title, int prettyWidth, int asciiWidth)
{
    const WidthRange range = columnWidthRange(m_found.fields().size() + 2);
    QSpinBox *pretty = addRow(m_ui->prettyLayout, title);
    pretty->setSuffix(QStringLiteral("%"));
    pretty->setRange(range.least, range.most);
    showWidth(pretty, prettyWidth);
    m_prettyWidths.append(pretty);
    QSpinBox *ascii = addRow(m_ui->asciiLayout, title);
    ascii->setRange(asciiRange.least, asciiRange.most);
    showWidth(ascii, asciiWidth);
    m_asciiWidths.append(ascii);
}

void AdvancedSettings::showWidth(QSpinBox *spin, int width)
{
    spin->setValue(width);
    m_storedWidths.insert(spin, {width, spin->value()});
}

int AdvancedSettings::widthOf(const QSpinBox *spin) const
{
    // A width outside of the range that nobody touched stays what it is.
    const StoredWidth stored = m_storedWidths.value(spin);
    return spin->value() == stored.shown ? stored.width : spin->value();
}

void AdvancedSettings::showTemplate()
{
    addColumn(tr("Quantity"), m_found.prettyQuantityWidth(), m_found.asciiQuantityWidth());
    addColumn(tr("References"), m_found.prettyRefWidth(), m_found.asciiRefWidth());
    for (const BOMField &field : m_found.fields().fields()) {
        addColumn(field.fieldName, field.manualWidth, field.asciiWidth);
    }
    m_ui->prettyWidthsGroupBox->setChecked(m_found.manualPrettyLayout());
    m_ui->alwaysQuoteRefsCheck->setChecked(m_found.alwaysQuoteRefs());
    m_ui->excludeValueFieldCheck->setChecked(m_found.excludeValueField());
    m_ui->partGroupCaseCheckBox->setChecked(m_found.caseSensitiveGrouping());
    m_ui->layoutForReadingCheck->setChecked(m_found.layoutForReading());
    // The rows stand on the tab's own background.
    for (QWidget *widget : {m_ui->prettyWidths, m_ui->prettyScrollArea->viewport(), m_ui->asciiWidths,
                            m_ui->asciiScrollArea->viewport()}) {
        widget->setAutoFillBackground(false);
    }
}

void AdvancedSettings::setUpTabOrder()
{
    QWidgetList order{m_ui->tabWidget, m_ui->prettyWidthsGroupBox};
    std::ranges::copy(m_prettyWidths + m_asciiWidths, std::back_inserter(order));
    order << m_ui->alwaysQuoteRefsCheck << m_ui->excludeValueFieldCheck << m_ui->partGroupCaseCheckBox
          << m_ui->layoutForReadingCheck << m_ui->buttonBox;
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void AdvancedSettings::connectChanges()
{
    for (const QSpinBox *spin : std::as_const(m_prettyWidths)) {
        connect(spin, &QSpinBox::valueChanged, this, &AdvancedSettings::updateWidths);
    }
    for (const QSpinBox *spin : std::as_const(m_asciiWidths)) {
        connect(spin, &QSpinBox::valueChanged, this, &AdvancedSettings::storeSettings);
    }
    connect(m_ui->prettyWidthsGroupBox, &QGroupBox::toggled, this, &AdvancedSettings::storeSettings);
    for (const QCheckBox *check : {m_ui->alwaysQuoteRefsCheck, m_ui->excludeValueFieldCheck,
                                   m_ui->partGroupCaseCheckBox, m_ui->layoutForReadingCheck}) {
        connect(check, &QCheckBox::toggled, this, &AdvancedSettings::storeSettings);
    }
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &AdvancedSettings::accept);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &AdvancedSettings::reject);
}

void AdvancedSettings::accept()
{
    // Return and shortcuts act before a number being typed has reached its spin box's value.
    for (QSpinBox *spin : m_prettyWidths + m_asciiWidths) {
        spin->interpretText();
    }
    storeSettings();
    APPLNDIALOG::accept();
}

void AdvancedSettings::reject()
{
    // Otherwise a number being typed would be stored when its spin box loses the focus.
    for (QSpinBox *spin : m_prettyWidths + m_asciiWidths) {
        spin->disconnect(this);
    }
    const BOMTemplate before = m_database->currentTemplate();
    m_database->restoreTemplateLayout(m_found, m_wasModified);
    notify(before);
    APPLNDIALOG::reject();
}

void AdvancedSettings::updateWidths()
{
    const qsizetype changed = m_prettyWidths.indexOf(sender());
    if (changed >= 0) {
        balance(changed);
        storeSettings();
    }
}

void AdvancedSettings::balance(qsizetype changed)
{
    QList<int> widths;
    std::vector<QSignalBlocker> blockers;
    for (QSpinBox *spin : std::as_const(m_prettyWidths)) {
        widths.append(spin->value());
        blockers.emplace_back(spin);
    }
    widths = balancedWidths(widths, changed);
    for (qsizetype i = 0; i < widths.size(); ++i) {
        m_prettyWidths[i]->setValue(widths[i]);
    }
}

BOMTemplate AdvancedSettings::shownTemplate() const
{
    BOMTemplate shown = m_database->currentTemplate();
    shown.setPrettyQuantityWidth(widthOf(m_prettyWidths[0]));
    shown.setAsciiQuantityWidth(widthOf(m_asciiWidths[0]));
    shown.setPrettyRefWidth(widthOf(m_prettyWidths[1]));
    shown.setAsciiRefWidth(widthOf(m_asciiWidths[1]));
    BOMFields fields = shown.fields();
    const QList<BOMField> columns = fields.fields();
    for (qsizetype i = 0; i < columns.size() && i + 2 < m_prettyWidths.size(); ++i) {
        BOMField field = columns[i];
        field.manualWidth = widthOf(m_prettyWidths[i + 2]);
        field.asciiWidth = widthOf(m_asciiWidths[i + 2]);
        fields.set(field);
    }
    shown.setFields(fields);
    shown.setManualPrettyLayout(m_ui->prettyWidthsGroupBox->isChecked());
    shown.setAlwaysQuoteRefs(m_ui->alwaysQuoteRefsCheck->isChecked());
    shown.setExcludeValueField(m_ui->excludeValueFieldCheck->isChecked());
    shown.setCaseSensitiveGrouping(m_ui->partGroupCaseCheckBox->isChecked());
    shown.setLayoutForReading(m_ui->layoutForReadingCheck->isChecked());
    return shown;
}

void AdvancedSettings::storeSettings()
{
    const BOMTemplate before = m_database->currentTemplate();
    m_database->setTemplateLayout(shownTemplate());
    notify(before);
}

void AdvancedSettings::notify(const BOMTemplate &before)
{
    const BOMTemplate &now = m_database->currentTemplate();
    if (!isSameReport(before, now)) {
        Q_EMIT reportFormatChanged();
    }
    if (!isSameData(before, now)) {
        Q_EMIT dataChanged();
    }
}
