// What the fuzzers of pictures include most, for the precompiled header.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include "core_headers.h"
