// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "host/framework/applnprocess.h"

#include <QString>

#include <functional>

class StandaloneDocument;

/// The notes of the project that the open design belongs to, in a text file beside it.
class ProjectNotes final : public APPLNOBJECT
{
public:
    /// Paints plain text on pages of its own.
    using PagePainter = std::function<void(QPainter &painter, const QString &text)>;

    /// The document must outlive the notes.
    explicit ProjectNotes(const StandaloneDocument &document)
        : m_document(document)
    {
    }

    /// How to paint; without it nothing is painted. Programs without pages need none.
    void setPagePainter(PagePainter painter) { m_paint = std::move(painter); }

    /// Whether there are notes, that is, a file with text in it.
    [[nodiscard]] bool exist() const;
    /// "FILE: why" when there is a file and it cannot be read as text.
    [[nodiscard]] QString problem() const;

    void paint(QPainter &painter, int mode) override;

private:
    const StandaloneDocument &m_document;
    PagePainter m_paint;
};
