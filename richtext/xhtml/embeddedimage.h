// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// An image file as a data: address, so that the text that shows it stands alone.
struct EmbeddedImage
{
    /// Empty when the file cannot be taken; `error` then says why.
    QString source;
    QSize size;
    QString error;
};

/// Files over 2 MiB, and those that hold no image that can be shown, are not taken.
[[nodiscard]] EmbeddedImage embeddedImage(const QString &path);

/// The image in a data: address. Null for any other address, an image of more than `mostPixels`, a drawing
/// (SVG) that is not complete in itself, and for what is no image.
[[nodiscard]] QImage decodedImage(const QString &address, qint64 mostPixels);
