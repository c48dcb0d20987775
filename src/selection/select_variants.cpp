#include "selection/select_variants.h"

namespace zv::selection {

using namespace Qt::StringLiterals;
using store::Kind;

FormReg1SelObra::FormReg1SelObra(shell::Context& context, QWidget* parent, const QString& name)
    : SelectScreen(context, parent, name, store::info(Kind::Obra)) {}

// The list offers the movements, which are no column to order by; the words behind them were not moved up.
QString FormReg1SelObra::orderColumn(int row) const {
    QStringList columns;
    for (const store::FieldRow& offered : orderRows_)
        if (offered.column != u"Movimientos") columns += offered.column;
    return columns.value(row);
}

FormReg1SelOrquesta::FormReg1SelOrquesta(shell::Context& context, QWidget* parent, const QString& name)
    : SelectScreen(context, parent, name, store::info(Kind::Orquesta)) {}

QString FormReg1SelOrquesta::term() const {
    const int row = ComboCampo->ListIndex();
    const bool byName = row >= 0 && row < static_cast<int>(kind().nameRows.size());
    return byName ? SelectScreen::term() + u" AND OrqGrpCor='"_s + QString::number(row + 1) + u'\''
                  : SelectScreen::term();
}

} // namespace zv::selection
