// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "standalone/partnavigator.h"

#include "standalone/designsession.h"
#include "standalone/loadeddesign.h"
#include "support/testpaths.h"
#include "tests/standalone/tabledesign.h"
#include "tests/support/printtext.h"
#include "tests/support/scriptedui.h"
#include "tests/support/testfiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A program that listens on a port of its own, and keeps what it is sent.
class Listener final
{
public:
    Listener()
        : m_socket(socket(AF_INET, SOCK_STREAM, 0))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        auto *generic = reinterpret_cast<sockaddr *>(&address);
        EXPECT_TRUE(bind(m_socket, generic, size) == 0 && listen(m_socket, 5) == 0 &&
                    getsockname(m_socket, generic, &size) == 0);
        m_port = ntohs(address.sin_port);
    }
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    ~Listener() { close(m_socket); }

    [[nodiscard]] quint16 port() const { return m_port; }

    /// What the clients sent since the last call, one entry each.
    QList<QByteArray> takeMessages()
    {
        QList<QByteArray> messages;
        for (pollfd waiting{m_socket, POLLIN, 0}; poll(&waiting, 1, 0) == 1;) {
            const int client = accept(m_socket, nullptr, nullptr);
            QByteArray message(8192, 0);
            qsizetype size = 0;
            for (ssize_t read = 1; read > 0; size += std::max<ssize_t>(read, 0)) {
                read = recv(client, message.data() + size, std::size_t(message.size() - size), 0);
            }
            close(client);
            messages.append(message.left(size));
        }
        return messages;
    }

private:
    int m_socket;
    quint16 m_port = 0;
};

/// A table that counts as drawn.
class DrawnDesign final : public TableDesign
{
public:
    [[nodiscard]] std::optional<designs::Position> positionOf(const designs::Component &) const override
    {
        return designs::Position{50.8, 1.5};
    }
};

class Navigation : public testing::Test
{
protected:
    Navigation() { usePorts(m_schematic->port(), m_board->port()); }

    void usePorts(quint16 schematic, quint16 board)
    {
        session.process().navigator().setPorts({schematic, board});
    }
    /// Has the host show the component with that reference.
    NAVIGATION show(const QString &reference)
    {
        auto *navigator =
            static_cast<INAVIGATOR *>(getapplnprocess()->getmoduleinterface("ORIN", INTERFACE_NAVIGATOR));
        for (const COMPONENT *component : session.design()->components()) {
            if (component->reference == reference.toUtf8()) {
                return navigator->showpart(reference, component->identifier);
            }
        }
        return navigator->showpart(reference, 0);
    }
    QList<QByteArray> toSchematic() { return m_schematic->takeMessages(); }
    QList<QByteArray> toBoard() { return m_board->takeMessages(); }
    void closeSchematic() { m_schematic.reset(); }
    void closeBoard() { m_board.reset(); }

    ScriptedUi ui;
    DesignSession session;

private:
    std::unique_ptr<Listener> m_schematic = std::make_unique<Listener>();
    std::unique_ptr<Listener> m_board = std::make_unique<Listener>();
};

TEST_F(Navigation, TellsTheEditorsThatListen)
{
    auto design = std::make_unique<DrawnDesign>();
    design->add("R1", "10k");
    design->add("R2", "10k");
    design->place("R1", designs::Side::Top);
    session.open(std::move(design));
    const QString place = u"R1: sheet /, amp.kicad_sch:10, X 50.8 Y 1.5 mm; "_s;
    EXPECT_EQ(show(u"R1"_s),
              (NAVIGATION{true, place + u"KiCad's schematic and board editors were asked to show it"_s}));
    EXPECT_EQ(toSchematic(), QList<QByteArray>{"$PART: \"R1\"\n"});
    EXPECT_EQ(toBoard(), QList<QByteArray>{"$PART: \"R1\"\n"});
    EXPECT_TRUE(show(u"R2"_s).text.endsWith(u"; KiCad's schematic editor was asked to show it"_s));
    EXPECT_EQ(toSchematic(), QList<QByteArray>{"$PART: \"R2\"\n"});
    EXPECT_EQ(toBoard(), QList<QByteArray>{""}) << "what is not placed is not on the board";
    closeSchematic();
    EXPECT_EQ(show(u"R1"_s), (NAVIGATION{true, place + u"KiCad's board editor was asked to show it"_s}));
    EXPECT_TRUE(ui.copiedTexts.isEmpty());
    closeBoard();
    EXPECT_EQ(show(u"R1"_s),
              (NAVIGATION{false, place + u"no editor of KiCad listens, the reference was copied"_s}));
    EXPECT_EQ(ui.copiedTexts, QStringList{u"R1"_s});
    EXPECT_EQ(show(u"R9"_s), (NAVIGATION{false, u"R9 is not in the design that is open"_s}));
}

TEST_F(Navigation, SendsNothingThatIsNoReference)
{
    const QByteArray longest(4096 - 10, 'R');
    const QList<QByteArray> refused{"R1\"",          "R1\n$CLEAR", "R\x01",      "R\xC2\x85",
                                    "R\xE2\x80\xA8", "",           longest + 'R'};
    auto design = std::make_unique<DrawnDesign>();
    for (const QByteArray &reference : refused) {
        design->add(reference.toStdString(), "10k");
    }
    design->add("R\xC3\xA4 %1", "10k");
    design->add(longest.toStdString(), "10k");
    session.open(std::move(design));
    for (const QByteArray &reference : refused) {
        EXPECT_FALSE(show(QString::fromUtf8(reference)).isShown) << reference.left(20).toStdString();
    }
    EXPECT_TRUE(toSchematic().isEmpty());
    EXPECT_TRUE(show(u"Rä %1"_s).isShown);
    EXPECT_TRUE(show(QString::fromUtf8(longest)).isShown);
    EXPECT_EQ(toSchematic(),
              (QList<QByteArray>{"$PART: \"R\xC3\xA4 %1\"\n", "$PART: \"" + longest + "\"\n"}));
}

TEST_F(Navigation, KnowsThePlaceInTheFiles)
{
    closeSchematic();
    closeBoard();
    ASSERT_TRUE(session.open(
        QStringLiteral(BOM_SOURCE_DIR "/examples/mixed-signal-board/mixed-signal-board.kicad_pro")));
    EXPECT_TRUE(show(u"C201"_s).text.startsWith(
        u"C201: sheet /Ethernet, ethernet.kicad_sch:5841, X 25.4 Y 44.45 mm; "_s));
    ui.numberFormat = QLocale(QLocale::German);
    EXPECT_TRUE(show(u"C201"_s).text.contains(u", X 25,4 Y 44,45 mm; "_s));
}

TEST_F(Navigation, NamesTheLineOfAPartListAndAsksNobody)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(
        session.open(writeFile(folder.filePath(u"parts.csv"_s), "Reference,Value\nR1,10k\nR2,22k\n")));
    EXPECT_EQ(show(u"R2"_s), (NAVIGATION{false, u"R2: parts.csv:3; the reference was copied"_s}));
    EXPECT_TRUE(toSchematic().isEmpty());
}

} // namespace
