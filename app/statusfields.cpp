// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/statusfields.h"

#include "app/designstatus.h"
#include "host/widgets/applndialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize dialogSize(720, 360);

QToolButton *statusButton(QMainWindow *window, const QString &name, QStyle::StandardPixmap picture)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(window->style()->standardIcon(picture));
    button->hide();
    window->statusBar()->addPermanentWidget(button);
    return button;
}

/// A tool tip that shows the text as it is, in several lines when it is long.
QString plainTip(const QString &text)
{
    return text.isEmpty() ? QString()
                          : QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}

} // namespace

StatusFields::StatusFields(QMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_account(new QLabel)
{
    m_account->setObjectName(QStringLiteral("account"));
    m_account->setTextFormat(Qt::PlainText);
    m_account->setIndent(m_account->fontMetrics().averageCharWidth());
    window->statusBar()->addPermanentWidget(m_account);
    m_problemButton = statusButton(window, QStringLiteral("problemButton"), QStyle::SP_MessageBoxCritical);
    m_problemButton->setText(tr("Not up to date"));
    m_warningsButton = statusButton(window, QStringLiteral("warningsButton"), QStyle::SP_MessageBoxWarning);
    connect(m_problemButton, &QToolButton::clicked, this,
            [this] { show(tr("The Design Has Changed and Cannot Be Read"), {m_problem}); });
    connect(m_warningsButton, &QToolButton::clicked, this,
            [this] { show(tr("Warnings About the Design"), m_warnings); });
}

void StatusFields::setDesign(const DesignStatus &status)
{
    m_account->setText(status.account);
    m_account->setToolTip(status.accountTip);
    m_warnings = status.warnings;
    m_warningsButton->setVisible(!m_warnings.isEmpty());
    m_warningsButton->setText(m_warnings.size() == 1 ? tr("1 warning")
                                                     : tr("%1 warnings").arg(m_warnings.size()));
    m_warningsButton->setToolTip(m_warnings.isEmpty() ? QString() : plainTip(m_warnings.constFirst()));
}

void StatusFields::setProblem(const QString &problem)
{
    m_problem = problem;
    m_problemButton->setVisible(!problem.isEmpty());
    m_problemButton->setToolTip(plainTip(problem));
}

void StatusFields::show(const QString &title, const QStringList &lines)
{
    APPLNDIALOG dialog(m_window);
    dialog.setWindowTitle(title);
    dialog.resize(dialogSize);
    auto *text = new QPlainTextEdit(lines.join(u'\n'));
    text->setReadOnly(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog.exec();
}
