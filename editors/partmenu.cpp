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

namespace {

/// Menus of more entries do not fit on a screen.
constexpr qsizetype mostEntries = 200;

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

QMenu *PartMenu::newPartMenu(const PropertyRow &row)
{
    auto *menu = new QMenu(tr("Select the part to navigate to"), m_window);
    menu->setToolTipsVisible(true);
    menu->addSection(menu->title());
    for (const QString &reference : row.references.first(std::min(row.references.size(), mostEntries))) {
        connect(menu->addAction(entryText(reference)), &QAction::triggered, this,
                [this, reference] { navigateTo(reference); });
    }
    return menu;
}

void PartMenu::askForPart(const PropertyRow &row)
{
    open(newPartMenu(row), QCursor::pos());
}

void PartMenu::askForLink(const PropertyRow &row)
{
    QMenu *menu = newPartMenu(row);
    menu->addSection(tr("Open Link"));
    for (const QString &reference : row.references) {
        if (menu->actions().size() < mostEntries) {
            addLinks(menu, reference);
        }
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
