// What the tests of the core include most, for the precompiled header.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core_headers.h"
