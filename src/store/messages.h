// Texts that many screens share. The style of each message stands with its caller.
#pragma once

#include <QString>

namespace zv::store {

inline const QString MensaIntroducirIDentificador = QStringLiteral("IDENTIFIER must be Introduced.");
inline const QString MensaProducidoError = QStringLiteral("Has occurred Error: ");
inline const QString MensaGrabadoBien = QStringLiteral("Record SAVED correctly.");
inline const QString MensaSeleccionActual = QStringLiteral("The 'Current Selection' of:");
inline const QString MensaNoMuestra =
    QStringLiteral("DOES NOT SHOW ALL of the Records and should be closed to continue.");
inline const QString MensaEliRegPosibleGrabacion =
    QStringLiteral("ATTENTION:\r\rThis record will be also removed from 'Recording'.\r\rWould you like to continue?");
inline const QString MensaNoElegidoReg = QStringLiteral("A record has been not chosen.");
inline const QString MensaMax20Filtros = QStringLiteral("20 Filters Maximum.");
inline const QString MensaMax150Movimientos = QStringLiteral("150 Movements Maximum.");
inline const QString MensaMax10OrqGrpCor = QStringLiteral("10 Orchestras-Ensembles-Choirs Maximum.");
inline const QString MensaMax10Directores = QStringLiteral("10 Conductors Maximum.");
inline const QString MensaMax100Interpretes = QStringLiteral("100 Performers Maximum.");
inline const QString MensaError3360 = QStringLiteral("Too Complex.");

inline const QString EtiAmpliar = QStringLiteral("Extend");
inline const QString EtiReducir = QStringLiteral("Reduce");
inline const QString EtiIdentificador = QStringLiteral("Identifier");
inline const QString EtiNumero = QStringLiteral("No.");
inline const QString EtiEn = QStringLiteral("in");
inline const QString EtiInsertarImagen = QStringLiteral("Insert Image");
inline const QString EtiAnadir = QStringLiteral("Add");
inline const QString EtiModificar = QStringLiteral("Modify");
inline const QString EtiFormatoImagen =
    QStringLiteral("Images (*.jpg, *.gif, *.bmp)|*.jpg;*.gif;*.bmp|All files (*.*)|*.*");

} // namespace zv::store
