#include "store/working_memory.h"

#include <QStringList>

namespace zv::store {

using namespace Qt::StringLiterals;

namespace {

class Lines {
  public:
    void number(const QString& name, qint32 value) { lines_ += name + u" = "_s + QString::number(value); }
    void flag(const QString& name, bool value) { lines_ += name + (value ? u" = True"_s : u" = False"_s); }
    void text(const QString& name, const QString& value) { lines_ += name + u" = \""_s + value + u'"'; }
    QString joined() const { return lines_.join(u'\n') + u'\n'; }

  private:
    QStringList lines_;
};

void dumpCounters(Lines& lines, const KindInfo& kind, const KindMemory& memory) {
    const QString table = kind.table.toString();
    lines.number(u"Cont"_s + table, memory.Cont);
    lines.number(u"Posicion"_s + table, memory.Posicion);
    lines.number(u"ContSel"_s + table, memory.ContSel);
    lines.number(u"ContEli"_s + table, memory.ContEli);
    lines.number(u"ContNew"_s + table, memory.ContNew);
    lines.number(u"ContFil"_s + table, memory.ContFil);
}

void dumpSelection(Lines& lines, const KindInfo& kind, const SelectionMemory& memory) {
    const QString prefix = u"MemoSel"_s + kind.shortName.toString();
    lines.number(prefix + u"NT"_s, memory.NT);
    if (kind.clauses.empty()) lines.text(prefix + u"OpcionSQL"_s, memory.OpcionSQL);
    for (std::size_t i = 0; i < kind.clauses.size(); ++i)
        lines.text(prefix + u"OpcionSQL"_s + kind.clauses[i].toString(), memory.Opciones[i]);
    lines.text(prefix + u"ValorFiltro"_s, memory.ValorFiltro);
    lines.text(prefix + u"Lista"_s, memory.Lista);
    lines.number(prefix + u"CampoOrden"_s, memory.CampoOrden);
    lines.number(prefix + u"CriterioOrden"_s, memory.CriterioOrden);
}

void dumpList(Lines& lines, const KindInfo& kind, const ListMemory& memory) {
    const QString prefix = u"MemoLis"_s + kind.shortName.toString();
    lines.number(prefix + u"Posicion"_s, memory.Posicion);
    lines.number(prefix + u"Posicion2"_s, memory.Posicion2);
    for (std::size_t i = 0; i < memory.Campo.size(); ++i)
        lines.flag(kind.listTicks.toString() + u'(' + QString::number(i) + u')', memory.Campo[i]);
    // Records II declares one flag per field as well. No screen ever sets them.
    if (kind.form == 2)
        for (const Field& field : kind.fields)
            if (field.value != Value::Key) lines.flag(prefix + u"Campo"_s + field.column.toString(), false);
}

} // namespace

int listItemCount(const KindInfo& kind) {
    if (kind.listItems) return kind.listItems;
    return static_cast<int>(
        std::count_if(kind.fields.begin(), kind.fields.end(), [](const Field& f) { return !f.listed.isEmpty(); }));
}

WorkingMemory::WorkingMemory() {
    for (const KindInfo& kind : kinds()) start(kind.kind);
}

void WorkingMemory::startIrregular() {
    Obra = {};
    Orquesta = {};
    Grabacion = {};
}

void WorkingMemory::start(Kind kind) {
    KindMemory& memory = of(kind);
    memory = KindMemory{};
    memory.Memo.resize(info(kind).fields.size());
    memory.MemoLis.Campo.resize(static_cast<std::size_t>(listItemCount(info(kind))));
}

QString WorkingMemory::dump() const {
    Lines lines;
    for (const KindInfo& kind : kinds()) {
        const KindMemory& memory = of(kind.kind);
        dumpCounters(lines, kind, memory);
        for (std::size_t i = 0; i < kind.fields.size(); ++i)
            if (!kind.fields[i].memo.isEmpty()) lines.text(kind.fields[i].memo.toString(), memory.Memo[i]);
        lines.flag(u"Memo"_s + kind.shortName.toString() + u"RedAmp"_s, memory.RedAmp);
        dumpSelection(lines, kind, memory.MemoSel);
        dumpList(lines, kind, memory.MemoLis);
    }
    lines.flag(u"MemoAnaObraAmpRed"_s, Obra.AnaAmpRed);
    lines.flag(u"MemoMosObraAmpRed"_s, Obra.MosAmpRed);
    lines.number(u"MemoOrqSelect"_s, Orquesta.Select);
    lines.text(u"MemoAnaGraNotas"_s, Grabacion.AnaNotas);
    lines.text(u"MemoMosGraNotas"_s, Grabacion.MosNotas);
    return lines.joined();
}

} // namespace zv::store
