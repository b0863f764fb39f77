#include "frame/ui/basPrint.h"

#include <QPainter>
#include <QPrinter>
#include <QWidget>

namespace kestrova {

QPixmap captureForm(QWidget& form)
{
    return form.grab(form.contentsRect());
}

QRect centredPicture(const QSize& page, const QSize& picture)
{
    QSize size = picture;
    if (size.width() > page.width() || size.height() > page.height())
        size.scale(page, Qt::KeepAspectRatio);
    return QRect(QPoint((page.width() - size.width()) / 2, (page.height() - size.height()) / 2), size);
}

void printPicture(QPainter& painter, QPrinter& printer, const QPixmap& picture, int screenDpi)
{
    const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double toPrinter = static_cast<double>(printer.resolution()) / std::max(screenDpi, 1);
    const QSize onPaper(static_cast<int>(picture.width() * toPrinter), static_cast<int>(picture.height() * toPrinter));
    painter.drawPixmap(centredPicture(page.size(), onPaper), picture);
}

bool printCopies(QPrinter& printer, const QPixmap& picture, int copies, int screenDpi)
{
    printer.setCopyCount(1); // the copies are jobs, not the driver's copies of one job
    for (int copy = 0; copy < copies; ++copy) {
        QPainter painter;
        if (!painter.begin(&printer))
            return false;
        printPicture(painter, printer, picture, screenDpi);
        if (!painter.end())
            return false;
    }
    return true;
}

} // namespace kestrova
