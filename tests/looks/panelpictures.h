// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "looks/pictures.h"

/// The tables of columns and categories, and the dialogs that are opened from them and beside them.
[[nodiscard]] QList<Picture> panelPictures();
