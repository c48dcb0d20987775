#include "editors/editor_member.h"

namespace zv::test {

using namespace Qt::StringLiterals;
using store::Field;
using store::Value;

std::vector<const Field*> EditorMember::textBoxes() const {
    std::vector<const Field*> found;
    for (const Field& field : kind.fields)
        if (!field.control.isEmpty()) found.push_back(&field);
    return found;
}

std::vector<const Field*> EditorMember::textBoxesOf(Value value) const {
    std::vector<const Field*> found = textBoxes();
    std::erase_if(found, [value](const Field* field) { return field->value != value; });
    return found;
}

const Field& EditorMember::identifier() const {
    return *std::ranges::find_if(kind.fields, [](const Field& field) { return field.identifier; });
}

const Field& EditorMember::year() const {
    return *std::ranges::find_if(kind.fields, [](const Field& f) { return f.value == Value::Year && f.limit == 4; });
}

void EditorMember::fill(int rows) {
    QStringList columns, values;
    for (const Field& field : kind.fields)
        if (field.identifier) {
            columns += field.column.toString();
            values += u"'Row ' || i"_s;
        }
    sql(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) INSERT INTO %2(%3) SELECT %4 FROM n"_s
            .arg(QString::number(rows), table, columns.join(u", "_s), values.join(u", "_s)));
}

void EditorMember::open(int rows) {
    fill(rows);
    start();
    hands->go(showNumber);
}

void EditorMember::restart() {
    close();
    stop();
    start();
}

void EditorMember::narrow(const QString& condition) {
    hands->go(57);
    channel().RecordSource = kind.selectAll() + u" WHERE "_s + identifier().column.toString() + u' ' + condition;
    channel().Refresh();
    if (channel().Recordset().RecordCount() != 0) channel().Recordset().MoveLast();
    memory().ContSel = channel().Recordset().RecordCount();
    memory().ContFil = 1;
    hands->go(showNumber);
}

void EditorMember::expectQuestion() {
    if (kind.form == 1) boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
}

void EditorMember::identify(const QString& name) {
    for (const Field& field : kind.fields)
        if (field.identifier) hands->type(field.control.toString(), name);
}

QString EditorMember::pictureState() {
    const auto& box = hands->get<forms::Picture>(u"Imagen"_s);
    const auto& name = hands->get<forms::Label>(u"LabNombre"_s);
    const auto& remove = hands->get<forms::Button>(u"BtnImagenEliminar"_s);
    const QColor colour = name.palette().color(QPalette::WindowText);
    return u"Imagen %1 %2 %3 %4, LabNombre %5, Remove %6, name %7"_s.arg(
        QString::number(box.Left()), QString::number(box.Top()), QString::number(box.Width()),
        QString::number(box.Height()), QString::number(name.Top()),
        remove.isVisible() ? QString::number(remove.Top()) : u"hidden"_s,
        colour == QColor(Qt::black)          ? u"black"_s
        : colour == QColor(0xE0, 0xE0, 0xE0) ? u"unseen"_s
                                             : colour.name());
}

} // namespace zv::test
