// Headers that nearly every test includes, parsed once.
#pragma once
#include "../cmake/screens_pch.h"
// Qt's headers, the larger part, include the rest.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "qtprinting.h"
