// What the Print button of a List screen hands to the print.
#include "listing/list_screen.h"
#include "platform/base/text.h"
#include "store/messages.h"
#include "store/select_rows.h"

namespace zv::listing {

using namespace Qt::StringLiterals;

bool ListScreen::loadPicture(const QString& path, int side, PrintPicture& picture) {
    try {
        const forms::PictureData loaded = forms::LoadPicture(path);
        if (loaded.isEmpty()) return false;
        const QSize size = forms::fitted(loaded.naturalTwips, side);
        picture.Picture = loaded.image;
        picture.Width = size.width();
        picture.Height = size.height();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

QStringList ListScreen::values() {
    QStringList texts;
    for (int i = 0; i + 1 < itemCount(); ++i)
        if (isChosen(i)) texts += paperText(i);
    return texts;
}

PrintOrder ListScreen::printOrder() {
    QStringList fields;
    for (const store::FieldRow& row : store::orderRows(kind_)) fields += row.caption;
    fields += store::FieldPlaceholder.toString();
    QStringList directions;
    for (const store::CriterionRow& row : store::orderDirections(kind_)) directions += row.caption.toString();
    PrintOrder order;
    order.CampoOrden = memory().MemoSel.CampoOrden;
    order.CriterioOrden = memory().MemoSel.CriterioOrden;
    order.lastField = static_cast<int>(fields.size()) - 1;
    order.chooseField = [fields](int index) { return fields.value(index); };
    // A list of one row has no other to choose.
    order.chooseCriterion = [directions](int index) {
        return directions.value(std::min(index, static_cast<int>(directions.size()) - 1));
    };
    return order;
}

void ListScreen::BtnImprimir_Click() {
    PrintJob job;
    job.LabBaseDatos = kind_.title.toString();
    job.ContSel = memory().ContSel;
    job.ContFil = memory().ContFil;
    job.LabCampos = LabCampos->Caption();
    job.ValorFiltro = memory().MemoSel.ValorFiltro;
    job.order = printOrder();
    for (int i = 0; i < itemCount(); ++i) job.items.push_back({List->List(i), List->Selected(i)});
    job.records = this;
    job.ImagenTmp = &ImagenTmp;
    job.progressMax = [this](int max) { Progress->setMax(max); };
    job.progress = [this](int value) { Progress->setProgress(value); };
    printSelection(job, context().printers, context().boxes, store::MensaProducidoError);
}

} // namespace zv::listing
