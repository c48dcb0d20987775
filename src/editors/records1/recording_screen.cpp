#include "editors/records1/recording_screen.h"

#include "platform/base/text.h"
#include "store/current_selection.h"
#include "store/movements.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::FixedTable;
using store::Kind;

namespace {

/// Entity tab of the recordings.
constexpr int RecordingTab = 6;
constexpr int MovementName = 3675, MovementTime = 315, MovementRow = 270;

double keyAt(const FixedTable& table, int row) { return Val(table.at(row, 1)); }

QString yearText(const QString& text) { return Val(text) == 0 ? QString() : text; }

bool isYear(QStringView column) { return column.startsWith(u"Fecha"); }

} // namespace

void RecordingScreen::Form_Load() {
    // Nothing has opened the links before a screen of recordings needs them.
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) openLinks(part);
}

void RecordingScreen::openLinks(int part) {
    links(part).RecordSource = u"SELECT * FROM "_s + partInfo(part).group->linkTable.toString();
    links(part).Refresh();
}

// Left by the tabs, the screen puts the channels that it has borrowed back; on a trip they are still needed.
void RecordingScreen::Form_Unload() {
    if (context().navigator->SolapaRegistros1 == RecordingTab) store::showWholeTables(store());
}

double RecordingScreen::valueOf(QStringView column) { return Val(Data().boundText(column.toString())); }

void RecordingScreen::narrow(int part, double key) {
    const QString column = store::info(partInfo(part).kind).key().column.toString();
    Data(part).RecordSource = selectAll(part) + u" WHERE "_s + column + u'=' + CStr(key);
    Data(part).Refresh();
}

void RecordingScreen::widen(int part) {
    Data(part).RecordSource = selectAll(part);
    Data(part).Refresh();
    jet::Recordset& rows = Data(part).Recordset();
    if (rows.RecordCount() == 0) return;
    rows.MoveLast();
    const qint32 position = store().memory.of(partInfo(part).kind).Posicion;
    if (position > 0 && position <= rows.RecordCount()) rows.setAbsolutePosition(position - 1);
}

void RecordingScreen::showSingle(int part) {
    const PartInfo& info = partInfo(part);
    showPicture(part, Data(part).boundText(u"Imagen"_s));
    for (std::size_t i = 0; i < info.labels.size(); ++i) {
        const QString stored = Data(part).boundText(info.labels[i].column.toString());
        const QString text = isYear(info.labels[i].column) ? yearText(stored) : stored;
        partLabels_[std::size_t(part)][i]->setCaption(text);
        if (tipsShown) partLabels_[std::size_t(part)][i]->setToolTipText(text);
    }
    if (part == WorkPart) showMovements();
}

void RecordingScreen::showMovements() {
    const auto stored = [this](const QString& column) { return Data(WorkPart).boundText(column); };
    FlexMovimientos->setRows(0);
    FlexMovimientos->setCols(0);
    LabObraTotal->setCaption({});
    const QString names = stored(u"Movimientos"_s), count = stored(u"NumeroMovimientos"_s);
    if (store::hasMovements(names)) {
        const std::vector<QString> list = store::movementNames(names);
        const std::vector<double> seconds = store::movementSeconds(stored(u"TiempoMovimientos"_s));
        const int rows = static_cast<int>(list.size());
        FlexMovimientos->setRows(rows);
        FlexMovimientos->setCols(4);
        FlexMovimientos->setRowHeightMin(MovementRow);
        FlexMovimientos->setColWidth(0, MovementName);
        for (int column = 1; column < 4; ++column) FlexMovimientos->setColWidth(column, MovementTime);
        for (int row = 0; row < rows; ++row) FlexMovimientos->setTextMatrix(row, 0, list[std::size_t(row)]);
        int row = 0;
        for (const double time : rows ? seconds : std::vector<double>{}) {
            const store::Duration split = store::splitSeconds(time);
            const double parts[] = {split.hours, split.minutes, split.seconds};
            for (int column = 1; column < 4; ++column) {
                FlexMovimientos->setTextMatrix(row, column, CStr(parts[column - 1]));
                FlexMovimientos->setAlignment(row, column, forms::ToRight);
            }
            if (row + 1 != rows) ++row;
        }
        LabObraTotal->setCaption(store::clockText(store::splitSeconds(toLong(Val(stored(u"TiempoTotal"_s))))));
    }
    LabObraNumeroMovimientos->setCaption(Val(count) != 0 ? count : QString());
    if (!tipsShown) return;
    for (forms::Label* label : {LabObraTotal, LabObraNumeroMovimientos}) label->setToolTipText(label->Caption());
}

QString RecordingScreen::rowText(int part) {
    const auto stored = [&](const QString& column) { return Data(part).boundText(column); };
    QString text = stored(u"Nombre"_s);
    if (store::info(partInfo(part).kind).indexOf(u"Apellidos") >= 0) text += u' ' + stored(u"Apellidos"_s);
    const QStringView suffix = partInfo(part).group->suffixColumn;
    return suffix.isEmpty() ? text : text + u", "_s + stored(suffix.toString());
}

bool RecordingScreen::hasGroup(const FixedTable& table) { return keyAt(table, 0) > 0; }

QStringList RecordingScreen::groupKeys(const FixedTable& table, int rows) {
    QStringList keys;
    for (int row = 0; row < rows && keyAt(table, row) > 0; ++row) keys += CStr(keyAt(table, row));
    return keys;
}

QString RecordingScreen::groupCondition(int part, const QStringList& keys) {
    const QString term = partInfo(part).group->keyColumn.toString() + u'=';
    return keys.isEmpty() ? QString() : term + keys.join(u" OR "_s + term);
}

void RecordingScreen::showGroup(int part, const QString& condition, FixedTable* table) {
    const PartGroup& group = *partInfo(part).group;
    forms::FlexGrid& grid = *Flex[std::size_t(part)];
    Data(part).RecordSource = selectAll(part) + u" WHERE "_s + condition;
    Data(part).Refresh();
    if (table) table->fillColumn(0, u"-1"_s);
    jet::Recordset& rows = Data(part).Recordset();
    const int count = rows.RecordCount();
    grid.setRows(count);
    grid.setCols(count ? 2 : 0);
    if (count) {
        grid.setRowHeightMin(group.rowHeight);
        grid.setColWidth(0, group.columnWidth);
        grid.setColWidth(1, 0);
    }
    for (int row = 0; row < count; ++row) {
        rows.setAbsolutePosition(row);
        grid.setTextMatrix(row, 0, rowText(part));
        grid.setTextMatrix(row, 1, Data(part).boundText(u"Imagen"_s));
        if (!table) continue;
        table->at(row, 0) = rowText(part);
        table->at(row, 1) = Data(part).boundText(group.keyColumn.toString());
    }
    showPicture(part, count ? grid.TextMatrix(0, 1) : QString());
    if (part == PerformerPart) LabInterpreteNumeroInterprete->setCaption(QString::number(count));
    Data(part).RecordSource = selectAll(part);
    Data(part).Refresh();
}

void RecordingScreen::showPerformerCount() {
    const int rows = Flex[PerformerPart]->Rows();
    LabInterpreteNumeroInterprete->setCaption(rows ? QString::number(rows) : QString());
}

void RecordingScreen::showPicture(int part, const QString& path) {
    const PartInfo& info = partInfo(part);
    forms::Picture& picture = *Imagen[std::size_t(part)];
    DialogoImagen.FileName = path;
    if (!path.isEmpty()) forms::CargarImagen(picture, DialogoImagen, PartPicture, PartPicture);
    if (DialogoImagen.FileName.isEmpty()) {
        picture.place({info.left, info.top, PartPicture, PartPicture});
        picture.setPicture({{}, store::info(info.kind).drawing.toString(), {PartPicture, PartPicture}});
    } else {
        picture.setLeft(info.left + (PartPicture - picture.Width()) / 2);
        picture.setTop(info.top + (PartPicture - picture.Height()) / 2);
    }
    picture.setVisible(true);
}

void RecordingScreen::clearPart(int part) {
    showDefaultPicture(part);
    showRemoveButton(part, false);
    for (forms::Label* label : partLabels_[std::size_t(part)]) {
        label->setCaption({});
        label->setToolTipText({});
    }
    for (forms::FlexGrid* grid : {Flex[std::size_t(part)], part == WorkPart ? FlexMovimientos : nullptr})
        if (grid) {
            grid->setRows(0);
            grid->setCols(0);
        }
    if (part == WorkPart) {
        for (forms::Label* label : {LabObraTotal, LabObraNumeroMovimientos}) {
            label->setCaption({});
            label->setToolTipText({});
        }
    }
    if (part == PerformerPart) LabInterpreteNumeroInterprete->setCaption({});
}

void RecordingScreen::markFormat(bool chosen) {
    Lab[FormatPart]->setBackColor(chosen ? forms::colour::Panel : forms::colour::Missing);
}

void RecordingScreen::writeRecording(bool add, qint32 composer, qint32 work, qint32 format) {
    campos_.set(0, u"IdCompositor", QString::number(composer));
    campos_.set(1, u"IdObra", QString::number(work));
    campos_.set(2, u"IdSoporte", QString::number(format));
    campos_.set(3, u"Notas", TxtNotas->Text());
    store().GrabarRegistro(store::info(Kind::Grabacion).channel, 4, add, campos_);
}

std::array<QStringList, PartCount> RecordingScreen::chosenGroups() {
    std::array<QStringList, PartCount> keys;
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart})
        keys[std::size_t(part)] = groupKeys(group(part));
    return keys;
}

bool RecordingScreen::writeLinks(const std::array<QStringList, PartCount>& groups, double recording) {
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) {
        const PartGroup& info = *partInfo(part).group;
        for (const QString& key : groups[std::size_t(part)]) {
            campos_.set(0, u"IdGrabacion", CStr(recording));
            campos_.set(1, info.keyColumn, key);
            store().GrabarRegistro(info.linkChannel, 2, true, campos_);
            if (module1().ErrorBaseDatos) return false;
        }
    }
    return true;
}

void RecordingScreen::armed(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        module1().Err = error.number();
        store().reportError();
        module1().ErrorBaseDatos = false;
    }
}

void RecordingScreen::removeLinks(double recording) {
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) {
        const PartGroup& group = *partInfo(part).group;
        links(part).RecordSource =
            u"SELECT * FROM "_s + group.linkTable.toString() + u" WHERE  IdGrabacion="_s + CStr(recording);
        links(part).Refresh();
        if (links(part).Recordset().RecordCount() == 0) continue;
        links(part).Recordset().MoveLast();
        for (int left = links(part).Recordset().RecordCount(); left > 0; --left) {
            links(part).Recordset().MoveFirst();
            store().EliminarRegistro(group.linkChannel);
        }
    }
}

} // namespace zv::editors
