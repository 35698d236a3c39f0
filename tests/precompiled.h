// What nearly every test includes; parsed once.
#pragma once
#include "../cmake/screens_pch.h"
// The rest stands behind it: the toolkit's headers are the larger part.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "qtprinting.h"
