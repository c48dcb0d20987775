// The Add and Show-Edit screens, worked by hand.
#include "support/desk.h"
#include "store/messages.h"

using namespace zv;
using namespace Qt::StringLiterals;

class Editors : public test::Desk {};

TEST_F(Editors, AComposerIsAddedShownAndRemoved) {
    start();
    hands->go(1);
    hands->type(u"TxtNombre"_s, u"Ana"_s);
    hands->type(u"TxtApellidos"_s, u"Vega"_s);
    hands->type(u"TxtFecha1"_s, u"1685"_s);
    boxes.expect(store::MensaGrabadoBien, box::Information);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(stored(u"Compositor"_s, u"Nombre, Apellidos, Fecha1, Fecha2"_s), QStringList{u"Ana|Vega|1685|0"_s});
    hands->go(15);
    EXPECT_EQ(hands->text(u"LabNombre"_s), u"Ana Vega"_s);
    EXPECT_EQ(hands->text(u"TxtFecha2"_s), u""_s);
    boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(hands->text(u"TxtOrden"_s), u"0"_s);
    EXPECT_EQ(stored(u"Compositor"_s, u"Id"_s), QStringList{});
    close();
}
