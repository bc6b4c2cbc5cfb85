// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/reportactions.h"

#include "host/framework/hostsettings.h"

#include <QAction>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

constexpr int fullSize = 100;
constexpr std::array zoomLevels{25, 33, 50, 67, 75, 80, 90, fullSize, 110, 125, 150, 175, 200, 250, 300, 400};

QString settingsGroup()
{
    return QStringLiteral("BOM");
}

QString zoomKey()
{
    return QStringLiteral("ReportZoom");
}

int rememberedZoom()
{
    const int percent = HostSettings::current().value(settingsGroup(), zoomKey()).value_or(QString()).toInt();
    return percent == 0 ? fullSize : std::clamp(percent, zoomLevels.front(), zoomLevels.back());
}

} // namespace

ReportActions::ReportActions(QWidget *view)
    : QObject(view)
    , m_view(view)
    , m_zoom(rememberedZoom())
{
    addFindActions();
    addZoomActions();
    view->installEventFilter(this);
    updateEnabled();
}

QAction *ReportActions::add(const Command &command)
{
    auto *action = new QAction(command.text, this);
    action->setObjectName(command.name);
    action->setStatusTip(command.tip);
    action->setShortcuts(command.shortcuts);
    m_view->addAction(action);
    return action;
}

void ReportActions::addFindActions()
{
    m_find = add({QStringLiteral("findInReport"),
                  tr("Find in Repor&t…"),
                  tr("Find a text in the report"),
                  {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F)}});
    connect(m_find, &QAction::triggered, this, &ReportActions::findRequested);
    m_findNext = add({QStringLiteral("findNext"),
                      tr("Find &Next in Report"),
                      tr("Go to the next place of the text that is looked for"),
                      {QKeySequence(Qt::Key_F3)}});
    connect(m_findNext, &QAction::triggered, this, &ReportActions::findNextRequested);
    m_findPrevious = add({QStringLiteral("findPrevious"),
                          tr("Find Pre&vious in Report"),
                          tr("Go to the previous place of the text that is looked for"),
                          {QKeySequence(Qt::SHIFT | Qt::Key_F3)}});
    connect(m_findPrevious, &QAction::triggered, this, &ReportActions::findPreviousRequested);
}

void ReportActions::addZoomActions()
{
    // On many keyboards "+" is the shifted "=".
    m_zoomIn = add({QStringLiteral("zoomIn"),
                    tr("Zoom &In"),
                    tr("Show the report larger"),
                    {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}});
    connect(m_zoomIn, &QAction::triggered, this, [this] { changeZoom(1); });
    m_zoomOut = add({QStringLiteral("zoomOut"),
                     tr("Zoom &Out"),
                     tr("Show the report smaller"),
                     {QKeySequence(Qt::CTRL | Qt::Key_Minus)}});
    connect(m_zoomOut, &QAction::triggered, this, [this] { changeZoom(-1); });
    m_resetZoom = add({QStringLiteral("resetZoom"),
                       tr("Reset &Zoom"),
                       tr("Show the report in its own size"),
                       {QKeySequence(Qt::CTRL | Qt::Key_0)}});
    connect(m_resetZoom, &QAction::triggered, this, [this] { setZoom(fullSize); });
}

void ReportActions::changeZoom(int steps)
{
    // A level between two comes to one of them with the first step.
    const auto level = steps > 0 ? std::upper_bound(zoomLevels.begin(), zoomLevels.end(), m_zoom) - 1
                                 : std::lower_bound(zoomLevels.begin(), zoomLevels.end(), m_zoom);
    const auto place = std::clamp<std::ptrdiff_t>(level - zoomLevels.begin() + steps, 0,
                                                  std::ptrdiff_t(zoomLevels.size()) - 1);
    setZoom(zoomLevels[size_t(place)]);
}

void ReportActions::setZoom(int percent)
{
    if (percent == m_zoom) {
        return;
    }
    m_zoom = percent;
    HostSettings::current().setValue(settingsGroup(), zoomKey(), QString::number(percent));
    updateEnabled();
    Q_EMIT zoomChanged(percent);
}

void ReportActions::updateEnabled()
{
    const bool isShown = m_view->isVisible();
    m_findNext->setEnabled(isShown);
    m_findPrevious->setEnabled(isShown);
    m_zoomIn->setEnabled(isShown && m_zoom < zoomLevels.back());
    m_zoomOut->setEnabled(isShown && m_zoom > zoomLevels.front());
    m_resetZoom->setEnabled(isShown && m_zoom != fullSize);
}

bool ReportActions::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        updateEnabled();
    }
    return QObject::eventFilter(object, event);
}
