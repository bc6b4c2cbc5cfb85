// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "editors/partmenu.h"

#include "core/bompart.h"
#include "core/bompartsdatabase.h"
#include "editors/propertyrows.h"
#include "host/framework/hostui.h"
#include "host/netlist/component.h"
#include "host/widgets/linkhandler.h"
#include "richtext/xhtml/links.h"

#include <QCursor>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>
#include <cmath>

namespace {

/// Menus of more entries are tedious: parts are then in menus of their own, links are left out.
constexpr qsizetype mostParts = 30;
constexpr qsizetype mostLinks = 200;

QString entryText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

PartMenu::PartMenu(QWidget *window)
    : m_window(window)
{
}

void PartMenu::setPartsDatabase(const BOMPartsDatabase *database)
{
    m_database = database;
}

bool PartMenu::isOpen() const
{
    return m_menu && m_menu->isVisible();
}

void PartMenu::open(QMenu *menu, const QPoint &position)
{
    m_menu = menu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu, &QObject::destroyed, this, &PartMenu::closed);
    menu->popup(position);
}

void PartMenu::navigateTo(const QString &reference)
{
    const Part *part = m_database ? m_database->part(reference) : nullptr;
    if (const auto *bomPart = dynamic_cast<const BOMPart *>(part)) {
        part = m_database->part(bomPart->parentReference());
    }
    if (part && part->component()) {
        LinkHandler::navigateLink(part->reference(), part->component()->identifier, m_window);
    }
}

QMenu *PartMenu::newPartMenu(const QStringList &references)
{
    auto *menu = new QMenu(tr("Select the part to navigate to"), m_window);
    menu->setToolTipsVisible(true);
    menu->setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
    menu->addSection(menu->title());
    // A menu is as wide as its entries; the titles of its sections do not count.
    const int margin = 4 * menu->fontMetrics().averageCharWidth();
    menu->setMinimumWidth(menu->fontMetrics().horizontalAdvance(menu->title()) + 2 * margin);
    if (references.size() <= mostParts) {
        addParts(menu, references);
        return menu;
    }
    const auto size = std::max(mostParts, qsizetype(std::sqrt(double(references.size()))));
    for (qsizetype first = 0; first < references.size(); first += size) {
        const QStringList some = references.mid(first, size);
        QMenu *page = menu->addMenu(entryText(some.first() + QStringLiteral(" \u2013 ") + some.last()));
        addParts(page, some);
    }
    return menu;
}

void PartMenu::addParts(QMenu *menu, const QStringList &references)
{
    for (const QString &reference : references) {
        connect(menu->addAction(entryText(reference)), &QAction::triggered, this,
                [this, reference] { navigateTo(reference); });
    }
}

void PartMenu::askForPart(const PropertyRow &row)
{
    open(newPartMenu(row.references), QCursor::pos());
}

void PartMenu::askForLink(const PropertyRow &row)
{
    QStringList linked = row.references;
    linked.removeIf(
        [this](const QString &reference) { return !m_database || m_database->links(reference).isEmpty(); });
    QMenu *menu = newPartMenu(linked);
    menu->addSection(tr("Open Link"));
    for (const QString &reference : linked.first(std::min(linked.size(), mostLinks))) {
        addLinks(menu, reference);
    }
    if (linked.size() > mostLinks) {
        menu->addAction(tr("Further links: filter the rows"))->setEnabled(false);
    }
    open(menu, QCursor::pos());
}

void PartMenu::addLinks(QMenu *menu, const QString &reference)
{
    const QMap<QString, QString> links = m_database ? m_database->links(reference) : QMap<QString, QString>();
    for (auto it = links.cbegin(); it != links.cend(); ++it) {
        QAction *action = menu->addAction(entryText(reference + QStringLiteral(", ") + it.key()));
        action->setToolTip(it->toHtmlEscaped());
        action->setEnabled(isOpenableLink(*it));
        connect(action, &QAction::triggered, this, [this, link = *it] { openLink(link); });
    }
}

void PartMenu::openLink(const QString &link)
{
    const QString design = m_database ? m_database->designInfo("FILENAME") : QString();
    const QUrl target = linkTarget(link, QFileInfo(design).absolutePath());
    HostUi &ui = HostUi::current();
    const auto isWanted = [&] {
        return !isProgram(target) ||
               ui.question(m_window, tr("Open Link"),
                           tr("%1 is a program. Opening it may run it. Open it all the same?")
                               .replace(QStringLiteral("%1"), target.toLocalFile()),
                           false);
    };
    if (!target.isEmpty() && isWanted() && !ui.openUrl(target)) {
        Q_EMIT statusMessage(tr("Could not open %1").replace(QStringLiteral("%1"), link));
    }
}
