#include "report/form_informe.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"
#include "platform/forms/look_style_draw.h"

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

// All in twips.
constexpr TwipsRect Table{165, 735, 9990, 6045}, Head{165, 735, 9990, 600};
constexpr int RowTop = 1380, RowPitch = 330, RuleTop = 6030, SumTop = 6060, ProductTop = 6405;
constexpr int CaptionLeft = 285, CaptionWidth = 2175;
constexpr int FigureEnd = 45;  ///< a figure ends so far before its column's right edge
constexpr int LineGap = 52;    ///< a vertical line stands so far left of its group
constexpr int HeadingGap = 36; ///< a heading may go so far beyond its columns, short of the lines
constexpr int Radius = 45;
constexpr TwipsRect Signature{4410, 7290, 1500, 360};
constexpr Staff StaffLeft{165, 4245, 7470, 60, false, false}, StaffRight{5910, 4245, 7470, 60, false, false};

TwipsRect rowRect(int row) {
    return {Table.Left, row < ReportRowCount ? RowTop + RowPitch * row : SumTop, Table.Width, RowPitch};
}
QColor rowGround(int row) { return row < ReportRowCount && row % 2 ? colour::ZebraDark : colour::ZebraLight; }

/// A sum, a product: a 32-bit number or error 6.
qint32 plus(qint32 a, qint32 b) { return toLong(double(a) + double(b)); }
qint32 times(qint32 a, qint32 b) { return toLong(double(a) * double(b)); }

} // namespace

FormInforme::FormInforme(shell::Context& context, QWidget* parent, const QString& name)
    : Screen(context, parent, name) {
    addLabel({}, Role::Heading, u"General Report of Records"_s, {Table.Left, 165, Table.Width, 480}, type::XL, true,
             Qt::AlignCenter);
    addHeadings();
    for (int row = 0; row <= ReportRowCount; ++row) addRow(row);
    addProducts();
    addLegend();
    addLabel({}, Role::Heading, u"- Zarvelia -"_s, Signature, type::S, true, Qt::AlignCenter);
}

void FormInforme::addHeadings() {
    for (const ReportGroup& group : ReportGroups)
        addLabel({}, Role::Heading, group.heading.toString(),
                 {group.left() - HeadingGap, 765, group.width() + 2 * HeadingGap, 285}, type::G, true, Qt::AlignCenter)
            ->setBackColor(colour::GridHead);
    for (const ReportColumn& column : ReportColumns) {
        auto* heading = addLabel({}, Role::Unit, column.heading.toString(),
                                 {column.left, 1050, column.width - FigureEnd, 270}, type::S, true, ToRight);
        heading->setBackColor(colour::GridHead);
    }
}

Label* FormInforme::addFigure(const QString& name, const ReportColumn& column, const TwipsRect& row,
                              const QColor& ground, bool bold) {
    auto* figure = addLabel(name, Role::Figure, u"0"_s, {column.left, row.Top, column.width - FigureEnd, row.Height},
                            type::M, bold, ToRight);
    figure->setForeColor(column.content == Content::Fields ? colour::Soft : colour::Ink);
    figure->setBackColor(ground);
    figure->setToolTipText(column.tip.toString());
    return figure;
}

void FormInforme::addRow(int row) {
    const bool sums = row == ReportRowCount;
    const TwipsRect rect = rowRect(row);
    const QString prefix = (sums ? SumPrefix : ReportRows[row].prefix).toString();
    const QString caption = sums ? u"Sum"_s : store::info(ReportRows[row].kind).title.toString();
    addLabel({}, Role::Caption, caption, {CaptionLeft, rect.Top, CaptionWidth, rect.Height}, type::G, true, ToLeft)
        ->setBackColor(rowGround(row));
    int fields = 0;
    for (const store::KindInfo& kind : store::kinds())
        if (sums || kind.kind == ReportRows[row].kind) fields += kind.fieldCount;
    for (int i = 0; i < ColumnCount; ++i) {
        const ReportColumn& column = ReportColumns[i];
        const QString name = column.suffix.isEmpty() ? QString() : prefix + column.suffix.toString();
        Label* figure = addFigure(name, column, rect, rowGround(row), sums);
        if (column.content == Content::Fields) figure->setCaption(QString::number(fields));
        figures_[std::size_t(row)][std::size_t(i)] = figure;
    }
    if (sums) figures_.back()[Orden]->setCaption(u"-"_s);
}

void FormInforme::addProducts() {
    const QString caption = u"Sum of (R x F)"_s;
    addLabel({}, Role::Caption, caption, {CaptionLeft, ProductTop, CaptionWidth, RowPitch}, type::G, true, ToLeft)
        ->setBackColor(colour::ZebraLight);
    for (std::size_t i = 0; i < ProductCount; ++i) {
        const ReportProduct& product = ReportProducts[i];
        const ReportGroup& group = ReportGroups[product.group];
        const QString name = (ProductPrefix.toString() + ReportColumns[product.records].suffix.toString());
        products_[i] = addLabel(name, Role::Value, u"0"_s,
                                {group.left(), ProductTop + 15, group.width(), RowPitch - 30}, type::M, true, ToRight);
        products_[i]->setForeColor(colour::Accent);
        products_[i]->setToolTipText(caption + u": "_s + group.heading.toString());
    }
}

void FormInforme::addLegend() {
    constexpr int Left = 3180, Pitch = 1470, Top = 6930, Word = 270;
    static constexpr std::pair<QStringView, QStringView> Units[] = {
        {u"R", u"Records"}, {u"F", u"Fields"}, {u"Fl", u"Filters"}};
    int left = Left;
    for (const auto& [letter, word] : Units) {
        addLabel({}, Role::Heading, letter.toString(), {left, Top, Word, 285}, type::G, true, ToLeft);
        addLabel({}, Role::None, word.toString(), {left + Word, Top, Pitch - Word, 285}, type::G, false, ToLeft);
        left += Pitch;
    }
}

void FormInforme::Form_Load() {
    show(NumRegTotal);
    showSum(NumRegTotal);
    showProduct(0);
    show(NumRegSeleccion);
    show(NumFiltros);
    showSum(NumFiltros);
    showSum(NumRegSeleccion);
    showProduct(1);
    show(Orden);
    show(NumRegEliminados);
    showSum(NumRegEliminados);
    show(NumRegNuevos);
    showSum(NumRegNuevos);
    show(NumFiltros1);
    show(NumCampos);
    show(NumRegSeleccion1);
    showSum(NumCampos);
    showSum(NumFiltros1);
    showSum(NumRegSeleccion1);
    showProduct(2);
}

qint32 FormInforme::value(int row, ColumnId column) {
    const store::Kind kind = ReportRows[row].kind;
    const store::KindMemory& memory = store().memory.of(kind);
    switch (ReportColumns[column].content) {
    case Content::Counter: return memory.*ReportColumns[column].counter;
    case Content::Fields: return store::info(kind).fieldCount;
    case Content::Ticks: return static_cast<qint32>(std::ranges::count(memory.MemoLis.Campo, true));
    case Content::Order: return order(kind);
    }
    return 0;
}

qint32 FormInforme::order(store::Kind kind) {
    const qint32 position = store().memory.of(kind).Posicion;
    if (position >= 2) return position;
    return store().Data(kind).Recordset().RecordCount() != 0 ? 1 : 0;
}

void FormInforme::show(ColumnId column) {
    for (int row = 0; row < ReportRowCount; ++row)
        figures_[std::size_t(row)][column]->setCaption(CStr(value(row, column)));
}

void FormInforme::showSum(ColumnId column) {
    qint32 sum = 0;
    for (int row = 0; row < ReportRowCount; ++row) sum = plus(sum, value(row, column));
    figures_.back()[column]->setCaption(CStr(sum));
}

void FormInforme::showProduct(int product) {
    const ReportProduct& of = ReportProducts[product];
    qint32 sum = 0;
    for (int row = 0; row < ReportRowCount; ++row)
        sum = plus(sum, times(value(row, of.records), value(row, of.fields)));
    products_[std::size_t(product)]->setCaption(CStr(sum));
}

void FormInforme::paintBehind(QPainter& painter) {
    const Scale& s = scale();
    const int line = s.hairline();
    const QRect table = s.rect(Table), head = s.rect(Head);
    draw::box(painter, table, colour::ZebraLight, colour::Edge2, line, s.px(Radius));
    // The head keeps the round corners of the table above, and ends in a line.
    painter.save();
    painter.setClipRect(head);
    draw::box(painter, table, colour::GridHead, colour::Edge2, line, s.px(Radius));
    painter.restore();
    const auto across = [&](int top, const QColor& colour) {
        painter.fillRect(QRect(table.left() + line, top, table.width() - 2 * line, line), colour);
    };
    for (int row = 1; row < ReportRowCount; row += 2) {
        const QRect band = s.rect(rowRect(row));
        painter.fillRect(band.adjusted(line, 0, -line, 0), rowGround(row));
    }
    across(head.bottom() + 1 - line, colour::Edge2);
    across(s.px(RuleTop), colour::Edge);
    across(s.px(SumTop + RowPitch), colour::Edge3);
    for (const ReportGroup& group : ReportGroups) {
        const int x = s.px(group.left() - LineGap);
        painter.fillRect(QRect(x, table.top() + line, line, table.height() - 2 * line), colour::Edge3);
    }
    paintStaff(painter, StaffLeft, colour::Motif, s);
    paintStaff(painter, StaffRight, colour::Motif, s);
}

} // namespace zv::report
