// A program on a catalogue that is measured, and hands to work it.
#pragma once

#include "driver/driver.h"
#include "platform/forms/look_style.h"
#include "platform/printing/printer_dialog.h"

namespace zv::bench {

using namespace Qt::StringLiterals;

[[noreturn]] inline void fail(const QString& words) {
    std::printf("%s\n", qPrintable(words));
    std::exit(2);
}

/// A program on a catalogue, past its presentation.
struct Desk {
    explicit Desk(const QString& folder)
        : boxes(fail), files(fail), printers(folder + u"/list.pdf"_s), program(boxes, files, printers),
          hands(program, fail) {
        forms::LookStyle::install(program.scale);
        program.window.resize(1100, 760);
        program.window.Load(folder);
        program.window.show();
    }
    void list(int screen) {
        hands.go(screen);
        QStringList fields;
        auto& offered = hands.get<forms::CheckList>(u"List"_s);
        for (int i = 0; i + 1 < offered.ListCount(); ++i) fields += offered.List(i);
        hands.tick(fields);
        hands.click(u"BtnListar"_s);
    }
    /// Turns to another page of the list and paints it.
    void turnPage() {
        auto& bar = hands.get<forms::ScrollBar>(u"VScroll"_s);
        bar.setValue(bar.Value() == bar.Max() / 2 ? bar.Max() / 2 + 1 : bar.Max() / 2);
        hands.get<forms::FlexGrid>(u"Tabla"_s).grab();
    }

    driver::ScriptedBoxes boxes;
    driver::ScriptedFiles files;
    printing::PdfPrinterDialogs printers;
    app::Program program;
    driver::Driver hands;
};

} // namespace zv::bench
