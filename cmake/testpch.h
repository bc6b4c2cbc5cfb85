// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
// What nearly every test includes, compiled once per test program.
#pragma once

#include "corepch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
