#include "artist/emblem.h"
#include "artist/subjects.h"
#include "skin/picture_ids.h"

namespace tarnix::art {

void paintIcon(Sheet& sheet) {
    sheet.icon(picture::programIcon, picture::programIconSize, [](QPainter& p) {
        paintEmblem(p, QRectF(0, 0, picture::programIconSize.width, picture::programIconSize.height));
    });
}

} // namespace tarnix::art
