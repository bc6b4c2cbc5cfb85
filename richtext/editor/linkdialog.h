// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

class QLineEdit;
class QPushButton;

/// Asks for the text and the address of a link.
class LinkDialog final : public QDialog
{
    Q_OBJECT

public:
    /// An address makes it a dialog that changes that link.
    LinkDialog(const QString &text, const QString &address, QWidget *parent);

    /// The address itself when no text was given.
    [[nodiscard]] QString text() const;
    /// Complete, with its scheme; empty when the link is to be removed.
    [[nodiscard]] QString address() const;

private:
    void allowOk();
    void removeLink();

    QLineEdit *m_text = nullptr;
    QLineEdit *m_address = nullptr;
    QPushButton *m_ok = nullptr;
    bool m_isRemoved = false;
};
