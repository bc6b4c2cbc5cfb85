// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QTextDocument>
#include <QUrl>
#include <QVariant>

#include <memory>

/// A text document that opens no file and no address, whatever its markup and styles name: documents travel
/// with templates, and a pipe or device would hold the program for ever. Images stand in data: addresses; one
/// that is broken or too large, and any from elsewhere, is an empty place.
class SelfContainedDocument : public QTextDocument
{
public:
    using QTextDocument::QTextDocument;

    /// Lets go of the images of a content that was replaced.
    void forgetImages();
    /// Has its images in common with another document, so that they are unpacked once.
    void shareImages(const SelfContainedDocument &other) { m_images = other.m_images; }

protected:
    QVariant loadResource(int type, const QUrl &name) override;

private:
    struct Images
    {
        QHash<QUrl, QVariant> known;
        /// In all images together.
        qint64 pixels = 0;
    };
    std::shared_ptr<Images> m_images = std::make_shared<Images>();
};
