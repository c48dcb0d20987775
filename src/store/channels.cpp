#include "store/channels.h"

#include "store/messages.h"

namespace zv::store {

Store::Store(jet::DBEngine& engine, MessageBoxes& boxes) : engine_(engine), boxes_(boxes) {}

void Store::load(const QString& pathBaseDatos) {
    const QString file = pathBaseDatos + u'\\' + DatabaseFile;
    loadForm(1, file);
    loadForm(2, file);
}

void Store::unload() {
    for (auto& form : channels_) form.clear();
}

void Store::loadForm(int form, const QString& file) {
    auto& channels = channels_[std::size_t(form - 1)];
    channels.clear();
    const int count = form == 1 ? 10 : 7;
    for (int i = 0; i < count; ++i) {
        channels.emplace_back(engine_);
        channels.back().DatabaseName = file;
    }
    module1.SolapasFijas = false;
    if (form == 1) memory.startIrregular();
    for (const KindInfo& kind : kinds()) {
        if (kind.form != form) continue;
        memory.start(kind.kind);
        jet::DataControl& channel = Data(kind.kind);
        channel.RecordSource = kind.table.toString();
        channel.Refresh();
        KindMemory& of = memory.of(kind.kind);
        if (channel.Recordset().RecordCount() != 0) {
            channel.Recordset().MoveLast();
            of.Cont = channel.Recordset().RecordCount();
            channel.Recordset().MoveFirst();
        }
        of.ContSel = of.Cont;
    }
    if (form == 1)
        for (const LinkInfo& link : links()) Data(1, link.channel).RecordSource = link.table.toString();
}

jet::DataControl& Store::Data(int form, int channel) {
    auto& channels = channels_[std::size_t(form - 1)];
    if (channel < 0 || channel >= static_cast<int>(channels.size())) throw RuntimeError(9);
    return channels[std::size_t(channel)];
}

jet::DataControl Store::query(const QString& source) {
    jet::DataControl rows(engine_);
    rows.DatabaseName = Data(1, 0).DatabaseName;
    rows.RecordSource = source;
    rows.Refresh();
    return rows;
}

void Store::write(int form, int channel, int count, bool add, Campos& campos) {
    try {
        if (count >= Campos::Columns || count < 0) return;
        jet::DataControl& data = Data(form, channel);
        jet::Recordset& rows = data.Recordset();
        if (rows.RecordCount() == 0) {
            rows.AddNew();
        } else if (!add) {
            rows.Edit();
        } else {
            rows.MoveLast();
            rows.AddNew();
        }
        for (int i = 0; i < count; ++i) rows.Fields(campos.at(0, i)).setValue(campos.at(1, i));
        rows.Update();
        data.Refresh();
    } catch (const RuntimeError& error) {
        module1.Err = error.number();
        module1.ErrorBaseDatos = true;
    }
}

void Store::remove(int form, int channel) {
    try {
        jet::Recordset& rows = Data(form, channel).Recordset();
        if (!rows.EOF_()) {
            rows.Delete();
            rows.MoveNext();
        } else {
            boxes_.MsgBox(MensaNoElegidoReg, box::Critical);
        }
    } catch (const RuntimeError& error) {
        module1.Err = error.number();
        module1.ErrorBaseDatos = true;
    }
}

void Store::reportError() { boxes_.MsgBox(MensaProducidoError + QString::number(module1.Err), box::Critical); }

} // namespace zv::store
