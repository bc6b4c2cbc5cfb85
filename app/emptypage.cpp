// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/emptypage.h"

#include <QAction>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int mostRecent = 5;
constexpr int contentWidth = 440;
constexpr qreal headingScale = 1.5;

QLabel *label(const QString &text)
{
    auto *made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    made->setAlignment(Qt::AlignHCenter);
    return made;
}

} // namespace

EmptyPage::EmptyPage(QAction *open, QWidget *parent)
    : QWidget(parent)
{
    QLabel *heading = label(tr("No design is open"));
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * headingScale);
    heading->setFont(font);
    auto *button = new QPushButton(tr("&Open a Design…"));
    button->setObjectName(QStringLiteral("openButton"));
    connect(button, &QPushButton::clicked, open, &QAction::trigger);
    m_recent = new QWidget;
    m_recentLayout = new QVBoxLayout(m_recent);
    m_recentLayout->setContentsMargins({});
    m_recentLayout->setSpacing(0);

    auto *content = new QWidget;
    content->setFixedWidth(contentWidth);
    auto *column = new QVBoxLayout(content);
    column->addWidget(heading);
    column->addWidget(label(tr("Drop a KiCad schematic (.kicad_sch), a KiCad project (.kicad_pro) or a part "
                               "list (.csv) on this window, or choose one.")));
    column->addSpacing(column->spacing());
    column->addWidget(button, 0, Qt::AlignHCenter);
    column->addSpacing(2 * column->spacing());
    column->addWidget(m_recent);
    auto *page = new QVBoxLayout(this);
    // An alignment would not give the wrapped texts their heights.
    auto *middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(content);
    middle->addStretch(1);
    page->addStretch(1);
    page->addLayout(middle);
    page->addStretch(2);
}

void EmptyPage::setRecentFiles(const QStringList &paths)
{
    // The click that is being handled may have come from one of these buttons, so they are deleted later.
    for (auto *button : m_recent->findChildren<QCommandLinkButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        m_recentLayout->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    for (const QString &path : paths.mid(0, mostRecent)) {
        const QFileInfo file(path);
        QString name = file.fileName();
        auto *button = new QCommandLinkButton(name.replace(u'&', QStringLiteral("&&")),
                                              QDir::toNativeSeparators(file.path()));
        connect(button, &QCommandLinkButton::clicked, this, [this, path] { Q_EMIT recentChosen(path); });
        m_recentLayout->addWidget(button);
    }
}
