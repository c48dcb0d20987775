#include "editors/records1/group_show_edit.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;
using store::Kind;
using store::Module1;

namespace {

const QString FreeRow = u"-1"_s;

} // namespace

GroupInfo groupInfo(Kind kind) {
    switch (kind) {
    case Kind::Director:
        return {&Module1::ListaDirectorAna, &Module1::ListaDirectorMos, 10, store::MensaMax10Directores,
                u"Conductors Group"_s};
    case Kind::Orquesta:
        return {&Module1::ListaOrquestaAna, &Module1::ListaOrquestaMos, 10, store::MensaMax10OrqGrpCor,
                u"Group Orchestra-Choir-Ensemble"_s};
    case Kind::Interprete:
        return {&Module1::ListaInterpreteAna,
                &Module1::ListaInterpreteMos,
                100,
                store::MensaMax100Interpretes,
                u"Performers Group (Soloists)"_s,
                u"Instrumento"_s,
                true};
    default: Q_UNREACHABLE();
    }
}

GroupShowEdit::GroupShowEdit(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind,
                             const GroupInfo& group)
    : ShowEditScreen(context, parent, name, kind), group_(group) {
    Memo* notes = box(kind.indexOf(u"Notas")).memo;
    notes->setHeight(NotesBottom - notes->Top());
    addGroup();
}

void GroupShowEdit::addGroup() {
    addLabel({}, Role::Heading, group_.heading, {4740, 4815, 2865, 270}, type::S, true, ToLeft);
    addLabel({}, Role::Unit, u"(\"Recording\" Record)"_s, {7620, 4815, 2250, 270}, type::S, false, ToRight);
    MSFlexGrid1 = add<FlexGrid>(u"MSFlexGrid1"_s, {4740, 5115, 3810, 1935});
    MSFlexGrid1->setType(type::G, false);
    MSFlexGrid1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSlim(MSFlexGrid1);
    BtnAnadirGrupo =
        addButton(u"BtnAñadirGrupo"_s, u"Add"_s, u"Add the Record to the Group"_s, {8700, 5115, 1170, 420});
    BtnEliminarGrupo = addButton(u"BtnEliminarGrupo"_s, u"Remove"_s, u"Remove a Record (Click) from the Group"_s,
                                 {8700, 5625, 1170, 420});
    BtnAnadirGrupo->Click = [this] { BtnAnadirGrupo_Click(); };
    BtnEliminarGrupo->Click = [this] { BtnEliminarGrupo_Click(); };
    chainTabStops({box(kind().indexOf(u"Notas")).memo, MSFlexGrid1, BtnAnadirGrupo, BtnEliminarGrupo});
    if (!group_.counted) return;
    LabNumeroInterpretes =
        addLabel(u"LabNumeroInterpretes"_s, Role::Value, {}, {8700, 6735, 1170, 315}, type::M, false, Qt::AlignCenter);
    LabNumeroInterpretes->setToolTipText(u"No. of Performers"_s);
}

store::FixedTable& GroupShowEdit::activeTable() {
    return module1().*(module1().RegresoMosGrabacion ? group_.mos : group_.ana);
}

QString GroupShowEdit::rowText() const {
    const QString text = headingText();
    if (group_.suffixColumn.isEmpty()) return text;
    return text + u", "_s + boxText(group_.suffixColumn);
}

bool GroupShowEdit::contains(double key) const {
    for (int row = 0; row < MSFlexGrid1->Rows(); ++row)
        if (Val(MSFlexGrid1->TextMatrix(row, 1)) == key) return true;
    return false;
}

void GroupShowEdit::BtnAnadirGrupo_Click() {
    if (memory().Cont == 0 || !walk_.hasRows()) return;
    const QString key = store().bound(kind().kind, 0);
    if (contains(Val(key))) return;
    const int row = MSFlexGrid1->Rows();
    MSFlexGrid1->setRows(row + 1);
    MSFlexGrid1->setCols(2);
    MSFlexGrid1->setRowHeightMin(300);
    MSFlexGrid1->setColWidth(0, MSFlexGrid1->Width());
    MSFlexGrid1->setColWidth(1, 0);
    MSFlexGrid1->setTextMatrix(row, 0, rowText());
    MSFlexGrid1->setTextMatrix(row, 1, key);
    MSFlexGrid1->setRow(row);
    rememberRows();
    if (module1().RegresoMosGrabacion) revealBack();
    if (MSFlexGrid1->Rows() == group_.limit) {
        MsgBox(group_.limitMessage, box::Warning);
        BtnAnadirGrupo->setEnabled(false);
    }
    showCount();
}

void GroupShowEdit::BtnEliminarGrupo_Click() {
    if (MSFlexGrid1->Rows() == 0) {
        activeTable().fillColumn(1, FreeRow);
        return;
    }
    if (MSFlexGrid1->Rows() == 1)
        MSFlexGrid1->setRows(0);
    else
        MSFlexGrid1->RemoveItem(MSFlexGrid1->RowSel());
    rememberRows();
    BtnAnadirGrupo->setEnabled(true);
    showCount();
}

void GroupShowEdit::rememberRows() {
    store::FixedTable& table = activeTable();
    table.fillColumn(1, FreeRow);
    for (int row = 0; row < MSFlexGrid1->Rows(); ++row)
        for (int column = 0; column < 2; ++column) table.at(row, column) = MSFlexGrid1->TextMatrix(row, column);
}

void GroupShowEdit::Carga() {
    ShowEditScreen::Carga();
    showRows();
}

void GroupShowEdit::showRows() {
    const store::FixedTable& table = activeTable();
    int rows = 0;
    while (rows < group_.limit && Val(table.at(rows, 1)) > 0) ++rows;
    MSFlexGrid1->setRows(rows);
    MSFlexGrid1->setCols(rows ? 2 : 0);
    if (rows) {
        MSFlexGrid1->setRowHeightMin(300);
        MSFlexGrid1->setColWidth(0, MSFlexGrid1->Width());
        MSFlexGrid1->setColWidth(1, 0);
    }
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < 2; ++column) MSFlexGrid1->setTextMatrix(row, column, table.at(row, column));
    showCount();
}

void GroupShowEdit::showCount() {
    if (!LabNumeroInterpretes) return;
    const int rows = MSFlexGrid1->Rows();
    LabNumeroInterpretes->setCaption(rows ? QString::number(rows) : QString());
}

// A change of a record on this screen gives up the group that was being gathered for a new recording.
void GroupShowEdit::accepted() {
    (module1().*group_.ana).fillColumn(1, FreeRow);
    MSFlexGrid1->setRows(0);
    MSFlexGrid1->setCols(0);
    showCount();
}

} // namespace zv::editors
