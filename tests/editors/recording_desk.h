// A catalogue of parts and recordings on a desk, and the ways of a user about the two screens of recordings.
#pragma once

#include "store/messages.h"
#include "support/desk.h"

namespace zv::test {

using namespace Qt::StringLiterals;

/// The parts by their tabs.
enum Part { Composer, Work, Orchestra, Conductor, Performer, Format };

class RecordingDesk : public Desk {
  protected:
    static constexpr int Add = 7, ShowEdit = 21, Elsewhere = 57;
    static constexpr int FirstShowEdit = 15; ///< of the composer; the other parts follow

    /// Fills every table of parts with that many records, and performers apart.
    void putParts(int count, int performers);
    /// A recording: composer, work, format, then the keys of its links.
    struct Recording {
        int composer = -1, work = -1, format = 1;
        QList<int> conductors = {}, orchestras = {}, performers = {};
        QString notes = {};
    };
    /// Adds recordings, the first gets the key 1.
    void putRecordings(const QList<Recording>& recordings);

    store::Module1& module1() { return program->store.module1; }
    store::KindMemory& recordings() { return memory(store::Kind::Grabacion); }

    /// Goes by the tabs to the Show-Edit screen of a part, and to a record there.
    void stand(Part part, int order);
    /// Adds the record of that order to the group on display.
    void gather(int order);
    /// Clicks the heading of a part.
    void heading(Part part) { hands->click(u"Lab"_s + name(part)); }
    /// Double-clicks the picture of a part.
    void trip(Part part);
    void back() { hands->click(u"BtnRegresar"_s); }
    /// Types an order number.
    void walk(int order) { hands->type(u"TxtOrden"_s, QString::number(order)); }

    static QString name(int part);
    /// Records on display in a group, rows joined by "|".
    QString listed(Part part);
    /// Picture of a part: the file's width in twips, or "default"; then where it stands.
    QString pictureOf(Part part);
    /// Parts whose "Remove" shows.
    QString removable();
    /// The heading of the format is white while none is chosen.
    bool formatMissing() {
        return hands->get<QWidget>(u"LabSoporte"_s).palette().color(QPalette::Window) == QColor(Qt::white);
    }
    bool tabsFree() { return program->window.Solapas().TabNivel1->isEnabled(); }
    /// The links of all recordings: conductors; orchestras; performers, each "recording-key".
    QString links();
    QStringList rows() { return stored(u"Grabacion"_s, u"IdGrabacion, IdCompositor, IdObra, IdSoporte, Notas"_s); }
    /// Chosen keys: composer, work, format.
    QString keys(bool ana);
    /// The first rows of column 1 of a group, joined by ",".
    static QString marks(const store::FixedTable& table, int first = 0, int count = 4);
    /// Every channel that the screens of recordings borrow shows its whole table.
    void expectWholeTables();
};

} // namespace zv::test
