// The List screen of a kind: the current selection as a paged grid of the ticked fields, with a zoom of the rows and a
// picture beside each, and the button that prints it.
#pragma once

#include "listing/print_document.h"
#include "platform/forms/controls.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/picture.h"
#include "shell/contract/screen.h"

namespace zv::listing {

class ListScreen : public shell::Screen, protected PrintRecords {
  public:
    ListScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

    /// Restores ticks, zoom and page from the working memory.
    void Carga() override;

  protected:
    void Form_Load() override;

    /// Captions of the fields on offer, in order; the picture is the last.
    virtual QStringList itemCaptions() const;
    /// Text of a field of the current record in the grid.
    virtual QString cellText(int item);
    /// Its text on paper, "" for one that counts as empty.
    virtual QString paperText(int item) { return cellText(item); }
    /// Whether the field is a number, to be aligned with its like.
    virtual bool isNumber(int item) const;
    /// Whether line k of an item's cell belongs with line k of its neighbours.
    virtual bool areLinesLevel(int) const { return false; }
    QString picturePath() override;
    QStringList values() override;
    int position() override { return Data().Recordset().AbsolutePosition(); }
    void moveTo(int position) override { Data().Recordset().setAbsolutePosition(position); }
    /// Whose page and zoom a new list starts anew.
    virtual store::ListMemory& listedMemory() { return memory().MemoLis; }
    QStringView columnOf(int item) const { return kind_.fields[std::size_t(itemFields_[std::size_t(item)])].column; }

    const store::KindInfo& kind() const { return kind_; }
    store::KindMemory& memory() { return store().memory.of(kind_.kind); }
    jet::DataControl& Data() { return store().Data(kind_.kind); }
    int itemCount() const { return static_cast<int>(CamposElegidos.size()); }
    bool isTicked(int item) const { return CamposElegidos[static_cast<std::size_t>(item)]; }
    bool pictureTicked() const { return CamposElegidos.back(); }
    /// The ticks as they stand now, which the print goes by.
    bool isChosen(int item) const { return List->Selected(item); }

  private:
    void addGrid();
    void addChoice();
    void addBars();
    void addCounters();

    void BtnListar_Click();
    void BtnImprimir_Click();
    void HScroll_Change();
    void VScroll_Change();

    // The arithmetic of the pages.
    int columnsWidth() const;
    bool hasHorizontalBar() const { return Tabla->Width() < columnsWidth(); }
    int rowsOfPage(int margin) const;
    bool zoomRefused();
    void setPages(int records);
    bool calculatePage();
    int positionOf(int row) const { return (VScroll->Value() - 1) * (FilasPagina - 1) + row - 1; }

    void emptyState();
    void emptyPictures();
    void takeTicks(bool remember);
    void placeGrid();
    void fillHeadings();
    void fillPage();
    void fillRow(int row);
    void showPicture(int row);
    void markMoreRecords();

    int RecordCount() override { return Data().Recordset().RecordCount(); }
    bool loadPicture(const QString& path, int side, PrintPicture& picture) override;
    PrintOrder printOrder();

    const store::KindInfo& kind_;
    std::vector<int> itemFields_; ///< position of each item's field

    std::vector<bool> CamposElegidos; ///< the ticks in force for the grid
    qint16 NumeroColumnas = 0;        ///< number column and ticked fields; 0 nothing listed
    qint16 FilasPagina = 0;           ///< rows of a full page with its heading
    bool EnCalculo = false;           ///< the bars are being set
    qint16 PrimerRegistro = 1;        ///< first record of the page, from 1
    float PaginaZoom = 1;             ///< page that holds it at the new zoom
    PrintPicture ImagenTmp;

    forms::CheckList* List;
    forms::Button *BtnListar, *BtnImprimir, *BtnAImagen;
    forms::ScrollBar *HScroll, *VScroll;
    forms::FlexGrid* Tabla;
    std::vector<forms::Picture*> Imagen;
    forms::Label *LabFondo, *Label16, *LabZoom, *LabNumRegSeleccion, *LabNumFiltros, *LabCampos, *LabNumRegSeleccion1,
        *LabNumFiltros1, *LabNumCampos;
    forms::Rule* LineImagen;
    forms::ProgressBar* Progress;
    CommonDialog DialogoImagen;
};

} // namespace zv::listing
