// Any work on the screens leaves the report in agreement with the working memory, and both with what a person would
// count: the rows of the file, and the adds, removals, filters and ticks of the run.
#include "report/report_desk.h"
#include "store/current_selection.h"
#include <random>

namespace zv::test {
namespace {

using shell::Function;

struct Walker {
    Kind kind;
    QString box, column, caption; ///< of the identifier
    QString furtherBox = {};      ///< of a second identifier
};

const Walker Walkers[] = {
    {Kind::Compositor, u"TxtApellidos"_s, u"Apellidos"_s, u"Surname"_s},
    {Kind::Obra, u"TxtNombre"_s, u"Nombre"_s, u"Work"_s, u"TxtAutor"_s},
    {Kind::Agrupacion, u"TxtEntidad"_s, u"Entidad"_s, u"Entity"_s},
    {Kind::Internet, u"TxtTitulo"_s, u"Titulo"_s, u"Title"_s},
};
const QStringList Names{u"Sol"_s, u"Mora"_s, u"Moral"_s, u"Vega"_s};

/// What was done to a kind.
struct Count {
    int added = 0, removed = 0, selected = 0, filters = 0, ticks = 0;
    int shown = 0;  ///< rows that its channel holds
    int hidden = 0; ///< rows that the total no longer tells
};

class RandomWalk : public ReportDesk, public ::testing::WithParamInterface<unsigned> {
  protected:
    int random(int below) { return std::uniform_int_distribution(0, below - 1)(generator_); }
    template <class List>
    const auto& any(const List& list) {
        return list[static_cast<std::size_t>(random(static_cast<int>(std::size(list))))];
    }
    int rows(Kind kind) { return static_cast<int>(stored(store::info(kind).table.toString(), u"1"_s).size()); }
    int total(Kind kind) { return rows(kind) - counts_[kind].hidden; }
    void go(Kind kind, Function function) {
        const store::KindInfo& info = store::info(kind);
        hands->go(shell::screenNumber(info.form, function, info.tab));
    }

    void addOne(const Walker& of) {
        go(of.kind, Function::Add);
        if (!of.furtherBox.isEmpty()) hands->type(of.furtherBox, u"Anon"_s);
        add(of.box, any(Names));
        countAdd(of.kind);
    }
    /// A new record ends the selection; one in three is undone.
    void countAdd(Kind kind) {
        const bool undone = random(3) == 0;
        if (undone) hands->click(u"BtnDeshacer"_s);
        Count& count = counts_[kind];
        count.added += undone ? 0 : 1;
        count.filters = 0;
        count.shown = rows(kind);
        count.selected = total(kind);
    }
    /// Stands on any record that is shown; false if there is none.
    bool stand(Kind kind) {
        go(kind, Function::ShowEdit);
        if (counts_[kind].shown == 0) return false;
        hands->type(u"TxtOrden"_s, QString::number(1 + random(counts_[kind].shown)));
        return true;
    }
    void removeOne(Kind kind) {
        if (!stand(kind)) return;
        if (store::info(kind).partOfRecording)
            boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
        hands->click(u"BtnEliminar"_s);
        hands->click(u"BtnGuardar"_s);
        Count& count = counts_[kind];
        ++count.removed;
        count.selected = --count.shown;
        if (count.shown == 0) count.hidden = rows(kind); // a filter's last row counts as the table's
    }
    void modifyOne(Kind kind) {
        if (!stand(kind)) return;
        hands->click(u"BtnModificar"_s);
        hands->paste(u"TxtNotas"_s, u"Changed."_s);
        hands->click(random(2) ? u"BtnGuardar"_s : u"BtnDeshacer"_s);
    }
    void selectAll(Kind kind) {
        go(kind, Function::Select);
        hands->click(u"BtnTodo"_s);
        hands->click(u"BtnAceptar"_s);
        counts_[kind].filters = 0;
        counts_[kind].selected = counts_[kind].shown = rows(kind);
    }
    void select(const Walker& of) {
        go(of.kind, Function::Select);
        hands->click(u"BtnNueva"_s);
        QString condition;
        const int filters = 1 + random(3);
        for (int i = 0; i < filters; ++i) {
            const QString name = any(Names);
            const bool same = random(2);
            if (i > 0) {
                const bool all = random(2);
                hands->click(all ? u"BtnY"_s : u"BtnO"_s);
                condition = u'(' + condition + (all ? u") AND "_s : u") OR "_s);
            }
            hands->choose(u"ComboCampo"_s, of.caption);
            hands->choose(u"ComboCriterio"_s, same ? u"Same as"_s : u"Contains"_s);
            hands->type(u"TxtValFiltro"_s, name);
            hands->click(u"BtnAnadir"_s);
            condition += of.column + (same ? u"='%1'"_s : u" LIKE '%%1%'"_s).arg(name);
        }
        hands->click(u"BtnAceptar"_s);
        const QString table = store::info(of.kind).table.toString();
        Count& count = counts_[of.kind];
        count.filters = filters;
        count.selected = count.shown = static_cast<int>(stored(table + u" WHERE "_s + condition, u"1"_s).size());
    }
    void list(Kind kind) {
        go(kind, Function::ListPrint);
        QStringList ticks;
        for (const store::Field& field : store::info(kind).fields)
            if (!field.listed.isEmpty() && random(2)) ticks += field.listed.toString();
        hands->tick(ticks);
        hands->click(u"BtnListar"_s);
        counts_[kind].ticks = counts_[kind].shown == 0 ? 0 : static_cast<int>(ticks.size());
    }

    /// One visit to the recordings. It closes the selection of the composers; the editors also give the channels of
    /// all parts their whole tables.
    void recording() {
        const store::CurrentSelection standing(program->store);
        if (!standing.isClear()) {
            boxes.expect(standing.question(), box::OkCancel);
            Count& composers = counts_[Kind::Compositor];
            composers.selected = total(Kind::Compositor);
            composers.filters = 0;
            composers.shown = rows(Kind::Compositor);
        }
        bool editor = true;
        switch (random(3)) {
        case 0:
            go(Kind::Grabacion, Function::Add);
            hands->click(u"LabSoporte"_s);
            save();
            countAdd(Kind::Grabacion);
            break;
        case 1: removeOne(Kind::Grabacion); break;
        default: selectAll(Kind::Grabacion); editor = false;
        }
        for (const Kind part : {Kind::Compositor, Kind::Obra})
            if (editor) counts_[part].shown = rows(part);
        check();
        go(Kind::Compositor, Function::Add); // the way to other screens does not lead over the recordings again
    }

    void check() {
        open();
        qint64 sums[8] = {}, products_[3] = {};
        for (const Row& r : Rows14) {
            const Count& count = counts_[r.kind];
            const int all = total(r.kind);
            const qint32 position = memory(r.kind).Posicion;
            const int order = position >= 2 ? position : count.shown != 0 ? 1 : 0;
            const int figures[] = {all,           count.added,    count.removed, count.selected,
                                   count.filters, count.selected, count.filters, count.ticks};
            QString told;
            for (std::size_t i = 0; i < std::size(figures); ++i) {
                told += QString::number(figures[i]) + u' ';
                sums[i] += figures[i];
            }
            EXPECT_EQ(row(r.prefix), told + QString::number(order)) << r.prefix.toStdString();
            EXPECT_EQ(row(r.prefix), remembered(r.kind, QString::number(order))) << r.prefix.toStdString();
            products_[0] += qint64(all) * r.fields;
            products_[1] += qint64(count.selected) * r.fields;
            products_[2] += qint64(count.selected) * count.ticks;
        }
        QString told;
        for (const qint64 sum : sums) told += QString::number(sum) + u' ';
        EXPECT_EQ(row(u"LabSuma"_s), told + u'-');
        EXPECT_EQ(products(), u"%1 %2 %3"_s.arg(products_[0]).arg(products_[1]).arg(products_[2]));
    }

    std::mt19937 generator_{GetParam()};
    std::map<Kind, Count> counts_;
};

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, ::testing::Range(1u, 4u));

TEST_P(RandomWalk, theReportAgreesWithMemoryAndFile) {
    put({u"Compositor"_s, u"Apellidos"_s, {u"'Vega'"_s, u"'Mora'"_s, u"'Vega'"_s, u"'Sol'"_s}});
    put({u"Soporte"_s, u"Discografica, NumeroCatalogo"_s, {u"'Blau', '1'"_s, u"'Blau', '2'"_s}});
    put({u"Agrupacion"_s, u"Entidad"_s, {u"'Sol'"_s, u"'Moral'"_s}});
    start();
    for (const Row& r : Rows14) counts_[r.kind].selected = counts_[r.kind].shown = rows(r.kind);
    check();
    for (int step = 1; step <= 60 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        const Walker& of = any(Walkers);
        switch (random(8)) {
        case 0:
        case 1: addOne(of); break;
        case 2:
        case 3: removeOne(of.kind); break;
        case 4: select(of); break;
        case 5: random(3) ? list(of.kind) : selectAll(of.kind); break;
        case 6: modifyOne(of.kind); break;
        default: recording(); break;
        }
        if (step % 4 == 0) check();
    }
}

} // namespace
} // namespace zv::test
