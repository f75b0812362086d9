#include "skin/image_strip.h"

namespace tarnix {

bool LoadPngResource(unsigned id, const Image*& image, ResourceType type) {
    const Image* found = resources().find(type, id & 0xFFFF);
    if (!found) return false;
    image = found;
    return true;
}

bool ImageStrip::load(unsigned resource) {
    if (!LoadPngResource(resource, m_image)) return false;
    m_frame = {m_image->size().width / m_frames, m_image->size().height};
    return true;
}

void ImageStrip::draw(Canvas& canvas, int frame, const Rect& target) const {
    if (!m_image || frame < 0 || frame >= m_frames) return;
    canvas.draw(*m_image, Rect::at(frame * m_frame.width, 0, m_frame.width, m_frame.height), target);
}

void ImageStrip::drawPart(Canvas& canvas, int frame, const Rect& part, Point target) const {
    if (!m_image || frame < 0 || frame >= m_frames) return;
    canvas.draw(*m_image, part.moved(frame * m_frame.width, 0),
                Rect::at(target.x, target.y, part.width(), part.height()));
}

} // namespace tarnix
