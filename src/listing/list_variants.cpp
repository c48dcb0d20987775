#include "listing/list_variants.h"

#include "listing/work_texts.h"

namespace zv::listing {

using store::Kind;

FormReg1LisObra::FormReg1LisObra(shell::Context& context, QWidget* parent, const QString& name)
    : ListScreen(context, parent, name, store::info(Kind::Obra)) {}

QString FormReg1LisObra::cellText(int item) {
    return workCell(columnOf(item), [this](QStringView column) { return Data().boundText(column.toString()); });
}

QString FormReg1LisObra::paperText(int item) {
    return workOnPaper(columnOf(item), [this](QStringView column) { return Data().boundText(column.toString()); });
}

FormReg1LisOrquesta::FormReg1LisOrquesta(shell::Context& context, QWidget* parent, const QString& name)
    : ListScreen(context, parent, name, store::info(Kind::Orquesta)) {}

} // namespace zv::listing
