// The Add and Show-Edit screens of one kind, worked through the kind's description. A suite of this fixture runs for
// every kind whose editors are those of the patterns.
#pragma once

#include "store/messages.h"
#include "support/desk.h"

namespace zv::test {

using store::Kind;

inline const auto EditorMembers =
    ::testing::Values(Kind::Compositor, Kind::Interprete, Kind::Instrumento, Kind::Agrupacion, Kind::Internet);

inline std::string memberName(const ::testing::TestParamInfo<Kind>& member) {
    return store::info(member.param).table.toString().toStdString();
}

class EditorMember : public Desk, public ::testing::WithParamInterface<Kind> {
  protected:
    const store::KindInfo& kind = store::info(GetParam());
    const QString table = kind.table.toString();
    const int addNumber = shell::screenNumber(kind.form, shell::Function::Add, kind.tab);
    const int showNumber = shell::screenNumber(kind.form, shell::Function::ShowEdit, kind.tab);

    store::KindMemory& memory() { return Desk::memory(kind.kind); }
    jet::DataControl& channel() { return program->store.Data(kind.kind); }

    /// The fields that have a box, and those among them of a kind of value.
    std::vector<const store::Field*> textBoxes() const;
    std::vector<const store::Field*> textBoxesOf(store::Value value) const;
    const store::Field& identifier() const;
    static QString name(const store::Field& field) { return field.control.toString(); }
    QString identifierBox() const { return identifier().control.toString(); }
    /// The box of the first year of four digits.
    const store::Field& year() const;

    /// Text of a box of the screen on display.
    QString shown(const store::Field& field) { return hands->text(field.control.toString()); }
    /// What the file holds in a column, rows by their keys.
    QStringList column(const store::Field& field) { return stored(table, field.column.toString()); }
    QStringList identifiers() { return column(identifier()); }

    /// Fills the table with rows named "Row 1" to "Row n" before the start.
    void fill(int rows);
    /// Starts on that many rows with the kind's Show-Edit screen.
    void open(int rows);
    /// The program anew on the same file.
    void restart();
    /// Shows the kind's Show-Edit screen with the rows that a condition on the identifier leaves.
    void narrow(const QString& condition);

    /// Only the removal of what a recording may point to is asked for.
    void expectQuestion();
    /// Types a name into every box that identifies the record.
    void identify(const QString& name);

    /// The picture and what stands on it, in twips: "Imagen left top width height, LabNombre top, Remove top|hidden,
    /// name black|unseen".
    QString pictureState();
};

} // namespace zv::test
