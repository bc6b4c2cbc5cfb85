// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/partnavigator.h"

#include "designs/utf8.h"
#include "host/framework/hostui.h"
#include "host/netlist/cdbcore.h"
#include "standalone/companionfiles.h"
#include "standalone/editorconnection.h"
#include "standalone/loadeddesign.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// Longer messages are cut off by the editors.
constexpr qsizetype mostBytes = 4096;

/// What the editors are told; empty for a reference that they could take for something else: a quote ends the
/// reference, and a line the command.
QByteArray messageFor(const QString &reference)
{
    const auto isUnsafe = [](QChar c) {
        const QChar::Category category = c.category();
        return c == u'"' || category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph || category == QChar::Other_Surrogate;
    };
    const QByteArray message = "$PART: \"" + reference.toUtf8() + "\"\n";
    const bool isSafe =
        !reference.isEmpty() && std::ranges::none_of(reference, isUnsafe) && message.size() <= mostBytes;
    return isSafe ? message : QByteArray();
}

bool isPlaced(quint64 identifier)
{
    CDBCORE *database = getcdb();
    const CDBPART *part = database ? database->getpart(identifier) : nullptr;
    return part && part->layout();
}

bool tellSchematicEditor(quint16 port, const QByteArray &message)
{
    return EditorConnection(port).send(message);
}

/// The board is read at the first question about it, so the question comes after the editor was found.
bool tellBoardEditor(quint16 port, const QByteArray &message, quint64 identifier)
{
    EditorConnection editor(port);
    return editor.isOpen() && isPlaced(identifier) && editor.send(message);
}

} // namespace

PartNavigator::~PartNavigator() = default;

void PartNavigator::setDesign(std::shared_ptr<const LoadedDesign> design)
{
    m_design = std::move(design);
}

IMODULE *PartNavigator::queryinterface(unsigned id)
{
    return id == INTERFACE_NAVIGATOR ? this : nullptr;
}

NAVIGATION PartNavigator::showpart(const QString &reference, quint64 identifier)
{
    const designs::Component *component = m_design ? m_design->component(identifier) : nullptr;
    if (!component) {
        return {false, tr("%1 is not in the design that is open").arg(reference)};
    }
    const QString place = placeOf(*component);
    const bool isDrawn = !boardFileOf(*m_design).isEmpty();
    const QByteArray message = isDrawn ? messageFor(designs::fromUtf8(component->reference)) : QByteArray();
    const bool inSchematic = !message.isEmpty() && tellSchematicEditor(m_ports.schematic, message);
    const bool onBoard = !message.isEmpty() && tellBoardEditor(m_ports.board, message, identifier);
    if (!inSchematic && !onBoard) {
        HostUi::current().copyText(reference);
    }
    const QString done = inSchematic && onBoard
                             ? tr("KiCad's schematic and board editors were asked to show it")
                         : inSchematic ? tr("KiCad's schematic editor was asked to show it")
                         : onBoard     ? tr("KiCad's board editor was asked to show it")
                         : isDrawn     ? tr("no editor of KiCad listens, the reference was copied")
                                       : tr("the reference was copied");
    return {inSchematic || onBoard, reference + QStringLiteral(": ") + place + QStringLiteral("; ") + done};
}

QString PartNavigator::placeOf(const designs::Component &component) const
{
    const designs::Design &design = m_design->design();
    const QDir folder = QFileInfo(design.info().file).absoluteDir();
    QString place = QDir::toNativeSeparators(folder.relativeFilePath(design.files().at(component.file)));
    if (const int line = design.lineOf(component); line > 0) {
        place += u':' + QString::number(line);
    }
    const std::optional<designs::Position> position = design.positionOf(component);
    if (!position) {
        return place;
    }
    const QLocale locale = HostUi::current().locale();
    const auto number = [&locale](double value) {
        return locale.toString(value, 'g', QLocale::FloatingPointShortest);
    };
    return tr("sheet %1, %2, X %3 Y %4 mm")
        .arg(design.sheets().at(component.sheet).path, place, number(position->x), number(position->y));
}
