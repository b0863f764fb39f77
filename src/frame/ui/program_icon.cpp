#include "frame/ui/program_icon.h"

#include <QPainter>
#include <QPainterPath>

namespace kestrova {

QPixmap programPicture(int size)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter p(&picture);
    p.setRenderHint(QPainter::Antialiasing);
    const double s = size / 64.0; // drawn on a 64 x 64 grid
    p.scale(s, s);

    // The ground: a rounded square of the splash's blue.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x1f, 0x3b, 0x5c));
    p.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);

    // The pipe: two walls and the bore between them.
    p.setBrush(QColor(0x9f, 0xc5, 0xe8));
    p.drawRect(QRectF(4, 20, 56, 24));
    p.setBrush(QColor(0x2e, 0x5a, 0x8a));
    p.drawRect(QRectF(4, 25, 56, 14));

    // The flow, narrowing through the plate.
    QPainterPath flow;
    flow.moveTo(8, 32);
    flow.cubicTo(20, 32, 26, 32, 32, 32);
    p.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawPath(flow);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawPolygon(QPolygonF{{40, 32}, {46, 27}, {46, 37}}.translated(8, 0));
    p.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(36, 32), QPointF(50, 32));

    // The orifice plate: a bar across the bore with its hole.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xf2, 0x8c, 0x28));
    p.drawRect(QRectF(30, 14, 5, 13));
    p.drawRect(QRectF(30, 37, 5, 13));
    return picture;
}

QIcon programIcon()
{
    static const QIcon icon = [] {
        QIcon made;
        for (int size : {16, 24, 32, 48, 64, 128, 256})
            made.addPixmap(programPicture(size));
        return made;
    }();
    return icon;
}

} // namespace kestrova
