// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "host/framework/hostui.h"

#include <QFileInfo>
#include <QUrl>

namespace {

class SilentUi final : public HostUi
{
public:
    void information(QWidget *, const QString &, const QString &) override {}
    void warning(QWidget *, const QString &, const QString &) override {}
    bool question(QWidget *, const QString &, const QString &, bool) override { return false; }
    SaveAnswer saveQuestion(QWidget *, const QString &, const QString &, bool withCancel) override
    {
        return withCancel ? SaveAnswer::Cancel : SaveAnswer::Discard;
    }
    QString saveFileName(QWidget *, const QString &, const QString &, const QString &) override { return {}; }
    QString openFileName(QWidget *, const QString &, const QString &, const QString &) override { return {}; }
    bool openUrl(const QUrl &) override { return false; }
    void copyText(const QString &) override {}
    QDateTime now() const override { return QDateTime::currentDateTime(); }
    QLocale locale() const override { return QLocale::c(); }
};

HostUi *theUi = nullptr;

} // namespace

HostUi &HostUi::current()
{
    static SilentUi silent;
    return theUi ? *theUi : silent;
}

void HostUi::install(HostUi *ui)
{
    theUi = ui;
}

void HostUi::showWrittenFile(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    if (m_fileListener) {
        m_fileListener(file);
    }
    openUrl(QUrl::fromLocalFile(file));
}
