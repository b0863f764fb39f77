#pragma once
// The program's icon: a pipe through an orifice plate, the flow running
// through it, on the deep blue of the splash. Drawn here at every size, so
// that the program carries no picture files of its own.

#include <QIcon>
#include <QPixmap>

namespace kestrova {

QPixmap programPicture(int size);
QIcon programIcon();

} // namespace kestrova
