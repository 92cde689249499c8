// As precompiled.h, with what most files of the window front end include.
#pragma once

#include "cmake/macos-check/precompiled.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
