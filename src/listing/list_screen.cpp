#include "listing/list_screen.h"

#include "platform/base/text.h"
#include "store/messages.h"
#include <cmath>

namespace zv::listing {

using namespace Qt::StringLiterals;
using store::Value;

namespace {

/// Height of a row at zoom 1, and of the heading, in twips.
constexpr int RowUnit = 300;
/// Most records that a page can hold without and with a horizontal bar, at zoom 1.
constexpr int PageRecords = 20, PageRecordsWithBar = 19;
constexpr int MaxZoom = 20;
constexpr int DesignGridLeft = 1695, DesignGridWidth = 8430;
constexpr int DesignPictureWidth = 1485;
constexpr int PictureTop = 450;

} // namespace

void ListScreen::Form_Load() {
    for (const QString& caption : itemCaptions()) List->AddItem(caption);
    LabNumRegSeleccion->setCaption(QString::number(memory().ContSel));
    LabNumRegSeleccion1->setCaption(QString::number(memory().ContSel));
    LabNumFiltros->setCaption(QString::number(memory().ContFil));
    LabNumFiltros1->setCaption(QString::number(memory().ContFil));
    EnCalculo = false;
    PrimerRegistro = 1;
}

QStringList ListScreen::itemCaptions() const {
    QStringList captions;
    for (const store::Field& field : kind_.fields)
        if (!field.listed.isEmpty()) captions += field.listed.toString();
    return captions;
}

QString ListScreen::cellText(int item) {
    const int field = itemFields_[std::size_t(item)];
    const QString text = store().bound(kind_.kind, field);
    return kind_.fields[std::size_t(field)].value == Value::Year && Val(text) == 0 ? QString() : text;
}

bool ListScreen::isNumber(int item) const {
    const Value value = kind_.fields[std::size_t(itemFields_[std::size_t(item)])].value;
    return value == Value::Year || value == Value::Number;
}

QString ListScreen::picturePath() { return store().bound(kind_.kind, itemFields_.back()); }

int ListScreen::columnsWidth() const {
    int width = 0;
    for (int col = 0; col < Tabla->Cols(); ++col) width += Tabla->ColWidth(col);
    return width;
}

int ListScreen::rowsOfPage(int margin) const {
    const int bar = hasHorizontalBar() ? VScroll->Width() : 0;
    return (Tabla->Height() - margin - bar) / (HScroll->Value() * RowUnit) + 1;
}

// The highest zoom leaves no room for a horizontal bar.
bool ListScreen::zoomRefused() {
    if (HScroll->Value() != MaxZoom || !hasHorizontalBar()) return false;
    HScroll->setValue(MaxZoom - 1);
    return true;
}

void ListScreen::setPages(int records) {
    const int perPage = FilasPagina - 1;
    const int pages = records / perPage + (records % perPage != 0);
    VScroll->setMax(std::max(1, pages));
    VScroll->setVisible(pages >= 2);
}

void ListScreen::emptyPictures() {
    for (forms::Picture* picture : Imagen) {
        picture->clear();
        picture->setVisible(false);
    }
}

void ListScreen::emptyState() {
    VScroll->setEnabled(false);
    HScroll->setEnabled(false);
    BtnAImagen->setEnabled(false);
    VScroll->setVisible(false);
    Label16->setVisible(true);
    LineImagen->setVisible(true);
    Label16->setWidth(DesignPictureWidth);
    LineImagen->setWidth(DesignPictureWidth);
    Tabla->setLeft(DesignGridLeft);
    Tabla->setWidth(DesignGridWidth);
    Tabla->setRows(0);
    Tabla->setCols(0);
    emptyPictures();
    CamposElegidos.assign(CamposElegidos.size(), false);
    memory().MemoLis.Campo = CamposElegidos;
}

// Each ticked field but the picture is a column behind that of the numbers.
void ListScreen::takeTicks(bool remember) {
    NumeroColumnas = 1;
    for (int i = 0; i < itemCount(); ++i) {
        CamposElegidos[std::size_t(i)] = List->Selected(i);
        if (i + 1 < itemCount() && List->Selected(i)) ++NumeroColumnas;
    }
    if (remember) memory().MemoLis.Campo = CamposElegidos;
    Tabla->setCols(1);
    Tabla->setColWidth(0, 495);
}

void ListScreen::BtnListar_Click() {
    LabNumCampos->setCaption(QString::number(List->SelCount()));
    if (List->SelCount() == 0 || RecordCount() == 0) {
        NumeroColumnas = 0;
        emptyState();
        return;
    }
    VScroll->setEnabled(false);
    EnCalculo = true;
    PrimerRegistro = 1;
    VScroll->setMax(1);
    VScroll->setValue(1);
    HScroll->setEnabled(true);
    BtnAImagen->setEnabled(true);
    Tabla->setRows(0);
    emptyPictures();
    takeTicks(true);
    listedMemory().Posicion = 1;
    listedMemory().Posicion2 = static_cast<qint16>(HScroll->Value());
    VScroll->setEnabled(true);
    EnCalculo = false;
    VScroll_Change();
}

void ListScreen::Carga() {
    store::ListMemory& list = memory().MemoLis;
    if (std::none_of(list.Campo.begin(), list.Campo.end(), [](bool tick) { return tick; })) {
        BtnListar_Click();
        return;
    }
    NumeroColumnas = 0;
    VScroll->setEnabled(false);
    EnCalculo = true;
    VScroll->setMax(1);
    VScroll->setValue(1);
    HScroll->setEnabled(true);
    BtnAImagen->setEnabled(true);
    Tabla->setRows(0);
    emptyPictures();
    for (int i = 0; i < itemCount(); ++i)
        if (list.Campo[std::size_t(i)]) List->setSelected(i, true);
    LabNumCampos->setCaption(QString::number(List->SelCount()));
    takeTicks(false);
    EnCalculo = true;
    HScroll->setEnabled(true);
    HScroll->setValue(list.Posicion2);
    if (zoomRefused()) return;
    FilasPagina = toInteger(rowsOfPage(kind_.listLoad.margin));
    if (RecordCount() == 0) {
        VScroll->setEnabled(false);
        return;
    }
    VScroll->setEnabled(true);
    if (kind_.listLoad.movesToLast) Data().Recordset().MoveLast();
    setPages(RecordCount());
    EnCalculo = false;
    // A page beyond the end falls to the last one. The bar tells nothing when it already stands there.
    const int page = std::clamp(list.Posicion, 1, VScroll->Max());
    if (VScroll->Value() == page)
        VScroll_Change();
    else
        VScroll->setValue(page);
}

void ListScreen::HScroll_Change() {
    memory().MemoLis.Posicion2 = static_cast<qint16>(HScroll->Value());
    if (zoomRefused()) return;
    // The first record of the old page stays on the new one.
    const int perPage = (hasHorizontalBar() ? PageRecordsWithBar : PageRecords) / HScroll->Value();
    PaginaZoom = std::ceil(float(PrimerRegistro) / float(perPage));
    VScroll_Change();
    // Only now: while the page is worked out, the old number tells that the zoom has moved.
    LabZoom->setCaption(QString::number(HScroll->Value()));
}

void ListScreen::VScroll_Change() {
    if (EnCalculo) return;
    if (zoomRefused()) return;
    if (!calculatePage()) return;
    if (NumeroColumnas == 0) return;
    emptyPictures();
    Tabla->setRows(0);
    Tabla->setCols(NumeroColumnas);
    const int records = RecordCount(), perPage = FilasPagina - 1;
    const bool full = records - perPage * VScroll->Value() > 0;
    Tabla->setRows(full ? FilasPagina : records - (VScroll->Value() - 1) * perPage + 1);
    placeGrid();
    fillHeadings();
    fillPage();
    if (Data().Recordset().AbsolutePosition() != records - 1) markMoreRecords();
    Progress->setProgress(0);
}

// Sets the bar of the pages. False without records: the guard then stays up.
bool ListScreen::calculatePage() {
    EnCalculo = true;
    FilasPagina = toInteger(rowsOfPage(RowUnit));
    const int kept = VScroll->Value();
    if (RecordCount() == 0) {
        VScroll->setEnabled(false);
        return false;
    }
    VScroll->setEnabled(true);
    Data().Recordset().MoveLast();
    setPages(RecordCount());
    if (kind_.listLoad.clampsBelow) PaginaZoom = std::max(PaginaZoom, float(VScroll->Min()));
    PaginaZoom = std::min(PaginaZoom, float(VScroll->Max()));
    if (Val(LabZoom->Caption()) != HScroll->Value()) {
        VScroll->setValue(toInteger(PaginaZoom));
    } else {
        VScroll->setValue(std::min(kept, VScroll->Max()));
        const int perPage = (hasHorizontalBar() ? PageRecordsWithBar : PageRecords) / HScroll->Value();
        PrimerRegistro = toInteger(perPage * (VScroll->Value() - 1) + 1);
    }
    memory().MemoLis.Posicion = VScroll->Value();
    EnCalculo = false;
    return true;
}

void ListScreen::placeGrid() {
    const int side = HScroll->Value() * RowUnit;
    const bool bar = VScroll->isVisibleTo(this), focused = Tabla->hasFocus();
    Label16->setVisible(false);
    LineImagen->setVisible(false);
    Tabla->setVisible(false);
    Label16->setWidth(side - 15);
    // The rule runs under the grid; it ends with the panel.
    LineImagen->setWidth(10125 - LineImagen->Left());
    if (pictureTicked()) {
        Tabla->setLeft(side + LabFondo->Left() + 30);
        Tabla->setWidth(VScroll->Left() - Tabla->Left() + (bar ? 0 : VScroll->Width()));
        Label16->setVisible(true);
        LineImagen->setVisible(true);
    } else {
        Tabla->setLeft(LabFondo->Left() + 30);
        Tabla->setWidth(LabFondo->Width() - (bar ? VScroll->Width() : 0) - 60);
    }
    Tabla->setVisible(true);
    if (focused) Tabla->setFocus(Qt::OtherFocusReason); // hiding has passed it on
}

void ListScreen::fillHeadings() {
    const auto heading = [this](int column, const QString& text) {
        Tabla->setCol(column);
        Tabla->setCellForeColor(forms::colour::Navy);
        Tabla->setText(text);
    };
    Tabla->setFixedRows(1);
    Tabla->setRowHeight(0, RowUnit);
    Tabla->setRow(0);
    heading(0, store::EtiNumero);
    int column = 1;
    for (int i = 0; i + 1 < itemCount(); ++i)
        if (isTicked(i)) {
            Tabla->setLinesLevel(column, areLinesLevel(i));
            heading(column++, List->List(i));
        }
    Progress->setProgress(0);
    Progress->setMax(Tabla->Rows() - 1);
}

void ListScreen::fillPage() {
    for (int row = 1; row < Tabla->Rows(); ++row) Tabla->setRowHeight(row, HScroll->Value() * RowUnit);
    for (int row = 1; row < Tabla->Rows(); ++row) {
        Progress->setProgress(row);
        jet::Recordset& rows = Data().Recordset();
        if (rows.AbsolutePosition() == rows.RecordCount()) break;
        moveTo(positionOf(row));
        fillRow(row);
        if (pictureTicked()) showPicture(row);
    }
}

void ListScreen::fillRow(int row) {
    const auto vertical = HScroll->Value() > 1 ? Qt::AlignTop : Qt::AlignVCenter;
    Tabla->setRow(row);
    int column = 1;
    for (int i = 0; i + 1 < itemCount(); ++i) {
        if (!isTicked(i)) continue;
        Tabla->setCol(column++);
        Tabla->setText(cellText(i));
        Tabla->setCellAlignment((isNumber(i) ? Qt::AlignRight : Qt::AlignLeft) | vertical);
    }
    Tabla->setCol(0);
    Tabla->setCellBackColor(forms::colour::NumberColumn);
    Tabla->setCellAlignment(Qt::AlignRight | vertical);
    Tabla->setText(QString::number(positionOf(row) + 1));
}

void ListScreen::showPicture(int row) {
    const QString path = picturePath();
    if (path.isEmpty()) return;
    const int unit = HScroll->Value() * RowUnit, side = unit - 15;
    forms::Picture& picture = *Imagen[std::size_t(row - 1)];
    DialogoImagen.FileName = path;
    forms::CargarImagen(picture, DialogoImagen, side, side);
    if (DialogoImagen.FileName.isEmpty()) return;
    picture.setTop((side - picture.Height()) / 2 + PictureTop + (row - 1) * unit);
    picture.setLeft((side - picture.Width()) / 2 + LabFondo->Left() + 30);
    picture.setVisible(true);
}

// A row that shows nothing but its face is the sign that the page is not the last.
void ListScreen::markMoreRecords() {
    const int row = Tabla->Rows();
    Tabla->setRows(row + 1);
    Tabla->setRowHeight(row, HScroll->Value() * RowUnit);
    Tabla->setRow(row);
    Tabla->setCol(0);
    Tabla->setCellBackColor(forms::colour::ButtonFace);
}

} // namespace zv::listing
