// What the floors that know the toolkit include most, for the precompiled header.
#pragma once

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>
#include <QString>
#include <QWidget>

#include "core_headers.h"
