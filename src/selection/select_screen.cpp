#include "selection/select_screen.h"

#include "platform/base/text.h"

namespace zv::selection {

using namespace Qt::StringLiterals;
using forms::Combo;

void SelectScreen::Form_Load() {
    fillLists();
    NumCampos = ComboCampo->ListCount();
    NumCriterios = ComboCriterio->ListCount();
    NumCamposOrden = ComboCampoOrden->ListCount();
    NumCriteriosOrden = ComboCriterioOrden->ListCount();
    TextoValor = TxtValFiltro->Text();
    ComboCampo->setListIndex(NumCampos - 1);
    TextoCampo = ComboCampo->Text();
    ComboCriterio->setListIndex(NumCriterios - 1);
    TextoCriterio = ComboCriterio->Text();
    ComboCampoOrden->setListIndex(NumCamposOrden - 1);
    TextoCampoOrden = ComboCampoOrden->Text();
    ValoresInicio();
}

void SelectScreen::addPlaceholder(Combo& list, int rows, const QString& text) {
    if (list.ListCount() < rows) list.AddItem(text);
    list.setListIndex(list.ListCount() - 1);
}

void SelectScreen::removePlaceholder(Combo& list, int rows) {
    if (list.ListCount() == rows) list.RemoveItem(rows - 1);
}

void SelectScreen::ValoresInicio() {
    BtnNueva->setEnabled(true);
    BtnTodo->setEnabled(true);
    for (forms::Button* button : {BtnAnadir, BtnY, BtnO, BtnAceptar}) button->setEnabled(false);
    ComboCampo->setEnabled(false);
    addPlaceholder(*ComboCampo, NumCampos, TextoCampo);
    ComboCriterio->setEnabled(false);
    addPlaceholder(*ComboCriterio, NumCriterios, TextoCriterio);
    TxtValFiltro->setEnabled(false);
    TxtValFiltro->setText(TextoValor);
    ComboCampoOrden->setEnabled(false);
    const store::SelectionMemory& selection = memory().MemoSel;
    if (selection.CampoOrden >= 0) {
        removePlaceholder(*ComboCampoOrden, NumCamposOrden);
        ComboCampoOrden->setListIndex(selection.CampoOrden);
    } else {
        addPlaceholder(*ComboCampoOrden, NumCamposOrden, TextoCampoOrden);
    }
    ComboCriterioOrden->setEnabled(false);
    ComboCriterioOrden->setListIndex(selection.CriterioOrden >= 0 ? selection.CriterioOrden : NumCriteriosOrden - 1);
}

void SelectScreen::ComboCampo_Click() {
    const int row = ComboCampo->ListIndex();
    if (row >= 0 && row < static_cast<int>(fieldRows_.size())) Campo = fieldRows_[std::size_t(row)].column;
}

void SelectScreen::ComboCriterio_Click() {
    const int row = ComboCriterio->ListIndex();
    if (row >= 0 && row < static_cast<int>(std::size(store::Criteria))) Criterio = store::Criteria[row].text.toString();
}

void SelectScreen::ComboCampoOrden_Click() {
    const int row = ComboCampoOrden->ListIndex();
    if (row < 0 || row >= static_cast<int>(orderRows_.size())) return;
    const QString column = orderColumn(row);
    if (!column.isEmpty()) CampoOrden = column;
}

void SelectScreen::ComboCriterioOrden_Click() {
    const int row = ComboCriterioOrden->ListIndex();
    if (row >= 0) CriterioOrden = directions_[std::size_t(row)].text.toString();
}

void SelectScreen::TxtValFiltro_Change() {
    Valor = TxtValFiltro->Text();
    if (kind_.hashKeptOut) forms::keepOut(*TxtValFiltro, u'#');
}

void SelectScreen::TxtValFiltro_GotFocus() {
    TxtValFiltro->setText({});
    BtnY->setEnabled(false);
    BtnO->setEnabled(false);
}

void SelectScreen::enableFilter(bool enabled) {
    ComboCampo->setEnabled(enabled);
    ComboCriterio->setEnabled(enabled);
    TxtValFiltro->setEnabled(enabled);
}

void SelectScreen::enableOrder(bool enabled) {
    ComboCampoOrden->setEnabled(enabled);
    ComboCriterioOrden->setEnabled(enabled);
}

void SelectScreen::composeNext() {
    removePlaceholder(*ComboCampo, NumCampos);
    removePlaceholder(*ComboCriterio, NumCriterios);
    ComboCampo->setListIndex(0);
    ComboCriterio->setListIndex(0);
}

// The ordering last accepted, or the first field in the table's own order.
void SelectScreen::setOrderLists() {
    removePlaceholder(*ComboCampoOrden, NumCamposOrden);
    const store::SelectionMemory& selection = memory().MemoSel;
    if (selection.CampoOrden >= 0) {
        ComboCampoOrden->setListIndex(selection.CampoOrden);
        ComboCriterioOrden->setListIndex(selection.CriterioOrden);
    } else {
        ComboCampoOrden->setListIndex(0);
        ComboCriterioOrden->setListIndex(NumCriteriosOrden - 1);
    }
}

void SelectScreen::BtnNueva_Click() {
    ValoresInicio();
    beginStatement();
    Operador.clear();
    EtiquetaOperador.clear();
    Valor.clear();
    ValorFiltro.clear();
    LabNumFiltros->setCaption(u"0"_s);
    LabOpcionSQL->setText({});
    TxtValFiltro->setText(TextoValor);
    ListFiltros->Clear();
    composeNext();
    enableFilter(true);
    BtnAnadir->setEnabled(true);
}

void SelectScreen::BtnTodo_Click() {
    ValoresInicio();
    chooseAll();
    ValorFiltro.clear();
    LabNumFiltros->setCaption(u"0"_s);
    LabNumRegTotal->setCaption(QString::number(memory().Cont));
    LabOpcionSQL->setText({});
    ListFiltros->Clear();
    TxtValFiltro->setToolTipText({});
    setOrderLists();
    enableFilter(false);
    enableOrder(true);
    BtnAceptar->setEnabled(true);
    ComboCampoOrden_Click();
    ComboCriterioOrden_Click();
}

QString SelectScreen::term() const {
    QString value = Valor;
    const int row = ComboCampo->ListIndex();
    const bool numeric = row >= 0 && row < static_cast<int>(fieldRows_.size()) && fieldRows_[std::size_t(row)].numeric;
    if (numeric && !IsNumeric(value)) value = u"-1"_s;
    const bool like = Criterio == u" LIKE " || Criterio == u" NOT LIKE ";
    if (like) value = u'*' + value + u'*';
    if (numeric && !like) {
        if (kind_.laterByValue && !OpcionSQL.isEmpty()) value = CStr(numberOf(value).value_or(-1));
        return Campo + Criterio + value;
    }
    return Campo + Criterio + u'\'' + value + u'\'';
}

void SelectScreen::BtnAnadir_Click() {
    const QString typed = TxtValFiltro->Text();
    if (typed == TextoValor || Campo.isEmpty() || Criterio.isEmpty() || Trim(typed).isEmpty()) return;
    const bool first = ListFiltros->ListCount() == 0;
    const QString words = ComboCampo->Text() + u' ' + ComboCriterio->Text() + u" '"_s + typed + u'\'';
    ValorFiltro = first ? words : u'(' + ValorFiltro + u' ' + EtiquetaOperador + u' ' + words + u") "_s;
    EtiquetaOperador.prepend(u"       "_s);
    if (!first) ListFiltros->AddItem(EtiquetaOperador);
    ListFiltros->AddItem(ComboCampo->Text());
    ListFiltros->AddItem(ComboCriterio->Text());
    ListFiltros->AddItem(u'\'' + Valor + u'\'');
    extendStatement();
    rememberRows();
    addPlaceholder(*ComboCampo, NumCampos, TextoCampo);
    addPlaceholder(*ComboCriterio, NumCriterios, TextoCriterio);
    setOrderLists();
    LabNumFiltros->setCaption(CStr(Val(LabNumFiltros->Caption()) + 1));
    TxtValFiltro->setText(TextoValor);
    enableFilter(false);
    enableOrder(true);
    BtnAceptar->setEnabled(true);
    BtnAnadir->setEnabled(false);
    const bool full = Val(LabNumFiltros->Caption()) >= store::MaxFilters;
    BtnY->setEnabled(!full);
    BtnO->setEnabled(!full);
    if (full) MsgBox(store::MensaMax20Filtros, box::Warning);
    ComboCampoOrden_Click();
    ComboCriterioOrden_Click();
    memory().MemoSel.NT = 0;
    rememberStatement();
    memory().MemoSel.ValorFiltro = ValorFiltro;
}

void SelectScreen::rememberRows() {
    QString rows;
    for (int i = 0; i < ListFiltros->ListCount(); ++i) {
        ListFiltros->setListIndex(i);
        rows += ListFiltros->Text() + u'#';
    }
    memory().MemoSel.Lista = rows.isEmpty() ? u"#"_s : rows;
}

void SelectScreen::join(const QString& operador, const forms::Button& button) {
    composeNext();
    Operador = operador;
    EtiquetaOperador = button.text();
    BtnY->setEnabled(false);
    BtnO->setEnabled(false);
    enableFilter(true);
    BtnAnadir->setEnabled(true);
    enableOrder(false);
}

QString SelectScreen::statement() const {
    QString text = kind_.selectAll();
    if (OpcionSQL != AllRecords) text += u" WHERE "_s + OpcionSQL;
    if (CriterioOrden != store::NoOrder) text += u" ORDER BY "_s + CampoOrden + CriterioOrden;
    return text;
}

void SelectScreen::BtnAceptar_Click() {
    try {
        accept();
    } catch (const RuntimeError& error) {
        module1().Err = error.number();
        recover(error.number());
    }
}

void SelectScreen::accept() {
    if (CriterioOrden.isEmpty() || CampoOrden.isEmpty()) return;
    Data().RecordSource = kind_.selectAll();
    Data().Refresh();
    store::SelectionMemory& selection = memory().MemoSel;
    if (OpcionSQL == AllRecords) selection.Lista = u"#"_s;
    OpcionSQL = statement();
    Data().RecordSource = OpcionSQL;
    Data().Refresh();
    showAccepted();
    selection.CampoOrden = static_cast<qint16>(ComboCampoOrden->ListIndex());
    selection.CriterioOrden = static_cast<qint16>(ComboCriterioOrden->ListIndex());
    finishAccepted();
}

void SelectScreen::showAccepted() {
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() != 0) {
        rows.MoveLast();
        LabNumReg->setCaption(QString::number(rows.RecordCount()));
        rows.MoveFirst();
    } else {
        LabNumReg->setCaption(u"0"_s);
    }
    LabNumRegFiltros->setCaption(LabNumFiltros->Caption());
    store::KindMemory& of = memory();
    of.ContSel = toLong(Val(LabNumReg->Caption()));
    of.ContFil = toLong(Val(LabNumFiltros->Caption()));
    of.Posicion = 1;
    LabOpcionSQL->setText(ValorFiltro);
    LabOpcionSQL->setToolTipText(ValorFiltro);
}

void SelectScreen::finishAccepted() {
    clearStatement();
    store::SelectionMemory& selection = memory().MemoSel;
    selection.forgetConstruction();
    selection.ValorFiltro = LabOpcionSQL->Text();
    ValoresInicio();
    BtnNueva->setFocus(Qt::OtherFocusReason); // the button that was pressed is disabled by now
}

void SelectScreen::clearStatement() {
    for (QString* text : {&Campo, &Criterio, &Valor, &CampoOrden, &CriterioOrden, &OpcionSQL, &ValorFiltro})
        text->clear();
}

// The channel goes back to all records; the counters still tell of the selection before.
void SelectScreen::recover(int error) {
    if (error == 3360)
        MsgBox(store::MensaError3360, box::Critical);
    else
        store().reportError();
    clearStatement();
    store::SelectionMemory& selection = memory().MemoSel;
    selection.Lista = u"#"_s;
    selection.forgetConstruction();
    selection.ValorFiltro.clear();
    Data().RecordSource = kind_.selectAll() + recoveredTail().toString();
    Data().Refresh();
    if (Data().Recordset().RecordCount() != 0) Data().Recordset().MoveFirst();
    ValoresInicio();
}

void SelectScreen::Carga() {
    store::KindMemory& of = memory();
    LabNumRegTotal->setCaption(QString::number(of.Cont));
    ListFiltros->Clear();
    if (!of.MemoSel.Lista.startsWith(u'#')) {
        QString row;
        for (const QChar c : std::as_const(of.MemoSel.Lista)) {
            if (c != u'#') {
                row += c;
                continue;
            }
            ListFiltros->AddItem(row);
            row.clear();
        }
    }
    if (of.MemoSel.NT != 0) {
        ValoresInicio();
        LabOpcionSQL->setText(of.MemoSel.ValorFiltro);
        LabOpcionSQL->setToolTipText(of.MemoSel.ValorFiltro);
        LabNumReg->setCaption(QString::number(of.ContSel));
        LabNumFiltros->setCaption(QString::number(of.ContFil));
        LabNumRegFiltros->setCaption(LabNumFiltros->Caption());
    } else if (of.MemoSel.Lista.size() == 1) {
        of.MemoSel.NT = 2;
        Carga();
    } else {
        takeUpFilters();
    }
}

void SelectScreen::takeUpFilters() {
    const store::KindMemory& of = memory();
    takeUpStatement();
    ValorFiltro = of.MemoSel.ValorFiltro;
    TxtValFiltro->setText(TextoValor);
    enableFilter(false);
    enableOrder(true);
    BtnAceptar->setEnabled(true);
    BtnAnadir->setEnabled(false);
    setOrderLists();
    ComboCampoOrden_Click();
    ComboCriterioOrden_Click();
    LabNumFiltros->setCaption(CStr((ListFiltros->ListCount() + 1) / 4.0));
    LabNumRegFiltros->setCaption(QString::number(of.ContFil));
    LabNumReg->setCaption(QString::number(of.ContSel));
    const bool full = Val(LabNumFiltros->Caption()) >= store::MaxFilters;
    BtnY->setEnabled(!full);
    BtnO->setEnabled(!full);
}

} // namespace zv::selection
