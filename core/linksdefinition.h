// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

/// Makes sure that the property definitions know the property of the links, see bomLinksProperty(). A file
/// that somebody marked read-only is left as it is; that matters, and is told, only when links are written.
void defineLinksProperty(bool writesLinks);
