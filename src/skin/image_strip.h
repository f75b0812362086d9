// Pictures of controls: loading, and frames that stand side by side in a strip.
#pragma once

#include "platform/canvas.h"
#include "platform/resources.h"

namespace tarnix {

/// Looks a picture up by the low 16 bits of `id`. False, with the output untouched, when there is none. The
/// picture lives until the program ends.
bool LoadPngResource(unsigned id, const Image*& image, ResourceType type = ResourceType::Png);

/// A strip of frames of one size. The frame width is the picture's width divided by the number of frames;
/// what the division leaves over at the right is never drawn. Without a picture nothing is drawn and the
/// frame is 0 x 0.
class ImageStrip {
  public:
    explicit ImageStrip(int frames) : m_frames(frames) {}

    bool load(unsigned resource);
    Size frameSize() const { return m_frame; }
    /// Stretches a frame over the target; a frame that the strip does not have draws nothing.
    void draw(Canvas& canvas, int frame, const Rect& target) const;
    /// Draws a part of a frame, given in the frame's coordinates, at its own size.
    void drawPart(Canvas& canvas, int frame, const Rect& part, Point target) const;

  private:
    int m_frames;
    const Image* m_image = nullptr;
    Size m_frame;
};

} // namespace tarnix
