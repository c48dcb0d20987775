// The report against the working memory and against sums made by hand.
#include "store/messages.h"
#include "support/desk.h"

namespace zv::test {
namespace {

using namespace Qt::StringLiterals;
using store::Kind;

constexpr int ReportNumber = 57;

struct Row {
    const char* prefix;
    Kind kind;
    int fields;
};
const Row Rows14[] = {
    {"LabCom", Kind::Compositor, 6}, {"LabObra", Kind::Obra, 16},      {"LabOrq", Kind::Orquesta, 5},
    {"LabDir", Kind::Director, 6},   {"LabInt", Kind::Interprete, 7},  {"LabSop", Kind::Soporte, 11},
    {"LabGra", Kind::Grabacion, 39}, {"LabIns", Kind::Instrumento, 7}, {"LabAgr", Kind::Agrupacion, 7},
    {"LabEve", Kind::Evento, 7},     {"LabEsc", Kind::Escenario, 7},   {"LabPub", Kind::Publicacion, 10},
    {"LabEmi", Kind::Emisora, 8},    {"LabInte", Kind::Internet, 7},
};

class ReportTest : public Desk {
  protected:
    void open() {
        hands->go(ReportNumber);
        hands->screen(u"FormInforme"_s);
    }
    /// The figures of a row: total, new, removed, selected by filters, listed by filters with fields, order.
    QString row(const QString& prefix) {
        QStringList figures;
        for (const char* suffix : {"NumRegTotal", "NumRegNuevos", "NumRegEliminados", "NumRegSeleccion", "NumFiltros",
                                   "NumRegSeleccion1", "NumFiltros1", "NumCampos", "Orden"})
            figures += hands->text(prefix + QString::fromLatin1(suffix));
        return figures.join(u' ');
    }
    /// A row as it has to be, from the memory.
    QString remembered(Kind kind, const QString& order) {
        const store::KindMemory& m = memory(kind);
        const auto ticks = std::count(m.MemoLis.Campo.begin(), m.MemoLis.Campo.end(), true);
        return u"%1 %2 %3 %4 %5 %4 %5 %6 %7"_s.arg(m.Cont)
            .arg(m.ContNew)
            .arg(m.ContEli)
            .arg(m.ContSel)
            .arg(m.ContFil)
            .arg(ticks)
            .arg(order);
    }
    QString products() {
        return hands->text(u"LabRxCNumRegTotal"_s) + u' ' + hands->text(u"LabRxCNumRegSeleccion"_s) + u' ' +
               hands->text(u"LabRxCNumRegSeleccion1"_s);
    }
    /// Texts of all labels with a tip, from the top down.
    QString labelsWithTip(const QString& tip) {
        std::vector<QLabel*> labels;
        for (QLabel* label : hands->screen()->findChildren<QLabel*>())
            if (label->toolTip() == tip) labels.push_back(label);
        std::ranges::sort(labels, {}, [](const QLabel* label) { return label->y(); });
        QStringList texts;
        for (const QLabel* label : labels) texts += label->text();
        return texts.join(u' ');
    }
    void add(const QString& box, const QString& text) {
        hands->type(box, text);
        boxes.expect(store::MensaGrabadoBien, box::Information);
        hands->click(u"BtnGuardar"_s);
    }
};

TEST_F(ReportTest, anEmptyCatalogueCountsNothing) {
    start();
    open();
    for (const Row& r : Rows14) EXPECT_EQ(row(QString::fromLatin1(r.prefix)), u"0 0 0 0 0 0 0 0 0"_s) << r.prefix;
    EXPECT_EQ(row(u"LabSuma"_s), u"0 0 0 0 0 0 0 0 -"_s);
    EXPECT_EQ(products(), u"0 0 0"_s);
    const QString fields = u"6 16 5 6 7 11 39 7 7 7 7 10 8 7 143"_s;
    EXPECT_EQ(labelsWithTip(u"No. of Fields per Record"_s), fields);
    EXPECT_EQ(labelsWithTip(u"No. of Fields per Selected Record"_s), fields);
}

// Adds, an undo, a removal, a selection, a list: what the screens did is what the report tells.
TEST_F(ReportTest, tellsWhatTheScreensDid) {
    put({u"Compositor"_s, u"Apellidos, Fecha1"_s, {u"'Vega', 1700"_s, u"'Arriaga', 1806"_s, u"'Zubiri', 1850"_s}});
    put({u"Soporte"_s, u"Discografica, NumeroCatalogo"_s, {u"'Blau', '1'"_s, u"'Blau', '2'"_s}});
    put({u"Agrupacion"_s, u"Entidad"_s, {u"'Coro'"_s, u"'Banda'"_s}});
    start();
    hands->go(1);
    add(u"TxtApellidos"_s, u"Mora"_s);
    add(u"TxtApellidos"_s, u"Sol"_s);
    hands->click(u"BtnDeshacer"_s);
    hands->go(15);
    hands->type(u"TxtOrden"_s, u"2"_s);
    boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    hands->go(37);
    hands->click(u"BtnNueva"_s);
    hands->choose(u"ComboCampo"_s, u"Entity"_s);
    hands->choose(u"ComboCriterio"_s, u"Same as"_s);
    hands->type(u"TxtValFiltro"_s, u"Banda"_s);
    hands->click(u"BtnAnadir"_s);
    hands->click(u"BtnAceptar"_s);
    hands->go(51);
    hands->tick({u"Entity"_s, u"City"_s, u"Image"_s});
    hands->click(u"BtnListar"_s);
    hands->go(30);
    add(u"TxtEntidad"_s, u"Duo"_s); // the selection is whole again
    hands->go(15);
    hands->type(u"TxtOrden"_s, u"3"_s);
    open();
    EXPECT_EQ(row(u"LabCom"_s), u"3 1 1 3 0 3 0 0 3"_s);
    EXPECT_EQ(row(u"LabSop"_s), u"2 0 0 2 0 2 0 0 1"_s);
    EXPECT_EQ(row(u"LabAgr"_s), u"3 1 0 3 0 3 0 3 1"_s);
    EXPECT_EQ(row(u"LabSuma"_s), u"8 2 1 8 0 8 0 3 -"_s);
    EXPECT_EQ(products(), u"61 61 9"_s); // 3 x 6 + 2 x 11 + 3 x 7; 3 x 3
    for (const Row& r : Rows14) {
        const QString order = hands->text(QString::fromLatin1(r.prefix) + u"Orden"_s);
        EXPECT_EQ(row(QString::fromLatin1(r.prefix)), remembered(r.kind, order)) << r.prefix;
    }
}

// Every variable of every kind on its own label: no two of them alike.
TEST_F(ReportTest, everyFigureIsItsOwnVariable) {
    start();
    qint32 number = 100;
    QStringList sums;
    std::array<qint64, 8> sum{};
    std::array<qint64, 3> product{};
    for (const Row& r : Rows14) {
        store::KindMemory& m = memory(r.kind);
        for (qint32* variable : {&m.Cont, &m.ContNew, &m.ContEli, &m.ContSel, &m.ContFil, &m.Posicion})
            *variable = number += 7;
        const int ticks = std::min<int>(3 + number % 5, static_cast<int>(m.MemoLis.Campo.size()));
        std::fill_n(m.MemoLis.Campo.begin(), ticks, true);
        const qint64 figures[] = {m.Cont, m.ContNew, m.ContEli, m.ContSel, m.ContFil, m.ContSel, m.ContFil, ticks};
        for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += figures[i];
        product[0] += qint64{m.Cont} * r.fields;
        product[1] += qint64{m.ContSel} * r.fields;
        product[2] += qint64{m.ContSel} * ticks;
    }
    open();
    for (const Row& r : Rows14)
        EXPECT_EQ(row(QString::fromLatin1(r.prefix)), remembered(r.kind, QString::number(memory(r.kind).Posicion)));
    for (const qint64 figure : sum) sums += QString::number(figure);
    EXPECT_EQ(row(u"LabSuma"_s), sums.join(u' ') + u" -"_s);
    EXPECT_EQ(products(), u"%1 %2 %3"_s.arg(product[0]).arg(product[1]).arg(product[2]));
}

// The order is a position, or tells whether the channel has rows at all.
TEST_F(ReportTest, orderAsksTheChannelBelowTwo) {
    put({u"Compositor"_s, u"Apellidos"_s, {u"'Vega'"_s}});
    start();
    const auto orderWith = [this](Kind kind, qint32 position, const QString& label) {
        memory(kind).Posicion = position;
        hands->go(58);
        open();
        return hands->text(label);
    };
    for (const qint32 position : {-3, 0, 1}) {
        EXPECT_EQ(orderWith(Kind::Compositor, position, u"LabComOrden"_s), u"1"_s) << position;
        EXPECT_EQ(orderWith(Kind::Internet, position, u"LabInteOrden"_s), u"0"_s) << position;
    }
    EXPECT_EQ(orderWith(Kind::Compositor, 5, u"LabComOrden"_s), u"5"_s);
    EXPECT_EQ(orderWith(Kind::Internet, 2, u"LabInteOrden"_s), u"2"_s);
    EXPECT_EQ(memory(Kind::Compositor).Posicion, 5) << "The report changes nothing.";
}

TEST_F(ReportTest, sumsBeyond32BitsAreAnOverflow) {
    start();
    QList<int> errors;
    const auto before = setFatalErrorHandler([&errors](const RuntimeError& error) { errors += error.number(); });
    memory(Kind::Grabacion).Cont = 55'063'683; // x 39 is 10 short of the last 32-bit number
    open();
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(hands->text(u"LabRxCNumRegTotal"_s), u"2147483637"_s);
    hands->go(58);
    memory(Kind::Grabacion).Cont += 1;
    hands->go(ReportNumber);
    EXPECT_EQ(errors, QList<int>{6});
    setFatalErrorHandler(before);
}

} // namespace
} // namespace zv::test
