// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "module/legacyoffer.h"

#include "templates/templatestore.h"

#include <QApplication>

#include <utility>

namespace {

/// From the window to the offer, in milliseconds.
constexpr int delay = 1200;

} // namespace

LegacyOffer::LegacyOffer(std::function<bool()> isBusy, QObject *parent)
    : QObject(parent)
    , m_isBusy(std::move(isBusy))
    , m_isOpen(TemplateStore::isLegacyImportPending())
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delay);
    connect(&m_timer, &QTimer::timeout, this, &LegacyOffer::offer);
}

void LegacyOffer::start()
{
    if (m_isOpen) {
        m_timer.start();
    }
}

bool LegacyOffer::take()
{
    return std::exchange(m_isOpen, false);
}

void LegacyOffer::offer()
{
    // Not on top of what the user or the program has opened meanwhile.
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || m_isBusy()) {
        m_timer.start();
    } else if (m_isOpen) {
        Q_EMIT due();
    }
}
