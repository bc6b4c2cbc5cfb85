// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/statusfields.h"

#include "app/countslabel.h"
#include "app/designstatus.h"
#include "host/widgets/applndialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFontMetrics>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize dialogSize(720, 360);
/// Of a file's name, in characters.
constexpr int mostOfName = 24;
/// What the status bar keeps free between its widgets, and the grip at its end.
constexpr int roomAround = 48;
/// Above and below them.
constexpr int heightAround = 4;

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
    , m_counts(new CountsLabel)
{
    m_writtenButton = statusButton(window, QStringLiteral("writtenButton"), QStyle::SP_DirOpenIcon);
    m_writtenButton->setPopupMode(QToolButton::InstantPopup);
    m_counts->setObjectName(QStringLiteral("account"));
    window->statusBar()->addPermanentWidget(m_counts);
    m_problemButton = statusButton(window, QStringLiteral("problemButton"), QStyle::SP_MessageBoxCritical);
    m_problemButton->setText(tr("Not up to date"));
    m_warningsButton = statusButton(window, QStringLiteral("warningsButton"), QStyle::SP_MessageBoxWarning);
    connect(m_problemButton, &QToolButton::clicked, this,
            [this] { show(tr("The Design Has Changed and Cannot Be Read"), {m_problem}); });
    connect(m_warningsButton, &QToolButton::clicked, this,
            [this] { show(tr("Warnings About the Design"), m_warnings); });
    connect(window->statusBar(), &QStatusBar::messageChanged, this, &StatusFields::leaveRoomForMessage);
    window->statusBar()->installEventFilter(this);
    // As high as with buttons, so that nothing moves when the first one comes.
    window->statusBar()->setMinimumHeight(m_warningsButton->sizeHint().height() + heightAround);
}

void StatusFields::setDesign(const DesignStatus &status)
{
    QStringList texts;
    QStringList tips;
    QList<StatusCount> counts = status.counts;
    if (status.pending) {
        // Behind lines and parts.
        counts.insert(std::min<qsizetype>(2, counts.size()), *status.pending);
    }
    for (const StatusCount &count : std::as_const(counts)) {
        texts << count.text;
        tips << QStringLiteral("<b>") + count.text.toHtmlEscaped() + QStringLiteral("</b>: ") +
                    count.tip.toHtmlEscaped();
    }
    m_counts->setTexts(texts);
    m_counts->setToolTip(tips.join(QStringLiteral("<br>")));
    m_warnings = status.warnings;
    m_warningsButton->setVisible(!m_warnings.isEmpty());
    m_warningsButton->setText(m_warnings.size() == 1 ? tr("1 warning")
                                                     : tr("%1 warnings").arg(m_warnings.size()));
    m_warningsButton->setToolTip(m_warnings.isEmpty() ? QString() : plainTip(m_warnings.constFirst()));
}

void StatusFields::setWritten(const QString &name, const QList<QAction *> &actions)
{
    const int room = mostOfName * m_writtenButton->fontMetrics().averageCharWidth();
    QString text =
        tr("Written: %1").arg(m_writtenButton->fontMetrics().elidedText(name, Qt::ElideMiddle, room));
    m_writtenButton->setText(text.replace(u'&', QStringLiteral("&&")));
    m_writtenButton->setToolTip(plainTip(tr("Open %1 or its folder").arg(name)));
    m_writtenButton->setAccessibleName(tr("Written: %1").arg(name));
    for (QAction *action : actions) {
        m_writtenButton->addAction(action);
    }
    m_writtenButton->setVisible(!name.isEmpty());
}

/// The counts give way to a message, which is short-lived.
void StatusFields::leaveRoomForMessage()
{
    const QStatusBar &bar = *m_window->statusBar();
    const QString message = bar.currentMessage();
    int most = QWIDGETSIZE_MAX;
    if (!message.isEmpty()) {
        int others = bar.fontMetrics().horizontalAdvance(message) + roomAround;
        for (const QToolButton *button : {m_writtenButton, m_problemButton, m_warningsButton}) {
            others += button->isHidden() ? 0 : button->sizeHint().width();
        }
        most = std::max(bar.width() - others, m_counts->minimumSizeHint().width());
    }
    m_counts->setMaximumWidth(most);
}

bool StatusFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        leaveRoomForMessage();
    }
    return QObject::eventFilter(watched, event);
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
