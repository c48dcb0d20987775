#include "editors/records1/work_screens.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

const store::KindInfo& work() { return store::info(Kind::Obra); }

/// A work is called by its title, its number and its tonality.
QString heading(const QString& title, const QString& number, const QString& tonality) {
    QString text;
    if (!Trim(title).isEmpty()) text = title;
    if (!Trim(number).isEmpty()) text += u' ' + store::EtiNumero + u' ' + number;
    if (!Trim(tonality).isEmpty()) text += u' ' + store::EtiEn + u' ' + tonality;
    return text;
}

/// What is written into a field that the movements fill; false for any other field.
bool movementText(MovementsPanel& movements, const store::Field& field, QString& text) {
    if (field.column == u"Movimientos")
        text = movements.storedNames();
    else if (field.column == u"TiempoMovimientos")
        text = movements.storedTimes();
    else if (field.column == u"TiempoTotal")
        text = movements.takeTotal();
    else if (field.column == u"NumeroMovimientos")
        text = QString::number(movements.rows());
    else
        return false;
    return true;
}

} // namespace

FormReg1AnaObra::FormReg1AnaObra(shell::Context& context, QWidget* parent, const QString& name)
    : AddScreen(context, parent, name, work()),
      movements_(*this, {module1().MovimientosAna, store().memory.Obra.AnaAmpRed, store::EtiModificar, store::EtiAnadir,
                         false, true, [] { return true; }, [this] { rememberMovements(); }}) {}

QString FormReg1AnaObra::RistraNombre() const {
    return heading(boxText(u"Nombre"), boxText(u"Numero"), boxText(u"Tonalidad"));
}

void FormReg1AnaObra::rememberMovements() {
    memo(kind().indexOf(u"NumeroMovimientos")) = QString::number(movements_.rows());
    memo(kind().indexOf(u"TiempoTotal")) = movements_.TxtTotal->Caption();
}

void FormReg1AnaObra::fillBoxes() {
    AddScreen::fillBoxes();
    const QString count = memo(kind().indexOf(u"NumeroMovimientos"));
    if (Val(count) != 0) {
        movements_.TxtNumeroMovimientos->setCaption(count);
        movements_.TxtTotal->setCaption(memo(kind().indexOf(u"TiempoTotal")));
    }
    movements_.showMirror(toInteger(Val(count)));
}

QString FormReg1AnaObra::fieldText(int i) {
    QString text;
    return movementText(movements_, field(i), text) ? text : AddScreen::fieldText(i);
}

void FormReg1AnaObra::Limpiar() {
    movements_.clear();
    AddScreen::Limpiar();
    memo(kind().indexOf(u"Movimientos")) = store::MovementEnd;
}

FormReg1MosObra::FormReg1MosObra(shell::Context& context, QWidget* parent, const QString& name)
    : ShowEditScreen(context, parent, name, work()),
      movements_(*this, {module1().MovimientosMos, store().memory.Obra.MosAmpRed, u"Modificar"_s, u"Añadir"_s, true,
                         false, [this] { return !walk_.Navegable; }, [] {}}) {
    movements_.setLocked(true);
    movements_.GotFocus = [this] { walk_.handFocusOn(); };
}

void FormReg1MosObra::Form_Load() {
    movements_.replayLayout();
    ShowEditScreen::Form_Load();
}

QString FormReg1MosObra::RistraNombre() const {
    return heading(boxText(u"Nombre"), boxText(u"Numero"), boxText(u"Tonalidad"));
}

void FormReg1MosObra::showRow() {
    const auto stored = [this](QStringView column) { return store().bound(Kind::Obra, kind().indexOf(column)); };
    movements_.showStored(stored(u"Movimientos"), stored(u"TiempoMovimientos"), stored(u"TiempoTotal"),
                          stored(u"NumeroMovimientos"));
    ShowEditScreen::showRow();
    for (int i = 0; i < fieldCount(); ++i)
        if (box(i).line) box(i).line->setToolTipText(box(i).Text());
    movements_.copyToMirror();
}

QString FormReg1MosObra::fieldText(int i) {
    QString text;
    return movementText(movements_, field(i), text) ? text : ShowEditScreen::fieldText(i);
}

void FormReg1MosObra::Limpiar() {
    movements_.clear();
    ShowEditScreen::Limpiar();
}

void FormReg1MosObra::Bloquear(bool locked) {
    ShowEditScreen::Bloquear(locked);
    movements_.setLocked(locked);
}

} // namespace zv::editors
