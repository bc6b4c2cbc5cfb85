// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/terminal.h"

#include <QByteArray>
#include <QtGlobal>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

int terminalColumns()
{
    constexpr int usual = 80;
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("COLUMNS", &isNumber);
    if (isNumber && wanted > 0) {
        return wanted;
    }
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? int(size.ws_col) : usual;
}

bool hasColours()
{
    const QByteArray terminal = qgetenv("TERM");
    return qEnvironmentVariableIsEmpty("NO_COLOR") && !terminal.isEmpty() && terminal != "dumb";
}

} // namespace

std::optional<TerminalLook> outputTerminal()
{
    if (isatty(STDOUT_FILENO) == 0) {
        return std::nullopt;
    }
    return TerminalLook{terminalColumns(), hasColours()};
}

bool isErrorTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}
