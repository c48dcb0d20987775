// A catalogue that comes into being on the screens alone: parts are entered, recordings composed by trips to them,
// undone, walked, changed, removed, filtered, listed and printed. A model keeps what was entered; the file, the working
// memory, the list and the paper are held against it.
#include "editors/recording_desk.h"
#include <QTest>

namespace zv::test {
namespace {

/// What is typed for a field of every record of a kind: "|" parts what the records take in turn, "#" stands for the
/// number of the record. Without a control it is what the program has to store by itself, to the letter.
struct Entry {
    QString column, control, text;
};

/// The records of a kind of part that are entered, their fields in the order of the table.
struct Plan {
    int count;
    QString key;
    std::vector<Entry> entries;
};

const Plan Plans[] = {
    {3,
     u"Id"_s,
     {{u"Nombre"_s, u"TxtNombre"_s, u"Clara|Ana María|"_s},
      {u"Apellidos"_s, u"TxtApellidos"_s, u"Composer #"_s},
      {u"Fecha1"_s, u"TxtFecha1"_s, u"168#||1701"_s},
      {u"Fecha2"_s, u"TxtFecha2"_s, u"|176#"_s},
      {u"Notas"_s, u"TxtNotas"_s, u"|of composer #"_s},
      {u"Imagen"_s, u"Imagen"_s, u"face.bmp|"_s}}},
    {6,
     u"Id"_s,
     {{u"Nombre"_s, u"TxtNombre"_s, u"Work #|Suite # 'á'"_s},
      {u"Numero"_s, u"TxtNumero"_s, u"#|"_s},
      {u"Tonalidad"_s, u"TxtTonalidad"_s, u"C major|B flat|"_s},
      {u"Opus"_s, u"TxtOpus"_s, u"|op. #"_s},
      {u"NumeroOpus"_s, u"TxtNumeroOpus"_s, u"|n#"_s},
      {u"Catalogo"_s, u"TxtCatalogo"_s, u"K|"_s},
      {u"NumeroCatalogo"_s, u"TxtNumeroCatalogo"_s, u"55#|"_s},
      {u"Fecha1"_s, u"TxtFecha1"_s, u"172#|"_s},
      {u"Fecha2"_s, u"TxtFecha2"_s, u"||173#"_s},
      {u"Subtitulo"_s, u"TxtSubtitulo"_s, u"|in the manner of #"_s},
      {u"Movimientos"_s, {}, u"#|Allegro#|Adagio#Rondo#"_s},
      {u"TiempoMovimientos"_s, {}, u"#| 305#| 3723# 60#"_s},
      {u"TiempoTotal"_s, {}, u"0|305|3783"_s},
      {u"NumeroMovimientos"_s, {}, u"0|1|2"_s},
      {u"Notas"_s, u"TxtNotas"_s, u"|of work #"_s},
      {u"Autor"_s, u"TxtAutor"_s, u"Author #"_s},
      {u"Imagen"_s, {}, {}}}},
    {12,
     u"IdOrquesta"_s,
     {{u"OrqGrpCor"_s, {}, u"1|2|3"_s},
      {u"Nombre"_s, u"TxtNombreOrquesta|TxtNombreGrupo|TxtNombreCoro"_s, u"Orchestra #|Ensemble #|Choir #"_s},
      {u"Genero"_s, u"TxtGenero"_s, u"classical|"_s},
      {u"Fecha"_s, u"TxtFecha"_s, u"|19#"_s},
      {u"Notas"_s, u"TxtNotas"_s, u"|||of group #"_s},
      {u"Imagen"_s, {}, {}}}},
    {12,
     u"IdDirector"_s,
     {{u"Nombre"_s, u"TxtNombre"_s, u"Leo|Kim|"_s},
      {u"Apellidos"_s, u"TxtApellidos"_s, u"Maestro #"_s},
      {u"Fecha1"_s, u"TxtFecha1"_s, u"19#|"_s},
      {u"Fecha2"_s, u"TxtFecha2"_s, {}},
      {u"Notas"_s, u"TxtNotas"_s, {}},
      {u"Imagen"_s, u"Imagen"_s, u"face.bmp||"_s}}},
    {104,
     u"IdInterprete"_s,
     {{u"Nombre"_s, u"TxtNombre"_s, u"Ida|Max|"_s},
      {u"Apellidos"_s, u"TxtApellidos"_s, u"Soloist #"_s},
      {u"Instrumento"_s, u"TxtInstrumento"_s, u"viola|alto||oboe"_s},
      {u"Fecha1"_s, u"TxtFecha1"_s, u"1#|"_s},
      {u"Fecha2"_s, u"TxtFecha2"_s, {}},
      {u"Notas"_s, u"TxtNotas"_s, {}},
      {u"Imagen"_s, {}, {}}}},
    {4,
     u"Id"_s,
     {{u"Discografica"_s, u"TxtDiscografica"_s, u"Label #"_s},
      {u"NumeroCatalogo"_s, u"TxtNumeroCatalogo"_s, u"LP-#"_s},
      {u"Coleccion"_s, u"TxtColeccion"_s, u"Series #|"_s},
      {u"NumeroReferencia"_s, u"TxtNumeroColeccion"_s, u"|R #"_s},
      {u"Formato"_s, u"TxtFormato"_s, u"CD|LP|tape"_s},
      {u"Grabacion"_s, u"TxtGrabacion"_s, u"studio|live"_s},
      {u"Recopilacion"_s, u"TxtRecopilacion"_s, u"199#|"_s},
      {u"Edicion"_s, u"TxtEdicion"_s, u"|200#"_s},
      {u"Notas"_s, u"TxtNotas"_s, u"of format #"_s},
      {u"Emplazamiento"_s, u"TxtEmplazamiento"_s, u"shelf #|"_s},
      {u"Imagen"_s, u"Imagen"_s, u"cover.bmp|"_s}}},
};

constexpr Part Singles[] = {Composer, Work, Format}, Groups[] = {Conductor, Orchestra, Performer};

/// The kinds of which nothing is entered.
const QString Others[] = {u"Instrumento"_s, u"Agrupacion"_s, u"Evento"_s,  u"Escenario"_s,
                          u"Publicacion"_s, u"Emisora"_s,    u"Internet"_s};

const QString MovementBoxes[] = {u"TxtMovimiento"_s, u"TxtHoras"_s, u"TxtMinutos"_s, u"TxtSegundos"_s};

/// The movements of the works in turn, as they are typed: name, hours, minutes, seconds.
const std::vector<QStringList> Movements[] = {
    {}, {{u"Allegro"_s, {}, u"5"_s, u"05"_s}}, {{u"Adagio"_s, u"1"_s, u"2"_s, u"3"_s}, {u"Rondo"_s, {}, u"1"_s, {}}}};

/// The same as they are listed, a movement each: name, time.
const std::vector<QStringList> ListedMovements[] = {
    {}, {{u"Allegro"_s, u"0:5:5"_s}}, {{u"Adagio"_s, u"1:2:3"_s}, {u"Rondo"_s, u"0:1:0"_s}}};
const QString ListedTotals[] = {u"00:00:00"_s, u"00:05:05"_s, u"01:03:03"_s};

/// What the list offers of each table, in its order.
const std::pair<Part, QString> Listed[] = {
    {Composer, u"COM Name=Nombre|COM Surname=Apellidos|COM Date 1=Fecha1|COM Date 2=Fecha2"_s},
    {Work, u"WOR Work=Nombre|WOR No.=Numero|WOR Tonality=Tonalidad|WOR Opus=Opus|WOR Opus No.=NumeroOpus|"
           "WOR Catalogue=Catalogo|WOR Catalogue No.=NumeroCatalogo|WOR Date 1=Fecha1|WOR Date 2=Fecha2|"
           "WOR Subtitle=Subtitulo|WOR Movements=Movimientos|WOR Total Time=TiempoTotal|"
           "WOR No. of  Mov=NumeroMovimientos"_s},
    {Orchestra, u"ORC Orc-Ens-Cho=Nombre"_s},
    {Conductor, u"CON Name=Nombre|CON Surname=Apellidos"_s},
    {Performer, u"PER Name=Nombre|PER Surname=Apellidos|PER Ins-Voice=Instrumento"_s},
    {Format, u"FOR Rec Company=Discografica|FOR Catalogue No.=NumeroCatalogo|FOR Collection=Coleccion|"
             "FOR No.-Reference=NumeroReferencia|FOR Format=Formato|FOR Recording=Grabacion|FOR ( P )=Recopilacion|"
             "FOR ( C )=Edicion|FOR Location=Emplazamiento"_s},
};

/// What a record takes of texts in turn.
QString inTurn(const QString& texts, int record) {
    const QStringList turns = texts.split(u'|');
    return turns[(record - 1) % turns.size()];
}

class RecordingWhole : public RecordingDesk {
  protected:
    // The model.

    QMap<int, Recording> model; ///< by keys
    QList<int> written;         ///< keys in the order in which the links were written
    int lastKey = 0;
    int position[6] = {1, 1, 1, 1, 1, 1}; ///< where the walk of each kind of part stands
    struct {
        int position = 1, selected = 0, removed = 0, added = 0, filters = 0;
    } counted; ///< of the recordings

    static bool isGroup(Part part) { return part == Conductor || part == Orchestra || part == Performer; }
    static QList<int>& group(Recording& of, Part part) {
        return part == Conductor ? of.conductors : part == Orchestra ? of.orchestras : of.performers;
    }
    static int& single(Recording& of, Part part) {
        return part == Composer ? of.composer : part == Work ? of.work : of.format;
    }
    /// What was entered into a field; what the file has to hold, if stored.
    QString value(Part part, int record, const QString& column, bool stored = false) {
        for (const Entry& entry : Plans[part].entries) {
            if (entry.column != column) continue;
            QString text = inTurn(entry.text, record);
            if (!entry.control.isEmpty()) text.replace(u'#', QString::number(record));
            if (entry.control == u"Imagen" && !text.isEmpty()) text = folder_.filePath(text);
            return stored && text.isEmpty() && column.startsWith(u"Fecha"_s) ? u"0"_s : text;
        }
        ADD_FAILURE() << column.toStdString();
        return {};
    }
    QString memberText(Part part, int record) {
        QString text = value(part, record, u"Nombre"_s);
        if (part != Orchestra) text += u' ' + value(part, record, u"Apellidos"_s);
        return part == Performer ? text + u", "_s + value(part, record, u"Instrumento"_s) : text;
    }

    // The screens.

    void enterParts(Part part) {
        hands->go(1 + part);
        for (int record = 1; record <= Plans[part].count; ++record) {
            for (const Entry& entry : Plans[part].entries) {
                const QString control = inTurn(entry.control, record), text = value(part, record, entry.column);
                if (control.isEmpty() || text.isEmpty()) continue;
                if (control == u"Imagen"_s) {
                    files.choose(text);
                    hands->doubleClick(control);
                } else {
                    hands->type(control, text);
                }
            }
            if (part == Work)
                for (const QStringList& movement : Movements[(record - 1) % 3]) {
                    for (qsizetype i = 0; i < movement.size(); ++i)
                        if (!movement[i].isEmpty()) hands->type(MovementBoxes[i], movement[i]);
                    hands->click(u"BtnAMList"_s);
                }
            save();
        }
    }
    void standAt(Part part, int record) {
        walk(record);
        position[part] = record;
    }
    /// On a trip, adds records to the group on display.
    void gatherAll(Part part, const QList<int>& records) {
        const int limit = part == Performer ? 100 : 10;
        const QString full = part == Performer   ? u"100 Performers Maximum."_s
                             : part == Conductor ? u"10 Conductors Maximum."_s
                                                 : u"10 Orchestras-Ensembles-Choirs Maximum."_s;
        auto& grid = hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s);
        for (const int record : records) {
            standAt(part, record);
            if (grid.Rows() == limit - 1) boxes.expect(full, box::Warning);
            hands->click(u"BtnAñadirGrupo"_s);
        }
    }
    /// Composes a recording on the Add screen and saves it.
    void compose(Recording recording) {
        hands->go(Add);
        for (const Part part : {Performer, Format, Conductor, Composer, Orchestra, Work}) {
            const bool of = isGroup(part);
            if (of ? group(recording, part).isEmpty() : single(recording, part) < 0) continue;
            trip(part);
            if (of)
                gatherAll(part, group(recording, part));
            else
                standAt(part, single(recording, part));
            back();
            heading(part);
        }
        hands->type(u"TxtNotas"_s, recording.notes);
        save();
        model[++lastKey] = recording;
        written += lastKey;
        ++counted.added;
        counted.selected = int(model.size());
    }
    void forget(int key) {
        model.remove(key);
        written.removeAll(key);
    }

    // What is seen.

    void expectFile() {
        for (const Part part : {Composer, Work, Orchestra, Conductor, Performer, Format}) {
            QStringList columns{Plans[part].key}, rows;
            for (const Entry& entry : Plans[part].entries) columns += entry.column;
            for (int record = 1; record <= Plans[part].count; ++record) {
                QStringList cells{QString::number(record)};
                for (const Entry& entry : Plans[part].entries) cells += value(part, record, entry.column, true);
                rows += cells.join(u'|').replace(u'\n', u"\r\n"_s);
            }
            EXPECT_EQ(stored(name(part), columns.join(u", "_s)), rows) << name(part).toStdString();
        }
        QStringList recordings;
        for (const auto& [key, of] : model.asKeyValueRange())
            recordings += u"%1|%2|%3|%4|"_s.arg(key).arg(of.composer).arg(of.work).arg(of.format) +
                          QString(of.notes).replace(u'\n', u"\r\n"_s);
        EXPECT_EQ(rows(), recordings);
        for (const Part part : Groups) {
            QStringList links;
            for (const int key : written)
                for (const int member : group(model[key], part)) links += u"%1|%2"_s.arg(key).arg(member);
            EXPECT_EQ(stored(u"Relacion"_s + name(part), u"IdGrabacion, Id"_s + name(part)), links);
        }
        for (const QString& other : Others) EXPECT_EQ(stored(other, u"*"_s), QStringList()) << other.toStdString();
    }
    void expectCounters() {
        QStringList expected, seen;
        // Total, position, selected, removed, added, filters.
        const auto of = [&expected](const QString& kind, const std::array<int, 6>& figures) {
            const QStringList variables{u"Cont"_s,    u"Posicion"_s, u"ContSel"_s,
                                        u"ContEli"_s, u"ContNew"_s,  u"ContFil"_s};
            for (std::size_t i = 0; i < figures.size(); ++i)
                expected += variables[qsizetype(i)] + kind + u" = "_s + QString::number(figures[i]);
        };
        for (const Part part : {Composer, Work, Conductor, Orchestra, Format, Performer}) {
            const int total = Plans[part].count;
            of(name(part), {total, position[part], total, 0, counted.added ? total : 0, 0});
        }
        of(u"Grabacion"_s,
           {int(model.size()), counted.position, counted.selected, counted.removed, counted.added, counted.filters});
        for (const QString& other : Others) of(other, {0, 1, 0, 0, 0, 0});
        for (const QString& line : program->store.memory.dump().split(u'\n'))
            if (line.startsWith(u"Cont"_s) || line.startsWith(u"Posicion"_s)) seen += line;
        EXPECT_EQ(seen, expected);
    }
    void expectShown(int key) {
        SCOPED_TRACE(key);
        Recording& of = model[key];
        for (const Part part : Singles)
            for (const Entry& entry : Plans[part].entries) {
                if (entry.control.isEmpty() || QStringList{u"Imagen"_s, u"Notas"_s, u"Autor"_s}.contains(entry.column))
                    continue;
                const int record = single(of, part);
                const QString label = entry.column == u"NumeroReferencia"_s ? u"LabSoporteNumeroColeccion"_s
                                                                            : u"Lab"_s + name(part) + entry.column;
                EXPECT_EQ(hands->text(label), record < 0 ? QString() : value(part, record, entry.column))
                    << label.toStdString();
            }
        for (const Part part : Groups) {
            QList<int> members = group(of, part);
            std::ranges::sort(members);
            QStringList texts;
            for (const int member : members) texts += memberText(part, member);
            EXPECT_EQ(listed(part), texts.join(u'|'));
        }
        const std::vector<QStringList> movements =
            of.work < 0 ? std::vector<QStringList>() : Movements[(of.work - 1) % 3];
        auto& grid = hands->get<forms::FlexGrid>(u"FlexMovimientos"_s);
        EXPECT_EQ(grid.Rows(), int(movements.size()));
        for (int row = 0; row < grid.Rows(); ++row) EXPECT_EQ(grid.TextMatrix(row, 0), movements[std::size_t(row)][0]);
        EXPECT_EQ(hands->text(u"LabObraTotal"_s),
                  movements.empty() ? QString() : ListedTotals[std::size_t(of.work - 1) % 3]);
        EXPECT_EQ(hands->text(u"TxtNotas"_s), QString(of.notes).replace(u'\n', u"\r\n"_s));
        EXPECT_EQ(pictureOf(Format).startsWith(u"file"_s), !value(Format, of.format, u"Imagen"_s).isEmpty());
    }
    void walkToEach() {
        hands->go(ShowEdit);
        for (const int key : model.keys()) {
            counted.position = int(model.keys().indexOf(key)) + 1;
            walk(counted.position);
            expectShown(key);
        }
    }

    /// A value of a recording as the list or the paper has it; the members of a group are joined.
    QString cell(Recording& of, Part part, const QString& column, bool paper) {
        if (isGroup(part)) {
            QStringList lines;
            for (const int member : group(of, part)) lines += value(part, member, column);
            return lines.join(u'\n');
        }
        const int record = single(of, part);
        if (record < 0) return {};
        const std::size_t turn = std::size_t(record - 1) % 3;
        if (column == u"TiempoTotal"_s) return paper && turn == 0 ? QString() : ListedTotals[turn];
        if (column == u"NumeroMovimientos"_s && paper && turn == 0) return {};
        if (column != u"Movimientos"_s) return value(part, record, column);
        QStringList lines;
        for (const QStringList& movement : ListedMovements[turn]) lines += movement.join(paper ? u"  "_s : u"   "_s);
        return lines.join(paper ? u" * "_s : u"\n"_s);
    }
    QStringList row(Recording& of, bool paper) {
        QStringList cells;
        for (const auto& [part, items] : Listed) {
            if (paper && isGroup(part)) {
                QStringList members;
                for (const int member : group(of, part)) members += memberText(part, member);
                cells += members.join(u" * "_s);
                continue;
            }
            for (const QString& item : items.split(u'|')) cells += cell(of, part, item.section(u'=', 1), paper);
        }
        return cells + QStringList(of.notes);
    }
    static QStringList items() {
        QStringList captions;
        for (const auto& [part, items] : Listed)
            for (const QString& item : items.split(u'|')) captions += item.section(u'=', 0, 0);
        return captions + QStringList(u"REC Notes"_s);
    }
    /// Lists recordings with all that is on offer and prints them.
    void expectListed(const QList<int>& keys, const QString& filter) {
        hands->go(28);
        hands->tickAll();
        EXPECT_EQ(hands->text(u"LabNumRegSeleccion"_s), QString::number(keys.size()));
        hands->click(u"BtnListar"_s);
        QTest::keyClick(&hands->get<forms::ScrollBar>(u"HScroll"_s), Qt::Key_Home); // the smallest rows, on one page
        QString page = u"No.|"_s + items().join(u'|') + u'\n', paper;
        int number = 0, covers = 0;
        for (const int key : keys) {
            Recording& of = model[key];
            page += QString::number(++number) + u'|' + row(of, false).join(u'|') + u'\n';
            paper += u"%1- /"_s.arg(number);
            for (const QString& text : row(of, true)) paper += u"  "_s + (text.isEmpty() ? u"-"_s : text) + u"  /"_s;
            paper += u' ';
            covers += !value(Format, of.format, u"Imagen"_s).isEmpty();
        }
        EXPECT_EQ(hands->page().remove(u'\r'), page);

        const qsizetype before = printers.printer.operations().size();
        printers.printer.characterWidth = 2;
        hands->click(u"BtnImprimir"_s);
        QString printed;
        for (const QString& operation : printers.printer.operations().mid(before)) {
            if (operation.startsWith(u"picture"_s)) --covers;
            if (operation.startsWith(u"text"_s)) printed += operation.section(u'\'', 1).chopped(1) + u' ';
        }
        EXPECT_EQ(covers, 0);
        EXPECT_EQ(printers.printer.page(), 1);
        const QString head = u"- Zarvelia - - 1 - 'Recording' Selection: / %1 R / 39 F / %2 Fl / %3Order: / FIELD / "
                             "Histórical / Print: ( 34 F ) / FOR Image / %4 / "_s;
        const QString told = filter.isEmpty() ? QString() : u"Filters: / "_s + filter + u" / "_s;
        EXPECT_EQ(printed.simplified(),
                  (head.arg(keys.size()).arg(counted.filters).arg(told, items().join(u" / "_s)) + paper).simplified());
    }
};

TEST_F(RecordingWhole, whatIsEnteredIsStoredShownListedAndPrinted) {
    picture(u"face.bmp"_s, {40, 60});
    picture(u"cover.bmp"_s, {50, 50});
    start();
    for (const Part part : {Composer, Work, Orchestra, Conductor, Performer, Format}) enterParts(part);
    expectFile();

    // Five recordings with full groups, each gathered in an order of its own, and one of a format alone.
    const auto members = [](int count, int of, int first, int step) {
        QList<int> keys;
        for (int i = 0; i < count; ++i) keys += (first + step * i) % of + 1;
        return keys;
    };
    for (int i = 1; i <= 5; ++i) {
        const Recording recording{i % 3 + 1,
                                  i,
                                  i % 4 + 1,
                                  members(10, 12, i, 5),
                                  members(10, 12, 2 * i, 7),
                                  members(100, 104, 11 * i, 3),
                                  u"taken 19%1\nof recording %2"_s.arg(60 + i).arg(i)};
        compose(recording);
        if (i != 3) continue;
        hands->click(u"BtnDeshacer"_s);
        forget(lastKey);
        --counted.added;
        expectFile();
        compose(recording);
    }
    compose({.format = 2, .notes = u"a format alone"_s});
    EXPECT_EQ(hands->text(u"LabNumRegTotal"_s), u"6"_s);
    expectFile();
    expectCounters();

    walkToEach();
    walk(2);
    hands->click(u"BtnModificar"_s);
    trip(Work);
    standAt(Work, 6);
    back();
    trip(Conductor);
    for (int i = 0; i < 10; ++i) hands->click(u"BtnEliminarGrupo"_s);
    gatherAll(Conductor, {12, 1, 7});
    back();
    hands->type(u"TxtNotas"_s, u"changed"_s);
    hands->click(u"BtnGuardar"_s);
    Recording& changed = model[2];
    changed.work = 6;
    changed.conductors = {1, 7, 12};
    changed.notes = u"changed"_s;
    // It was shown in the order of the tables, and so it is written.
    std::ranges::sort(changed.orchestras);
    std::ranges::sort(changed.performers);
    written.removeAll(2);
    written += 2;
    expectFile();
    expectShown(2);
    walk(4);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    forget(5); // the third key went with what was undone
    ++counted.removed;
    counted.selected = 5;
    counted.position = 3;
    expectShown(4);
    expectFile();
    expectCounters();
    expectListed(model.keys(), {});

    // Two recordings have this composer, several this performer, one has both.
    hands->go(14);
    hands->click(u"BtnNueva"_s);
    for (const auto& [field, value] :
         {std::pair{u"COM Surname"_s, u"Composer 3"_s}, std::pair{u"PER Surname"_s, u"Soloist 11"_s}}) {
        if (field.startsWith(u"PER"_s)) hands->click(u"BtnY"_s);
        hands->choose(u"ComboCampo"_s, field);
        hands->choose(u"ComboCriterio"_s, u"Same as"_s);
        hands->type(u"TxtValFiltro"_s, value);
        hands->click(u"BtnAnadir"_s);
    }
    hands->click(u"BtnAceptar"_s);
    QList<int> found;
    for (const auto& [key, of] : model.asKeyValueRange())
        if (of.composer == 3 && of.performers.contains(11)) found += key;
    ASSERT_EQ(found, QList<int>{6});
    counted.selected = 1;
    counted.filters = 2;
    counted.position = 1;
    expectListed(found, u"(COM Surname Same as 'Composer 3' AND PER Surname Same as 'Soloist 11')"_s);
    expectCounters();

    // The next start finds it as it was.
    close();
    start();
    std::ranges::fill(position, 1);
    counted = {.selected = 5};
    expectCounters();
    walkToEach();
    expectFile();
}

} // namespace
} // namespace zv::test
