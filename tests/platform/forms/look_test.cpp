// What would break without a word: empty drawings, cut texts, states that look alike, rows that no longer fit.
#include "platform/forms/decoration.h"
#include "platform/forms/look_label.h"
#include "platform/forms/look_style.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSet>
#include <QTextDocument>
#include <cmath>
#include <gtest/gtest.h>

namespace zv::forms {
namespace {

using namespace Qt::StringLiterals;

Scale& scale() {
    static Scale all(1.0); // outlives the application's style
    return all;
}

class LookTest : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { LookStyle::install(scale()); }
    static QImage shot(QWidget& widget) { return widget.grab().toImage(); }

    /// A shown window of that scale.
    std::unique_ptr<QWidget> window(double s) {
        scale().set(s);
        auto w = std::make_unique<QWidget>();
        w->resize(scale().px(10320), scale().px(7755));
        LookStyle::rescale(*w);
        w->show();
        w->activateWindow();
        QCoreApplication::processEvents();
        return w;
    }
};

template <class Widget>
Widget* put(QWidget& window, const TwipsRect& place) {
    auto* widget = new Widget(&window);
    widget->setGeometry(scale().rect(place));
    widget->setFont(scale().font(type::M, false));
    widget->show();
    return widget;
}

/// Contrast of two colours after WCAG 2.
double contrast(const QColor& a, const QColor& b) {
    const auto luminance = [](const QColor& c) {
        const auto linear = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
    };
    const double x = luminance(a), y = luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

TEST_F(LookTest, EveryDrawingShowsSomethingAtEverySize) {
    const QStringList names = {u"compositor"_s, u"obra"_s,     u"orquesta"_s,  u"director"_s,
                               u"interprete"_s, u"soporte"_s,  u"grabacion"_s, u"instrumento"_s,
                               u"agrupacion"_s, u"evento"_s,   u"escenario"_s, u"publicacion"_s,
                               u"emisora"_s,    u"internet"_s, u"logo"_s,      u"icon"_s};
    for (const QString& name : names) {
        for (const int size : {16, 129, 600}) {
            const QImage image = drawing(name, {size, size}).toImage();
            ASSERT_EQ(image.size(), QSize(size, size)) << name.toStdString();
            QSet<QRgb> colours;
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x) colours += image.pixel(x, y);
            EXPECT_GT(colours.size(), 8) << name.toStdString() << " at " << size;
        }
    }
    EXPECT_TRUE(drawing(u"nothing"_s, {10, 10}).isNull());
    EXPECT_EQ(drawing(u"icon"_s, {32, 32}, 2.0).size(), QSize(64, 64));
}

TEST_F(LookTest, ALabelCutsInPaintingOnly) {
    const auto w = window(1.0);
    const QString whole = u"Two & two\rwords that are far too long for this label"_s;
    auto* label = put<LookLabel>(*w, {0, 0, 1500, 315});
    label->setText(whole);
    const QImage cut = shot(*label);
    EXPECT_EQ(label->text(), whole);
    label->setText(whole + u" and longer still"_s);
    EXPECT_EQ(shot(*label), cut);
    label->setText(u"Two two"_s);
    const QImage without = shot(*label);
    label->setText(u"Two &two"_s);
    EXPECT_NE(shot(*label), without) << "an ampersand is a letter";
    EXPECT_EQ(label->size(), scale().rect({0, 0, 1500, 315}).size());
}

TEST_F(LookTest, StatesOfABoxLookDifferentAtEveryScale) {
    for (const double s : {1.0, 1.75, 3.0}) {
        const auto w = window(s);
        auto* other = put<QLineEdit>(*w, {5000, 4000, 2000, 315});
        auto* box = put<QLineEdit>(*w, {5000, 3000, 2000, 315}); // away from the mouse
        box->setText(u"Text"_s);
        other->setFocus();
        const QImage normal = shot(*box);
        const int line = scale().hairline(), middle = normal.width() / 2;
        for (int y = 0; y < line; ++y) EXPECT_EQ(normal.pixelColor(middle, y), colour::Edge) << s;
        EXPECT_NE(normal.pixelColor(middle, line), colour::Edge) << s;
        EXPECT_EQ(normal.pixelColor(middle, normal.height() / 2), colour::Panel);

        box->setReadOnly(true);
        const QImage locked = shot(*box);
        box->setReadOnly(false);
        box->setEnabled(false);
        const QImage disabled = shot(*box);
        box->setEnabled(true);
        QPalette missing = box->palette();
        missing.setColor(QPalette::Base, colour::Missing);
        box->setPalette(missing);
        const QImage white = shot(*box);
        EXPECT_EQ(white.pixelColor(middle, white.height() / 2), colour::Missing);
        box->setFocus();
        ASSERT_TRUE(box->hasFocus());
        const QImage focused = shot(*box);
        for (int y = 0; y < scale().focusLine(); ++y) EXPECT_EQ(focused.pixelColor(middle, y), colour::Accent) << s;
        const std::vector<QImage> all = {normal, locked, disabled, white, focused};
        for (std::size_t i = 0; i < all.size(); ++i)
            for (std::size_t k = i + 1; k < all.size(); ++k) EXPECT_NE(all[i], all[k]) << s << ": " << i << ", " << k;
    }
}

TEST_F(LookTest, AMemoIsNotToldOfItsMargins) {
    QWidget w;
    auto* memo = new QPlainTextEdit(&w);
    int changes = 0;
    QObject::connect(memo, &QPlainTextEdit::textChanged, [&] { ++changes; });
    w.show();
    for (const double s : {1.0, 2.25, 1.0}) {
        scale().set(s);
        LookStyle::rescale(w);
    }
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(memo->document()->isUndoAvailable());
    EXPECT_TRUE(memo->isUndoRedoEnabled());
    memo->insertPlainText(u"typed"_s);
    EXPECT_EQ(changes, 1);
    scale().set(3.0);
    LookStyle::rescale(w);
    EXPECT_TRUE(memo->document()->isUndoAvailable()) << "a change of size loses no way back";
}

TEST_F(LookTest, RowsOfAListFitAtEveryScale) {
    struct Case {
        TwipsRect place;
        int twips, rows;
    };
    for (double s = 1.0; s <= 3.0; s += 0.25) {
        const auto w = window(s);
        for (const Case& c : {Case{{3555, 2580, 6315, 2355}, 255, 9}, Case{{165, 6720, 2430, 960}, 225, 4}}) {
            auto* list = put<QListWidget>(*w, c.place);
            setRowHeight(list, c.twips);
            for (int i = 0; i < c.rows; ++i) list->addItem(u"row"_s);
            list->doItemsLayout();
            EXPECT_EQ(list->verticalScrollBar()->maximum(), 0) << s;
            EXPECT_LT(list->viewport()->height() - c.rows * list->sizeHintForRow(0), list->sizeHintForRow(0)) << s;
        }
    }
}

// Level AA. Grounds that are lighter than one that stands here, behind the same dark text, need no line of their own.
TEST_F(LookTest, TextsStandOutFromTheirGrounds) {
    using namespace colour;
    struct Pair {
        QColor text, ground;
        const char* where;
    };
    for (const Pair& pair : {
             Pair{Ink, Panel, "boxes, lists, messages"},
             Pair{Ink, NumberColumn, "number column, zebra, cells"},
             Pair{Ink, TabFoot, "tabs"},
             Pair{Ink, PressedTop, "buttons, pressed ones too"},
             Pair{Ink, Tip, "tips"},
             Pair{Navy, GridHead, "headings of grids and of the report, captions"},
             Pair{Navy, ZebraDark, "captions of the report"},
             Pair{Accent, TabFoot, "tabs under the mouse"},
             Pair{Accent, FaceFoot, "buttons under the mouse"},
             Pair{Accent, Panel, "AND and OR, letters of the help"},
             Pair{Soft, GridHead, "short headings of the report"},
             Pair{Soft, ZebraDark, "field counts of the report"},
             Pair{Soft, Panel, "units"},
             Pair{Missing, Navy, "chosen rows and texts"},
             Pair{Missing, Accent, "letters on the drawings of the help"},
         })
        EXPECT_GE(contrast(pair.text, pair.ground), 4.5) << pair.where;
    // The edges that tell a control from its ground, and the line of the focus.
    EXPECT_GE(contrast(Edge, Panel), 3.0);
    EXPECT_GE(contrast(Accent, Panel), 3.0);
}

} // namespace
} // namespace zv::forms
