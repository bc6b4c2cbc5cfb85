// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/widgets/qthostui.h"

#include <QClipboard>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QList>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// A longer text would push the buttons off the screen.
constexpr qsizetype mostCharacters = 1500;
constexpr qsizetype mostLines = 20;

/// Shows the ordinary mouse pointer instead of the wait cursor while a dialog is open.
class OrdinaryCursor final
{
public:
    OrdinaryCursor()
    {
        while (const QCursor *cursor = QGuiApplication::overrideCursor()) {
            m_cursors.append(*cursor);
            QGuiApplication::restoreOverrideCursor();
        }
    }
    OrdinaryCursor(const OrdinaryCursor &) = delete;
    OrdinaryCursor &operator=(const OrdinaryCursor &) = delete;
    ~OrdinaryCursor()
    {
        while (!m_cursors.isEmpty()) {
            QGuiApplication::setOverrideCursor(m_cursors.takeLast());
        }
    }

private:
    QList<QCursor> m_cursors;
};

/// The name with the first ending of a filter such as "Text (*.txt *.text)" unless it has one of these.
QString withEnding(const QString &path, const QString &filter)
{
    static const QRegularExpression ending(QStringLiteral("\\*(\\.\\w+)"));
    QString first;
    for (const QRegularExpressionMatch &match : ending.globalMatch(filter)) {
        if (path.endsWith(match.captured(1), Qt::CaseInsensitive)) {
            return path;
        }
        first = first.isEmpty() ? match.captured(1) : first;
    }
    return path + first;
}

/// How much of a text the box itself shows.
qsizetype shownLength(const QString &text)
{
    qsizetype end = -1;
    for (qsizetype line = 0; line < mostLines; ++line) {
        end = text.indexOf(u'\n', end + 1);
        if (end < 0) {
            break;
        }
    }
    return std::min(end < 0 ? text.size() : end, mostCharacters);
}

/// Shows the text as it is, and what is too long behind a button.
QMessageBox::StandardButton show(QMessageBox &box, const QString &text)
{
    const OrdinaryCursor cursor;
    box.setTextFormat(Qt::PlainText);
    const qsizetype shown = shownLength(text);
    box.setText(shown < text.size() ? text.left(shown) + QChar(0x2026) : text);
    if (shown < text.size()) {
        box.setDetailedText(text);
    }
    box.exec();
    // Escape presses Cancel or No. A box with neither gives NoButton, which counts as no answer.
    return box.standardButton(box.clickedButton());
}

bool isYes(QMessageBox &box, const QString &text, bool defaultYes)
{
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(defaultYes ? QMessageBox::Yes : QMessageBox::No);
    return show(box, text) == QMessageBox::Yes;
}

} // namespace

void QtHostUi::information(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Information, title, {}, QMessageBox::Ok, parent);
    (void)show(box, text);
}

void QtHostUi::warning(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Warning, title, {}, QMessageBox::Ok, parent);
    (void)show(box, text);
}

void QtHostUi::richWarning(QWidget *parent, const QString &title, const QString &html)
{
    const OrdinaryCursor cursor;
    QMessageBox box(QMessageBox::Warning, title, html, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::RichText);
    box.exec();
}

bool QtHostUi::question(QWidget *parent, const QString &title, const QString &text, bool defaultYes)
{
    QMessageBox box(QMessageBox::Question, title, {}, {}, parent);
    return isYes(box, text, defaultYes);
}

bool QtHostUi::warningQuestion(QWidget *parent, const QString &title, const QString &text, bool defaultYes)
{
    QMessageBox box(QMessageBox::Warning, title, {}, {}, parent);
    return isYes(box, text, defaultYes);
}

HostUi::SaveAnswer QtHostUi::saveQuestion(QWidget *parent, const QString &title, const QString &text,
                                          bool withCancel)
{
    QMessageBox::StandardButtons buttons = QMessageBox::Save | QMessageBox::Discard;
    buttons.setFlag(QMessageBox::Cancel, withCancel);
    QMessageBox box(QMessageBox::Question, title, {}, buttons, parent);
    box.setDefaultButton(QMessageBox::Save);
    // Closing a box that has no Cancel must not throw changes away.
    switch (show(box, text)) {
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    case QMessageBox::Cancel:
        return SaveAnswer::Cancel;
    default:
        return SaveAnswer::Save;
    }
}

QString QtHostUi::saveFileName(QWidget *parent, const QString &caption, const QString &path,
                               const QString &filter)
{
    const OrdinaryCursor cursor;
    const QFileInfo proposed(path);
    QFileDialog dialog(parent, caption, proposed.isDir() ? path : proposed.path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // The question must be about the name with its ending, which the dialog does not know yet.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(proposed.isDir() ? QString() : proposed.fileName());
    while (dialog.exec() == QDialog::Accepted) {
        const QString chosen = withEnding(dialog.selectedFiles().value(0), filter);
        if (!QFileInfo::exists(chosen) ||
            warningQuestion(
                parent, caption,
                tr("%1 already exists.\nDo you want to replace it?").arg(QDir::toNativeSeparators(chosen)),
                false)) {
            return chosen;
        }
    }
    return {};
}

QString QtHostUi::openFileName(QWidget *parent, const QString &caption, const QString &path,
                               const QString &filter)
{
    const OrdinaryCursor cursor;
    return QFileDialog::getOpenFileName(parent, caption, path, filter);
}

bool QtHostUi::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

void QtHostUi::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QDateTime QtHostUi::now() const
{
    return QDateTime::currentDateTime();
}

QLocale QtHostUi::locale() const
{
    return QLocale::system();
}
