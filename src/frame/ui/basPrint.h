#pragma once
// Screen shots on paper: a picture of a form's client area, printed centred
// on the page, one print job per copy.

#include <QPixmap>
#include <QRect>

class QPainter;
class QPrinter;
class QWidget;

namespace kestrova {

// The client area of the form as it stands on screen.
QPixmap captureForm(QWidget& form);

// Where a picture lands on a page of the given size (both in printer
// pixels): centred by half the difference each way, and scaled down, keeping
// its proportions, when it is larger than the page.
QRect centredPicture(const QSize& page, const QSize& picture);

// Paints the picture on the printer's page, at the printer's resolution the
// picture keeps the size it has on screen.
void printPicture(QPainter& painter, QPrinter& printer, const QPixmap& picture, int screenDpi);

// Prints the picture once per copy, each copy a print job of its own; false
// when the printer cannot start a job.
bool printCopies(QPrinter& printer, const QPixmap& picture, int copies, int screenDpi);

} // namespace kestrova
