// The controls that both screens of recordings show: what stands where, and which handler each one runs.
#include "editors/records1/recording_screen.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

RecordingScreen::RecordingScreen(shell::Context& context, QWidget* parent, const QString& name)
    : Screen(context, parent, name) {
    for (const PartCaption& caption : partCaptions())
        addLabel({}, Role::Caption, caption.text.toString(), caption.rect, type::XS, false,
                 caption.left ? ToLeft : ToRight);
    for (int part = 0; part < PartCount; ++part) {
        addPart(part);
        if (part == WorkPart) addMovements();
    }
    LabInterpreteNumeroInterprete = addLabel(u"LabInterpreteNumeroInterprete"_s, Role::Detail, {},
                                             {7410, 4740, 450, 240}, type::S, false, Qt::AlignCenter);
}

void RecordingScreen::addMovements() {
    LabObraNumeroMovimientos = addLabel(u"LabObraNumeroMovimientos"_s, Role::Detail, {}, {6090, 1200, 450, 240},
                                        type::S, false, Qt::AlignCenter);
    LabObraTotal =
        addLabel(u"LabObraTotal"_s, Role::Detail, {}, {8895, 1200, 1110, 240}, type::S, false, Qt::AlignCenter);
    FlexMovimientos = add<FlexGrid>(u"FlexMovimientos"_s, {5220, 1470, 4785, 855});
    FlexMovimientos->setType(type::G, false);
    FlexMovimientos->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSlim(FlexMovimientos);
}

void RecordingScreen::addPart(int part) {
    const PartInfo& info = partInfo(part);
    const QString suffix = info.suffix.toString();
    auto* heading = addLabel(u"Lab"_s + suffix, Role::LabelButton, info.word.toString(), info.heading, type::G, true,
                             Qt::AlignCenter);
    heading->setBackColor(colour::Panel);
    heading->setToolTipText(info.importTip.toString());
    heading->Click = [this, part] { Lab_Click(part); };
    Lab[std::size_t(part)] = heading;
    auto* picture = add<Picture>(u"Imagen"_s + suffix, {info.left, info.top, PartPicture, PartPicture});
    picture->setPicture({{}, store::info(info.kind).drawing.toString(), {PartPicture, PartPicture}});
    setRole(picture, Role::PageImage); // the border is its tile's
    picture->setToolTipText(u"Show %1 (Double Click)"_s.arg(info.word));
    picture->DblClick = [this, part] { Imagen_DblClick(part); };
    Imagen[std::size_t(part)] = picture;
    auto* placeholder = add<Picture>(u"ImagenTonta"_s + suffix, {0, 0, PartPicture, PartPicture});
    placeholder->setPicture(picture->picture());
    placeholder->setVisible(false);
    auto* remove = addButton(u"BtnEliIma"_s + suffix, u"Remove"_s, {}, {info.left + 570, info.top + 1620, 795, 255});
    remove->setType(type::S, true);
    remove->setAccessibleName(u"Remove "_s + info.word.toString());
    remove->setVisible(false);
    remove->Click = [this, part] { BtnEliIma_Click(part); };
    BtnEliIma[std::size_t(part)] = remove;
    for (const PartLabel& label : info.labels) {
        Label* shown = addLabel(label.control.toString(), Role::Detail, {}, label.rect, type::S, label.bold,
                                label.centred ? Qt::Alignment(Qt::AlignCenter) : ToLeft);
        const store::KindInfo& kind = store::info(info.kind);
        const QStringView field = kind.fields[std::size_t(kind.indexOf(label.column))].listed;
        shown->setAccessibleName(info.word.toString() + u", "_s + field.toString());
        partLabels_[std::size_t(part)].push_back(shown);
    }
    if (info.isGroup()) addGrid(part);
}

void RecordingScreen::addGrid(int part) {
    const PartGroup& group = *partInfo(part).group;
    auto* grid = add<FlexGrid>(group.grid.toString(), group.rect);
    grid->setType(group.type, false);
    grid->setAccessibleName(partInfo(part).word.toString());
    grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSlim(grid);
    if (group.twoLinesPitch) setTwoLines(grid, group.twoLinesPitch);
    grid->DblClick = [this, part, grid] {
        if (grid->Rows()) showPicture(part, grid->TextMatrix(grid->RowSel(), 1));
    };
    Flex[std::size_t(part)] = grid;
}

void RecordingScreen::addNotes(int left, int width) {
    addLabel({}, Role::Heading, u"Notes"_s, {left, 3330, width, 240}, type::S, true, ToLeft);
    TxtNotas = add<Memo>(u"TxtNotas"_s, {left, 3600, width, 1935});
    TxtNotas->setType(type::G, false);
    chainTabStops({BtnEliIma[FormatPart], TxtNotas}); // behind the parts, whatever was added in between
}

void RecordingScreen::paintBehind(QPainter& painter) {
    // Each picture stands in a tile of its own, also where it is narrower.
    for (int part = 0; part < PartCount; ++part) {
        const QRect tile =
            scale().rect({partInfo(part).left - 15, partInfo(part).top - 15, PartPicture + 30, PartPicture + 30});
        const int line = scale().hairline();
        painter.fillRect(tile, colour::Edge2);
        painter.fillRect(tile.adjusted(line, line, -line, -line), colour::Panel);
    }
    paintSpine(painter, scale());
}

} // namespace zv::editors
