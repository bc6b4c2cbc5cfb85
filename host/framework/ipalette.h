// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>

/// Colours by number.
class IPALETTE
{
public:
    /// As 0xRRGGBB; nothing for a number that the palette leaves to the desktop.
    [[nodiscard]] virtual std::optional<quint32> getcolour(unsigned index) const = 0;

protected:
    IPALETTE() = default;
    IPALETTE(const IPALETTE &) = default;
    IPALETTE &operator=(const IPALETTE &) = default;
    ~IPALETTE() = default;
};
