// Entry of the program. It takes no arguments: the catalogue lies beside the executable.
#include "app/program.h"
#include "platform/forms/look_style.h"
#include "platform/forms/qt_dialogs.h"
#include "platform/printing/printer_dialog.h"
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <cstdio>

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

/// An error that no handler caught ends the program at once: no further line of any handler runs.
void endByError(const RuntimeError& error) {
    const QString text = u"Run-time error '%1':\n\n"_s.arg(error.number()) + error.text();
    std::fprintf(stderr, "%s\n", qPrintable(text));
    QMessageBox box(QMessageBox::Critical, u"Zarvelia"_s, text, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    std::_Exit(1);
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"Zarvelia"_s);
    QApplication::setApplicationVersion(QStringLiteral(ZV_VERSION));
    QApplication::setDesktopFileName(u"example.brumatec.zarvelia"_s);
    setFatalErrorHandler(endByError);
    forms::QtMessageBoxes boxes;
    forms::QtFileDialogs files;
    printing::QtPrinterDialogs printers(nullptr);
    app::Program program(boxes, files, printers);
    forms::LookStyle::install(program.scale);
    shell::FormMdi& window = program.window;
    const QSize size = app::startSize(window.screen()->availableSize());
    window.resize(size.isEmpty() ? window.screen()->availableSize() : size);
    bool found = false;
    guarded([&] { found = window.Load(QApplication::applicationDirPath()); });
    if (!found) return 1;
    if (size.isEmpty())
        window.showMaximized();
    else
        window.show();
    return QApplication::exec();
}
