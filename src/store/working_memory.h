// What outlives the screens: counters, positions, what was typed on the Add screens, the selection of every kind. It
// lives only in memory and is made anew at every start.
#pragma once

#include "store/schema.h"
#include <QString>
#include <array>
#include <vector>

namespace zv::store {

/// The selection of a kind, as its Select screen leaves it.
struct SelectionMemory {
    qint16 NT = 2;                       ///< 2 an accepted selection or none, 0 filters added and not accepted
    QString OpcionSQL;                   ///< WHERE text under construction
    QString ValorFiltro;                 ///< readable text of the filter
    QString Lista = QStringLiteral("#"); ///< rows of the filter list, each ended by "#"
    qint16 CampoOrden = -1;              ///< row of the ordering field, -1 none
    qint16 CriterioOrden = -1;           ///< row of the ordering direction, -1 none
    std::array<QString, 7> Opciones;     ///< the same for each table, where the kind's selection keeps several

    void reset() { *this = SelectionMemory{}; }
    /// Nothing is under construction any more.
    void forgetConstruction() {
        NT = 2;
        OpcionSQL.clear();
        Opciones.fill({});
    }
};

/// What a List screen comes back to.
struct ListMemory {
    qint32 Posicion = 1;     ///< page, from 1
    qint16 Posicion2 = 1;    ///< zoom, 1 to 20
    std::vector<bool> Campo; ///< ticks, one for each item on offer
};

/// The variables of one kind. `ContSelCompositor` is `ContSel` of the composer, `MemoSelCompLista` its `MemoSel.Lista`.
struct KindMemory {
    qint32 Cont = 0;           ///< records of the table
    qint32 Posicion = 1;       ///< order number of the record on display, from 1
    qint32 ContSel = 0;        ///< records in the selection
    qint32 ContEli = 0;        ///< records removed in this run
    qint32 ContNew = 0;        ///< records added in this run
    qint32 ContFil = 0;        ///< filters in the selection
    std::vector<QString> Memo; ///< text of the Add screen's boxes, by position in the kind's fields
    bool RedAmp = false;       ///< the frame of the Show-Edit screen is reduced
    SelectionMemory MemoSel;
    ListMemory MemoLis;
};

/// What only the works have beside the families.
struct ObraMemory {
    bool AnaAmpRed = false; ///< movements of the Add screen are wide
    bool MosAmpRed = false; ///< movements of the Show-Edit screen are wide
};

/// What only the orchestras have beside the families.
struct OrquestaMemory {
    qint16 Select = 0; ///< name box that holds the text: 1 orchestra, 2 ensemble, 3 choir, 0 none
};

/// What only the recordings have beside the families.
struct GrabacionMemory {
    QString AnaNotas, MosNotas;
};

class WorkingMemory {
  public:
    WorkingMemory();

    KindMemory& of(Kind kind) { return kinds_[static_cast<std::size_t>(kind)]; }
    const KindMemory& of(Kind kind) const { return kinds_[static_cast<std::size_t>(kind)]; }

    ObraMemory Obra;
    OrquestaMemory Orquesta;
    GrabacionMemory Grabacion;

    /// Start values of a kind: nothing typed, no selection, counters 0.
    void start(Kind kind);
    /// Start values of what only some kinds have.
    void startIrregular();

    /// One "name = value" line per variable under its full name, Records I first, the irregular ones last:
    /// `MemoSelCompLista = "#"`.
    QString dump() const;

  private:
    std::array<KindMemory, KindCount> kinds_;
};

/// Items on offer in the List screen of a kind, the picture last.
int listItemCount(const KindInfo& kind);

} // namespace zv::store
