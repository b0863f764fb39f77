// Writes the program's icon as PNG pictures for the desktop's icon theme,
// one folder per size ("48x48/apps/kestrova.png"), drawn by the same code
// that draws the icon on the program's windows.

#include "frame/ui/program_icon.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: kestrova-make-icons FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString place = QString("%1x%1/apps").arg(size);
        if (!folder.mkpath(place) || !kestrova::programPicture(size).save(folder.filePath(place + "/kestrova.png"), "PNG")) {
            std::fprintf(stderr, "kestrova-make-icons: cannot write %s\n", qPrintable(folder.filePath(place)));
            return 1;
        }
    }
    return 0;
}
