// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/program.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

namespace {

/// A standard stream that was closed would be the next file that is opened; what is written to this fails.
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0 && open("/dev/null", O_RDONLY) < 0) {
            _exit(1);
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    occupyClosedStreams();
    return runProgram(argc, argv);
}
