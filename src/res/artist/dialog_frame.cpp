#include "artist/dialog_frame.h"

namespace tarnix::art {

void paintDialogFrame(QPainter& p, Size size, const QString& title, double foot, double radius) {
    const QRectF window(0, 0, size.width, size.height);
    p.fillRect(window, palette::mossDeep);
    QPainterPath inside;
    inside.addRoundedRect(window.adjusted(1, 1, -1, -1), std::max(0.0, radius - 1),
                          std::max(0.0, radius - 1));
    p.save();
    p.setClipPath(inside, Qt::IntersectClip);
    p.fillRect(window, vertical(window, palette::slate, palette::stage));
    p.fillRect(QRectF(0, 0, window.width(), titleStripHeight), dialogTitleGround);
    p.fillRect(QRectF(0, titleStripHeight, window.width(), 1), palette::mossDeep);
    p.fillRect(QRectF(0, foot, window.width(), window.height() - foot), dialogFootGround);
    p.fillRect(QRectF(0, foot, window.width(), 1), palette::line);
    p.restore();
    if (!title.isEmpty())
        setText(p, QRectF(21, 1, window.width() - 80, titleStripHeight - 1), title, Type::Title, palette::ink,
                Qt::AlignLeft);
}

void paintDarkField(QPainter& p, const QRectF& field, const QColor& ground) {
    plate(p, field, 4, ground, palette::lineBright);
}

void labelBeside(QPainter& p, const Rect& box, const QString& words, Type type, double gap) {
    setText(p, QRectF(box.right + gap, box.top - 4, 240, box.height() + 8), words, type, palette::paper,
            Qt::AlignLeft);
}

void paintNoticeSign(QPainter& p, const QPointF& centre, NoticeSign sign) {
    const QRectF disc(centre.x() - 17, centre.y() - 17, 34, 34);
    glow(p, disc, 17, palette::spring, 8, 50);
    p.setPen(Qt::NoPen);
    p.setBrush(vertical(disc, palette::springLight, palette::spring));
    p.drawEllipse(disc);
    setText(p, disc, sign == NoticeSign::Attention ? QStringLiteral("!") : QStringLiteral("?"), Type::Display,
            palette::ink);
}

} // namespace tarnix::art
