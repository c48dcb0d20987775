#include "store/module1.h"

namespace zv::store {

void Module1::start() {
    ListaOrquestaAna.fillColumn(1, QStringLiteral(" -1"));
    ListaDirectorAna.fillColumn(1, QStringLiteral("-1"));
    ListaInterpreteAna.fillColumn(1, QStringLiteral("-1"));
    ListaOrquestaMos.fillColumn(1, QStringLiteral(" -1"));
    ListaDirectorMos.fillColumn(1, QStringLiteral("-1"));
    ListaInterpreteMos.fillColumn(1, QStringLiteral("-1"));
    IdCompositorAna = IdObraAna = IdSoporteAna = -1;
    IdCompositorMos = IdObraMos = IdSoporteMos = -1;
    ErrorBaseDatos = false;
}

} // namespace zv::store
