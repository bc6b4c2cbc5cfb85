// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "core/bomstring.h"

#include "core/hashindex.h"

BomString::~BomString() = default;

size_t BomString::hash(size_t seed) const
{
    return size_t(hashNumber(hashText(*this, m_caseRule), seed));
}
