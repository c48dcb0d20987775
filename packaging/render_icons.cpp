// Renders the program's icon into a tree of icons, FOLDER/16x16/apps/zarvelia.png and so on, when packages are made.
#include "platform/forms/decoration.h"
#include <QDir>
#include <QGuiApplication>
#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const QDir tree(arguments.value(1));
    for (const QString& pixels : arguments.sliced(qMin(2, arguments.size()))) {
        const QString folder = u"%1x%1/apps"_s.arg(pixels), file = tree.filePath(folder + u"/zarvelia.png"_s);
        const int side = pixels.toInt();
        if (tree.mkpath(folder) && zv::forms::drawing(u"icon"_s, {side, side}).save(file)) continue;
        std::fprintf(stderr, "%s could not be written.\n", qPrintable(file));
        return 1;
    }
}
