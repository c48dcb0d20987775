// Word-wrapped printing around a picture: the routines that every printed list shares. All lengths are in twips.
#pragma once

#include "platform/printing/printer.h"

#include <functional>

namespace zv::listing {

/// Top margin of a continuation page, and the right margin of its page number.
inline constexpr qint32 MargenSuperior = 800;

/// What one print keeps between its lines and blocks.
struct PrintState {
    int Pagina = 1;               ///< the page being printed, from 1; pages that the printer began itself don't count
    qint32 MargenIzquierdo = 904; ///< where lines and pictures start
    qint32 PosicionXImagen = 904; ///< where a line starts beside a picture, until text has passed below one
    qint32 PosicionYImagen = 800; ///< bottom of the current picture
};

/// Told the number of an error that printing survived.
using PrintFailure = std::function<void(int number)>;

/// The text of a page number: "- 2 -".
QString numeroPagina(int Pagina);

/// Prints a text word-wrapped from the pen, beside the picture down to PosicionYImagen and then from the left margin.
/// AnchoImagen is the width of that picture. The pen ends on the height of the last line, at the place where a line
/// starts, or at the left margin below the picture if that reaches lower. An error inside is told to `failure` and ends
/// the text, no more: 6 if the room to the right or the lines to the bottom exceed 16 bits, 482 from the printer.
void ImprimirParrafo(printing::Printer& printer, const QString& Texto, PrintState& state, qint16 AnchoImagen,
                     const PrintFailure& failure);

/// Begins a new page with its number if `Lineas` is exactly 1, and puts the pen to the top margin. A count that jumps
/// past 1 begins none: the printer then turns the page by itself, without a number.
void ImprimirLineaParrafo(printing::Printer& printer, qint16 Lineas, PrintState& state);

} // namespace zv::listing
