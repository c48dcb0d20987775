// The pen's rules, measuring, and the printer into a PDF.
#include "platform/printing/measure.h"
#include "platform/printing/printer_dialog.h"
#include "platform/printing/qt_printer.h"
#include "platform/printing/recording_printer.h"
#include "support/error_of.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace zv;
using namespace zv::printing;

namespace {

using test::errorOf;

TEST(Pen, MovesBehindTextAndToTheNextLine) {
    RecordingPrinter printer;
    printer.characterWidths[u'W'] = 150;
    printer.CurrentX = 50;
    printer.Print(u"WaW"_s);
    EXPECT_EQ(printer.CurrentX, 450);
    printer.Print(u"b\r\ncc"_s);
    EXPECT_EQ(printer.CurrentX, 200);
    EXPECT_EQ(printer.CurrentY, 200);
    printer.PrintLine();
    EXPECT_EQ(printer.CurrentX, 0);
    EXPECT_EQ(printer.CurrentY, 400);
    EXPECT_EQ(printer.TextWidth(u"a\rWW\nb"_s), 300);
    EXPECT_EQ(printer.TextHeight(u"a\rWW\nb"_s), 600);
    printer.EndDoc();
    EXPECT_EQ(printer.operations(), QStringList({u"page 1"_s, u"text 50 0 8 0 'WaW'"_s, u"text 450 0 8 0 'b'"_s,
                                                 u"text 0 200 8 0 'cc'"_s, u"end"_s}));
}

TEST(Pen, BeginsDocumentsAndPagesWithTheirFirstMark) {
    RecordingPrinter printer;
    printer.scaleHeight = 500; // two lines
    printer.PrintLine();
    printer.EndDoc();
    EXPECT_TRUE(printer.operations().isEmpty());

    printer.PrintLine(u"one"_s);
    printer.PrintLine(u"two"_s);
    EXPECT_EQ(printer.CurrentY, 0) << "a third line has no room";
    printer.PrintLine(u"three"_s);
    printer.NewPage();
    printer.NewPage(); // a page left blank on purpose
    printer.CurrentX = 70;
    printer.CurrentY = 450;
    printer.Print(u"four"_s);
    printer.NewPage();
    printer.EndDoc();
    EXPECT_EQ(printer.operations(),
              QStringList({u"page 1"_s, u"text 0 0 8 0 'one'"_s, u"text 0 200 8 0 'two'"_s, u"page 2"_s,
                           u"text 0 0 8 0 'three'"_s, u"page 3"_s, u"page 4"_s, u"text 70 0 8 0 'four'"_s, u"end"_s}));
}

TEST(Measure, FindsTheSamePieceAsThePlainLoop) {
    const QStringList texts{u"The quick brown fox, WAVE AVATAR, office waffle ffi fl AV To Ta. "_s.repeated(3),
                            u"Dvořák Ångström Núñez Händel Fauré Poulenc Škroup Żeleński Lutosławski "_s.repeated(3),
                            u"Сергей Прокофьев, Дмитрий Шостакович, Пётр Чайковский "_s.repeated(3),
                            u"السلام عليكم لا إله محمد الله أم كلثوم فريد الأطرش "_s.repeated(3),
                            u"梁山伯與祝英台小提琴協奏曲黃河鋼琴協奏曲"_s.repeated(4),
                            u"a\u0301e\u0301\u0327o\u0308\u0301u\u0302\u0303n\u0303 "_s.repeated(15),
                            u"\u0301"_s.repeated(100) + u"end of a text of marks alone"_s,
                            u"한글 \u1112\u1161\u11ab\u1100\u1173\u11af "_s.repeated(6),
                            u"music 🎻🎹 𝄞𝄢 👨‍👩‍👧‍👦 🇪🇸 notes "_s.repeated(6)};
    const QTemporaryDir folder;
    QPdfWriter writer(folder.filePath(u"unused.pdf"_s));
    QtPrinter printer(std::shared_ptr<QPagedPaintDevice>(&writer, [](auto*) {}));
    int measured = 0;
    const auto width = [&](const QString& piece) { return ++measured, printer.TextWidth(piece); };
    for (const bool bold : {false, true})
        for (const QString& text : texts)
            for (const int from : {0, 5, 17})
                for (const double limit : {-100.0, 1.0, 700.0, 2345.0, 6000.0, 90000.0}) {
                    printer.setFontBold(bold);
                    EXPECT_EQ(printer.charactersUntilWidth(text, from, limit), fillWidth(text, from, limit, width))
                        << text.toStdString() << " from " << from << " to " << limit;
                }
    measured = 0;
    fillWidthFast(texts[0], 0, 8000, 180, width);
    EXPECT_LT(measured, 10);
    EXPECT_EQ(fillWidth(u"abc"_s, 3, 100, width), 0);
    EXPECT_EQ(fillWidthFast(u"abc"_s, 3, 100, 180, width), 0);
}

TEST(QtPrinter, MeasuresInTwipsWhateverTheResolution) {
    const QTemporaryDir folder;
    QPdfWriter coarse(folder.filePath(u"a.pdf"_s)), fine(folder.filePath(u"b.pdf"_s));
    coarse.setResolution(72);
    const auto borrowed = [](QPdfWriter& writer) { return std::shared_ptr<QPagedPaintDevice>(&writer, [](auto*) {}); };
    QtPrinter a(borrowed(coarse)), b(borrowed(fine));
    const QString text = u"Симфония № 9 / Dvořák"_s;
    EXPECT_EQ(a.TextWidth(text), b.TextWidth(text));
    EXPECT_EQ(a.ScaleWidth(), b.ScaleWidth());
    EXPECT_NEAR(a.Width(), 11900, 15); // A4, with a margin of 10 points
    EXPECT_NEAR(a.ScaleWidth(), 11500, 15);
    EXPECT_NEAR(a.ScaleHeight(), 16440, 15);
    const double small = a.TextWidth(text), line = a.TextHeight(u"O"_s);
    EXPECT_EQ(line, std::floor(line));
    EXPECT_EQ(a.TextHeight(u"O\rO"_s), 2 * line);
    a.setFontSize(18);
    EXPECT_NEAR(a.TextWidth(text), 2 * small, 2);
}

TEST(QtPrinter, WritesAPdfWholeOrNotAtAll) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.pdf"_s);
    pdfPrinter(path)->EndDoc();
    EXPECT_FALSE(QFile::exists(path)) << "nothing printed";

    const auto printer = pdfPrinter(path);
    printer->PrintLine(u"one"_s);
    printer->NewPage();
    printer->PrintLine(u"two"_s);
    printer->NewPage();
    printer->EndDoc();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count("/Type /Page\n"), 2);

    const auto nowhere = pdfPrinter(folder.filePath(u"no/such/folder.pdf"_s));
    EXPECT_EQ(errorOf([&] { nowhere->Print(u"one"_s); }), 482);
    EXPECT_EQ(errorOf([&] { nowhere->PrintLine(); }), 482);
    EXPECT_EQ(errorOf([&] { nowhere->EndDoc(); }), 0);
}

TEST(QtPrinter, PrintsOnAnyQtPrinter) {
    const QTemporaryDir folder;
    const auto device = std::make_shared<QPrinter>(QPrinter::HighResolution);
    device->setOutputFileName(folder.filePath(u"a.pdf"_s));
    QtPrinter printer(device);
    printer.PrintLine(u"one"_s);
    printer.PaintPicture(QImage(2000, 2000, QImage::Format_RGB32), 904, 800, 1191, 1191);
    printer.NewPage();
    printer.PrintLine(u"two"_s);
    printer.EndDoc();
    EXPECT_EQ(device->printerState(), QPrinter::Idle);
    QFile file(device->outputFileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    EXPECT_EQ(pdf.count("/Type /Page\n"), 2);
    EXPECT_TRUE(pdf.contains("/Width 249")) << "1191 twips at 300 dots to the inch";
}

TEST(QtPrinter, KeepsWhatStandsInThePlaceOfAPdfThatFails) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe"_s), path = folder.filePath(u"old.pdf"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const auto intoPipe = pdfPrinter(pipe);
    EXPECT_EQ(errorOf([&] { intoPipe->Print(u"one"_s); }), 482);
    EXPECT_FALSE(QFileInfo(pipe).isFile());

    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
    old.close();
    // As good as a full disk: no file of this process may grow beyond a kilobyte.
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit low{1024, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &low), 0);
    const auto printer = pdfPrinter(path);
    const int error = errorOf([&] { printer->Print(u"one"_s), printer->EndDoc(); });
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, 482);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), "old");
}

const Document nothing = [](Printer&, const Progress&) {};

/// Answers the printer dialog that comes up next.
void answer(const std::function<void(QPrintDialog&)>& how) {
    QTimer::singleShot(0, qApp, [how] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->objectName(), u"DialogoImpresora"_s);
        EXPECT_TRUE(dialog->testOption(QAbstractPrintDialog::PrintToFile));
        how(*dialog);
    });
}

TEST(PrinterDialog, PrintsIntoTheChosenFileOrCancels) {
    const QTemporaryDir folder;
    QWidget parent;
    QtPrinterDialogs dialogs(&parent);
    answer([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(nothing); }), 32755);

    const QString path = folder.filePath(u"chosen.pdf"_s);
    answer([&](QPrintDialog& dialog) {
        dialog.printer()->setOutputFileName(path);
        dialog.done(QDialog::Accepted);
    });
    const auto printer = dialogs.ShowPrinter(nothing);
    printer->Print(u"one"_s);
    printer->EndDoc();
    EXPECT_TRUE(QFile::exists(path));

    answer([&](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.printer()->outputFileName(), path) << "the choice stays";
        dialog.reject();
    });
    EXPECT_EQ(errorOf([&] { dialogs.ShowPrinter(nothing); }), 32755);
}

} // namespace
