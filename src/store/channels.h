// The 17 data channels and the generic operations on them: every screen reaches the catalogue through these.
#pragma once

#include "platform/base/dialogs.h"
#include "platform/jet/data_control.h"
#include "platform/jet/engine.h"
#include "store/module1.h"
#include "store/schema.h"
#include "store/working_memory.h"
#include <array>
#include <vector>

namespace zv::store {

/// Field names and values that a screen hands over: two rows of 101 strings. An index beyond is error 9.
class Campos {
  public:
    static constexpr int Columns = 101;
    QString& at(int row, int column) { return table_.at(row, column); }
    /// Name and value of a column, from 0.
    void set(int column, QStringView name, const QString& value) {
        at(0, column) = name.toString();
        at(1, column) = value;
    }

  private:
    FixedTable table_{2, Columns};
};

/// Name of the catalogue's file, and of its compacted copy while that is made.
inline const QString DatabaseFile = QStringLiteral("DataZV.mdb");
inline const QString CompactedFile = QStringLiteral("ZVTemp.mdb");

/// The two hidden forms: FormBasesDatos (form 1, channels 0 to 9) and FormBasesDatos2 (form 2, channels 0 to 6).
class Store {
  public:
    Store(jet::DBEngine& engine, MessageBoxes& boxes);

    WorkingMemory memory;
    Module1 module1;

    /// Loads both hidden forms: names the file for all channels of a form, then, table by table, sets the start values,
    /// opens the channel and counts. Engine errors leave it.
    void load(const QString& pathBaseDatos);
    /// Lets go of the file.
    void unload();

    jet::DataControl& Data(int form, int channel);
    jet::DataControl& Data(Kind kind) { return Data(info(kind).form, info(kind).channel); }

    /// A recordset of its own beside the channels, already refreshed: for reads that leave them as they stand.
    jet::DataControl query(const QString& source);

    /// Text of a hidden bound control: the field's value in the channel's current row.
    QString bound(Kind kind, int field) {
        return Data(kind).boundText(info(kind).fields[std::size_t(field)].column.toString());
    }

    /// Adds a row (or changes the current one) with the first `count` columns of the table. More than 100 or a negative
    /// count writes nothing; an empty channel can only be added to. A failure sets ErrorBaseDatos and Err.
    void GrabarRegistro(int channel, int count, bool add, Campos& campos) { write(1, channel, count, add, campos); }
    void GrabarRegistro2(int channel, int count, bool add, Campos& campos) { write(2, channel, count, add, campos); }
    /// Removes the current row. Without one MensaNoElegidoReg is shown; a failure sets ErrorBaseDatos and Err.
    void EliminarRegistro(int channel) { remove(1, channel); }
    void EliminarRegistro2(int channel) { remove(2, channel); }

    /// The same by kind.
    void write(const KindInfo& kind, int count, bool add, Campos& campos) {
        write(kind.form, kind.channel, count, add, campos);
    }
    void remove(const KindInfo& kind) { remove(kind.form, kind.channel); }

    /// The report of a failed write: MensaProducidoError and the number of the last error.
    void reportError();

    MessageBoxes& boxes() { return boxes_; }

  private:
    void loadForm(int form, const QString& file);
    void write(int form, int channel, int count, bool add, Campos& campos);
    void remove(int form, int channel);

    jet::DBEngine& engine_;
    MessageBoxes& boxes_;
    std::array<std::vector<jet::DataControl>, 2> channels_;
};

} // namespace zv::store
