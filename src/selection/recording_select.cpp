#include "selection/recording_select.h"

#include "platform/base/text.h"
#include "store/current_selection.h"
#include "store/recording_parts.h"
#include <algorithm>

namespace zv::selection {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

/// How the WHERE text on a table becomes keys of the recordings.
struct Resolution {
    Kind kind;
    QStringView keyTerm; ///< column of the recording, or of the link, that holds the key
    /// For a group: the column of the link with the recording's key, as the statement on recordings names it.
    QStringView recordingTerm = {};
    bool bare = false; ///< that list stands without parentheses
};

/// In the order in which the tables are asked.
constexpr Resolution Resolutions[] = {
    {Kind::Compositor, u"IdCompositor="},
    {Kind::Obra, u"IdObra="},
    {Kind::Director, u"IdDirector=", u"IDGrabacion=", true},
    {Kind::Orquesta, u"IdOrquesta=", u"IDGrabacion=", true},
    {Kind::Soporte, u"IdSoporte="},
    {Kind::Interprete, u"IdInterprete=", u"IDGrabacion ="},
};

/// In the order in which their lists are joined.
constexpr Kind Joined[] = {Kind::Compositor, Kind::Obra,     Kind::Interprete,
                           Kind::Soporte,    Kind::Director, Kind::Orquesta};

/// A condition that no recording meets.
constexpr QStringView NoRecording = u"IdGrabacion=-1";

void parenthesize(QString& clause) {
    if (!clause.isEmpty()) clause = u'(' + clause + u')';
}

} // namespace

FormReg1SelGrabacion::FormReg1SelGrabacion(shell::Context& context, QWidget* parent, const QString& name)
    : SelectScreen(context, parent, name, store::info(Kind::Grabacion)) {}

void FormReg1SelGrabacion::Carga() {
    if (check_.passes(context(), *this)) SelectScreen::Carga();
}

std::vector<store::FieldRow> FormReg1SelGrabacion::offeredFields() const {
    std::vector<store::FieldRow> rows;
    for (const store::RecordingItem& item : store::RecordingItems)
        if (!item.filtered.isEmpty())
            rows.push_back({item.filtered.toString(), item.column.toString(), item.isNumber()});
    return rows;
}

void FormReg1SelGrabacion::extendStatement() {
    const Kind source = store::RecordingItems[ComboCampo->ListIndex()].source;
    if (source != Kind::Grabacion)
        clause(source) = extended(clause(source), term());
    else // The last filter on the notes is the only one; its column's name carries a blank of its own.
        OpcionSQLNotas = Campo + u' ' + term().mid(Campo.size());
}

void FormReg1SelGrabacion::rememberStatement() {
    auto& remembered = memory().MemoSel.Opciones;
    for (std::size_t i = 0; i < kind().clauses.size(); ++i) remembered[i] = OpcionSQLGrabacion;
    for (const Resolution& table : Resolutions) {
        const auto& names = kind().clauses;
        const auto at = std::find(names.begin(), names.end(), store::info(table.kind).table) - names.begin();
        remembered[static_cast<std::size_t>(at)] = clause(table.kind);
    }
}

void FormReg1SelGrabacion::beginStatement() {
    clauses_.fill({});
    OpcionSQLNotas.clear();
    OpcionSQLGrabacion.clear();
}

void FormReg1SelGrabacion::chooseAll() {
    OpcionSQLGrabacion = AllRecords;
    memory().MemoSel.Lista = u"#"_s;
}

void FormReg1SelGrabacion::clearStatement() {
    for (QString* text : {&Campo, &Criterio, &Valor, &Operador, &EtiquetaOperador, &ValorFiltro}) text->clear();
    beginStatement();
}

void FormReg1SelGrabacion::accept() {
    Data().RecordSource = kind().selectAll();
    Data().Refresh();
    if (OpcionSQLGrabacion == AllRecords) {
        Data().RecordSource = kind().selectAll();
        // The list of the composers' filters, not of these.
        store().memory.of(Kind::Compositor).MemoSel.Lista = u"#"_s;
    } else {
        selectByClauses();
    }
    showAccepted();
    finishAccepted();
}

// A table whose filter finds nothing drops out, and the selection is the wider for it. If none is left, there is none.
void FormReg1SelGrabacion::selectByClauses() {
    for (const Resolution& table : Resolutions) resolve(table.kind);
    parenthesize(OpcionSQLNotas);
    for (const Kind joined : Joined) {
        if (clause(joined).isEmpty()) continue;
        if (!OpcionSQLNotas.isEmpty()) OpcionSQLNotas += u" AND "_s;
        OpcionSQLNotas += clause(joined);
    }
    parenthesize(OpcionSQLNotas);
    if (OpcionSQLNotas.isEmpty()) OpcionSQLNotas = NoRecording.toString();
    Data().RecordSource = kind().selectAll() + u" WHERE "_s + OpcionSQLNotas;
    Data().Refresh();
    store::showWholeTables(store());
}

void FormReg1SelGrabacion::resolve(Kind kind) {
    QString& keys = clause(kind);
    if (keys.isEmpty()) return;
    const Resolution& table = *std::find_if(std::begin(Resolutions), std::end(Resolutions),
                                            [kind](const Resolution& r) { return r.kind == kind; });
    const store::KindInfo& of = store::info(kind);
    keys =
        keyTerms(store().Data(kind), of.selectAll() + u" WHERE "_s + keys, of.key().column, table.keyTerm.toString());
    parenthesize(keys);
    if (keys.isEmpty() || table.recordingTerm.isEmpty()) return;
    const store::LinkInfo& link = store::linkOf(kind);
    keys = keyTerms(store().Data(1, link.channel), u"SELECT * FROM "_s + link.table.toString() + u" WHERE "_s + keys,
                    link.fields[0].column, table.recordingTerm.toString());
    if (!table.bare) parenthesize(keys);
}

QString FormReg1SelGrabacion::keyTerms(jet::DataControl& channel, const QString& statement, QStringView column,
                                       const QString& term) {
    channel.RecordSource = statement;
    channel.Refresh();
    jet::Recordset& rows = channel.Recordset();
    if (rows.RecordCount() != 0) rows.MoveLast(); // there it stays if a later table fails
    toInteger(rows.RecordCount());                // the rows are counted in 16 bits
    QString terms;
    for (const QString& key : rows.columnTexts(column.toString())) {
        if (key.isEmpty()) continue; // a link that names no recording
        if (!terms.isEmpty()) terms += u" OR "_s;
        terms += term;
        terms += key;
    }
    return terms;
}

} // namespace zv::selection
