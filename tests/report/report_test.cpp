// The report against the working memory and against sums made by hand.
#include "report/report_desk.h"

namespace zv::test {
namespace {

using ReportTest = ReportDesk;

// All that is written on the report of an empty catalogue, line by line, and the tip of every figure.
TEST_F(ReportTest, anEmptyCatalogueCountsNothing) {
    start();
    open();
    EXPECT_EQ(line(u"General Report of Records"_s), u"General Report of Records"_s);
    EXPECT_EQ(line(u"Total"_s), u"Total|New|Removed|Selection|Listed|Order"_s);
    EXPECT_EQ(line(u"Fl"_s), u"R|F|R|R|R|Fl|F|R|Fl|F|R"_s);
    const QString tips = u"|Total No. of Records|No. of Fields per Record|No. of New Records|No. of Removed Records|"
                         "No. of Selected Records|No. of Selected Filters|No. of Fields per Selected Record|"
                         "No. of Listed Records|No. of Listed Filters|No. of Fields per Listed Record|"
                         "Order No. of the Record"_s;
    for (const Row& r : Rows14) {
        EXPECT_EQ(row(r.prefix), u"0 0 0 0 0 0 0 0 0"_s) << r.prefix.toStdString();
        EXPECT_EQ(line(r.caption), u"%1|0|%2|0|0|0|0|%2|0|0|0|0"_s.arg(r.caption).arg(r.fields));
        EXPECT_EQ(line(r.caption, tip), tips) << r.prefix.toStdString();
    }
    EXPECT_EQ(row(u"LabSuma"_s), u"0 0 0 0 0 0 0 0 -"_s);
    EXPECT_EQ(line(u"Sum"_s), u"Sum|0|143|0|0|0|0|143|0|0|0|-"_s);
    EXPECT_EQ(line(u"Sum"_s, tip), tips);
    EXPECT_EQ(products(), u"0 0 0"_s);
    EXPECT_TRUE(line(u"Sum of (R x F)"_s).startsWith(u"Sum of (R x F)"_s));
    EXPECT_EQ(line(u"Records"_s), u"R|Records|F|Fields|Fl|Filters"_s);
}

// Also in a family of letters that is a tenth wider.
TEST_F(ReportTest, everyCountOfFiveDigitsCanBeRead) {
    for (const QSize size : {QSize(712, 626), QSize(1100, 760), QSize(1920, 1080)}) {
        start(size);
        open();
        for (const QString& prefix : {u"LabCom"_s, u"LabSuma"_s})
            for (const char* column :
                 {"NumRegTotal", "NumRegNuevos", "NumRegEliminados", "NumRegSeleccion", "NumRegSeleccion1", "Orden"}) {
                const auto& figure = hands->get<QLabel>(prefix + QString::fromLatin1(column));
                EXPECT_LE(figure.fontMetrics().horizontalAdvance(u"88888"_s) * 1.1, figure.contentsRect().width())
                    << column << ' ' << size.width();
            }
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
    for (const Row& r : Rows14) EXPECT_EQ(row(r.prefix), remembered(r.kind, QString::number(memory(r.kind).Posicion)));
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

// The last 32-bit number is still told, by a product and by the sum of a column; one more is an error.
TEST_F(ReportTest, sumsBeyond32BitsAreAnOverflow) {
    QList<int> errors;
    const auto before = setFatalErrorHandler([&errors](const RuntimeError& error) { errors += error.number(); });
    const auto read = [&](qint32 recordings, qint32 works, qint32 stations) {
        start();
        errors.clear();
        memory(Kind::Grabacion).Cont = recordings;
        memory(Kind::Obra).ContNew = works;
        memory(Kind::Emisora).ContNew = stations;
        hands->go(ReportNumber);
    };
    read(55'063'683, 2'147'483'646, 1); // x 39 is 10 short of the last 32-bit number
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(hands->text(u"LabRxCNumRegTotal"_s), u"2147483637"_s);
    EXPECT_EQ(hands->text(u"LabSumaNumRegNuevos"_s), u"2147483647"_s);
    read(55'063'684, 0, 0);
    EXPECT_EQ(errors, QList<int>{6});
    read(0, 2'147'483'647, 1);
    EXPECT_EQ(errors, QList<int>{6});
    setFatalErrorHandler(before);
}

} // namespace
} // namespace zv::test
