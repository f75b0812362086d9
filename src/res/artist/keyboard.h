// The keyboard picture: the case with its wells, and the caps that no control stands for.
#pragma once

#include <QPainter>

#include "ui/main_window_layout.h"

namespace tarnix::art {

/// True for caps that the window shows; the extra ISO key stands outside it.
constexpr bool capIsShown(const ControlRow& cap) {
    return cap.rect.right <= mainWindowSize.width;
}

/// What the caps of the window cover.
Rect capsExtent();

/// The case around the caps, in the window's coordinates.
void paintCase(QPainter& p);

/// The keyboard with its caps at rest.
void paintRestingKeyboard(QPainter& p);

/// The whole keyboard with its caps lit in the colours of the rainbow, in the window's coordinates.
void paintLitKeyboard(QPainter& p);

} // namespace tarnix::art
