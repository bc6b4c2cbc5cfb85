// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "richtext/xhtml/selfcontaineddocument.h"

#include "richtext/xhtml/embeddedimage.h"

#include <QGuiApplication>
#include <QPixmap>

namespace {

/// Two hundred megabytes when they are unpacked.
constexpr qint64 mostPixels = 50'000'000;

/// What stands for an image that is not shown. A null image would make the document open a file of its name.
QImage emptyPlace()
{
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

void SelfContainedDocument::forgetImages()
{
    m_images = std::make_shared<Images>();
}

QVariant SelfContainedDocument::loadResource(int type, const QUrl &name)
{
    if (type != ImageResource) {
        return QByteArray("");
    }
    const auto known = m_images->known.constFind(name);
    if (known != m_images->known.constEnd()) {
        return *known;
    }
    QImage image = decodedImage(name.toString(QUrl::FullyEncoded), mostPixels - m_images->pixels);
    if (image.isNull()) {
        image = emptyPlace();
    }
    m_images->pixels += qint64(image.width()) * image.height();
    // A pixmap is written into a PDF file once, however often it is drawn; only windows' programs have them.
    const bool hasPixmaps = qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
    return *m_images->known.insert(name, hasPixmaps ? QVariant(QPixmap::fromImage(image)) : QVariant(image));
}
