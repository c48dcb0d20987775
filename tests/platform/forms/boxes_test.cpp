// Boxes to type in: when they tell of a change, what they keep of a text, what focus does; and the tips of all
// controls.
#include "bench_form.h"
#include "platform/forms/text_box.h"
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace zv::forms {
namespace {

class Boxes : public Bench {
  protected:
    TextBox* box = form->add<TextBox>(u"TxtNombre"_s, {240, 240, 3000, 315});
    Memo* memo = form->add<Memo>(u"TxtNotas"_s, {240, 1240, 3000, 2000});
    TextBox* other = form->add<TextBox>(u"TxtOtro"_s, {240, 4240, 3000, 315});

    void SetUp() override {
        for (QWidget* widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(memo), static_cast<QWidget*>(other)})
            widget->show();
        other->setFocus();
        box->Change = memo->Change = counted();
    }
    static void focusEvent(QWidget& widget, Qt::FocusReason reason) {
        QFocusEvent event(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&widget, &event);
    }
};

TEST_F(Boxes, TellOfAChangeOnceInsideTheSetter) {
    for (const bool plain : {true, false}) {
        box->setVisible(plain);
        box->setLocked(!plain);
        memo->setEnabled(plain);
        const QString text = plain ? u"one"_s : u"two"_s;
        EXPECT_EQ(firedBy([&] { box->setText(text); }), 1);
        EXPECT_EQ(firedBy([&] { box->setText(text); }), 0);
        EXPECT_EQ(firedBy([&] { memo->setText(text); }), 1);
        EXPECT_EQ(firedBy([&] { memo->setText(text); }), 0);
    }
    EXPECT_EQ(firedBy([&] { memo->setFont(QFont(u"Sans"_s, 20)); }), 0);
    // A handler that sets the text again is told again.
    box->Change = [this] {
        ++fired;
        if (box->Text() == u"x"_s) box->setText({});
    };
    EXPECT_EQ(firedBy([&] { box->setText(u"x"_s); }), 2);
    EXPECT_EQ(box->Text(), QString());
}

TEST_F(Boxes, CutALongTextAndShowItsHead) {
    box->setMaxLength(5);
    EXPECT_EQ(firedBy([&] { box->setText(u"1234567"_s); }), 1);
    EXPECT_EQ(box->Text(), u"12345"_s);
    EXPECT_EQ(firedBy([&] { box->setText(u"12345 again"_s); }), 0);
    QTest::keyClicks(box, u"9"_s);
    EXPECT_EQ(box->Text(), u"12345"_s);
    other->setText(QString(200, u'W'));
    EXPECT_EQ(other->cursorPosition(), 0);
}

TEST_F(Boxes, SwallowTheCharactersTheyAreToldTo) {
    box->KeyPress = [](QChar c) { return c.isDigit(); };
    EXPECT_EQ(firedBy([&] { QTest::keyClicks(box, u"1a2"_s); }), 2);
    EXPECT_EQ(box->Text(), u"12"_s);
    box->setLocked(true);
    QTest::keyClicks(box, u"3"_s);
    EXPECT_EQ(box->Text(), u"12"_s);
    box->setText(u"by code"_s);
    EXPECT_EQ(box->Text(), u"by code"_s);
}

TEST_F(Boxes, KeepTheSelectionThatTheClickGave) {
    box->setText(u"some words"_s);
    box->GotFocus = [this] {
        ++fired;
        box->selectWhole();
    };
    const QPoint inside(20, 10);
    EXPECT_EQ(firedBy([&] { QTest::mouseClick(box, Qt::LeftButton, {}, inside); }), 1);
    EXPECT_EQ(box->selectedText(), u"some words"_s);
    EXPECT_EQ(firedBy([&] { QTest::mouseClick(box, Qt::LeftButton, {}, inside); }), 0);
    EXPECT_EQ(box->selectedText(), QString()) << "the next click places the caret";
    EXPECT_EQ(firedBy([&] { QTest::keyClick(other, Qt::Key_Tab), box->setFocus(Qt::TabFocusReason); }), 1);
}

TEST_F(Boxes, DoNotTakeTheReturnOfTheWindowForFocus) {
    box->GotFocus = memo->GotFocus = counted();
    for (QWidget* widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(memo)})
        EXPECT_EQ(
            firedBy([&] {
                for (const auto reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason})
                    focusEvent(*widget, reason);
                focusEvent(*widget, Qt::TabFocusReason);
                focusEvent(*widget, Qt::OtherFocusReason);
            }),
            2);
}

TEST_F(Boxes, KeepNotesToTheLetterUntilTheyAreEdited) {
    const QString blank(QChar(0xA0));
    for (const QString& text : {u"one\r\ntwo"_s, u"one\ntwo"_s, u"one\rtwo\r\n"_s, u"\ttab and"_s + blank + u"blank"_s,
                                u"\r\n\r\n"_s, u"  \n"_s, u"\n\r\n"_s, QString()}) {
        memo->setText(text);
        EXPECT_EQ(memo->Text(), text);
    }
    EXPECT_EQ(firedBy([&] { memo->setText(u"one\ntwo"_s); }), 1);
    EXPECT_EQ(firedBy([&] { memo->setText(u"one\r\ntwo"_s); }), 1) << "other line ends are another text";

    memo->setText(u"one\ntwo\t"_s + blank);
    EXPECT_EQ(firedBy([&] {
                  memo->moveCursor(QTextCursor::End);
                  QTest::keyClicks(memo, u"x"_s);
                  QTest::keyClick(memo, Qt::Key_Return);
              }),
              2);
    EXPECT_EQ(memo->Text(), u"one\r\ntwo\t"_s + blank + u"x\r\n"_s);
    memo->undo();
    memo->undo();
    EXPECT_EQ(memo->Text(), u"one\ntwo\t"_s + blank) << "as nobody had edited it";
}

TEST_F(Boxes, ShowTipsByTheLetter) {
    auto* list = form->add<ListBox>(u"ListFiltros"_s, {240, 5240, 3000, 1000});
    list->show();
    const auto shown = [](QWidget* target) {
        QHelpEvent event(QEvent::ToolTip, {5, 5}, target->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(target, &event);
        const QString text = QToolTip::text();
        return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    };
    for (const QString& tip : {u"No. of Selected Records"_s, u"Smith & Sons"_s, u"a > b & c"_s, u"<b>bold</b>"_s,
                               u"&lt;"_s, u"Surname Same as '<i>'"_s}) {
        for (Placed* control : {static_cast<Placed*>(box), static_cast<Placed*>(memo), static_cast<Placed*>(list)}) {
            control->setToolTipText(tip);
            EXPECT_EQ(control->ToolTipText(), tip);
            auto* area = qobject_cast<QAbstractScrollArea*>(control->widget());
            EXPECT_EQ(shown(area ? area->viewport() : control->widget()), tip);
            EXPECT_EQ(control->widget()->toolTip(), tip);
        }
    }
    const QString filters = u"Surname Same as 'A' & "_s.repeated(20).trimmed();
    box->setToolTipText(filters);
    EXPECT_EQ(shown(box), filters);
    EXPECT_TRUE(Qt::mightBeRichText(QToolTip::text())) << "broken into lines";
}

} // namespace
} // namespace zv::forms
