// What the tests of the windows include most, for the precompiled header.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>

#include "toolkit_headers.h"
