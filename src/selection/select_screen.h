// The Select screen of a kind: up to 20 filters joined by AND and OR and an ordering become one statement for the
// kind's channel. What it composes lies in the working memory, so that a later visit takes it up.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/text_box.h"
#include "shell/contract/screen.h"
#include "store/messages.h"
#include "store/select_rows.h"

namespace zv::selection {

/// Stands in place of the WHERE text where all records are selected.
inline const QString AllRecords = QStringLiteral("Todo");

class SelectScreen : public shell::Screen {
  public:
    SelectScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

    /// Rebuilds the screen from the working memory.
    void Carga() override;
    /// Sets all controls to the idle state.
    void ValoresInicio();

  protected:
    void Form_Load() override;
    void paintBehind(QPainter& painter) override;

    /// The fields on offer for a filter, without the placeholder row.
    virtual std::vector<store::FieldRow> offeredFields() const { return store::fieldRows(kind_); }
    /// Column that a row of the ordering list orders by; empty leaves the column before.
    virtual QString orderColumn(int row) const { return orderRows_[std::size_t(row)].column; }
    /// The term of one filter, as the statement takes it.
    virtual QString term() const;
    /// The WHERE text so far with one more term. joined: "(", the text, the operator, the term, ")".
    QString extended(const QString& clause, const QString& term) const {
        return clause.isEmpty() ? term : u'(' + clause + Operador + term + u')';
    }

    // What a selection that keeps several WHERE texts does in its own way.
    /// The filter that has been composed goes into the statement.
    virtual void extendStatement() { OpcionSQL = extended(OpcionSQL, term()); }
    /// The statement goes into the working memory, and comes back from there.
    virtual void rememberStatement() { memory().MemoSel.OpcionSQL = OpcionSQL; }
    virtual void takeUpStatement() { OpcionSQL = memory().MemoSel.OpcionSQL; }
    /// A new selection begins without a WHERE text.
    virtual void beginStatement() { OpcionSQL.clear(); }
    /// All records are to be selected.
    virtual void chooseAll() { OpcionSQL = AllRecords; }
    /// Everything of a selection that has been accepted or has failed.
    virtual void clearStatement();
    /// The work of the Accept button. Errors leave it.
    virtual void accept();
    /// What ends the query of all records after a failure.
    virtual QStringView recoveredTail() const { return u" "; }

    /// Counts the channel's records and shows and remembers the numbers and the words of the selection.
    void showAccepted();
    /// The working memory of an accepted selection, and the idle state.
    void finishAccepted();

    const store::KindInfo& kind() const { return kind_; }
    store::KindMemory& memory() { return store().memory.of(kind_.kind); }
    jet::DataControl& Data() { return store().Data(kind_.kind); }

    std::vector<store::FieldRow> fieldRows_, orderRows_;
    std::vector<store::CriterionRow> directions_;
    QString OpcionSQL, Campo, Criterio, Valor, CampoOrden, CriterioOrden;
    QString Operador, EtiquetaOperador, ValorFiltro;
    forms::Combo *ComboCampo, *ComboCriterio, *ComboCampoOrden, *ComboCriterioOrden;
    forms::TextBox* TxtValFiltro;

  private:
    void addCounters();
    void addFilterFrame();
    void addOrderFrame();
    void fillLists();
    void ComboCampo_Click();
    void ComboCriterio_Click();
    void ComboCampoOrden_Click();
    void ComboCriterioOrden_Click();
    void TxtValFiltro_Change();
    void TxtValFiltro_GotFocus();
    void BtnNueva_Click();
    void BtnTodo_Click();
    void BtnAnadir_Click();
    void join(const QString& operador, const forms::Button& button);
    void BtnAceptar_Click();
    void recover(int error);
    void takeUpFilters();

    /// Takes the placeholders out of the lists of the filter and chooses their first rows.
    void composeNext();
    void rememberRows();
    void setOrderLists();
    void enableFilter(bool enabled);
    void enableOrder(bool enabled);
    QString statement() const;
    static void addPlaceholder(forms::Combo& list, int rows, const QString& text);
    static void removePlaceholder(forms::Combo& list, int rows);

    const store::KindInfo& kind_;
    int NumCampos = 0, NumCriterios = 0, NumCamposOrden = 0, NumCriteriosOrden = 0;
    QString TextoValor, TextoCampo, TextoCriterio, TextoCampoOrden;

    forms::Button *BtnNueva, *BtnTodo, *BtnAnadir, *BtnY, *BtnO, *BtnAceptar;
    forms::ListBox* ListFiltros;
    forms::Memo* LabOpcionSQL;
    forms::Label *LabBaseDatos, *LabNumRegTotal, *LabNumFiltros, *LabNumReg, *LabNumRegFiltros;
};

} // namespace zv::selection
