// State that no screen owns: the parts of a recording while the user goes to other screens to pick them, and the flags
// of the writes and of the tabs.
#pragma once

#include "platform/base/runtime_error.h"
#include <QString>
#include <vector>

namespace zv::store {

/// A table of strings with rows and columns from 0. An index beyond it is error 9.
class FixedTable {
  public:
    FixedTable(int rows, int columns) : columns_(columns), cells_(std::size_t(rows) * std::size_t(columns)) {}

    QString& at(int row, int column) {
        if (row < 0 || column < 0 || column >= columns_ || row >= rows()) throw RuntimeError(9);
        return cells_[std::size_t(row) * std::size_t(columns_) + std::size_t(column)];
    }
    const QString& at(int row, int column) const { return const_cast<FixedTable*>(this)->at(row, column); }
    int rows() const { return static_cast<int>(cells_.size()) / columns_; }
    void fillColumn(int column, const QString& text) {
        for (int row = 0; row < rows(); ++row) at(row, column) = text;
    }

  private:
    int columns_;
    std::vector<QString> cells_;
};

struct Module1 {
    Module1() { start(); }

    /// Start values, as the main window sets them when it loads.
    void start();

    bool ErrorBaseDatos = false; ///< a generic write failed; its caller clears it
    int Err = 0;                 ///< number of the last run-time error that a handler caught
    bool SolapasFijas = false;   ///< the tabs stay as they are
    bool RegresoMosGrabacion = false, RegresoAnaGrabacion = false;
    /// The selection of recordings while one that is being modified stands alone in their channel; else empty.
    QString SeleccionGrabacion;

    // Column 0 the text shown, column 1 the key; a value of 0 or less marks a free row.
    FixedTable ListaOrquestaAna{11, 2}, ListaDirectorAna{11, 2}, ListaInterpreteAna{101, 2};
    FixedTable ListaOrquestaMos{11, 2}, ListaDirectorMos{11, 2}, ListaInterpreteMos{101, 2};
    // Keys chosen, -1 for none.
    qint32 IdCompositorAna = -1, IdObraAna = -1, IdSoporteAna = -1;
    qint32 IdCompositorMos = -1, IdObraMos = -1, IdSoporteMos = -1;
    // Name, hours, minutes and seconds of a work's movements.
    FixedTable MovimientosAna{151, 4}, MovimientosMos{151, 4};
};

} // namespace zv::store
