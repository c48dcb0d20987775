// The report on a desk: its figures by rows, and how they have to be.
#pragma once

#include "store/messages.h"
#include "support/desk.h"

namespace zv::test {

using namespace Qt::StringLiterals;
using store::Kind;

class ReportDesk : public Desk {
  protected:
    static constexpr int ReportNumber = 57;

    struct Row {
        QString prefix;
        Kind kind;
        QString caption;
        int fields;
    };
    inline static const Row Rows14[] = {
        {u"LabCom"_s, Kind::Compositor, u"Composer"_s, 6},
        {u"LabObra"_s, Kind::Obra, u"Work"_s, 16},
        {u"LabOrq"_s, Kind::Orquesta, u"Orchestra-Ensemble"_s, 5},
        {u"LabDir"_s, Kind::Director, u"Conductor"_s, 6},
        {u"LabInt"_s, Kind::Interprete, u"Performer"_s, 7},
        {u"LabSop"_s, Kind::Soporte, u"Format"_s, 11},
        {u"LabGra"_s, Kind::Grabacion, u"Recording"_s, 39},
        {u"LabIns"_s, Kind::Instrumento, u"Instrument"_s, 7},
        {u"LabAgr"_s, Kind::Agrupacion, u"Grouping"_s, 7},
        {u"LabEve"_s, Kind::Evento, u"Event"_s, 7},
        {u"LabEsc"_s, Kind::Escenario, u"Scenario"_s, 7},
        {u"LabPub"_s, Kind::Publicacion, u"Publication - Video"_s, 10},
        {u"LabEmi"_s, Kind::Emisora, u"Station"_s, 8},
        {u"LabInte"_s, Kind::Internet, u"http://www."_s, 7},
    };

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

    static QString caption(const QLabel* label) { return label->text(); }
    static QString tip(const QLabel* label) { return label->toolTip(); }
    /// What all labels say that stand at the height of the first label of that text, from the left on.
    QString line(const QString& text, QString (*of)(const QLabel*) = caption) {
        std::vector<QLabel*> labels;
        for (QLabel* label : hands->screen()->findChildren<QLabel*>()) labels.push_back(label);
        std::ranges::sort(labels, {}, [](const QLabel* label) { return std::pair(label->y(), label->x()); });
        const auto first = std::ranges::find(labels, text, [](const QLabel* label) { return label->text(); });
        QStringList words;
        for (const QLabel* label : labels)
            if (first != labels.end() && label->y() == (*first)->y()) words += of(label);
        return words.join(u'|');
    }
    void add(const QString& box, const QString& text) {
        hands->type(box, text);
        save();
    }
};

} // namespace zv::test
