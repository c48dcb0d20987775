// Picture files as they come, and the boxes that take them; the real message boxes and the real file dialog.
#include "bench_form.h"
#include "platform/forms/picture.h"
#include "platform/forms/qt_dialogs.h"
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

namespace zv::forms {
namespace {

class Pictures : public Bench {
  protected:
    QString write(const QString& name, const QByteArray& bytes) {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path;
    }
    QString draw(const QString& name, QSize pixels, const char* format) {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        image.setDotsPerMeterX(30000); // a resolution in the file is not asked
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path, format));
        return path;
    }
    QTemporaryDir folder;
};

TEST_F(Pictures, LoadByTheirContents) {
    const QByteArray gif = QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
    EXPECT_EQ(LoadPicture(draw(u"a.jpg"_s, {40, 20}, "jpg")).naturalTwips, QSize(600, 300));
    EXPECT_EQ(LoadPicture(draw(u"a.bmp"_s, {3, 5}, "bmp")).naturalTwips, QSize(45, 75));
    EXPECT_EQ(LoadPicture(write(u"a.gif"_s, gif)).naturalTwips, QSize(15, 15));
    EXPECT_EQ(LoadPicture(draw(u"wrong.gif"_s, {4, 4}, "bmp")).naturalTwips, QSize(60, 60));
    for (const char* format : {"bmp", "jpg"}) {
        const PictureData large = LoadPicture(draw(u"large"_s, {4000, 200}, format));
        EXPECT_EQ(large.naturalTwips, QSize(60000, 3000));
        EXPECT_EQ(large.image.size(), QSize(1200, 60)) << "kept smaller than it is";
    }
    EXPECT_TRUE(LoadPicture(QString()).isEmpty());
    const auto error = [](const QString& path) { return errorOf([&] { LoadPicture(path); }); };
    EXPECT_EQ(error(folder.filePath(u"no.jpg"_s)), 53);
    EXPECT_EQ(error(folder.filePath(u"no/a.jpg"_s)), 76);
    EXPECT_EQ(error(draw(u"png.jpg"_s, {4, 4}, "png")), 481);
    EXPECT_EQ(error(write(u"text.jpg"_s, "no picture")), 481);
    EXPECT_EQ(error(write(u"cut.gif"_s, gif.left(20))), 481);
    EXPECT_EQ(error(write(u"empty.bmp"_s, {})), 481);
    EXPECT_EQ(error(folder.path()), 481);
}

TEST_F(Pictures, FitTheirBoxWithTheirProportions) {
    auto* box = form->add<Picture>(u"Imagen"_s, {240, 240, 3000, 3000});
    box->show();
    CommonDialog dialog;
    const auto fit = [&](const QString& path) {
        dialog.FileName = path;
        CargarImagen(*box, dialog, 2000, 3000); // height, width
        return QSize(box->Width(), box->Height());
    };
    EXPECT_EQ(fit(draw(u"wide.bmp"_s, {300, 100}, "bmp")), QSize(3000, 1000));
    EXPECT_TRUE(box->isHidden()) << "until it is placed";
    EXPECT_EQ(fit(draw(u"tall.bmp"_s, {100, 300}, "bmp")), QSize(667, 2000));
    EXPECT_EQ(fit(draw(u"square.bmp"_s, {7, 7}, "bmp")), QSize(3000, 3000));
    EXPECT_FALSE(dialog.FileName.isEmpty());
    fit(folder.filePath(u"no.bmp"_s));
    EXPECT_TRUE(dialog.FileName.isEmpty());
    box->clear();
    EXPECT_TRUE(box->picture().isEmpty() && box->pixmap(Qt::ReturnByValue).isNull());
    box->DblClick = counted();
    box->show();
    EXPECT_EQ(firedBy([&] { QTest::mouseDClick(box, Qt::LeftButton); }), 1);
    box->setEnabled(false);
    EXPECT_EQ(firedBy([&] { QTest::mouseDClick(box, Qt::LeftButton); }), 0);
}

/// Runs the work on the dialog that the call puts in front.
template <class Dialog, class Call>
auto inFront(Call&& call, const std::function<void(Dialog&)>& work) {
    QTimer::singleShot(0, [work] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        work(*dialog);
    });
    return call();
}

TEST(Dialogs, AskInTheButtonsOfTheStyle) {
    struct Case {
        int style;
        QMessageBox::StandardButtons buttons;
        QMessageBox::Icon icon;
        QMessageBox::StandardButton first;
        int afterEscape; ///< 0: the box stays
    };
    QtMessageBoxes boxes;
    for (const Case& c : {
             Case{box::Critical, QMessageBox::Ok, QMessageBox::Critical, QMessageBox::Ok, box::Ok},
             Case{box::OkCancel, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Question, QMessageBox::Ok,
                  box::Cancel},
             Case{box::YesNo, QMessageBox::Yes | QMessageBox::No, QMessageBox::Question, QMessageBox::Yes, 0},
             Case{box::Warning, QMessageBox::Ok, QMessageBox::Warning, QMessageBox::Ok, box::Ok},
             Case{box::Information, QMessageBox::Ok, QMessageBox::Information, QMessageBox::Ok, box::Ok},
             Case{box::YesNoInformation, QMessageBox::Yes | QMessageBox::No, QMessageBox::Information, QMessageBox::Yes,
                  0},
         }) {
        const int answer = inFront<QMessageBox>([&] { return boxes.MsgBox(u"<b>One</b>\rtwo"_s, c.style); },
                                                [&](QMessageBox& shown) {
                                                    EXPECT_EQ(shown.text(), u"<b>One</b>\ntwo"_s);
                                                    EXPECT_EQ(shown.textFormat(), Qt::PlainText);
                                                    EXPECT_EQ(shown.windowTitle(), u"Zarvelia"_s);
                                                    EXPECT_EQ(shown.standardButtons(), c.buttons);
                                                    EXPECT_EQ(shown.icon(), c.icon);
                                                    EXPECT_EQ(shown.defaultButton(), shown.button(c.first));
                                                    QTest::keyClick(&shown, Qt::Key_Escape);
                                                    if (c.afterEscape != 0) return;
                                                    shown.close();
                                                    EXPECT_TRUE(shown.isVisible()) << "only an answer closes it";
                                                    QTest::mouseClick(shown.button(QMessageBox::No), Qt::LeftButton);
                                                });
        EXPECT_EQ(answer, c.afterEscape ? c.afterEscape : box::No) << c.style;
    }
}

TEST(Dialogs, TakeTheFirstAnswerByEnterAndTheOthersByTheArrows) {
    QtMessageBoxes boxes;
    const auto answered = [&](int style, const QList<Qt::Key>& keys) {
        return inFront<QMessageBox>([&] { return boxes.MsgBox(u"?"_s, style); },
                                    [&](QMessageBox& shown) {
                                        for (const Qt::Key key : keys)
                                            QTest::keyClick(shown.focusWidget() ? shown.focusWidget() : &shown, key);
                                    });
    };
    EXPECT_EQ(answered(box::YesNo, {Qt::Key_Return}), box::Yes);
    EXPECT_EQ(answered(box::YesNo, {Qt::Key_Tab, Qt::Key_Enter}), box::No);
    EXPECT_EQ(answered(box::OkCancel, {Qt::Key_Right, Qt::Key_Space}), box::Cancel);
}

TEST(Dialogs, LetAFileBeChosen) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.jpg"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QtFileDialogs dialogs;
    const QString filter = u"Images (*.jpg, *.gif, *.bmp)|*.jpg;*.gif;*.bmp|All files (*.*)|*.*"_s;
    for (const bool taken : {true, false}) {
        const QString chosen = inFront<QFileDialog>(
            [&] { return dialogs.openFile(u"Insert Image"_s, filter, path); },
            [&](QFileDialog& shown) {
                EXPECT_EQ(shown.windowTitle(), u"Insert Image"_s);
                EXPECT_EQ(shown.nameFilters(), QStringList({u"Images (*.jpg *.gif *.bmp)"_s, u"All files (*)"_s}));
                EXPECT_EQ(shown.selectedFiles(), QStringList{path});
                static_cast<QDialog&>(shown).done(taken ? QDialog::Accepted : QDialog::Rejected);
            });
        EXPECT_EQ(chosen, taken ? path : QString());
    }
}

} // namespace
} // namespace zv::forms
