// Exact pen positions of printed paragraphs and lists, on a printer of 100 twips to a character and 200 to a line.
#include "listing/print_document.h"
#include "platform/base/runtime_error.h"
#include "platform/printing/qt_printer.h"
#include "platform/printing/recording_printer.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zv;
using namespace zv::listing;
using printing::RecordingPrinter;

namespace {

std::string joined(const QStringList& lines) { return lines.join(u'\n').toStdString(); }

/// From the left margin 22 characters are gathered, and up to 20 fit: 3700 wide, less 700, less 904. The page has 10
/// lines: a line that starts from 1201 to 1400 is the last of its page.
class Paragraph : public ::testing::Test {
  protected:
    Paragraph() {
        printer.scaleWidth = 3700;
        printer.scaleHeight = 2000;
        printer.width = 4000;
        printer.setFontSize(9);
        pen(904, 1000);
    }
    void pen(double x, double y) {
        printer.CurrentX = x;
        printer.CurrentY = y;
    }
    void print(const QString& text) {
        ImprimirParrafo(printer, text, state, 500, [this](int number) { errors += QString::number(number); });
    }
    void expect(const QStringList& operations, double x, double y) {
        EXPECT_EQ(joined(printer.operations()), joined(operations));
        EXPECT_EQ(printer.CurrentX, x);
        EXPECT_EQ(printer.CurrentY, y);
        EXPECT_EQ(errors, QStringList());
    }

    RecordingPrinter printer;
    PrintState state;
    QStringList errors;
};

TEST_F(Paragraph, NothingForAnEmptyTextOrABlank) {
    pen(1504, 1000);
    print(QString());
    print(u" "_s);
    expect({}, 1504, 1000);
    state.PosicionYImagen = 1200;
    print(u" "_s);
    expect({}, 904, 1200);
}

TEST_F(Paragraph, BreaksBehindTheLastBlankThatFits) {
    print(u" Ana Vega"_s);
    expect({u"page 1"_s, u"text 904 1000 9 0 'Ana Vega'"_s}, 904, 1000);
    print(u"one two three four five six"_s);
    expect({u"page 1"_s, u"text 904 1000 9 0 'Ana Vega'"_s, u"text 904 1000 9 0 'one two three four '"_s,
            u"text 904 1200 9 0 'five six'"_s},
           904, 1200);
}

TEST_F(Paragraph, LineEndsFlowButDoNotPartWords) {
    print(u"aaaaaaaaaaaaaaa\rbbbbbbbbbb"_s);
    expect({u"page 1"_s, u"text 904 1000 9 0 'aaaaaaaaaaaaaaa bbbbbb'"_s, u"text 904 1200 9 0 'bbbb'"_s}, 904, 1200);
}

TEST_F(Paragraph, TooLongAWordIsCutAtTheMarginButLosesAStretchBehindOtherText) {
    print(u"abcdefghijklmnopqrstuvwxyz"_s);
    expect({u"page 1"_s, u"text 904 1000 9 0 'abcdefghijklmnopqrstuv'"_s, u"text 904 1200 9 0 'wxyz'"_s}, 904, 1200);
    pen(1504, 1200); // room to gather 16 characters
    print(u"abcdefghijklmnopqrstuvwxyz"_s);
    expect({u"page 1"_s, u"text 904 1000 9 0 'abcdefghijklmnopqrstuv'"_s, u"text 904 1200 9 0 'wxyz'"_s,
            u"text 904 1400 9 0 'qrstuvwxyz'"_s},
           904, 1400);
}

TEST_F(Paragraph, StartsAtTheEdgeOfThePaperAfterALineWithoutRoom) {
    pen(3000, 1000);
    print(u"Ana"_s);
    expect({u"page 1"_s, u"text 0 1200 9 0 'Ana'"_s}, 904, 1200);
}

TEST_F(Paragraph, FlowsBesideAPictureAndThenBelow) {
    state.PosicionXImagen = 1604;
    state.PosicionYImagen = 1350;
    pen(1604, 1000); // room to gather 15 characters
    print(u"aaaa bbbb cccc dddd eeee ffff gggg hhhh"_s);
    expect({u"page 1"_s, u"text 1604 1000 9 0 'aaaa bbbb cccc '"_s, u"text 1604 1200 9 0 'dddd eeee ffff '"_s,
            u"text 904 1400 9 0 'gggg hhhh'"_s},
           904, 1400);
    EXPECT_EQ(state.PosicionXImagen, 904);
}

TEST_F(Paragraph, EndsBelowAPictureTallerThanTheText) {
    state.PosicionXImagen = 1604;
    state.PosicionYImagen = 1777;
    pen(1604, 1000);
    print(u"short"_s);
    expect({u"page 1"_s, u"text 1604 1000 9 0 'short'"_s}, 904, 1777);
    EXPECT_EQ(state.PosicionXImagen, 904);
}

TEST_F(Paragraph, TurnsThePageAfterTheLineWithThreeLinesLeft) {
    printer.setForeColor(8388608);
    pen(904, 1400);
    print(u"one two three four five six"_s);
    expect({u"page 1"_s, u"text 904 1400 9 8388608 'one two three four '"_s, u"page 2"_s,
            u"text 2700 440 8 0 '- 2 -'"_s, u"text 904 800 9 0 'five six'"_s},
           904, 800);
    EXPECT_EQ(state.Pagina, 2);
    EXPECT_EQ(state.PosicionYImagen, 800);
}

TEST_F(Paragraph, PassesTheLastLinesWithoutAPageNumber) {
    state.PosicionYImagen = 1500;
    pen(904, 1500);
    print(u"one two three four five six seven eight nine"_s);
    // The printer turned the page by itself; the picture and its bottom stay on the page before.
    expect({u"page 1"_s, u"text 904 1500 9 0 'one two three four '"_s, u"text 904 1700 9 0 'five six seven eight '"_s,
            u"page 2"_s, u"text 904 0 9 0 'nine'"_s},
           904, 0);
    EXPECT_EQ(state.Pagina, 1);
}

TEST_F(Paragraph, TellsAnErrorAndReturns) {
    printer.scaleWidth = 40000;
    print(u"Ana"_s);
    printer.scaleWidth = 3700;
    printer.setFailing(true);
    print(u"Ana"_s);
    EXPECT_EQ(errors, QStringList({u"6"_s, u"482"_s}));
    EXPECT_TRUE(printer.operations().isEmpty());
}

/// A record: the path of its picture with the size it gets, and its values.
struct Row {
    QString path;
    double width = 0, height = 0;
    QStringList values;
};

class Rows : public PrintRecords {
  public:
    std::vector<Row> rows;
    std::function<void(int)> atValues;

    int RecordCount() override { return static_cast<int>(rows.size()); }
    int position() override { return at_; }
    void moveTo(int position) override { at_ = position; }
    QString picturePath() override { return row().path; }
    bool loadPicture(const QString& path, int side, PrintPicture& picture) override {
        EXPECT_EQ(path, row().path);
        EXPECT_EQ(side, 1191);
        if (row().width == 0) return false;
        picture = {QImage(10, 10, QImage::Format_RGB32), row().width, row().height};
        picture.Picture.fill(Qt::darkCyan);
        return true;
    }
    QStringList values() override {
        if (atValues) atValues(at_);
        return row().values;
    }

  private:
    const Row& row() const { return rows[static_cast<std::size_t>(at_)]; }
    int at_ = 0;
};

class Boxes : public MessageBoxes {
  public:
    QStringList shown;
    int MsgBox(const QString& text, int style) override {
        shown += u"%1 %2"_s.arg(style).arg(text);
        return box::Ok;
    }
};

/// A list of names with their pictures on pages of 8000 x 6000 twips.
class List : public ::testing::Test {
  protected:
    List() {
        for (auto* printer : {&dialogs.printer, &dialogs.preview}) {
            printer->scaleWidth = 8000;
            printer->scaleHeight = 6000;
            printer->width = 8400;
        }
        job.LabBaseDatos = u"Composer"_s;
        job.ContSel = 3;
        job.ContFil = 1;
        job.LabCampos = u"6"_s;
        job.items = {{u"Name"_s, true}, {u"Surname"_s, true}, {u"Notes"_s, false}, {u"Image"_s, true}};
        job.order.lastField = 7;
        job.order.chooseCriterion = [this](int i) { return combos += u" criterion%1"_s.arg(i), u"Ascending"_s; };
        job.order.chooseField = [this](int i) { return combos += u" field%1"_s.arg(i), u" Surname "_s; };
        job.records = &rows;
        job.ImagenTmp = &picture;
        job.progressMax = [this](int max) { progress += u"max %1"_s.arg(max); };
        job.progress = [this](int value) { progress += QString::number(value); };
    }
    void print() { printSelection(job, dialogs, boxes, u"Has occurred Error: "_s); }
    QStringList operations() const { return dialogs.printer.operations(); }

    printing::RecordingPrinterDialogs dialogs;
    PrintJob job;
    Rows rows;
    PrintPicture picture;
    Boxes boxes;
    QString combos;
    QStringList progress;
};

TEST_F(List, PrintsHeadingsAndBlocks) {
    job.ValorFiltro = u"Name = 'Ana'"_s;
    job.order.CampoOrden = 1;
    job.order.CriterioOrden = 0;
    rows.rows = {{QString(), 0, 0, {u"Ana"_s, u"Vega"_s, u"1685"_s, QString()}},
                 {u"a.jpg"_s, 600, 900, {u"Eva"_s}},
                 // Low itself, but judged by the 900 of the picture before: 4940 + 900 is beyond 6000 - 400.
                 {u"b.jpg"_s, 1191, 100, {u"Ida"_s}},
                 {u"missing.jpg"_s, 0, 0, {u"Una"_s}}};
    print();
    EXPECT_EQ(joined(operations()), joined({
                                        u"page 1"_s,
                                        u"text 3400 440 8 8388608 '- Zarvelia -'"_s,
                                        u"text 6596 440 8 0 '- 1 -'"_s,
                                        u"text 904 1440 14 bold 8388608 ''Composer''"_s,
                                        u"text 904 1840 8 0 'Selection:   '"_s,
                                        u"text 2204 1840 9 8388608 '/ 3 R / 6 F / 1 Fl /'"_s,
                                        u"text 904 2040 8 0 'Filters:   '"_s,
                                        u"text 2004 2040 9 8388608 '/ Name = 'Ana' /'"_s,
                                        u"text 904 2240 8 0 'Order:   '"_s,
                                        u"text 1804 2240 9 8388608 '/  Surname  / Ascending /'"_s,
                                        u"text 904 2440 8 0 'Print:   '"_s,
                                        u"text 1804 2440 9 8388608 '( 3 F ) '"_s,
                                        u"text 2604 2440 9 8388608 '/ Image / Name / Surname /'"_s,
                                        u"text 904 3240 9 0 '1- /  Ana  /  Vega  /  1685  /  -  /'"_s,
                                        u"picture 904 3640 600 900"_s,
                                        u"text 1704 3640 9 0 '2- /  Eva  /'"_s,
                                        u"page 2"_s,
                                        u"text 7100 440 8 0 '- 2 -'"_s,
                                        u"picture 904 800 1191 100"_s,
                                        u"text 2295 800 9 0 '3- /  Ida  /'"_s,
                                        u"text 904 1300 9 0 '4- /  Una  /'"_s,
                                        u"end"_s,
                                    }));
    EXPECT_EQ(combos, u" criterion0 field1"_s);
    EXPECT_EQ(progress, QStringList({u"max 4"_s, u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"0"_s}));
    EXPECT_EQ(picture.Height, 100);
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_F(List, OfNoRecordsIsItsHeadingsOnOnePage) {
    job.items[0].ticked = job.items[3].ticked = false;
    print();
    const QStringList all = operations();
    EXPECT_EQ(joined(all.mid(all.size() - 4)),
              joined({u"text 904 2240 8 0 'Print:   '"_s, u"text 1804 2240 9 8388608 '( 1 F ) '"_s,
                      u"text 2604 2240 9 8388608 '/ Surname /'"_s, u"end"_s}));
    EXPECT_TRUE(all.contains(u"text 1804 2040 9 8388608 '/ Surname / Ascending /'"_s)) << "the field's text is trimmed";
    EXPECT_EQ(combos, u" criterion2 field7"_s);
    EXPECT_EQ(all.filter(u"page"_s), QStringList(u"page 1"_s));
}

TEST_F(List, AsksOnlyWithATickAndLeavesSilentlyOnCancel) {
    dialogs.error = 32755;
    print();
    EXPECT_EQ(dialogs.shown, 1);
    for (PrintItem& item : job.items) item.ticked = false;
    print();
    EXPECT_EQ(dialogs.shown, 1);
    EXPECT_TRUE(operations().isEmpty() && boxes.shown.isEmpty() && progress.isEmpty());
}

// The room for a block is judged by the picture before, the first by that of the print before.
TEST_F(List, IsTheSameInThePreviewWhichLeavesNoTrace) {
    rows.rows = {{u"a.jpg"_s, 600, 1191, {u"Ana"_s}}, {QString(), 0, 0, {u"Eva"_s}}, {u"b.jpg"_s, 1191, 100, {}}};
    picture.Width = 700;
    picture.Height = 3000;
    rows.moveTo(1);
    dialogs.looks = true;
    dialogs.error = printing::PrinterCancel;
    print();
    EXPECT_EQ(picture.Width, 700);
    EXPECT_EQ(picture.Height, 3000);
    EXPECT_EQ(rows.position(), 1);
    EXPECT_TRUE(operations().isEmpty() && progress.isEmpty() && dialogs.progress.isEmpty() && boxes.shown.isEmpty());
    const QStringList seen = dialogs.preview.operations();
    EXPECT_TRUE(seen.contains(u"page 2"_s));

    dialogs.error = 0;
    print();
    EXPECT_EQ(joined(operations()), joined(seen));
    EXPECT_EQ(joined(dialogs.preview.operations()), joined(seen + seen));
    EXPECT_EQ(dialogs.progress, QStringList({u"0 of 3"_s, u"1 of 3"_s, u"2 of 3"_s, u"3 of 3"_s, u"0 of 3"_s}));
}

TEST_F(List, TellsAnErrorOfThePreviewAndPrintsNothing) {
    rows.rows.resize(3);
    rows.atValues = [](int row) {
        if (row == 2) throw RuntimeError(3021);
    };
    dialogs.looks = true;
    print();
    EXPECT_TRUE(operations().isEmpty());
    EXPECT_EQ(rows.position(), 0);
    EXPECT_EQ(boxes.shown, QStringList(u"16 Has occurred Error: 3021"_s));
}

TEST_F(List, EndsTheDocumentAfterAnError) {
    rows.rows.resize(3);
    rows.atValues = [](int row) {
        if (row == 1) throw RuntimeError(3021);
    };
    print();
    EXPECT_EQ(operations().last(), u"end"_s);
    EXPECT_EQ(progress.last(), u"0"_s);
    EXPECT_EQ(boxes.shown, QStringList(u"16 Has occurred Error: 3021"_s));
}

TEST_F(List, DoesNotPrintOnIntoABrokenPrinter) {
    rows.rows.resize(100);
    rows.atValues = [this](int row) { dialogs.printer.setFailing(row == 1); };
    print();
    // One box for the paragraph, which lets the print go on, and one for what comes after it.
    EXPECT_EQ(boxes.shown, QStringList({u"16 Has occurred Error: 482"_s, u"16 Has occurred Error: 482"_s}));
}

TEST_F(List, PrintsPdf) {
    for (int i = 0; i < 200; ++i)
        rows.rows.push_back({i % 4 == 0 ? u"a.jpg"_s : QString(),
                             900,
                             1191,
                             {u"Sergei Прокофьев"_s, u"Dvořák, Ångström, Núñez"_s, u"Símfonia número %1"_s.arg(i),
                              u"Concerto for two violins, strings and continuo "_s.repeated(1 + i % 7)}});
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"list.pdf"_s);
    const auto printer = printing::pdfPrinter(path);
    printDocument(*printer, job, [](int number) { ADD_FAILURE() << number; });
    EXPECT_FALSE(QFile::exists(path)) << "written whole at the end";
    printer->EndDoc();

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_GE(pdf.count("/Type /Page\n"), 15);
    EXPECT_LE(pdf.count("/Type /Page\n"), 30);
}

} // namespace
