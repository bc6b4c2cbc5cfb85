// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/editor/linkdialog.h"

#include "richtext/xhtml/links.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/// The address with a scheme; empty when a report may not link to it.
QString completed(const QString &address)
{
    QString text = address.trimmed();
    if (text.isEmpty()) {
        return {};
    }
    if (text.startsWith(u'#')) {
        return text;
    }
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty()) {
        const QUrl guessed = QUrl::fromUserInput(text);
        text = guessed.isValid() ? guessed.toString(QUrl::FullyEncoded) : QString();
    }
    return isOpenableLink(text) ? text : QString();
}

} // namespace

LinkDialog::LinkDialog(const QString &text, const QString &address, QWidget *parent)
    : QDialog(parent)
    , m_text(new QLineEdit(text))
    , m_address(new QLineEdit(address))
{
    setWindowTitle(address.isEmpty() ? tr("Insert Link") : tr("Change Link"));
    m_text->setObjectName(QStringLiteral("linkText"));
    m_address->setObjectName(QStringLiteral("linkAddress"));
    m_address->setPlaceholderText(QStringLiteral("https://"));
    constexpr int width = 320;
    m_address->setMinimumWidth(width);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    if (!address.isEmpty()) {
        QPushButton *remove = buttons->addButton(tr("&Remove Link"), QDialogButtonBox::ResetRole);
        remove->setObjectName(QStringLiteral("removeLink"));
        remove->setAutoDefault(false);
        connect(remove, &QPushButton::clicked, this, &LinkDialog::removeLink);
    }
    auto *form = new QFormLayout;
    form->addRow(tr("&Text:"), m_text);
    form->addRow(tr("&Address:"), m_address);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_address, &QLineEdit::textChanged, this, &LinkDialog::allowOk);
    (text.isEmpty() ? m_text : m_address)->setFocus();
    allowOk();
}

QString LinkDialog::text() const
{
    return m_text->text().isEmpty() ? m_address->text().trimmed() : m_text->text();
}

QString LinkDialog::address() const
{
    return m_isRemoved ? QString() : completed(m_address->text());
}

void LinkDialog::allowOk()
{
    m_ok->setEnabled(!completed(m_address->text()).isEmpty());
}

void LinkDialog::removeLink()
{
    m_isRemoved = true;
    accept();
}
