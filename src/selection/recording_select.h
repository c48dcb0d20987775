// The Select screen of the recordings. Its filters fall on the tables that a recording points to or is tied to: one
// WHERE text for each of six tables, each turned into a list of keys, and all lists into one statement on recordings.
#pragma once

#include "selection/select_screen.h"
#include "shell/contract/selection_check.h"
#include "store/recording_items.h"
#include <array>

namespace zv::selection {

class FormReg1SelGrabacion : public SelectScreen {
  public:
    FormReg1SelGrabacion(shell::Context& context, QWidget* parent, const QString& name);

    void Carga() override;

  protected:
    std::vector<store::FieldRow> offeredFields() const override;
    void extendStatement() override;
    void rememberStatement() override;
    /// The WHERE texts do not come back: only filters added in one visit take effect.
    void takeUpStatement() override {}
    void beginStatement() override;
    void chooseAll() override;
    void clearStatement() override;
    void accept() override;
    QStringView recoveredTail() const override { return u""; }

  private:
    /// The WHERE text on one of the six tables, later the list of keys.
    QString& clause(store::Kind kind) { return clauses_[static_cast<std::size_t>(kind)]; }
    void selectByClauses();
    void resolve(store::Kind kind);
    /// Runs a statement on a channel and gives the keys in a column as terms joined by OR.
    QString keyTerms(jet::DataControl& channel, const QString& statement, QStringView column, const QString& term);

    shell::SelectionCheck check_;
    std::array<QString, 6> clauses_; ///< by kind
    QString OpcionSQLNotas;          ///< the one term on the recording's own notes, later the whole WHERE text
    QString OpcionSQLGrabacion;      ///< "Todo" for all records
};

} // namespace zv::selection
