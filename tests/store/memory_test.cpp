// The state after a start, compared as text.
#include "store_fixture.h"

using namespace Qt::StringLiterals;

namespace zv::store::test {
namespace {

class Memory : public StoreTest {
  protected:
    /// The lines of the dump from the counters of one kind to those of the next.
    std::string block(const QString& kind, const QString& next) {
        const QString dump = store.memory.dump();
        const auto from = dump.indexOf(u"Cont"_s + kind + u" = "_s);
        const auto to = next.isEmpty() ? dump.size() : dump.indexOf(u"Cont"_s + next + u" = "_s);
        return dump.sliced(from, to - from).toStdString();
    }
};

TEST_F(Memory, onlyAKindOfRecordsIiDeclaresItsFieldsOnceMore) {
    sql(u"INSERT INTO Agrupacion(Entidad) VALUES('one')"_s);
    load();
    EXPECT_TRUE(block(u"Compositor"_s, u"Obra"_s).ends_with("\nMemoLisCompCampo(5) = False\n"));
    EXPECT_EQ(block(u"Agrupacion"_s, u"Evento"_s), R"(ContAgrupacion = 1
PosicionAgrupacion = 1
ContSelAgrupacion = 1
ContEliAgrupacion = 0
ContNewAgrupacion = 0
ContFilAgrupacion = 0
MemoAgrEntidad = ""
MemoAgrCiudad = ""
MemoAgrPais = ""
MemoAgrFecha = ""
MemoAgrActividad = ""
MemoAgrNotas = ""
MemoAgrImagen = ""
MemoAgrRedAmp = False
MemoSelAgrNT = 2
MemoSelAgrOpcionSQL = ""
MemoSelAgrValorFiltro = ""
MemoSelAgrLista = "#"
MemoSelAgrCampoOrden = -1
MemoSelAgrCriterioOrden = -1
MemoLisAgrPosicion = 1
MemoLisAgrPosicion2 = 1
MemoLisAgrCampo(0) = False
MemoLisAgrCampo(1) = False
MemoLisAgrCampo(2) = False
MemoLisAgrCampo(3) = False
MemoLisAgrCampo(4) = False
MemoLisAgrCampo(5) = False
MemoLisAgrCampo(6) = False
MemoLisAgrCampoEntidad = False
MemoLisAgrCampoCiudad = False
MemoLisAgrCampoPais = False
MemoLisAgrCampoFecha = False
MemoLisAgrCampoActividad = False
MemoLisAgrCampoNotas = False
MemoLisAgrCampoImagen = False
)");
}

// Names that do not follow the scheme of their family stand as they are.
TEST_F(Memory, irregularNamesAreKept) {
    load();
    const auto expectLines = [this](const QString& kind, const QString& next, const QStringList& wanted) {
        const QStringList lines = QString::fromStdString(block(kind, next)).split(u'\n');
        for (const QString& line : wanted) EXPECT_EQ(lines.count(line), 1) << line.toStdString();
    };
    expectLines(u"Obra"_s, u"Director"_s,
                {u"MemoObraObra = \"\""_s, u"MemoObraNmeroCatalogo = \"\""_s, u"MemoObraMovimientosTiempo = \"\""_s,
                 u"MemoObraTiempoTotal = \"\""_s, u"MemoObraNumeroMovimientos = \"\""_s, u"MemoObraRedAmp = False"_s});
    expectLines(u"Orquesta"_s, u"Soporte"_s, {u"MemoOrqOrqGrpCor = \"\""_s});
    expectLines(u"Soporte"_s, u"Interprete"_s, {u"MemoSopNumeroCatalogo = \"\""_s});
    expectLines(u"Interprete"_s, u"Grabacion"_s, {u"MemoIntApellidos = \"\""_s, u"MemoIntNotas = \"\""_s});
    expectLines(u"Grabacion"_s, u"Instrumento"_s,
                {u"MemoGraRedAmp = False"_s, u"MemoSelGraOpcionSQLCompositor = \"\""_s,
                 u"MemoSelGraOpcionSQLObra = \"\""_s, u"MemoSelGraOpcionSQLOrquesta = \"\""_s,
                 u"MemoSelGraOpcionSQLDirector = \"\""_s, u"MemoSelGraOpcionSQLInterprete = \"\""_s,
                 u"MemoSelGraOpcionSQLSoporte = \"\""_s, u"MemoSelGraOpcionSQLGrabacion = \"\""_s,
                 u"MemoSelGraNT = 2"_s, u"MemoSelGraLista = \"#\""_s});
    // What only one kind has stands behind all kinds.
    expectLines(u"Internet"_s, {},
                {u"MemoIntTitulo = \"\""_s, u"MemoIntNotas = \"\""_s, u"MemoAnaObraAmpRed = False"_s,
                 u"MemoMosObraAmpRed = False"_s, u"MemoOrqSelect = 0"_s, u"MemoAnaGraNotas = \"\""_s,
                 u"MemoMosGraNotas = \"\""_s});
}

TEST_F(Memory, aLoadForgetsWhatWasBefore) {
    load();
    const QString fresh = store.memory.dump();
    for (const KindInfo& kind : kinds()) {
        KindMemory& of = store.memory.of(kind.kind);
        of.Cont = of.ContSel = of.ContEli = of.ContNew = of.ContFil = of.Posicion = 9;
        for (QString& text : of.Memo) text = u"typed"_s;
        of.RedAmp = true;
        of.MemoSel.Lista = u"row#"_s;
        of.MemoLis.Posicion = 9;
        of.MemoLis.Campo[0] = true;
    }
    store.memory.Orquesta.Select = 2;
    store.memory.Grabacion.AnaNotas = u"typed"_s;
    store.module1.SolapasFijas = true;
    load();
    EXPECT_EQ(store.memory.dump().toStdString(), fresh.toStdString());
    EXPECT_FALSE(store.module1.SolapasFijas);
}

TEST_F(Memory, thePartsOfARecordingStartFree) {
    const auto keys = [](const FixedTable& table) {
        QString first = table.at(0, 1);
        for (int row = 0; row < table.rows(); ++row)
            if (table.at(row, 1) != first) first += u" differs"_s;
        return QString::number(table.rows()) + u" rows of '"_s + first + u'\'';
    };
    Module1& state = store.module1;
    state.ListaOrquestaAna.at(3, 1) = u"7"_s;
    state.IdSoporteMos = 5;
    state.start();
    EXPECT_EQ(keys(state.ListaOrquestaAna), u"11 rows of ' -1'"_s);
    EXPECT_EQ(keys(state.ListaDirectorAna), u"11 rows of '-1'"_s);
    EXPECT_EQ(keys(state.ListaInterpreteAna), u"101 rows of '-1'"_s);
    EXPECT_EQ(keys(state.ListaOrquestaMos), u"11 rows of ' -1'"_s);
    EXPECT_EQ(keys(state.ListaDirectorMos), u"11 rows of '-1'"_s);
    EXPECT_EQ(keys(state.ListaInterpreteMos), u"101 rows of '-1'"_s);
    EXPECT_EQ(state.IdSoporteMos, -1);
    EXPECT_THROW(state.ListaDirectorAna.at(11, 0), RuntimeError);
}

} // namespace
} // namespace zv::store::test
