// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class FrameWindow;
struct UndoResult;
namespace designs {
struct LastWrite;
}

/// What the program asks and tells above its window.
namespace dialogs {

/// The file that the user chooses to open; empty for none.
[[nodiscard]] QString chosenDesign(FrameWindow *window);
/// Whether the user wants a design that is open in another window in this one, too.
[[nodiscard]] bool isWantedTwice(FrameWindow *window, const QString &file);
/// Whether what was written last into the design is to be taken back. Says when that was and into which
/// files.
[[nodiscard]] bool isUndoWanted(FrameWindow *window, const QString &file, const designs::LastWrite &last);
void tellUndone(FrameWindow *window, const UndoResult &undone);
void showAbout(FrameWindow *window);

} // namespace dialogs
