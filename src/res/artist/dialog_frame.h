// The one frame of all dialogs: a light title strip, a dark body, a flat foot for the buttons.
#pragma once

#include <QPainter>
#include <QString>

#include "artist/shapes.h"

namespace tarnix::art {

inline constexpr double titleStripHeight = 31;
inline constexpr double dialogCornerRadius = 10;

/// The strip and the foot are flat, so that buttons with a key colour can soften their edges against them.
inline constexpr QColor dialogTitleGround = palette::sage;
inline constexpr QColor dialogFootGround = palette::navy;

/// A frame whose foot begins at `foot`. An empty title is left to the program. A radius of 0 gives square
/// corners.
void paintDialogFrame(QPainter& p, Size size, const QString& title, double foot, double radius = 0);
/// A dark field with a frame, for texts and native fields that the program puts on it.
void paintDarkField(QPainter& p, const QRectF& field, const QColor& ground = palette::abyss);
/// A word right of a check box or radio button.
void labelBeside(QPainter& p, const Rect& box, const QString& words, Type type = Type::Label, double gap = 8);

enum class NoticeSign { Attention, Question };
void paintNoticeSign(QPainter& p, const QPointF& centre, NoticeSign sign);

} // namespace tarnix::art
